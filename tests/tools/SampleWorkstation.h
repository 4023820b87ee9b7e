#pragma once

#include "engine/run/Session.h"
#include "provision/Provision.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A workstation with a small ledger, created once for all tests that only read it.
class SampleWorkstation {
public:
    explicit SampleWorkstation(long ledgerRows = 200, long accounts = 0);

    static const SampleWorkstation& shared();

    provision::Plan plan() const;
    std::filesystem::path vabo() const { return folder_.path() / "vabo"; }

    std::unique_ptr<engine::Session> session(std::string_view database) const;
    std::int64_t number(std::string_view database, const std::string& select) const;
    std::string text(std::string_view database, const std::string& select) const;
    std::vector<std::string> texts(std::string_view database, const std::string& select) const;

private:
    support::TemporaryFolder folder_;
    long ledgerRows_, accounts_;
};

/// Opens a database of the workstation in that drive C.
std::unique_ptr<engine::Session> openSession(const std::filesystem::path& driveC, std::string_view database,
                                             std::string_view password = provision::kServerPassword);
