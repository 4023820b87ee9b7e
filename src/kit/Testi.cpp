#include "kit/Testi.h"

#include "ado/Conversions.h"

#include <QString>

namespace vabo {

std::string Minuscolo(const std::string& testo) {
    return QString::fromStdString(testo).toLower().toStdString();
}

std::string Maiuscolo(const std::string& testo) {
    return QString::fromStdString(testo).toUpper().toStdString();
}

std::string Pezzo(const ado::Value& valore) {
    return valore.isNull() ? std::string() : ado::toText(valore);
}

} // namespace vabo
