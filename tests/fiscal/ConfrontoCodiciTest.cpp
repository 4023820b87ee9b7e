// The checks against another program's, whose answers stand in a table.

#include "fiscal/CaratteriDiControllo.h"
#include "fiscal/ControllaCodici.h"
#include "support/HeardBoxes.h"

#include <gtest/gtest.h>

#include <string>

namespace vabo {
namespace {

constexpr std::string_view kLettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view kCifre = "0123456789";
constexpr std::string_view kTutti = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::string_view kPersona = "AAAAAA99A99A999";

/// The generator with which the table was made, from the same seed.
class Sorte {
public:
    char uno(std::string_view caratteri) {
        stato_ = stato_ * 6364136223846793005U + 1442695040888963407U;
        return caratteri[(stato_ >> 33U) % caratteri.size()];
    }
    std::string codice(std::size_t numero) {
        std::string testo;
        for (const char tipo : kPersona) {
            testo += uno(numero % 2 != 0 ? kTutti : tipo == '9' ? kCifre : kLettere);
        }
        return testo;
    }
    std::string partita() {
        std::string testo;
        for (int i = 0; i < 10; ++i) {
            testo += uno(kCifre);
        }
        return testo;
    }

private:
    std::uint64_t stato_ = kSeme;
};

class ConfrontoCodici : public testing::Test {
protected:
    static bool codiceValido(const std::string& testo) {
        Flag esito = kFalso;
        ControllaCodiceFiscale(testo, esito);
        return esito == kVero;
    }
    static bool partitaValida(std::string testo) {
        Flag esito = kFalso;
        ControllaPartitaIva(testo, esito);
        return esito == kVero;
    }

    support::HeardBoxes boxes;
};

// Each code is good with the other program's character and spoilt with every other one.
TEST_F(ConfrontoCodici, TwentyThousandCheckCharactersAreThoseOfAnotherProgram) {
    static_assert(kCaratteriDeiCodici.size() + kCaratteriDellePartite.size() == 20'000);
    Sorte sorte;
    long buoni = 0;
    for (std::size_t i = 0; i < kCaratteriDeiCodici.size(); ++i) {
        const std::string inizio = sorte.codice(i);
        for (const char ultimo : kTutti) {
            const bool valido = codiceValido(inizio + ultimo);
            ASSERT_EQ(valido, ultimo == kCaratteriDeiCodici[i]) << inizio + ultimo;
            buoni += valido ? 1 : 0;
        }
    }
    for (const char atteso : kCaratteriDellePartite) {
        const std::string inizio = sorte.partita();
        for (const char ultimo : kCifre) {
            const bool valida = partitaValida(inizio + ultimo);
            ASSERT_EQ(valida, ultimo == atteso) << inizio + ultimo;
            buoni += valida ? 1 : 0;
        }
    }
    EXPECT_EQ(buoni, 20'000);
    EXPECT_EQ(boxes.texts.size(), 10'000 * 35 + 10'000 * 9) << "a box for each spoilt code";
}

/// The text with the character at that place changed to the next one of its kind.
std::string guastato(std::string testo, std::size_t posto, std::string_view tipo) {
    testo[posto] = tipo[(tipo.find(testo[posto]) + 1) % tipo.size()];
    return testo;
}

TEST_F(ConfrontoCodici, OneLetterOrDigitMistakenForAnotherSpoilsACode) {
    Sorte sorte;
    for (std::size_t i = 0; i < kCaratteriDeiCodici.size(); ++i) {
        const std::string buono = sorte.codice(i) + kCaratteriDeiCodici[i];
        const std::size_t posto = i % buono.size();
        const std::string guasto = guastato(buono, posto, buono[posto] <= '9' ? kCifre : kLettere);
        ASSERT_FALSE(codiceValido(guasto)) << buono << " as " << guasto;
    }
    for (std::size_t i = 0; i < kCaratteriDellePartite.size(); ++i) {
        const std::string buona = sorte.partita() + kCaratteriDellePartite[i];
        const std::string guasta = guastato(buona, i % buona.size(), kCifre);
        ASSERT_FALSE(partitaValida(guasta)) << buona << " as " << guasta;
    }
}

TEST_F(ConfrontoCodici, DiffersFromAnotherProgramOnPurpose) {
    for (const Differenza& caso : kCodiciDiversi) {
        EXPECT_NE(codiceValido(caso.codice), caso.valido) << caso.codice << ": " << caso.perche;
    }
    for (const Differenza& caso : kPartiteDiverse) {
        EXPECT_NE(partitaValida(caso.codice), caso.valido) << caso.codice << ": " << caso.perche;
    }
}

} // namespace
} // namespace vabo
