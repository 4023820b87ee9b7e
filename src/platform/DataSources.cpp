#include "platform/DataSources.h"

#include <stdexcept>
#include <utility>

namespace platform {

namespace {

/// A machine without a registry.
class NoDataSources : public DataSources {
public:
    std::vector<std::string> names() override { return {}; }
    void registerDatabase(const std::string& /*name*/, const std::string& /*driver*/, bool /*silent*/,
                          const std::string& /*attributes*/) override {
        throw std::runtime_error("There is no registry of data sources.");
    }
    std::int32_t configure(std::int16_t /*request*/, const std::string& /*driver*/,
                           const std::string& /*attributes*/) override {
        return 0;
    }
};

std::unique_ptr<DataSources> present;

} // namespace

DataSources& dataSources() {
    if (!present)
        present = std::make_unique<NoDataSources>();
    return *present;
}

void setDataSources(std::unique_ptr<DataSources> dataSources) {
    present = std::move(dataSources);
}

} // namespace platform
