#include "provision/States.h"

#include "provision/Sql.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/region.h>
#include <unicode/ucurr.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace provision {

namespace {

struct State {
    std::string code, code3, name, currency, area;
    int number = 0;
};

std::string italianName(const icu::Locale& place) {
    icu::UnicodeString name;
    place.getDisplayCountry(icu::Locale::getItaly(), name);
    std::string text;
    return name.toUTF8String(text);
}

std::string currencyOf(const icu::Locale& place) {
    UErrorCode status = U_ZERO_ERROR;
    std::array<UChar, 4> code{};
    ucurr_forLocale(place.getName(), code.data(), static_cast<std::int32_t>(code.size()), &status);
    std::string text;
    if (U_SUCCESS(status)) {
        icu::UnicodeString(code.data()).toUTF8String(text);
    }
    return text;
}

State stateOf(const char* code) {
    const icu::Locale place("und", code);
    State state{code, place.getISO3Country(), italianName(place), currencyOf(place), {}, 0};
    UErrorCode status = U_ZERO_ERROR;
    if (const icu::Region* region = icu::Region::getInstance(code, status); U_SUCCESS(status)) {
        state.number = region->getNumericCode();
        if (const icu::Region* area = region->getContainingRegion(URGN_SUBCONTINENT)) {
            state.area = italianName(icu::Locale("und", area->getRegionCode()));
        }
    }
    return state;
}

std::vector<State> allStates() {
    std::vector<State> states;
    for (const char* const* code = icu::Locale::getISOCountries(); *code != nullptr; ++code) {
        states.push_back(stateOf(*code));
    }

    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Collator> order(icu::Collator::createInstance(icu::Locale::getItaly(), status));
    if (U_FAILURE(status)) {
        throw std::runtime_error("no Italian order of names on this machine");
    }
    std::ranges::sort(states, [&order](const State& left, const State& right) {
        const bool leftIsItaly = left.code == "IT";
        if (leftIsItaly != (right.code == "IT")) {
            return leftIsItaly;
        }
        UErrorCode comparing = U_ZERO_ERROR;
        return order->compareUTF8(left.name, right.name, comparing) == UCOL_LESS;
    });
    return states;
}

RowWriter& textOrNull(RowWriter& writer, const std::string& text) {
    return text.empty() ? writer.null() : writer.text(text);
}

} // namespace

void addStates(engine::Session& session) {
    const std::vector<State> states = allStates();
    RowWriter writer(session, "stati", "DescStato, IsoValuta, Sigla, Sigla3, CodiceNumerico, Area");
    std::set<std::string> areas;
    for (const State& state : states) {
        writer.text(state.name);
        textOrNull(writer, state.currency).text(state.code).text(state.code3).integer(state.number);
        textOrNull(writer, state.area).endRow();
        if (!state.area.empty()) {
            areas.insert(state.area);
        }
    }
    writer.finish();

    RowWriter areaWriter(session, "ZoneGeografiche", "Descrizione");
    for (const std::string& area : areas) {
        areaWriter.text(area).endRow();
    }
    areaWriter.finish();
}

} // namespace provision
