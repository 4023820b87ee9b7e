#pragma once

#include "platform/DataSources.h"

namespace platform {

/// The data sources of this machine's ODBC; new ones are the user's own. The name "SQL Server" of a driver stands for
/// the one that connections to a server use (see ado/drivers/odbc/OdbcDriverName.h), and what that driver needs to
/// know goes into the entry, so that any program connects by the name alone.
class OdbcDataSources : public DataSources {
public:
    std::vector<std::string> names() override;
    void registerDatabase(const std::string& name, const std::string& driver, bool silent,
                          const std::string& attributes) override;
    std::int32_t configure(std::int16_t request, const std::string& driver, const std::string& attributes) override;
};

} // namespace platform
