#include "kit/IsEmptyValue.h"

#include "ado/Conversions.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>
#include <variant>

namespace vabo {

namespace {

constexpr std::array<std::string_view, 13> kTestiVuoti = {"",    " ", "0,00", "0,000", "0,0000", "0,00000", "0,000000",
                                                          ",00", "0", "00",   "000",   "0000",   "0:00:00"};
constexpr std::array<std::string_view, 4> kDateVuote = {"", "0.00.00", "0:00:00", "00:00:00"};

bool DataDiZeri(std::string_view testo) {
    return testo.starts_with("00/00/0000");
}

template<std::size_t N>
bool Contiene(const std::array<std::string_view, N>& elenco, std::string_view testo) {
    return std::find(elenco.begin(), elenco.end(), testo) != elenco.end();
}

struct Prova {
    bool operator()(std::monostate) const { return true; }
    bool operator()(ado::Null) const { return true; }
    bool operator()(bool valore) const { return !valore; }
    bool operator()(ado::Currency valore) const { return valore.tenThousandths == 0; }
    bool operator()(const ado::Decimal& valore) const { return valore.unscaled == 0; }
    bool operator()(const ado::Date& valore) const {
        const std::string testo = ado::formatDate(valore);
        return Contiene(kDateVuote, testo) || DataDiZeri(testo);
    }
    bool operator()(const std::string& valore) const { return IsEmptyValue(valore); }
    template<typename Numero>
    requires std::is_arithmetic_v<Numero>
    bool operator()(Numero valore) const { return valore == Numero{0}; }
};

} // namespace

bool IsEmptyValue(const ado::Value& valore) {
    return std::visit(Prova{}, valore.variant());
}

bool IsEmptyValue(double valore) {
    return valore == 0.0;
}

bool IsEmptyValue(const std::string& valore) {
    return Contiene(kTestiVuoti, valore) || DataDiZeri(valore);
}

} // namespace vabo
