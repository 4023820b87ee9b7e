#include "kit/ErrorHandling.h"

#include "kit/Regole.h"
#include "state/variabili.h"

namespace vabo {

// Without a loop that repeats the update while an error is set: here an error leaves as an exception.
void AggiornaRecord(ado::Recordset& rs) {
    rs.Update();
}

// Failing statements are skipped.
void RilasciaRecordset(int posto) {
    const std::unique_ptr<ado::Recordset> rs = RsCondivisi.Ritira(posto);
    if (rs && rs->IsOpen()) {
        salta([&] { rs->Close(); });
    }
}

// Failing statements are skipped.
std::string ChiudiRecordset() {
    for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
        RilasciaRecordset(posto);
    }
    if (DbLocale && DbLocale->IsOpen()) {
        salta([] { DbLocale->Close(); });
    }
    DbLocale.reset();
    return {};
}

} // namespace vabo
