#pragma once

#include "ado/Driver.h"

namespace ado {

/// The driver for servers of the network.
class OdbcDriver : public Driver {
public:
    const char* name() const override { return "odbc"; }
    std::unique_ptr<DriverConnection> connect(const ConnectionString& text) override;
};

} // namespace ado
