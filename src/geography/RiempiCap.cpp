#include "geography/RiempiCap.h"

namespace vabo {

QString RiempiCap(QString campo, const QString& codCap) {
    constexpr int kCifre = 5;
    if (campo.isEmpty()) {
        campo = "00000";
    }
    for (int lunghezza = 2; lunghezza <= kCifre; ++lunghezza) {
        if (campo.size() < lunghezza) {
            campo = QString(kCifre + 1 - lunghezza, '0') + codCap;
        }
    }
    return campo;
}

} // namespace vabo
