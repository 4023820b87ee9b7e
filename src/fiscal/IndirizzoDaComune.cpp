#include "fiscal/IndirizzoDaComune.h"

#include "ado/Conversions.h"
#include "geography/RiempiCap.h"
#include "geography/SostituisciSpeciali.h"
#include "kit/Testi.h"

namespace vabo {

namespace {

/// The code as five digits, and as it is where it isn't a number.
QString CinqueCifre(const ado::Value& codice) {
    constexpr int kCifre = 5;
    const QString testo = QString::fromStdString(ado::toText(codice));
    if (!ado::isNumeric(codice)) {
        return testo;
    }
    return QString::fromStdString(ado::formatFixed(ado::toDouble(codice), 0)).rightJustified(kCifre, '0');
}

/// Whether both codes are of one area.
bool StessaZona(const QString& cap, const QString& altro) {
    constexpr int kCifreDellaZona = 3;
    return cap.left(kCifreDellaZona) == altro.left(kCifreDellaZona);
}

std::string CapDelComune(const std::string& cap, const ado::Value& codice) {
    const QString codCap = QString::fromStdString(Pezzo(codice));
    QString campo = QString::fromStdString(cap);
    if (!codice.isNull() && !StessaZona(campo, CinqueCifre(codice))) {
        campo = codCap;
    }
    return RiempiCap(campo, codCap).toStdString();
}

} // namespace

void RiempiIndirizzo(ado::Recordset& comuni, std::string nome, Indirizzo& indirizzo) {
    comuni.setFilter("des_comune like '" + SostituisciSpeciali(nome) + "'");
    if (comuni.EOF()) {
        return;
    }
    indirizzo.cap = CapDelComune(indirizzo.cap, comuni["COD_CAP"]);
    if (!comuni["DES_PROVIN"].Value().isNull()) {
        indirizzo.provincia = ado::toText(comuni["DES_PROVIN"]);
    }
    if (!comuni["IdStato"].Value().isNull()) {
        indirizzo.idStato = ado::toDouble(comuni["IdStato"]);
    }
}

} // namespace vabo
