// The table of payment terms: the list, the column of a later version, the save.

#include "payment_terms/TabellaCondizioni.h"

#include "CondizioniAperte.h"
#include "ado/Error.h"
#include "support/SomebodyElse.h"

#include <algorithm>

namespace vabo {
namespace {

using TabellaCondizioni = CondizioniAperte;

constexpr const char* kElenco =
    "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione, CondizioniPagamento.NRrate, "
    "CondizioniPagamento.IDDecorrenza, CondizioniPagamentoDecorrenza.Descrizione, CondizioniPagamento.RataAnticipo, "
    "CondizioniPagamento.Scadenza1, CondizioniPagamento.Scadenza2, CondizioniPagamento.Scadenza3, "
    "CondizioniPagamento.Scadenza4, CondizioniPagamento.Scadenza5, CondizioniPagamento.Scadenza6, "
    "CondizioniPagamento.Scadenza7, CondizioniPagamento.Scadenza8, CondizioniPagamento.Scadenza9, "
    "CondizioniPagamento.Scadenza10, CondizioniPagamento.Scadenza11, CondizioniPagamento.Scadenza12, "
    "CondizioniPagamento.IdTipoRimessa, CondizioniPagamentoTipoIncasso.Descrizione FROM "
    "(CondizioniPagamentoDecorrenza INNER JOIN CondizioniPagamento ON CondizioniPagamentoDecorrenza.IDDecorrenza = "
    "CondizioniPagamento.IDDecorrenza) INNER JOIN CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa "
    "= CondizioniPagamentoTipoIncasso.IdTipoRimessa order by CondizioniPagamento.Descrizione ";

constexpr const char* kColonna =
    "alter TABLE [condizionipagamento] add    RataAnticipo decimal(18,2) not NULL default 0";

CampiCondizione campi(const std::string& descrizione, std::initializer_list<std::string> scadenze = {}) {
    CampiCondizione campi;
    campi.descrizione = descrizione;
    campi.numeroRate = std::to_string(scadenze.size());
    campi.anticipo = "0,00";
    std::copy(scadenze.begin(), scadenze.end(), campi.scadenze.begin());
    return campi;
}

/// The error that a save raises, 0 for none.
long errore(const ChiaviCondizione& chiavi, const CampiCondizione& campi) {
    try {
        SalvaCondizione(chiavi, campi);
    } catch (const ado::Error& error) {
        return error.number();
    }
    return 0;
}

constexpr long kValoreRifiutato = -2147217887;

TEST_F(TabellaCondizioni, AKeyGoesIntoItsStatementInPlainDigits) {
    const support::StatementRecorder recorder;
    EXPECT_NE(errore({.pagamento = 1'000'000, .decorrenza = 1, .tipoRimessa = 1}, campi("Prova", {"30"})), 0);
    EXPECT_EQ(recorder.texts(), Testi{" SELECT * from CondizioniPagamento WHERE  idpagamento = 1000000"});
}

TEST_F(TabellaCondizioni, TheListsAreReadLetterForLetter) {
    EXPECT_EQ(ElencoCondizioni(), kElenco);
    EXPECT_EQ(ElencoRegole(), "SELECT * from  CondizioniPagamentoDecorrenza order by Descrizione");
    EXPECT_EQ(ElencoTipiRimessa(), "SELECT * from  CondizioniPagamentoTipoIncasso order by descrizione");
}

TEST_F(TabellaCondizioni, ATermWhoseRuleOrKindIsMissingIsNotInTheList) {
    const auto nomi = [this] {
        Testi nomi;
        for (const Riga& riga : posto.rows(support::kCompany, ElencoCondizioni())) {
            nomi.push_back(riga[1]);
        }
        return nomi;
    };
    const Testi tutti = nomi();
    EXPECT_EQ(static_cast<int>(tutti.size()), quanti("CondizioniPagamento"));
    EXPECT_TRUE(std::ranges::is_sorted(tutti));
    esegui("update CondizioniPagamento set IDDecorrenza = 99 where Descrizione like 'Contanti a  %'");
    esegui("update CondizioniPagamento set IDDecorrenza = null where Descrizione like 'Assegno a 30%'");
    esegui("update CondizioniPagamento set IdTipoRimessa = 99 where Descrizione like 'Rimessa diretta a 30 %'");
    EXPECT_EQ(nomi().size(), tutti.size() - 3);
}

TEST_F(TabellaCondizioni, AColumnThatIsThereIsRefusedAndNothingChanges) {
    const support::StatementRecorder recorder;
    AggiungiRataAnticipo();
    EXPECT_EQ(recorder.texts(), Testi{kColonna});
    EXPECT_EQ(condizione("Descrizione like 'Assegno a 30%'")[3], "10.50");
}

TEST_F(TabellaCondizioni, AnOlderDatabaseGetsTheColumnInItsRows) {
    const std::string database = support::kOtherCompany;
    DbAzienda.Close();
    NomeDatabase = database;
    DbAzienda.Open(ConnessioneAzienda() + ";");
    EXPECT_ANY_THROW(posto.rows(database, "select RataAnticipo from CondizioniPagamento"));
    AggiungiRataAnticipo();
    EXPECT_EQ(posto.value(database, "select count(*) from CondizioniPagamento where RataAnticipo = 0"),
              posto.value(database, "select count(*) from CondizioniPagamento"));
}

TEST_F(TabellaCondizioni, WithoutATableOrAConnectionTheColumnIsSkipped) {
    esegui("drop table CondizioniPagamento");
    AggiungiRataAnticipo();
    DbAzienda.Close();
    AggiungiRataAnticipo();
}

TEST_F(TabellaCondizioni, ANewTermIsSentLetterForLetter) {
    CampiCondizione nuova = campi("Assegno a 30-60 Fine mese", {"30", "60"});
    nuova.anticipo = "1.234,50";
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaCondizione({0, 2, 4}, nuova));
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamento");
    EXPECT_EQ(scritture(recorder),
              (Testi{"INSERT INTO [CondizioniPagamento] ([Descrizione], [NRrate], [IDDecorrenza], [Scadenza1], "
                     "[Scadenza2], [Scadenza3], [Scadenza4], [Scadenza5], [Scadenza6], [Scadenza7], [Scadenza8], "
                     "[Scadenza9], [Scadenza10], [Scadenza11], [Scadenza12], [IdTipoRimessa], [RataAnticipo]) VALUES "
                     "(N'Assegno a 30-60 Fine mese', 2, 2, 30, 60, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 1234.50)"}));
    EXPECT_EQ(ultima(), (Riga{"Assegno a 30-60 Fine mese", "2", "2", "1234.50", "30 60 0 0 0 0 0 0 0 0 0 0", "4"}));
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
}

TEST_F(TabellaCondizioni, ATermOfAKeyIsChangedInItsRow) {
    const int prima = quanti("CondizioniPagamento");
    CampiCondizione campi = vabo::campi("Altro", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"});
    campi.anticipo = "7";
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaCondizione({3, 5, 1}, campi));
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamento WHERE  idpagamento = 3");
    EXPECT_EQ(condizione("IDPagamento = 3"), (Riga{"Altro", "12", "5", "7.00", "1 2 3 4 5 6 7 8 9 10 11 12", "1"}));
    EXPECT_EQ(quanti("CondizioniPagamento"), prima);
}

TEST_F(TabellaCondizioni, WhatIsEmptyIsStoredAsZero) {
    for (const char* vuoto : {"", " ", "0", "0,00", "000"}) {
        CampiCondizione campi = vabo::campi("Prova", {vuoto, "60", vuoto});
        campi.anticipo = vuoto;
        EXPECT_TRUE(SalvaCondizione({3, 2, 1}, campi)) << vuoto;
        EXPECT_EQ(condizione("IDPagamento = 3")[3], "0.00");
        EXPECT_EQ(condizione("IDPagamento = 3")[4], "0 60 0 0 0 0 0 0 0 0 0 0");
    }
}

TEST_F(TabellaCondizioni, NothingIsDoneWithoutARuleAKindOrAName) {
    const support::StatementRecorder recorder;
    EXPECT_FALSE(SalvaCondizione({0, 0, 1}, campi("Prova")));
    EXPECT_FALSE(SalvaCondizione({0, 1, 0}, campi("Prova")));
    for (const char* vuoto : {"", " ", "0"}) {
        EXPECT_FALSE(SalvaCondizione({0, 1, 1}, campi(vuoto))) << vuoto;
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(TabellaCondizioni, ASaveReleasesAllSharedRecordsetsAheadAndBehind) {
    constexpr int kAltrui = 20;
    RsCondivisi(kAltrui).Open("select * from progetti", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    Testi aperti;
    {
        const support::SomebodyElse altro([&](const std::string& testo) {
            if (RsCondivisi(kAltrui).IsOpen() || DbLocale != nullptr) {
                aperti.push_back(testo);
            }
            DbLocale = std::make_unique<ado::Connection>(); // for the end of the save
        });
        EXPECT_TRUE(SalvaCondizione({3, 2, 1}, campi("Prova")));
    }
    ASSERT_FALSE(aperti.empty());
    EXPECT_NE(aperti.front(), " SELECT * from CondizioniPagamento WHERE  idpagamento = 3");
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(TabellaCondizioni, ATermThatIsGoneRaisesAndIsNotMadeAnew) {
    const int prima = quanti("CondizioniPagamento");
    esegui("delete from CondizioniPagamento where IDPagamento = 3");
    EXPECT_EQ(errore({3, 2, 1}, campi("Prova")), 3021);
    EXPECT_EQ(quanti("CondizioniPagamento"), prima - 1);
    EXPECT_FALSE(RsCondivisi(1).IsOpen()) << "it is given back";
}

TEST_F(TabellaCondizioni, WhatDoesNotFitItsColumnIsRefusedAndNothingIsStored) {
    const Riga prima = condizione("IDPagamento = 3");
    for (const std::string& ostile : {std::string("x"), std::string("'"), std::string("1; delete from stati"),
                                      std::string("99999999999"), std::string(4'000, '9'), std::string("\x01")}) {
        SCOPED_TRACE(ostile.substr(0, 20));
        CampiCondizione scadenza = campi("Prova", {ostile});
        EXPECT_EQ(errore({3, 2, 1}, scadenza), kValoreRifiutato);
        CampiCondizione anticipo = campi("Prova");
        anticipo.anticipo = ostile == "99999999999" ? "99999999999999999" : ostile;
        EXPECT_EQ(errore({3, 2, 1}, anticipo), kValoreRifiutato);
    }
    EXPECT_EQ(errore({3, 2, 1}, campi(std::string(51, 'x'))), kValoreRifiutato);
    EXPECT_EQ(errore({3, 2, 1}, campi(std::string(4'000, 'x'))), kValoreRifiutato);
    CampiCondizione numero = campi("Prova");
    numero.numeroRate = "x";
    EXPECT_EQ(errore({3, 2, 1}, numero), 13);
    EXPECT_EQ(condizione("IDPagamento = 3"), prima);
    EXPECT_EQ(errore({3, 2, 1}, campi("Prova")), 0) << "nothing stays open";
}

TEST_F(TabellaCondizioni, ATypedNameIsStoredAsItStands) {
    for (const char* nome : {"L'altra \"x\"", "x'; delete from CondizioniPagamento --", "a;b /* x */", "a\tb", "è €"}) {
        EXPECT_TRUE(SalvaCondizione({3, 2, 1}, campi(nome)));
        EXPECT_EQ(condizione("IDPagamento = 3")[0], nome);
    }
}

TEST_F(TabellaCondizioni, NumbersAreReadWithTheMachinesSeparators) {
    CampiCondizione campi = vabo::campi("Prova", {"2,5", "1.000"});
    campi.anticipo = "2,505";
    EXPECT_TRUE(SalvaCondizione({3, 2, 1}, campi));
    EXPECT_EQ(condizione("IDPagamento = 3"), (Riga{"Prova", "2", "2", "2.51", "2 1000 0 0 0 0 0 0 0 0 0 0", "1"}));
}

TEST_F(TabellaCondizioni, TheTermsOfTheSampleAreNamedAsTheFormNamesThem) {
    int quante = 0;
    for (const Riga& riga : posto.rows(support::kCompany, ElencoCondizioni())) {
        CampiCondizione campi;
        campi.tipoRimessa = riga[19];
        campi.decorrenza = riga[4];
        std::copy_n(riga.begin() + 6, kRate, campi.scadenze.begin());
        AggiornaRate(campi);
        EXPECT_EQ(riga[1], campi.descrizione.substr(0, 50));
        EXPECT_EQ(riga[2], campi.numeroRate);
        ++quante;
    }
    EXPECT_EQ(quante, 14);
}

} // namespace
} // namespace vabo
