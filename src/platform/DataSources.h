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
    /// All names in the registry's order; none where there is no registry.
    virtual std::vector<std::string> names() = 0;
    /// Adds a data source or gives an existing one new values. The attributes are "Key=value", separated by carriage
    /// returns. Throws std::runtime_error, with the registry unchanged, where the driver is unknown, the name isn't
    /// allowed or the registry can't be written. `silent` has no effect: no dialogs are shown.
    virtual void registerDatabase(const std::string& name, const std::string& driver, bool silent,
                                  const std::string& attributes) = 0;
    /// kAdd adds the data source named by the attribute DSN, or gives it new values; kConfigure does so only where it
    /// exists. The attributes are "Key=value", each ended by a zero character. Returns 1 for success and 0 for failure.
    virtual std::int32_t configure(std::int16_t request, const std::string& driver, const std::string& attributes) = 0;
};

DataSources& dataSources();
/// Sets another registry in the place of this machine's own; null sets that one again.
void setDataSources(std::unique_ptr<DataSources> dataSources);

} // namespace platform
