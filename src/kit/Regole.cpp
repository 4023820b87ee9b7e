#include "kit/Regole.h"

#include "ado/Error.h"
#include "platform/Dialogs.h"

#include <QLoggingCategory>

namespace vabo {

namespace {
Q_LOGGING_CATEGORY(kSaltati, "vabo.skipped", QtWarningMsg)
} // namespace

std::string Descrizione(const std::exception& errore) {
    return errore.what();
}

namespace regole {

// Without the statement's text, which may hold a password.
void Saltato(const std::exception& errore) {
    if (!kSaltati().isInfoEnabled()) {
        return;
    }
    QString testo = QString::fromStdString(Descrizione(errore));
    if (const auto* dati = dynamic_cast<const ado::Error*>(&errore)) {
        testo += QStringLiteral(" (%1)").arg(dati->number());
        if (!dati->context().empty()) {
            testo += QStringLiteral(" in %1").arg(QString::fromStdString(dati->context()));
        }
    }
    qCInfo(kSaltati).noquote() << testo;
}

void Fine(const std::exception& errore) {
    platform::dialogs().message(Descrizione(errore));
    platform::TerminaProcesso();
}

} // namespace regole

} // namespace vabo
