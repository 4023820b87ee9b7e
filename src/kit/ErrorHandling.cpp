#include "kit/ErrorHandling.h"

#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

// To be repeated while the error state stays set; but a state that is set is an error raised, which leaves at once.
void AggiornaRecord(ado::Recordset& rs) {
    rs.Update();
}

// Failing statements are skipped.
void RilasciaRecordset(int posto) {
    const std::unique_ptr<ado::Recordset> rs = RsCondivisi.Ritira(posto);
    if (rs && rs->IsOpen())
        salta([&] { rs->Close(); });
}

// Failing statements are skipped.
std::string ChiudiRecordset() {
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto)
        RilasciaRecordset(posto);
    if (DbLocale && DbLocale->IsOpen())
        salta([] { DbLocale->Close(); });
    DbLocale.reset();
    return {};
}

} // namespace vabo
