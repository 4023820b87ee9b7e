#pragma once

#include <cstdint>
#include <string>

namespace vabo {

/// Opens a report of a local database in the report application. Without that application nothing happens. Raises
/// nothing.
void StampaReportAccess(const std::string& percorso, const std::string& report, std::int16_t vista);

} // namespace vabo
