#pragma once

#include "ado/Driver.h"
#include "engine/run/KeptDatabases.h"
#include "engine/store/Instance.h"

#include <filesystem>
#include <map>
#include <memory>
#include <set>

namespace ado {

/// The driver of the embedded server. Each instance folder has one instance object, which all connections of the
/// process share. What the connections of one event have open stays open until its end for the next of them: the
/// program connects many times in an event.
class EmbeddedDriver : public Driver {
public:
    EmbeddedDriver();

    const char* name() const override { return "embedded"; }
    std::unique_ptr<DriverConnection> connect(const ConnectionString& text) override;

private:
    std::shared_ptr<engine::Instance> instance(const std::filesystem::path& folder);

    void keepInThisEvent(std::shared_ptr<engine::Instance> instance);

    std::map<std::filesystem::path, std::weak_ptr<engine::Instance>> instances_;
    std::set<std::shared_ptr<engine::Instance>> kept_;
    std::shared_ptr<engine::KeptDatabases> databases_;
};

} // namespace ado
