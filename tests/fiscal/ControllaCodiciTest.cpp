#include "fiscal/ControllaCodici.h"

#include "support/DialogScript.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vabo {
namespace {

constexpr const char* kErrato = "Codice fiscale formalmente ERRATO";
/// Neither of the two that the checks write: tells a flag that was left as it was.
constexpr Flag kIntatto = 7;

using Caratteri = std::vector<std::string>;

const Caratteri kNulla = {"",      " ",      "0",       "00",       "000",     "0000",       "0,00",         ",00",
                          "0,000", "0,0000", "0,00000", "0,000000", "0:00:00", "00/00/0000", "00/00/0000 12"};

/// One check, the flag that it leaves and the number of boxes that it shows.
struct Prova {
    explicit Prova(Flag prima = kFalso) : esito(prima) {}

    Prova& codice(const std::string& testo, int attesi) {
        return esegui(attesi, [&] { ControllaCodiceFiscale(testo, esito); });
    }
    Prova& partita(const std::string& testo, int attesi) {
        rimasto = testo;
        return esegui(attesi, [&] { ControllaPartitaIva(rimasto, esito); });
    }

    Flag esito;
    std::string rimasto; ///< of the VAT number

private:
    template<typename Controllo>
    Prova& esegui(int attesi, const Controllo& controllo) {
        support::DialogScript script;
        for (int i = 0; i < attesi; ++i) {
            script.expectMessage(kErrato, platform::Icon::None);
        }
        controllo();
        return *this;
    }
};

Flag codice(const std::string& testo, int boxes, Flag prima = kFalso) {
    return Prova(prima).codice(testo, boxes).esito;
}
Flag partita(const std::string& testo, int boxes, Flag prima = kFalso) {
    return Prova(prima).partita(testo, boxes).esito;
}

TEST(ControllaCodiceFiscale, AGoodCodePassesWithoutAWord) {
    for (const char* buono : {"RSSMRA85T10A562S", "RSSMRA85T10A56NH", "AAAAAAAAAAAAAAAI", "123456789012345A"}) {
        EXPECT_EQ(codice(buono, 0), kVero) << buono;
    }
}

TEST(ControllaCodiceFiscale, NothingIsCheckedWhereNothingStands) {
    for (const std::string& testo : kNulla) {
        for (const Flag prima : {kFalso, kVero, kIntatto}) {
            EXPECT_EQ(codice(testo, 0, prima), prima) << testo;
        }
    }
}

TEST(ControllaCodiceFiscale, AWrongCheckCharacterIsRefused) {
    for (const char* fine : {"A", "R", "T", "Z", "0", "9", "s", " ", "-", "à", ""}) {
        EXPECT_EQ(codice(std::string("RSSMRA85T10A562") + fine, 1), kFalso) << fine;
    }
}

// The sum gives the letters alone, so that none of the digits behind them in the alphabet ever fits.
TEST(ControllaCodiceFiscale, ADigitNeverChecksACode) {
    for (const char ultima : std::string("0123456789")) {
        EXPECT_EQ(codice(std::string("AAAAAAAAAAAAAAA") + ultima, 1), kFalso) << ultima;
    }
}

TEST(ControllaCodiceFiscale, EveryPositionTakesCapitalsAndDigitsAlone) {
    const std::string buono = "RSSMRA85T10A562S";
    for (std::size_t i = 0; i < buono.size(); ++i) {
        for (const char* altro :
             {"a", "z", "~", " ", "-", ".", "@", "[", "`", "{", "à", "À", "Ａ", "１", "\x7f", "😀"}) {
            std::string testo = buono;
            testo.replace(i, 1, altro);
            EXPECT_EQ(codice(testo, 1, kVero), kFalso) << testo;
        }
    }
}

TEST(ControllaCodiceFiscale, AShortCodeIsRefusedAtItsFirstMissingCharacter) {
    const std::string buono = "RSSMRA85T10A562S";
    for (std::size_t lunghezza = 1; lunghezza < buono.size(); ++lunghezza) {
        EXPECT_EQ(codice(buono.substr(0, lunghezza), 1, kVero), kFalso) << lunghezza;
    }
}

TEST(ControllaCodiceFiscale, WhatFollowsTheSixteenthCharacterIsIgnored) {
    for (const char* coda : {"X", " ", "s", "RSSMRA85T10A562S", "è", "'; --"}) {
        EXPECT_EQ(codice(std::string("RSSMRA85T10A562S") + coda, 0), kVero) << coda;
    }
    EXPECT_EQ(codice("RSSMRA85T10A562S" + std::string(4'000, 'x'), 0), kVero);
}

TEST(ControllaCodiceFiscale, WithoutACapitalTheFlagStaysAsItWas) {
    for (const char* testo : {"rssmra85t10a562s", "1234567890", "123456789012", "1234567890123456", "  ", "-", "@[",
                              "àèìòù", "00000", "1234567890123456RSS"}) {
        EXPECT_EQ(codice(testo, 1), kFalso) << testo;
        EXPECT_EQ(codice(testo, 1, kIntatto), kIntatto) << testo;
        EXPECT_EQ(codice(testo, 0, kVero), kVero) << testo << ": a flag that says valid is believed";
    }
}

TEST(ControllaCodiceFiscale, ACapitalAnywhereInTheFirstSixteenMakesItACode) {
    for (std::size_t i = 0; i < 16; ++i) {
        for (const char lettera : {'A', 'Z'}) {
            std::string testo(16, '-');
            testo[i] = lettera;
            EXPECT_EQ(codice(testo, 1, kIntatto), kFalso) << testo;
        }
    }
}

// Its twelfth position is empty: a good VAT number is refused once, a wrong one twice.
TEST(ControllaCodiceFiscale, ElevenCharactersAreCheckedAsAVatNumberAndRefusedAllTheSame) {
    for (const Flag prima : {kFalso, kIntatto}) {
        EXPECT_EQ(codice("00743110157", 1, prima), kFalso);
        EXPECT_EQ(codice("00743110158", 2, prima), kFalso);
        EXPECT_EQ(codice("0074311015x", 2, prima), kFalso);
        EXPECT_EQ(codice("00000000000", 1, prima), kFalso);
        EXPECT_EQ(codice("           ", 2, prima), kFalso);
        EXPECT_EQ(codice("èèèèèèèèèèè", 2, prima), kFalso) << "characters count, not bytes";
    }
    EXPECT_EQ(codice("0074311015x", 1, kVero), kFalso);
    EXPECT_EQ(codice("0074311015X", 1), kFalso) << "a capital makes it a fiscal code";
}

TEST(ControllaPartitaIva, AGoodNumberPassesWithoutAWord) {
    for (const char* buona : {"00743110157", "00000001230", "00743115552"}) {
        const Prova prova = Prova(kIntatto).partita(buona, 0);
        EXPECT_EQ(prova.esito, kVero) << buona;
        EXPECT_EQ(prova.rimasto, buona);
    }
}

TEST(ControllaPartitaIva, NothingIsCheckedNorFilledUpWhereNothingStands) {
    for (const std::string& testo : kNulla) {
        for (const Flag prima : {kFalso, kVero, kIntatto}) {
            const Prova prova = Prova(prima).partita(testo, 0);
            EXPECT_EQ(prova.esito, prima) << testo;
            EXPECT_EQ(prova.rimasto, testo);
        }
    }
}

TEST(ControllaPartitaIva, AWrongCheckDigitIsRefused) {
    for (const char* fine : {"0", "1", "2", "3", "4", "5", "6", "8", "9", " ", "-", "/", ".", "@", ":"}) {
        EXPECT_EQ(partita(std::string("0074311015") + fine, 1, kVero), kFalso) << fine;
    }
    EXPECT_EQ(partita("0000000000 ", 1, kVero), kFalso) << "no number isn't 0";
}

TEST(ControllaPartitaIva, ZerosAreFilledInOnTheLeftAndWrittenBack) {
    struct Caso {
        const char* testo;
        const char* riempito;
        bool buono;
    };
    const Caso casi[] = {
        {"743110157", "00743110157", true},  {"00000", "00000000000", true},       {"0000000000", "00000000000", true},
        {"123", "00000000123", false},       {"125", "00000000125", true},         {"1", "00000000001", false},
        {"  ", "000000000  ", false},        {"-", "0000000000-", false},          {"1 7", "000000001 7", false},
        {"0743110157", "00743110157", true}, {"00743110157", "00743110157", true}, {"- 0", "00000000- 0", true},
    };
    for (const Caso& caso : casi) {
        const Prova prova = Prova(kIntatto).partita(caso.testo, caso.buono ? 0 : 1);
        EXPECT_EQ(prova.esito, caso.buono ? kVero : kFalso) << caso.testo;
        EXPECT_EQ(prova.rimasto, caso.riempito);
    }
}

TEST(ControllaPartitaIva, WhatFollowsTheEleventhCharacterIsIgnoredAndStays) {
    for (const char* coda : {"0", "999", "X", "è", " "}) {
        const std::string testo = std::string("00743110157") + coda;
        const Prova prova = Prova().partita(testo, 0);
        EXPECT_EQ(prova.esito, kVero) << coda;
        EXPECT_EQ(prova.rimasto, testo);
    }
    EXPECT_EQ(partita("00743110157" + std::string(4'000, 'x'), 0), kVero);
}

TEST(ControllaPartitaIva, ALetterInAnyPositionLeavesTheFlagAsItWas) {
    for (const char* lettera : {"A", "Z", "a", "z", "[", "_", "{", "\x7f", "à", "１", "€", "😀"}) {
        for (std::size_t i = 0; i < 11; ++i) {
            std::string testo = "00743110157";
            testo.replace(i, 1, lettera);
            EXPECT_EQ(partita(testo, 1), kFalso) << testo;
            EXPECT_EQ(partita(testo, 1, kIntatto), kIntatto) << testo;
            EXPECT_EQ(partita(testo, 0, kVero), kVero) << testo << ": a flag that says valid is believed";
        }
    }
    const Prova prova = Prova(kIntatto).partita("x", 1);
    EXPECT_EQ(prova.rimasto, "0000000000x") << "filled up and then refused";
}

TEST(ControllaPartitaIva, WhatSortsBelowTheLettersCountsAsNought) {
    for (const char* altro : {" ", "-", "/", ".", ",", "'", "\"", "@", ":", "+", "\t", "\x01"}) {
        for (std::size_t i = 0; i < 10; ++i) {
            std::string testo(11, '0');
            testo.replace(i, 1, altro);
            EXPECT_EQ(partita(testo, 0), kVero) << i << altro;
            testo[10] = '1';
            EXPECT_EQ(partita(testo, 1, kVero), kFalso) << i << altro;
        }
    }
    EXPECT_EQ(partita("00743 10159", 0), kVero);
    EXPECT_EQ(partita("0-7-4-3 - 0", 1), kFalso);
}

/// One digit alone, in an even and in an odd position: twice the digit, of ten and more the sum of its two digits.
TEST(ControllaPartitaIva, EveryDigitHasItsValueInEvenAndOddPositions) {
    const std::string inPari = "0864297531";
    const std::string inDispari = "0987654321";
    for (std::size_t cifra = 0; cifra < 10; ++cifra) {
        for (std::size_t i = 0; i < 10; ++i) {
            std::string testo(11, '0');
            testo[i] = static_cast<char>('0' + cifra);
            testo[10] = (i % 2 == 1 ? inPari : inDispari)[cifra];
            EXPECT_EQ(partita(testo, 0), kVero) << testo;
        }
    }
}

TEST(ControllaCodici, AnyTextIsJudgedAndNothingIsRaised) {
    for (const std::string& testo : {std::string(4'000, '\''), std::string(4'000, 'A'), std::string("a\0b", 3),
                                     std::string("'; drop table DatiAzienda --"), std::string("\xff\xfe\xc3")}) {
        EXPECT_EQ(codice(testo, 1), kFalso);
    }
    EXPECT_EQ(partita(std::string(4'000, '\''), 1), kFalso);
    EXPECT_EQ(partita(std::string("0") + '\0' + "000000000", 0), kVero);
}

} // namespace
} // namespace vabo
