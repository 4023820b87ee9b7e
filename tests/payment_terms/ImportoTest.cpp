// An amount as a user types it, with the separators of the machine.

#include "payment_terms/Importo.h"

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "platform/RegionalSettings.h"

#include <gtest/gtest.h>

namespace vabo {
namespace {

/// A text, and what becomes of it.
struct Caso {
    const char* digitato;
    const char* normale;
};

void verifica(std::initializer_list<Caso> casi) {
    for (const Caso& caso : casi) {
        EXPECT_EQ(ImportoNormale(caso.digitato), caso.normale) << caso.digitato;
    }
}

/// With the separators of the money of another country.
class Separatori {
public:
    Separatori(char migliaia, char decimali) {
        ado::regionalSettings().monetaryThousandsSeparator = migliaia;
        ado::regionalSettings().monetaryDecimalSeparator = decimali;
    }
    Separatori(const Separatori&) = delete;
    Separatori& operator=(const Separatori&) = delete;
    ~Separatori() { ado::regionalSettings() = {}; }
};

TEST(ImportoNormale, APointTwoToSixPlacesFromTheEndIsTheDecimalSeparator) {
    verifica({{"1.", "1."},
              {"1.5", "1,5"},
              {"1.50", "1,50"},
              {"1.500", "1,500"},
              {"1.5000", "1,5000"},
              {"1.50000", "1,50000"},
              {"1.500000", "1.500000"},
              {"1.500,00", "1.500,00"},
              {"12.345.678", "12.345,678"},
              {"1.2.3", "1,2,3"}});
}

TEST(ImportoNormale, APointInFrontGetsAZero) {
    verifica({{".5", "0,5"}, {".50", "0,50"}, {".", "0."}, {".500000", "0.500000"}, {"..5", "0,,5"}});
}

TEST(ImportoNormale, OtherTextsStayAsTheyAre) {
    verifica(
        {{"", ""}, {" ", " "}, {"0", "0"}, {"0,00", "0,00"}, {",5", ",5"}, {"12", "12"}, {"abc", "abc"}, {"à", "à"}});
}

TEST(ImportoNormale, PlacesAreCountedInCharacters) {
    verifica({{"1.èèèèè", "1,èèèèè"}, {"1.èèèèèè", "1.èèèèèè"}});
}

TEST(ImportoNormale, GoesByTheSeparatorsOfTheMachine) {
    {
        const Separatori inglesi(',', '.');
        verifica({{"1,500", "1.500"}, {"1.500", "1.500"}, {".5", "0.5"}, {",5", ".5"}});
    }
    {
        const Separatori svizzeri('\'', '.');
        verifica({{"1'500", "1'500"}, {"1.500", "1.500"}});
    }
    {
        const Separatori francesi(' ', ',');
        verifica({{"1 500", "1 500"}, {"1.5", "1,5"}});
    }
    {
        const Separatori nessuno('\0', ' ');
        verifica({{"1.5", "1,5"}}); // both have their defaults
    }
}

TEST(ImportoNormale, TheSeparatorsAreThoseOfTheLocale) {
    platform::useLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    verifica({{"1,50", "1.50"}});
    platform::useLocale(QLocale(QLocale::Italian, QLocale::Italy));
    verifica({{"1.50", "1,50"}});
}

TEST(ImportoScritto, HasTwoDecimalsAndGroupedThousands) {
    const Caso casi[] = {
        {"1.500", "1,50"},        {"1500", "1.500,00"}, {"1.500,00", "1.500,00"}, {".5", "0,50"},
        {"2,005", "2,01"},        {"-3.5", "-3,50"},    {"12", "12,00"},          {"1234567,891", "1.234.567,89"},
        {"1.234.567", "1.234,57"}};
    for (const Caso& caso : casi) {
        EXPECT_EQ(ImportoScritto(caso.digitato), caso.normale) << caso.digitato;
    }
}

TEST(ImportoScritto, WhatIsEmptyStaysAsItIs) {
    for (const char* vuoto : {"", " ", "0", "0,00", "000"}) {
        EXPECT_EQ(ImportoScritto(vuoto), vuoto);
    }
}

TEST(ImportoScritto, WhatIsNoNumberIsRefused) {
    for (const std::string& testo : {std::string("abc"), std::string("1.2.3"), std::string("1;2"), std::string("'"),
                                     std::string(4'000, 'x'), std::string("\x01")}) {
        try {
            ImportoScritto(testo);
            ADD_FAILURE() << testo.substr(0, 10) << " is a number";
        } catch (const ado::Error& error) {
            EXPECT_EQ(error.number(), 13) << testo.substr(0, 10);
        }
    }
}

} // namespace
} // namespace vabo
