#pragma once

#include "ado/Driver.h"
#include "engine/store/Instance.h"

#include <filesystem>
#include <map>
#include <memory>

namespace ado {

/// The driver of the embedded server. Each instance folder has one instance object, which all connections of the
/// process share.
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
