#include "kit/StampaReportAccess.h"

#include "kit/Regole.h"
#include "platform/Automation.h"

namespace vabo {

// Failing statements are skipped.
void StampaReportAccess(const std::string& percorso, const std::string& report, std::int16_t vista) {
    std::unique_ptr<platform::ReportApplication> programma;
    salta([&] { programma = platform::automation().createObject("Access.Application"); });
    if (!programma) {
        return;
    }
    salta([&] { programma->OpenCurrentDatabase(percorso); });
    salta([&] { programma->OpenReport(report, vista); });
    salta([&] { programma->Maximize(); });
    salta([&] { programma->ShowActiveReport(); });
    salta([&] { programma->ShowApplication(); });
    salta([&] { programma->Close(); });
}

} // namespace vabo
