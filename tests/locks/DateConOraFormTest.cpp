// Dates with a time of day, which other programs store where this one stores the day alone.

#include "locks/ProgettoForm.h"
#include "locks/SedeForm.h"

namespace vabo {
namespace {

using libro::alle;

TEST_F(ProjectForm, ADateStoredWithATimeIsShownAsItsDayAndRunAsThatDay) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = alle("2024-04-30")},
           {.id = 2, .numero = 2, .transazione = alle("2024-05-02"), .report = alle("2024-04-30", "00:01")}});
    esegui("update progetti set iddate = '2024-04-30 10:30' where ID = 10000003");
    apri();
    prendi(kProgetto);
    EXPECT_EQ(testo(), "30/04/2024");
    premi("Command1");
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    EXPECT_EQ(lettura("select definito from partitadoppia order by idautonumber"),
              (std::vector<std::string>{"-1", "0"}));
}

TEST_F(ProjectForm, ATimeBehindTheDateDoesNotCountInARunByAClick) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = alle("2024-04-30", "10:00")}});
    apri();
    prendi(kProgetto);
    digita("30/04/2024 10:30");
    premi("Command1");
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    EXPECT_EQ(valore("select definito from partitadoppia"), "0");
    aspettaVuota();
}

// The check of typed dates takes out the slashes, lets it pass as it goes by the first four and the last two
// characters, and can't put the slashes back.
TEST_F(ProjectForm, ATimeBehindTheDateMakesItNoDateAtItsEnter) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = alle("2024-04-30"), .definito = -1}});
    apri();
    prendi(kProgetto);
    digita("30/04/2024 10:30");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo(), "30042024 10:30");
    EXPECT_EQ(fuoco(), "Command1");
    const std::string prima = dataDelProgetto();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(dataDelProgetto(), prima);
    EXPECT_EQ(valore("select definito from partitadoppia"), "0") << "reopened, and not closed up to any date";
    aspettaVuota();
}

TEST_F(BranchForm, ADateStoredWithATimeIsShownWithItAndNoDateAtItsEnter) {
    esegui("update ElencoSedi set idDatainvio = '2024-03-31 10:30' where IdSede = 4");
    apri();
    prendi(kSede);
    EXPECT_EQ(testo(), "31/03/2024 10:30:00");
    EXPECT_TRUE(tuttoScelto());
    script.expectMessage("Type mismatch");
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo(), "31032024 10:30:00") << "the slashes are taken out, and can't be put back";
    EXPECT_EQ(fuoco(), "DataInizio");
}

TEST_F(BranchForm, ADateWithATimeIsStoredWithItAndItsDayAloneCountsForTheRows) {
    metti({{.id = 1, .transazione = alle("2024-03-31", "23:00"), .definito = -1},
           {.id = 2, .numero = 2, .transazione = alle("2024-04-01"), .definito = -1}});
    esegui("update ElencoSedi set idDatainvio = '2024-03-31 10:30' where IdSede = 4");
    apri();
    prendi(kSede);
    script.expectQuestion(domanda("31/03/2024 10:30:00"), true);
    const support::StatementRecorder recorder;
    premi("Command1");
    EXPECT_EQ(recorder.holding("update partitadoppia set definito =0").at(0),
              "update partitadoppia set definito =0  where idsedecompetenza =4 and datatransazione >   "
              "CONVERT(DATETIME, '2024-3-31', 102)   and datatransazione >   CONVERT(DATETIME, '2023-12-31', 102)  ");
    EXPECT_EQ(dataDellaSede(), alle("2024-03-31", "10:30"));
    EXPECT_EQ(lettura("select definito from partitadoppia order by idautonumber"),
              (std::vector<std::string>{"0", "0"}));
    aspettaVuota();
}

// A balance closed at some hour: its own day is earlier than that.
TEST_F(BranchForm, TheDayOfABalanceWithATimeIsRefusedByEnterAndByAClick) {
    metti({{.id = 1, .transazione = alle("2023-12-31", "23:00")},
           {.id = 2, .numero = 2, .transazione = alle("2024-01-01")}});
    esegui("update contatorepd set iddate = '2023-12-31 10:30'");
    apri();
    prendi(kSede);
    digita("31/12/2023");
    script.expectMessage(kPrimaDelBilancio);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "DataInizio");
    digita("31/12/2023");
    script.expectQuestion(domanda("31/12/2023"), true);
    script.expectMessage(kPrimaDelBilancio);
    premi("Command1");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(dataDellaSede(), alle("2024-03-31"));
    digita("01/01/2024");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "Command1");
    script.expectQuestion(domanda("01/01/2024"), true);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(lettura("select definito from partitadoppia order by idautonumber"),
              (std::vector<std::string>{"-1", "0"}))
        << "the whole last day of the balance is closed";
}

TEST_F(ProjectForm, ABalanceWithATimeReopensTheRowsBehindItsDay) {
    metti({{.id = 1, .transazione = alle("2023-12-31"), .report = {}, .definito = -1},
           {.id = 2, .numero = 2, .transazione = alle("2023-12-31", "09:00"), .report = {}, .definito = -1}});
    esegui("update contatorepd set iddate = '2023-12-31 10:30'");
    apri();
    prendi(kProgetto);
    digita("31/01/2024");
    premi("Command1");
    EXPECT_EQ(lettura("select definito from partitadoppia order by idautonumber"),
              (std::vector<std::string>{"-1", "0"}))
        << "the bound is the day's midnight";
}

} // namespace
} // namespace vabo
