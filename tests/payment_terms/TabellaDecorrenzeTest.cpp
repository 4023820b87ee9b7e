// The table of commencement rules: the list and the save.

#include "payment_terms/TabellaDecorrenze.h"

#include "CondizioniAperte.h"
#include "ado/Error.h"

namespace vabo {
namespace {

using TabellaDecorrenze = CondizioniAperte;

const CampiDecorrenza kCampi = {"Prova", {"5", "10", "15", "20"}, {"1", "2", "3"}};

/// The error that a save raises, 0 for none.
long errore(double chiave, const CampiDecorrenza& campi) {
    try {
        SalvaDecorrenza(chiave, campi);
    } catch (const ado::Error& error) {
        return error.number();
    }
    return 0;
}

TEST_F(TabellaDecorrenze, TheListIsReadLetterForLetterInTheOrderOfTheNames) {
    EXPECT_EQ(ElencoDecorrenze(),
              " select IDDecorrenza, Descrizione, GiornoScadenza, GiornoScadenza1, GiornoScadenza2, GiornoScadenza3, "
              "Mese1, Mese2, Mese3 from  CondizioniPagamentoDecorrenza order by descrizione");
    const Righe righe = posto.rows(support::kCompany, ElencoDecorrenze());
    ASSERT_EQ(righe.size(), 8U);
    EXPECT_EQ(righe[0], (Riga{"1", "Data fattura", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(righe[7], (Riga{"6", "Sc.il 5 - 15 - 25 del mese escluso Agosto", "5", "15", "25", "0", "8", "0", "0"}));
}

TEST_F(TabellaDecorrenze, ANewRuleIsSentLetterForLetter) {
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaDecorrenza(0, kCampi));
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamentoDecorrenza");
    EXPECT_EQ(scritture(recorder),
              (Testi{"INSERT INTO [CondizioniPagamentoDecorrenza] ([Descrizione], [GiornoScadenza], "
                     "[GiornoScadenza1], [GiornoScadenza2], [GiornoScadenza3], [Mese1], [Mese2], [Mese3]) VALUES "
                     "(N'Prova', 5, 10, 15, 20, 1, 2, 3)"}));
    EXPECT_EQ(ultimaRegola(), (Riga{"Prova", "5", "10", "15", "20", "1", "2", "3"}));
}

TEST_F(TabellaDecorrenze, ARuleOfAKeyIsChangedInItsRow) {
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaDecorrenza(5, kCampi));
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamentoDecorrenza WHERE  iddecorrenza = 5");
    EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "5", "10", "15", "20", "1", "2", "3"}));
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
}

TEST_F(TabellaDecorrenze, ARuleThatIsGoneIsAddedAgain) {
    esegui("delete from CondizioniPagamentoDecorrenza where IDDecorrenza = 5");
    EXPECT_TRUE(SalvaDecorrenza(5, kCampi));
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
    EXPECT_EQ(ultimaRegola()[0], "Prova");
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza where IDDecorrenza = 5"), 0) << "under another key";
}

TEST_F(TabellaDecorrenze, AKeyGoesIntoItsStatementInPlainDigits) {
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaDecorrenza(1'000'000, kCampi));
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamentoDecorrenza WHERE  iddecorrenza = 1000000");
}

TEST_F(TabellaDecorrenze, ARuleThatSomebodyElseHoldsIsRefusedAtOnce) {
    const Riga prima = regola("IDDecorrenza = 5");
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto tenuta = altro->hold("select * from CondizioniPagamentoDecorrenza where IDDecorrenza = 5");
        EXPECT_NE(errore(5, kCampi), 0);
        EXPECT_FALSE(RsCondivisi(1).IsOpen()) << "it is given back";
    }
    EXPECT_EQ(regola("IDDecorrenza = 5"), prima);
    EXPECT_TRUE(SalvaDecorrenza(5, kCampi));
    EXPECT_EQ(regola("IDDecorrenza = 5")[0], "Prova");
}

TEST_F(TabellaDecorrenze, WhatIsEmptyIsStoredAsZero) {
    for (const char* vuoto : {"", " ", "0", "0,00"}) {
        EXPECT_TRUE(SalvaDecorrenza(5, {"Prova", {vuoto, vuoto, "15", vuoto}, {vuoto, "2", vuoto}})) << vuoto;
        EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "0", "0", "15", "0", "0", "2", "0"}));
        EXPECT_TRUE(SalvaDecorrenza(5, {"Prova", {"1", "2", vuoto, "4"}, {"1", vuoto, vuoto}}));
        EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "1", "2", "0", "4", "1", "0", "0"}));
    }
}

TEST_F(TabellaDecorrenze, AThirdMonthWithoutASecondIsDropped) {
    for (const char* vuoto : {"", " ", "0"}) {
        EXPECT_TRUE(SalvaDecorrenza(5, {"Prova", {}, {"1", vuoto, "3"}}));
        EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "0", "0", "0", "0", "1", "0", "0"})) << vuoto;
    }
    EXPECT_TRUE(SalvaDecorrenza(5, {"Prova", {}, {"", "2", "3"}}));
    EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "0", "0", "0", "0", "0", "2", "3"}));
}

TEST_F(TabellaDecorrenze, RangesAreNotChecked) {
    EXPECT_TRUE(SalvaDecorrenza(5, {"Prova", {"45", "-1", "366", "100000"}, {"20", "99", "-3"}}));
    EXPECT_EQ(regola("IDDecorrenza = 5"), (Riga{"Prova", "45", "-1", "366", "100000", "20", "99", "-3"}));
}

TEST_F(TabellaDecorrenze, NothingIsDoneWithoutAName) {
    const support::StatementRecorder recorder;
    for (const char* vuoto : {"", " ", "0"}) {
        EXPECT_FALSE(SalvaDecorrenza(0, {vuoto, {"1"}, {}})) << vuoto;
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(TabellaDecorrenze, ASaveReleasesAllSharedRecordsets) {
    constexpr int kAltrui = 20;
    RsCondivisi(kAltrui).Open("select * from progetti", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    EXPECT_TRUE(SalvaDecorrenza(5, kCampi));
    EXPECT_FALSE(RsCondivisi(kAltrui).IsOpen());
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(TabellaDecorrenze, WhatDoesNotFitItsColumnIsRefusedAndNothingIsStored) {
    constexpr long kValoreRifiutato = -2147217887;
    const Riga prima = regola("IDDecorrenza = 5");
    for (const std::string& ostile : {std::string("x"), std::string("'"), std::string("1; delete from stati"),
                                      std::string(4'000, '9'), std::string("\x01")}) {
        SCOPED_TRACE(ostile.substr(0, 20));
        for (std::size_t i = 0; i < 4; ++i) {
            CampiDecorrenza campi = kCampi;
            campi.giorni[i] = ostile;
            EXPECT_EQ(errore(5, campi), kValoreRifiutato) << "day " << i;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            CampiDecorrenza campi = kCampi;
            campi.mesi[i] = ostile;
            EXPECT_EQ(errore(5, campi), kValoreRifiutato) << "month " << i;
        }
    }
    EXPECT_EQ(errore(0, {std::string(256, 'x'), {}, {}}), kValoreRifiutato);
    EXPECT_EQ(regola("IDDecorrenza = 5"), prima);
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8);
    EXPECT_FALSE(RsCondivisi(1).IsOpen()) << "it is given back";
    EXPECT_EQ(errore(5, kCampi), 0) << "nothing stays open";
}

TEST_F(TabellaDecorrenze, ATypedNameIsStoredAsItStands) {
    for (const char* nome : {"L'altra \"x\"", "x'; delete from stati --", "a;b /* x */", "a\tb", "è €"}) {
        EXPECT_TRUE(SalvaDecorrenza(5, {nome, {}, {}}));
        EXPECT_EQ(regola("IDDecorrenza = 5")[0], nome);
    }
}

} // namespace
} // namespace vabo
