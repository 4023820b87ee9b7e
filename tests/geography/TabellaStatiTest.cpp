// What is stored of a state, and how.

#include "ado/Error.h"
#include "geography/TabellaStatiAperta.h"
#include "geography/ZonaAttesa.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

class TabellaStati : public TabellaStatiAperta {};

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

} // namespace
} // namespace vabo
