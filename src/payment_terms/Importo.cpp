#include "payment_terms/Importo.h"

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"

#include <QString>

namespace vabo {

namespace {

constexpr int kDecimali = 2;

QChar SeparatoreMigliaia() {
    const char separatore = ado::regionalSettings().monetaryThousandsSeparator;
    return QLatin1Char(separatore == ',' || separatore == '.' ? separatore : '.');
}

// A blank is none.
QChar SeparatoreDecimali() {
    const char separatore = ado::regionalSettings().monetaryDecimalSeparator;
    return QLatin1Char(separatore == ' ' ? ',' : separatore);
}

} // namespace

std::string ImportoNormale(const std::string& testo) {
    constexpr int kVicino = 2, kLontano = 6; // places from the right end
    if (IsEmptyValue(testo)) {
        return testo;
    }
    QString importo = QString::fromStdString(testo);
    if (importo.startsWith(QLatin1Char('.'))) {
        importo.prepend(QLatin1Char('0'));
    }
    for (int posto = kLontano; posto >= kVicino; --posto) {
        const qsizetype qui = importo.size() - posto;
        if (qui >= 0 && importo[qui] == SeparatoreMigliaia()) {
            importo[qui] = SeparatoreDecimali();
        }
    }
    return importo.toStdString();
}

std::string ImportoScritto(const std::string& testo) {
    return IsEmptyValue(testo) ? testo : ado::formatFixed(ado::toDouble(ImportoNormale(testo)), kDecimali, true);
}

} // namespace vabo
