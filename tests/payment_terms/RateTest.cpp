// What the payment terms work out: instalments without gaps, their number, the name of the term.

#include "payment_terms/Rate.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vabo {
namespace {

using Rate = std::array<std::string, kRate>;

/// A term of that kind and rule whose first instalments are these.
CampiCondizione condizione(const std::string& tipo, const std::string& decorrenza,
                           std::initializer_list<std::string> scadenze = {}) {
    CampiCondizione campi;
    campi.tipoRimessa = tipo;
    campi.decorrenza = decorrenza;
    std::copy(scadenze.begin(), scadenze.end(), campi.scadenze.begin());
    return campi;
}

Rate rate(std::initializer_list<std::string> scadenze) {
    return condizione("", "", scadenze).scadenze;
}

TEST(AggiornaRate, NamesTheTermByItsKindItsInstalmentsAndItsRule) {
    CampiCondizione campi = condizione("Rimessa", "Fine mese", {"30", "60", "90"});
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, "Rimessa a 30-60-90 Fine mese");
    EXPECT_EQ(campi.numeroRate, "3");
}

TEST(AggiornaRate, ATermWithoutInstalmentsHasOne) {
    CampiCondizione campi = condizione("Rimessa", "Fine mese");
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, "Rimessa a  Fine mese");
    EXPECT_EQ(campi.numeroRate, "1");
}

TEST(AggiornaRate, TwelveInstalmentsHaveElevenDashes) {
    CampiCondizione campi = condizione("R", "F", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"});
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, "R a 1-2-3-4-5-6-7-8-9-10-11-12 F");
    EXPECT_EQ(campi.numeroRate, "12");
}

TEST(AggiornaRate, WithoutAKindTheNameStaysAndTheNumberIsOne) {
    for (const char* tipo : {"", " ", "0", "Seleziona"}) {
        CampiCondizione campi = condizione(tipo, "Fine mese", {"30", "60"});
        campi.descrizione = "A mano";
        campi.numeroRate = "7";
        AggiornaRate(campi);
        EXPECT_EQ(campi.descrizione, "A mano") << tipo;
        EXPECT_EQ(campi.numeroRate, "1") << tipo;
        EXPECT_EQ(campi.scadenze, rate({"30", "60"})) << tipo;
    }
}

TEST(AggiornaRate, AKindOfAlmostThatNameCounts) {
    CampiCondizione campi = condizione("seleziona", "Seleziona", {"30"});
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, "seleziona a 30 Seleziona") << "and a rule that isn't chosen is named";
}

TEST(AggiornaRate, AnEmptyFirstInstalmentEmptiesAll) {
    CampiCondizione campi = condizione("Rimessa", "Fine mese", {"", "", "90"});
    AggiornaRate(campi);
    EXPECT_EQ(campi.scadenze, Rate());
    EXPECT_EQ(campi.numeroRate, "1");
}

TEST(AggiornaRate, TheUsersNameIsWrittenOver) {
    CampiCondizione campi = condizione("Rimessa", "Fine mese", {"30"});
    campi.descrizione = "A mano";
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, "Rimessa a 30 Fine mese");
}

TEST(AggiornaRate, TheNameIsNotCut) {
    CampiCondizione campi = condizione(std::string(60, 'x'), "Fine mese", {"30"});
    AggiornaRate(campi);
    EXPECT_EQ(campi.descrizione, std::string(60, 'x') + " a 30 Fine mese");
}

TEST(TogliRateVuote, WhatCountsAsNothingEndsTheList) {
    for (const char* vuota : {"", " ", "0", "00", "000", "0000", "0,00"}) {
        CampiCondizione campi = condizione("", "", {"30", vuota, "90"});
        TogliRateVuote(campi);
        EXPECT_EQ(campi.scadenze, rate({"30"})) << vuota;
    }
    for (const char* piena : {"0.00", "  ", "x", "-1"}) {
        CampiCondizione campi = condizione("", "", {"30", piena, "90"});
        TogliRateVuote(campi);
        EXPECT_EQ(campi.scadenze, rate({"30", piena, "90"})) << piena;
    }
}

TEST(TogliRateVuote, TheLastOneIsLookedAtToo) {
    CampiCondizione campi = condizione("", "", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "0"});
    TogliRateVuote(campi);
    EXPECT_EQ(campi.scadenze, rate({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"}));
}

TEST(NomeDiRipiego, IsMadeOfKindRuleAndInstalments) {
    EXPECT_EQ(NomeDiRipiego(condizione("Seleziona", "Fine mese", {"30", "60"})), "Seleziona Fine mese  30  60");
    EXPECT_EQ(NomeDiRipiego(condizione("Seleziona", "Seleziona")), "Seleziona Seleziona");
    EXPECT_EQ(NomeDiRipiego(condizione("Seleziona", "", {"30"})), "Seleziona  30");
    EXPECT_EQ(NomeDiRipiego(condizione("", "", {"", "60"})), "  60") << "an empty one is left out";
    EXPECT_EQ(NomeDiRipiego(condizione("", "")), "");
}

TEST(NomeDiRipiego, StopsAtTheTenthInstalment) {
    EXPECT_EQ(NomeDiRipiego(condizione("S", "F", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"})),
              "S F  1  2  3  4  5  6  7  8  9  10");
}

} // namespace
} // namespace vabo
