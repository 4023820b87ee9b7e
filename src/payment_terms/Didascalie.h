#pragma once

// The captions of the payment forms in the languages of the client.

#include <array>
#include <span>
#include <string>

namespace vabo {

enum class Lingua { IT, EN, ES, PO, FR };

/// By the client's code, whose case counts. Any other code is Italian.
Lingua LinguaDi(const std::string& codice);

/// One caption in all languages, in their order.
using Testi5 = std::array<const char*, 5>;

/// A label of a form, by its name.
struct Didascalia {
    const char* etichetta;
    Testi5 testi;
};

/// A heading of a form's grid, by the column's place.
struct Intestazione {
    int colonna;
    Testi5 testi;
};

const char* Nella(Lingua lingua, const Testi5& testi);

extern const std::span<const Didascalia> kDidascalieCondizioni, kDidascalieDecorrenze;
extern const std::span<const Intestazione> kIntestazioniCondizioni, kIntestazioniDecorrenze;

} // namespace vabo
