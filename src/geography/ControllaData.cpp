#include "geography/ControllaData.h"

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"
#include "state/variabili.h"

#include <QString>

#include <cmath>
#include <optional>

namespace vabo {

namespace {

constexpr int kUltimoGiorno = 31, kUltimoMese = 12, kFebbraio = 2;

/// What a date is made of: characters 1 and 2, characters 3 and 4, the last two.
struct Parti {
    double giorno;
    double mese;
    double anno;
};

/// None where one of them isn't a number.
std::optional<Parti> LeggiParti(const QString& data) {
    const auto giorno = ado::parseNumber(data.left(2).toStdString());
    const auto mese = ado::parseNumber(data.mid(2, 2).toStdString());
    const auto anno = ado::parseNumber(data.right(2).toStdString());
    return giorno && mese && anno ? std::optional(Parti{*giorno, *mese, *anno}) : std::nullopt;
}

/// Four fixed decimals; nearbyint rounds half to even, here and below.
ado::Currency Valuta(double numero) {
    return {std::llrint(numero * 10'000)};
}

/// An amount rounded to a unit of so many ten-thousandths.
ado::Currency Arrotondata(ado::Currency importo, int unita) {
    return {std::llrint(static_cast<double>(importo.tenThousandths) / unita) * unita};
}

/// By a quarter of the year's last two digits: 29 days where they divide by 4, 28 where the roundings leave something
/// above the whole, no limit where they leave something below it.
double GiorniDiFebbraio(double anno) {
    const ado::Currency quarto = Valuta(anno / 4);
    const ado::Currency a = Arrotondata(quarto, 1'000);
    const ado::Currency b = Arrotondata(quarto, 10'000);
    if (a == b) {
        return 29;
    }
    return a > b ? 28 : kUltimoGiorno;
}

double GiorniDelMese(const Parti& parti) {
    if (parti.mese == kFebbraio) {
        return GiorniDiFebbraio(parti.anno);
    }
    const bool corto = parti.mese == 4 || parti.mese == 6 || parti.mese == 9 || parti.mese == 11;
    return corto ? 30 : kUltimoGiorno;
}

bool Ammessa(const QString& data) {
    if (IsEmptyValue(data.left(2).toStdString()) || IsEmptyValue(data.mid(2, 2).toStdString())) {
        return false;
    }
    const std::optional<Parti> parti = LeggiParti(data);
    return parti && parti->giorno <= kUltimoGiorno && parti->mese <= kUltimoMese &&
           parti->giorno <= GiorniDelMese(*parti);
}

/// Day, month and a year of four digits, the present one's in front of those given. Other lengths stay as they are.
QString ConAnno(const QString& data) {
    const qsizetype scritte = data.size() - 4;
    if (scritte < 1 || scritte > 4) {
        return data;
    }
    const QString presente = QString::number(ado::today().year());
    return data.left(2) + '/' + data.mid(2, 2) + '/' + presente.left(4 - scritte) + data.right(scritte);
}

} // namespace

void ControllaData(std::string& data, std::int16_t& esito) {
    std::erase(data, '/');
    const QString caratteri = QString::fromStdString(data);
    esito = Ammessa(caratteri) ? kVero : kFalso;
    if (esito == kVero && !ado::isDate(data) && ado::isNumeric(data)) {
        data = ConAnno(caratteri).toStdString();
    }
}

DataLasciata LasciaData(std::string& testo) {
    std::string data = testo;
    Flag esito = kFalso;
    ControllaData(data, esito);
    if (esito != kFalso) {
        testo = data;
        return DataLasciata::Scritta;
    }
    return IsEmptyValue(data) ? DataLasciata::Vuota : DataLasciata::Rifiutata;
}

} // namespace vabo
