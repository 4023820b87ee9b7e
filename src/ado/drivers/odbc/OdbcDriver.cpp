#include "ado/drivers/odbc/OdbcDriver.h"

#include "ado/drivers/odbc/OdbcConnection.h"

namespace ado {

std::unique_ptr<DriverConnection> OdbcDriver::connect(const ConnectionString& text) {
    return std::make_unique<odbc::OdbcConnection>(text);
}

} // namespace ado
