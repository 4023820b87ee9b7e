#include "platform/DataSources.h"

#include "platform/OdbcDataSources.h"

#include <utility>

namespace platform {

namespace {

std::unique_ptr<DataSources> present;

} // namespace

DataSources& dataSources() {
    if (!present) {
        present = std::make_unique<OdbcDataSources>();
    }
    return *present;
}

void setDataSources(std::unique_ptr<DataSources> dataSources) {
    present = std::move(dataSources);
}

} // namespace platform
