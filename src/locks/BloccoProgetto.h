#pragma once

#include <string>

namespace vabo {

class Avanzamento;

/// Writes the definitive date of a project and brings the flags of its rows into line with it: all after the balance
/// open again, then what is reported up to the date definitive, then the transactions that are definitive in any case.
/// Nothing is rolled back; a second run puts right what a first one left half done.
///
/// `data` is what was typed. Failing statements are skipped: a text that is no date leaves out what needs the date.
void AggiornaDataDefinitiva(double progetto, const std::string& data, Avanzamento& avanzamento);

} // namespace vabo
