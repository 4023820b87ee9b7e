// The name of a commencement rule, and its days and months as lists without gaps.

#include "payment_terms/NomeDecorrenza.h"

#include "ado/Error.h"

#include <gtest/gtest.h>

namespace vabo {
namespace {

using Giorni = std::array<std::string, 4>;
using Mesi = std::array<std::string, 3>;

std::string nome(const std::string& descrizione, const Giorni& giorni, const Mesi& mesi = {}) {
    CampiDecorrenza campi{descrizione, giorni, mesi};
    ComponiNome(campi);
    EXPECT_EQ(campi.giorni, giorni);
    EXPECT_EQ(campi.mesi, mesi);
    return campi.descrizione;
}

TEST(ComponiNome, TwoDaysAndMoreMakeTheName) {
    EXPECT_EQ(nome("x", {"10", "25"}), "Sc.il 10 - 25 del mese");
    EXPECT_EQ(nome("x", {"5", "15", "25"}), "Sc.il 5 - 15 - 25 del mese");
    EXPECT_EQ(nome("x", {"5", "10", "15", "20"}), "Sc.il 5 - 10 - 15 - 20 del mese");
}

TEST(ComponiNome, ARuleWithOneDayKeepsItsNameAndGrows) {
    EXPECT_EQ(nome("Fine mese", {"31"}), "Fine mese del mese");
    EXPECT_EQ(nome("Fine mese del mese", {"31"}), "Fine mese del mese del mese");
    EXPECT_EQ(nome("Data fattura", {}), "Data fattura del mese");
}

TEST(ComponiNome, TheSecondDayIsTheOneThatCounts) {
    EXPECT_EQ(nome("x", {"", "25"}), "Sc.il  - 25 del mese") << "of the first nothing is asked";
    EXPECT_EQ(nome("x", {"10", "0", "25"}), "x - 25 del mese");
    EXPECT_EQ(nome("x", {"10", "", "", "28"}), "x - 28 del mese");
}

TEST(ComponiNome, AnEmptyNameGetsNoDays) {
    for (const char* vuoto : {"", " ", "0"}) {
        EXPECT_EQ(nome(vuoto, {"10", "25"}), vuoto);
    }
    EXPECT_EQ(nome("", {"10", "25"}, {"8", "12"}), " escluso Agosto  Dicembre");
}

TEST(ComponiNome, EveryMonthHasItsName) {
    const char* mesi[] = {"Gennaio", "Febbraio", "Marzo",     "Aprile",  "Maggio",   "Giugno",
                          "Luglio",  "Agosto",   "Settembre", "Ottobre", "Novembre", "Dicembre"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(nome("", {}, {std::to_string(i + 1)}), std::string(" escluso ") + mesi[i]);
    }
}

TEST(ComponiNome, MonthsAreAddedEachTime) {
    EXPECT_EQ(nome("x", {"10", "25"}, {"8"}), "Sc.il 10 - 25 del mese escluso Agosto");
    EXPECT_EQ(nome("Fine", {}, {"8", "12", "1"}), "Fine del mese escluso Agosto  Dicembre  Gennaio");
    EXPECT_EQ(nome(" escluso Agosto", {}, {"8"}), " escluso Agosto del mese escluso Agosto");
}

TEST(ComponiNome, EachMonthIsAskedForItself) {
    EXPECT_EQ(nome("", {}, {"", "8", ""}), "  Agosto");
    EXPECT_EQ(nome("", {}, {"0", "", "12"}), "  Dicembre");
    EXPECT_EQ(nome("", {}, {"8", "", "12"}), " escluso Agosto  Dicembre");
}

TEST(ComponiNome, TheThirteenthMonthHasNoName) {
    EXPECT_EQ(nome("", {}, {"13", "1"}), " escluso   Gennaio");
    EXPECT_EQ(nome("", {}, {"0,4", "1"}), " escluso   Gennaio") << "rounded to none";
    EXPECT_EQ(nome("", {}, {"7,5"}), " escluso Agosto") << "half to even";
}

/// What stands ahead of the month that can't be named, and the error.
void rifiuta(const Mesi& mesi, const std::string& fin, int errore) {
    CampiDecorrenza campi{"x", {"10", "25"}, mesi};
    try {
        ComponiNome(campi);
        ADD_FAILURE() << mesi[0] << " is named";
    } catch (const ado::Error& error) {
        EXPECT_EQ(error.number(), errore);
        EXPECT_STREQ(error.what(), errore == 9 ? "Subscript out of range" : errore == 6 ? "Overflow" : "Type mismatch");
    }
    EXPECT_EQ(campi.descrizione, fin);
}

TEST(ComponiNome, AMonthOutOfRangeIsRefusedBehindWhatComesAheadOfIt) {
    rifiuta({"14"}, "Sc.il 10 - 25 del mese", 9);
    rifiuta({"-1"}, "Sc.il 10 - 25 del mese", 9);
    rifiuta({"8", "20"}, "Sc.il 10 - 25 del mese escluso Agosto", 9);
    rifiuta({"8", "9", "99"}, "Sc.il 10 - 25 del mese escluso Agosto  Settembre", 9);
    rifiuta({"agosto"}, "Sc.il 10 - 25 del mese", 13);
    rifiuta({"2147483647"}, "Sc.il 10 - 25 del mese", 9);
    rifiuta({"8", "99999999999"}, "Sc.il 10 - 25 del mese escluso Agosto", 6);
}

/// Days and months behind TogliZeri.
std::pair<Giorni, Mesi> senzaZeri(const Giorni& giorni, const Mesi& mesi) {
    CampiDecorrenza campi{"x", giorni, mesi};
    TogliZeri(campi);
    EXPECT_EQ(campi.descrizione, "x");
    return {campi.giorni, campi.mesi};
}

TEST(TogliZeri, TheFirstZeroEndsItsList) {
    EXPECT_EQ(senzaZeri({"0", "15", "20", "25"}, {"1", "2", "3"}), (std::pair<Giorni, Mesi>{{}, {"1", "2", "3"}}));
    EXPECT_EQ(senzaZeri({"5", "0", "20", "25"}, {"0", "2", "3"}), (std::pair<Giorni, Mesi>{{"5"}, {}}));
    EXPECT_EQ(senzaZeri({"5", "15", "0", "25"}, {"1", "0", "3"}), (std::pair<Giorni, Mesi>{{"5", "15"}, {"1"}}));
    EXPECT_EQ(senzaZeri({"5", "15", "20", "0"}, {"1", "2", "0"}),
              (std::pair<Giorni, Mesi>{{"5", "15", "20"}, {"1", "2"}}));
}

TEST(TogliZeri, OnlyTheDigitZeroIsOne) {
    const Giorni giorni = {"", "00", " ", "0,00"};
    const Mesi mesi = {"", "00", "x"};
    EXPECT_EQ(senzaZeri(giorni, mesi), (std::pair{giorni, mesi}));
}

} // namespace
} // namespace vabo
