#pragma once

#include <cstdint>
#include <string>

namespace vabo {

/// The statement that lists the treatments that may be the standard.
std::string ElencoTrattamenti();

/// The stored standard treatment, 2 where none is. Failing statements are skipped.
std::int32_t LeggiAliquotaStandard();

std::string DescrizioneTrattamento(double id);
std::string SiglaTrattamento(double id);
/// In the locale's number format. Raises 13 "Type mismatch" where the rate is zero or missing.
std::string AliquotaTrattamento(double id);
std::string DetrazioneTrattamento(double id);

/// Writes the single row, creating it where it is missing. The texts are stored as they stand on the screen; blanks
/// around `sigla` are cut. Errors raise.
void SalvaAliquotaStandard(double id, const std::string& aliquota, const std::string& sigla,
                           const std::string& detrazione);

} // namespace vabo
