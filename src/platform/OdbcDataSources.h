#pragma once

#include "platform/DataSources.h"

namespace platform {

/// The data sources of this machine's ODBC; new ones are entered for the user, not for the machine. "SQL Server" as the
/// name of a driver means the driver that connections to a server use (see ado/drivers/odbc/OdbcDriverName.h). The
/// settings that this driver needs are entered too, so that any program can connect by the data source's name alone.
class OdbcDataSources : public DataSources {
public:
    std::vector<std::string> names() override;
    void registerDatabase(const std::string& name, const std::string& driver, bool silent,
                          const std::string& attributes) override;
    std::int32_t configure(std::int16_t request, const std::string& driver, const std::string& attributes) override;
};

} // namespace platform
