#pragma once

#include "ado/Driver.h"
#include "engine/store/Instance.h"

#include <filesystem>
#include <map>
#include <memory>

namespace ado {

/// The road to the embedded server. One instance object a folder, shared by all connections of the process.
class EmbeddedDriver : public Driver {
public:
    EmbeddedDriver();

    const char* name() const override { return "embedded"; }
    std::unique_ptr<DriverConnection> connect(const ConnectionString& text) override;

private:
    std::shared_ptr<engine::Instance> instance(const std::filesystem::path& folder);

    std::map<std::filesystem::path, std::weak_ptr<engine::Instance>> instances_;
};

} // namespace ado
