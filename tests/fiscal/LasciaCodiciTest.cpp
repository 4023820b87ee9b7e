// The tax codes of a company when their fields are entered and left.

#include "fiscal/LasciaCodici.h"

#include "support/DialogScript.h"

#include <gtest/gtest.h>

#include <string>

namespace vabo {
namespace {

constexpr const char* kErrato = "Codice fiscale formalmente ERRATO";

class LasciaCodici : public testing::Test {
protected:
    /// Whether the code is taken, after so many boxes.
    bool lascia(std::string codice, double idStato, int boxes) {
        for (int i = 0; i < boxes; ++i) {
            script.expectMessage(kErrato, platform::Icon::None);
        }
        rimasto = std::move(codice);
        const bool accettato = LasciaCodiceFiscale(rimasto, idStato);
        EXPECT_TRUE(script.allShown()) << rimasto;
        return accettato;
    }
    void lasciaPartita(const std::string& partita, double idStato, int boxes) {
        for (int i = 0; i < boxes; ++i) {
            script.expectMessage(kErrato, platform::Icon::None);
        }
        LasciaPartitaIva(partita, idStato);
        EXPECT_TRUE(script.allShown()) << partita;
    }

    support::DialogScript script;
    std::string rimasto; ///< the fiscal code as its field then shows it
};

TEST_F(LasciaCodici, AGoodFiscalCodeIsTakenInCapitals) {
    for (const double idStato : {0.0, 1.0, 0.5, -1.0}) {
        EXPECT_TRUE(lascia("rssmra85t10a562s", idStato, 0));
        EXPECT_EQ(rimasto, "RSSMRA85T10A562S");
    }
}

TEST_F(LasciaCodici, AWrongFiscalCodeIsToldAndStaysInCapitals) {
    for (const char* codice : {"rssmra85t10a562t", "x", "àèì", "-", "'; drop table DatiAzienda --", "a\tb"}) {
        EXPECT_FALSE(lascia(codice, 1, 1)) << codice;
    }
    EXPECT_FALSE(lascia("perù", 1, 1));
    EXPECT_EQ(rimasto, "PERÙ");
    EXPECT_FALSE(lascia(std::string(4'000, 'a'), 1, 1));
    EXPECT_EQ(rimasto, std::string(4'000, 'A'));
}

TEST_F(LasciaCodici, OfACompanyAbroadNothingIsCheckedOrChanged) {
    for (const double idStato : {2.0, 1.5, 249.0}) {
        for (const char* codice : {"rssmra85t10a562t", "97088120016", "0", " ", "de 123"}) {
            EXPECT_TRUE(lascia(codice, idStato, 0));
            EXPECT_EQ(rimasto, codice);
        }
        lasciaPartita("97088120016", idStato, 0);
    }
}

TEST_F(LasciaCodici, AnEmptyFiscalCodeIsLeftWithoutAWord) {
    EXPECT_TRUE(lascia("", 1, 0));
    EXPECT_EQ(rimasto, "");
}

// The check says nothing of them, and its flag says no.
TEST_F(LasciaCodici, ATextOfZerosOrABlankIsNotTakenAndNothingTellsWhy) {
    for (const char* codice : {"0", "00", "000", "0000", " ", "0,00"}) {
        EXPECT_FALSE(lascia(codice, 1, 0)) << codice;
        EXPECT_EQ(rimasto, codice);
    }
    EXPECT_TRUE(lascia("00000", 1, 0)) << "a VAT number of eleven zeros";
}

TEST_F(LasciaCodici, ANumberIsCheckedAsAVatNumberAndStaysAsTyped) {
    EXPECT_TRUE(lascia("97088120015", 1, 0));
    EXPECT_TRUE(lascia("8765120012", 1, 0));
    EXPECT_EQ(rimasto, "8765120012") << "without the zero of its check";
    EXPECT_FALSE(lascia("97088120016", 1, 1));
    EXPECT_FALSE(lascia("1e3", 1, 1)) << "which is a number too";
    EXPECT_EQ(rimasto, "1E3");
}

TEST_F(LasciaCodici, AWrongVatNumberIsTold) {
    for (const double idStato : {0.0, 1.0, -1.0}) {
        lasciaPartita("08765120012", idStato, 0);
        lasciaPartita("08765120013", idStato, 1);
        lasciaPartita("it08765120012", idStato, 1);
        lasciaPartita(std::string(4'000, '\''), idStato, 1);
    }
    for (const char* vuota : {"", " ", "0", "0000"}) {
        lasciaPartita(vuota, 1, 0);
    }
}

TEST_F(LasciaCodici, AnEmptyVatNumberTakesAFiscalCodeThatIsANumber) {
    for (const char* vuota : {"", " ", "0", "000"}) {
        EXPECT_EQ(PartitaIvaProposta(vuota, "97088120015"), "97088120015");
        EXPECT_EQ(PartitaIvaProposta(vuota, "RSSMRA85T10A562S"), vuota);
        for (const char* nulla : {"", " ", "0000"}) {
            EXPECT_EQ(PartitaIvaProposta(vuota, nulla), vuota);
        }
    }
    EXPECT_EQ(PartitaIvaProposta("08765120012", "97088120015"), "08765120012");
    EXPECT_EQ(PartitaIvaProposta("x", "97088120015"), "x");
}

} // namespace
} // namespace vabo
