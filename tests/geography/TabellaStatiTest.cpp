#include "geography/TabellaStati.h"

#include "ZonaAttesa.h"
#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "geography/ControllaData.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

const CampiStato kKosovo = {.nome = "Repubblica del Kosovo",
                            .area = "Balcani",
                            .istituzione = "17/02/2008",
                            .soppressione = "",
                            .isoValuta = "EUR"};

class TabellaStati : public AziendaAperta {
protected:
    double chiave(const std::string& nome) const {
        return std::stod(valore("select IdStato from stati where DescStato = '" + nome + "'"));
    }
    /// Name, both dates, currency and area.
    Riga stato(const std::string& dove) const {
        return riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta, Area from stati where " +
                    dove);
    }
    Riga nuovo() const { return stato("IdStato = (select max(IdStato) from stati)"); }
    int quanti(const std::string& tabella) const { return std::stoi(valore("select count(*) from " + tabella)); }
    /// The list as the form has it.
    static std::unique_ptr<ado::Recordset> elenco() {
        auto rs = std::make_unique<ado::Recordset>();
        rs->Open(ElencoStati(), DbAzienda, ado::CursorType::Static, ado::LockType::Optimistic);
        return rs;
    }
};

constexpr const char* kNulla = "NULL";

TEST_F(TabellaStati, ReadsTheListsLetterForLetter) {
    EXPECT_EQ(ElencoStati(), "SELECT * from stati order by DescStato");
    EXPECT_EQ(ElencoZone(), "Select * from ZoneGeografiche ");
}

TEST_F(TabellaStati, ANewStateAndItsAreaAreSentLetterForLetter) {
    const support::StatementRecorder recorder;
    SalvaStato(0, kKosovo);
    EXPECT_EQ(
        recorder.texts(),
        (Testi{"select * from stati",
               "INSERT INTO [stati] ([DescStato], [DataIstituzioneStato], [IsoValuta], [Area]) VALUES "
               "(N'Repubblica del Kosovo', CONVERT(DATETIME, '2008-02-17 00:00:00.000', 121), N'EUR', N'Balcani')",
               "select * from Zonegeografiche where descrizione ='Balcani'", NuovaZona()}));
}

TEST_F(TabellaStati, ANewStateIsARow) {
    const int prima = quanti("stati");
    SalvaStato(0, kKosovo);
    EXPECT_EQ(quanti("stati"), prima + 1);
    EXPECT_EQ(nuovo(), (Riga{"Repubblica del Kosovo", "2008-02-17 00:00:00.000", kNulla, "EUR", "Balcani"}));
}

TEST_F(TabellaStati, AStateOfAKeyIsChangedInItsRow) {
    const int prima = quanti("stati");
    const double id = chiave("Cecoslovacchia");
    const support::StatementRecorder recorder;
    SalvaStato(id, {"Cecoslovacchia", "Europa orientale", "28/10/1918", "31/12/1992", "KCS"});
    EXPECT_EQ(recorder.texts().front(), "select * from stati where idstato = " + ado::plainNumber(id));
    EXPECT_EQ(recorder.holding("idstato = ").size(), 1U);
    EXPECT_EQ(recorder.texts().back(), "select * from Zonegeografiche where descrizione ='Europa orientale'");
    EXPECT_EQ(quanti("stati"), prima);
    EXPECT_EQ(stato("DescStato = 'Cecoslovacchia'"), (Riga{"Cecoslovacchia", "1918-10-28 00:00:00.000",
                                                           "1992-12-31 00:00:00.000", "KCS", "Europa orientale"}));
}

TEST_F(TabellaStati, AKeyGoesIntoItsStatementInPlainDigits) {
    const support::StatementRecorder recorder;
    EXPECT_THROW(SalvaStato(1'000'000, kKosovo), ado::Error);
    EXPECT_EQ(recorder.texts(), Testi{"select * from stati where idstato = 1000000"});
}

TEST_F(TabellaStati, ARowThatIsGoneRaisesAndIsNotMadeAnew) {
    const double id = chiave("Kenya");
    esegui("delete from stati where DescStato = 'Kenya'");
    try {
        SalvaStato(id, kKosovo);
        FAIL() << "nothing raised";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), 3021);
    }
    EXPECT_EQ(quanti("stati where DescStato = 'Repubblica del Kosovo'"), 0);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Balcani'"), 0);
    SalvaStato(0, kKosovo);
    EXPECT_EQ(quanti("stati where DescStato = 'Repubblica del Kosovo'"), 1) << "the shared recordset was given back";
}

TEST_F(TabellaStati, AnAreaThatIsThereIsNotAddedAgainWhateverItsCase) {
    const int prima = quanti("ZoneGeografiche");
    SalvaStato(0, {"A", "Caraibi", "", "", ""});
    SalvaStato(0, {"B", "CARAIBI", "", "", ""});
    SalvaStato(0, {"C", "Caraibi  ", "", "", ""});
    EXPECT_EQ(quanti("ZoneGeografiche"), prima);
    EXPECT_EQ(stato("DescStato = 'B'").back(), "CARAIBI");
}

TEST_F(TabellaStati, NoAreaChosenIsStoredAsItReadsAndIsNoArea) {
    const int prima = quanti("ZoneGeografiche");
    const support::StatementRecorder recorder;
    SalvaStato(0, {"A", "Seleziona", "", "", ""});
    EXPECT_EQ(nuovo().back(), "Seleziona");
    EXPECT_TRUE(recorder.holding("eografiche").empty());
    EXPECT_EQ(quanti("ZoneGeografiche"), prima);
}

TEST_F(TabellaStati, NoAreaChosenInAnotherCaseIsAnArea) {
    SalvaStato(0, {"A", "seleziona", "", "", ""});
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'seleziona'"), 1);
}

TEST_F(TabellaStati, AnEmptyAreaIsAnAreaToo) {
    SalvaStato(0, {"A", "", "", "", ""});
    SalvaStato(0, {"B", "", "", "", ""});
    EXPECT_EQ(stato("DescStato = 'B'").back(), "");
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = ''"), 1);
}

TEST_F(TabellaStati, AnEmptyDateIsRefusedByItsColumnWhichKeepsTheOldOne) {
    const double id = chiave("Cecoslovacchia");
    SalvaStato(id, {"Cecoslovacchia", "Seleziona", "", "", "CSK"});
    const Riga riga = stato("DescStato = 'Cecoslovacchia'");
    EXPECT_EQ(riga[1], "1918-10-28 00:00:00.000");
    EXPECT_EQ(riga[2], "1992-12-31 00:00:00.000");
}

TEST_F(TabellaStati, WhatIsNoDateLeavesItsColumnAndTheOthersAreStored) {
    for (const char* testo : {"0102", "31/02/2003", "x", "0", "00/00/0000", "' or 1=1 --"}) {
        SCOPED_TRACE(testo);
        SalvaStato(0, {"A", "Caraibi", testo, testo, "EUR"});
        EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", "Caraibi"}));
    }
}

// A zero time counts as empty and yet is a date: the empty text that is written behind it is refused.
TEST_F(TabellaStati, AZeroTimeIsStored) {
    SalvaStato(0, {"A", "Caraibi", "0:00:00", "0:00:00", "EUR"});
    EXPECT_EQ(nuovo(), (Riga{"A", "1899-12-30 00:00:00.000", "1899-12-30 00:00:00.000", "EUR", "Caraibi"}));
}

TEST_F(TabellaStati, AnEmptyDateOfEndIsWrittenAsTheEmptyTextWhereTheColumnTakesIt) {
    esegui("drop table stati create table stati (IdStato int identity(1,1) not null primary key, DescStato "
           "nvarchar(100) null, DataIstituzioneStato nvarchar(20) null, DataSoppressioneStato nvarchar(20) null, "
           "IsoValuta nvarchar(3) null, Area nvarchar(50) null)");
    for (const char* testo : {"", " ", "0", "00", "0:00:00"}) {
        SCOPED_TRACE(testo);
        SalvaStato(0, {"A", "Caraibi", testo, testo, "EUR"});
        EXPECT_EQ(nuovo(), (Riga{"A", testo, "", "EUR", "Caraibi"}));
    }
    SalvaStato(0, {"A", "Caraibi", "x", "y", "EUR"});
    EXPECT_EQ(nuovo(), (Riga{"A", "x", "y", "EUR", "Caraibi"}));
}

TEST_F(TabellaStati, ATextThatIsTooLongForItsColumnLeavesThatColumnAlone) {
    const std::string lungo(4'000, 'x');
    SalvaStato(0, {"A", "Caraibi", "01/02/2003", "04/05/2006", lungo});
    EXPECT_EQ(nuovo(), (Riga{"A", "2003-02-01 00:00:00.000", "2006-05-04 00:00:00.000", kNulla, "Caraibi"}));
    SalvaStato(0, {"A", "Caraibi", lungo, lungo, "EUR"});
    EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", "Caraibi"}));
    SalvaStato(0, {"A", "Caraibi", "", "", "EURO"});
    EXPECT_EQ(nuovo()[3], kNulla);
    SalvaStato(0, {"A", "Caraibi", "", "", "EUR  "});
    EXPECT_EQ(nuovo()[3], "EUR") << "blanks at the end are cut";
}

TEST_F(TabellaStati, ANameThatIsTooLongLeavesARowWithoutNameForThePurge) {
    SalvaStato(0, {std::string(4'000, 'x'), "Caraibi", "", "", "EUR"});
    EXPECT_EQ(nuovo(), (Riga{kNulla, kNulla, kNulla, "EUR", "Caraibi"}));
    EliminaStatiSenzaNome();
    EXPECT_EQ(quanti("stati where DescStato is null"), 0);
}

TEST_F(TabellaStati, AnAreaThatIsTooLongLeavesAnAreaWithoutText) {
    const int prima = quanti("ZoneGeografiche");
    SalvaStato(0, {"A", std::string(4'000, 'x'), "", "", "EUR"});
    EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", kNulla}));
    EXPECT_EQ(quanti("ZoneGeografiche"), prima + 1);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione is null"), 1);
}

/// An area that somebody types to do harm, and what its statement does.
struct AreaOstile {
    const char* area;
    const char* istruzione;
    bool aggiunta; ///< stands in the list of areas afterwards
};

TEST_F(TabellaStati, AnAreaEntersItsStatementAsItIsTyped) {
    const AreaOstile casi[] = {
        {"l'Est", "select * from Zonegeografiche where descrizione ='l'Est'", false},
        {"'", "select * from Zonegeografiche where descrizione ='''", false},
        {"''", "select * from Zonegeografiche where descrizione =''''", true},
        {"x' --", "select * from Zonegeografiche where descrizione ='x' --'", true},
        {"x' /*", "select * from Zonegeografiche where descrizione ='x' /*'", false},
        {"x' or '1'='1", "select * from Zonegeografiche where descrizione ='x' or '1'='1'", false},
        {"a;b", "select * from Zonegeografiche where descrizione ='a;b'", true},
        {"-- x", "select * from Zonegeografiche where descrizione ='-- x'", true},
        {"\"x\"", "select * from Zonegeografiche where descrizione ='\"x\"'", true},
        {"a\tb\x01\x7f", "select * from Zonegeografiche where descrizione ='a\tb\x01\x7f'", true},
        {"città ’ß", "select * from Zonegeografiche where descrizione ='città ’ß'", true},
    };
    for (const AreaOstile& caso : casi) {
        SCOPED_TRACE(caso.area);
        const support::StatementRecorder recorder;
        const int prima = quanti("ZoneGeografiche");
        SalvaStato(0, {"A", caso.area, "", "", "EUR"});
        EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", caso.area})) << "the row takes it as it is";
        EXPECT_EQ(recorder.count(caso.istruzione), 1);
        EXPECT_EQ(quanti("ZoneGeografiche"), prima + (caso.aggiunta ? 1 : 0));
    }
}

TEST_F(TabellaStati, AStatementBehindAQuoteInTheAreaIsRun) {
    SalvaStato(0, {"A", "x'; delete from progetti --", "", "", "EUR"});
    EXPECT_EQ(quanti("progetti"), 0);
    EXPECT_EQ(nuovo().back(), "x'; delete from progetti --");
}

TEST_F(TabellaStati, NamesDatesAndCurrenciesEnterNoText) {
    for (const std::string testo : {"'", "x'; delete from stati --", "a;b", "-- x", "/*", "\"", "a\tb", "\x01\x7f"}) {
        SCOPED_TRACE(testo);
        const int prima = quanti("stati");
        SalvaStato(0, {testo, "Seleziona", testo, testo, testo.substr(0, 3)});
        EXPECT_EQ(nuovo(), (Riga{testo, kNulla, kNulla, testo.substr(0, 3), "Seleziona"}));
        EXPECT_EQ(quanti("stati"), prima + 1);
    }
}

TEST_F(TabellaStati, ARowThatSomebodyElseHoldsStaysAsItIsAndNothingIsTold) {
    const double id = chiave("Kenya");
    const Riga prima = stato("DescStato = 'Kenya'");
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from stati where idstato = " + ado::plainNumber(id), altrui);
    tenuta["IsoValuta"] = "ZZZ";
    SalvaStato(id, {"Kenia", "Balcani", "", "", "KSH"});
    tenuta.CancelUpdate();
    EXPECT_EQ(stato("DescStato = 'Kenya'"), prima);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Balcani'"), 1);
}

TEST_F(TabellaStati, WithoutTheListOfAreasTheStateIsStoredAlone) {
    esegui("drop table ZoneGeografiche");
    SalvaStato(0, kKosovo);
    EXPECT_EQ(nuovo().back(), "Balcani");
}

TEST_F(TabellaStati, WithoutTheTableOfStatesTheErrorRises) {
    esegui("drop table stati");
    EXPECT_THROW(SalvaStato(0, kKosovo), ado::Error);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Balcani'"), 0);
}

TEST_F(TabellaStati, ARowThatTheServerRefusesIsSkippedAndItsAreaAdded) {
    esegui("alter table stati add obbligo int not null default 0");
    esegui("create unique index unico on stati (DescStato)");
    const int prima = quanti("stati");
    SalvaStato(0, {"Kenya", "Balcani", "", "", ""});
    EXPECT_EQ(quanti("stati"), prima);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Balcani'"), 1);
}

TEST_F(TabellaStati, ANameIsMissingWhenItIsEmptyOrTheWordForNone) {
    for (const char* nome : {"", " ", "0", "000", "Seleziona", "seleziona", "SELEZIONA"}) {
        EXPECT_TRUE(NomeMancante(nome)) << nome;
    }
    for (const char* nome : {"  ", "Seleziona ", "Selezion", "Italia", "0.00"}) {
        EXPECT_FALSE(NomeMancante(nome)) << nome;
    }
}

TEST_F(TabellaStati, ADuplicateIsLookedForInTheListByTheNameAsTyped) {
    const auto rs = elenco();
    EXPECT_TRUE(GiaInserito(*rs, "Kenya"));
    EXPECT_EQ(rs->Filter(), "descstato='Kenya'");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_TRUE(GiaInserito(*rs, "KENYA"));
    EXPECT_FALSE(GiaInserito(*rs, "Keny"));
    EXPECT_FALSE(GiaInserito(*rs, "Ken*"));
    EXPECT_FALSE(GiaInserito(*rs, "Ken%"));
    EXPECT_TRUE(GiaInserito(*rs, "x' or descstato='Kenya"));
    EXPECT_FALSE(GiaInserito(*rs, "d''Avorio"));
    esegui("update stati set DescStato = 'Costa d''Avorio' where DescStato = 'Kenya'");
    rs->Requery();
    EXPECT_TRUE(GiaInserito(*rs, "Costa d''Avorio")) << "a doubled apostrophe is one";
}

TEST_F(TabellaStati, ANameThatBreaksTheFilterIsAnErrorAndTheListStaysWhole) {
    const auto rs = elenco();
    const long tutti = rs->RecordCount();
    for (const char* nome : {"Costa d'Avorio", "'", "x' or", "x' --", "x'; delete from stati --", "x')"}) {
        SCOPED_TRACE(nome);
        try {
            GiaInserito(*rs, nome);
            ADD_FAILURE() << "nothing raised";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.number(), 3001);
        }
        EXPECT_EQ(rs->RecordCount(), tutti);
    }
    for (const std::string& nome : {std::string("a;b"), std::string("--"), std::string("/*"), std::string("\""),
                                    std::string("\x01\t\x7f"), std::string(4'000, 'x')}) {
        EXPECT_FALSE(GiaInserito(*rs, nome)) << nome;
    }
}

TEST_F(TabellaStati, ThePurgeTakesTheRowsWithoutANameAlone) {
    esegui("insert into stati (DescStato, IsoValuta) values (null, 'AAA'), (null, 'BBB'), ('', 'CCC')");
    const int prima = quanti("stati");
    const support::StatementRecorder recorder;
    EliminaStatiSenzaNome();
    EXPECT_EQ(recorder.texts(), Testi{"delete from stati where descstato is null"});
    EXPECT_EQ(quanti("stati"), prima - 2);
    EXPECT_EQ(quanti("stati where IsoValuta = 'CCC'"), 1);
}

TEST_F(TabellaStati, ThePurgeRaises) {
    esegui("drop table stati");
    EXPECT_THROW(EliminaStatiSenzaNome(), ado::Error);
}

TEST(LasciaData, ChangesTheTextOfAGoodDateAlone) {
    struct Caso {
        const char* scritto;
        DataLasciata esito;
        const char* resta;
    };
    const Caso casi[] = {
        {"01/02/2003", DataLasciata::Scritta, "01/02/2003"},
        {"01022003", DataLasciata::Scritta, "01/02/2003"},
        {"0102", DataLasciata::Scritta, "0102"},
        {"01/02", DataLasciata::Scritta, "0102"},
        {"", DataLasciata::Vuota, ""},
        {" ", DataLasciata::Vuota, " "},
        {"/", DataLasciata::Vuota, "/"},
        {"0", DataLasciata::Vuota, "0"},
        {"00/00", DataLasciata::Vuota, "00/00"},
        {"32/01/2003", DataLasciata::Rifiutata, "32/01/2003"},
        {"00/01/2003", DataLasciata::Rifiutata, "00/01/2003"},
        {"x", DataLasciata::Rifiutata, "x"},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.scritto);
        std::string testo = caso.scritto;
        EXPECT_EQ(LasciaData(testo), caso.esito);
        EXPECT_EQ(testo, caso.resta);
    }
}

} // namespace
} // namespace vabo
