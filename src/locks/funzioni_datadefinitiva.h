#pragma once

#include "ado/Value.h"

#include <array>
#include <cstdint>
#include <string>

namespace vabo {

/// The date as a literal that any server reads alike, whatever its language. Two blanks end it.
std::string DataSql(const ado::Date& data);
/// The same without the blanks at its end.
std::string DataSqlUnita(const ado::Date& data);

/// The last balance that was closed, 31 December 2000 where none was. Errors raise.
ado::Date LeggiDataBilancio();

// The accounts of the system that the locks go by, 0 for a row that is missing or has none. Each call asks the server;
// errors raise.
double ContoHq2();
double ContoHq1();
double Conto18();
double Conto19();
double Conto27();
double Conto29();
double Conto1();
double Conto2();
double Conto5();

using NoveConti = std::array<std::int32_t, 9>;

/// The accounts whose transactions always count as definitive, in nine fixed places, and their groups. Failing
/// statements are skipped: what can't be read is 0.
void CaricaContiBlocco(NoveConti& ContiBlocco, NoveConti& GruppiBlocco);

} // namespace vabo
