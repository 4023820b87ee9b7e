#pragma once

#include "support/TestedDriver.h"

#include <string>

namespace vabo {

/// How the data layer adds the area "Balcani". It names the table as the server does where fields tell their source,
/// and else as the selection did.
inline std::string NuovaZona() {
    const std::string tabella =
        support::capabilities().fieldsTellTheirSource ? "[ZoneGeografiche]" : "[Zonegeografiche]";
    return "INSERT INTO " + tabella + " ([Descrizione]) VALUES (N'Balcani')";
}

} // namespace vabo
