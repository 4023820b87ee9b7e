#pragma once

#include <cstdint>
#include <string>

namespace vabo {

/// Treatments that may be the standard.
std::string ElencoTrattamenti();

/// The stored standard treatment, 2 where none is. Failing statements are skipped.
std::int32_t LeggiAliquotaStandard();

std::string DescrizioneTrattamento(double id);
std::string SiglaTrattamento(double id);
/// In the locale's number format. A rate of zero, or none, counts as no text and raises 13 "Type mismatch".
std::string AliquotaTrattamento(double id);
std::string DetrazioneTrattamento(double id);

/// Writes the one row, creating it where it is missing. The texts go in as the screen shows them. Errors raise.
void SalvaAliquotaStandard(double id, const std::string& aliquota, const std::string& sigla,
                           const std::string& detrazione);

} // namespace vabo
