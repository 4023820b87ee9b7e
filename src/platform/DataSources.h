#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// The registry of named data sources, by which other programs reach the databases.
class DataSources {
public:
    static constexpr std::int16_t kAdd = 1;
    static constexpr std::int16_t kConfigure = 2;

    virtual ~DataSources() = default;
    /// All names in the registry's own order; none where there is no registry.
    virtual std::vector<std::string> names() = 0;
    /// Enters a data source or gives an existing one new values. The attributes are "Key=value", divided by carriage
    /// returns. Throws std::runtime_error where the driver is unknown, the name isn't allowed or the registry can't be
    /// written; the registry is then as it was. `silent` asks for no dialogs, of which there are none anyway.
    virtual void registerDatabase(const std::string& name, const std::string& driver, bool silent,
                                  const std::string& attributes) = 0;
    /// kAdd enters the data source that the attribute DSN names, or gives it new values; kConfigure does so only where
    /// it exists. The attributes are "Key=value", each closed by a zero character. 1 when it was done, 0 when not.
    virtual std::int32_t configure(std::int16_t request, const std::string& driver, const std::string& attributes) = 0;
};

DataSources& dataSources();
/// Takes the place of this machine's registry, which comes back with nothing.
void setDataSources(std::unique_ptr<DataSources> dataSources);

} // namespace platform
