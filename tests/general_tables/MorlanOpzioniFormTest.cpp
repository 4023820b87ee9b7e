#include "MorlanFixture.h"
#include "support/SomebodyElse.h"

namespace vabo {
namespace {

class MorlanOpzioni : public MorlanForm {
protected:
    void clicca(const std::string& nome) {
        scheda(nome == "Check7" ? 0 : 3);
        controllo<controls::CheckBox>(nome).setFocus();
        gui.press(Qt::Key_Space);
    }
    std::string generale(int id) const {
        return valore("select Contatore from datiGenerali where id = " + std::to_string(id));
    }
    std::string lunghezza(int id) const {
        return valore("select Lunghezza from TabellaUilityConti where id = " + std::to_string(id));
    }
    std::string quante(const std::string& tabella) const { return valore("select count(*) from " + tabella); }
};

TEST_F(MorlanOpzioni, TheBoxesShowWhatTheRowsHold) {
    esegui("update datiGenerali set Contatore = -1");
    esegui("update TabellaUilityConti set Lunghezza = -1 where id in (7, 8)");
    esegui("update TabellaUilityConti set Lunghezza = 1 where id = 9");
    apri();
    for (const char* nome :
         {"Check1", "Check2", "Check3", "Check4", "Check5", "Check6", "Check13", "Check9", "Check10", "Check12"}) {
        EXPECT_EQ(casella(nome), 1) << nome;
    }
    EXPECT_EQ(casella("Check7"), 0);
    EXPECT_EQ(casella("Check11"), 0);
    EXPECT_EQ(righe("DataGrid11"), 10);
}

TEST_F(MorlanOpzioni, OpeningRewritesWhatItReads) {
    esegui("update datiGenerali set Contatore = -1");
    apri();
    for (const char* fonte : {"-1", "-2"}) {
        SCOPED_TRACE(fonte);
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + fonte + " where id = 8");
        const auto prima = posto.rows(support::kCompany, "select * from datiGenerali order by id");
        const auto altre = posto.rows(support::kCompany, "select * from TabellaUilityConti order by id");
        riapri();
        EXPECT_EQ(posto.rows(support::kCompany, "select * from datiGenerali order by id"), prima);
        EXPECT_EQ(posto.rows(support::kCompany, "select * from TabellaUilityConti order by id"), altre);
    }
}

/// A box, its row, and what it holds when the box is ticked.
struct Caso {
    const char* nome;
    const char* testo;
    const char* spuntata;
};
constexpr Caso kCasi[] = {
    {"Check1", "select Contatore from datiGenerali where id = 8", "-1"},
    {"Check2", "select Contatore from datiGenerali where id = 6", "-1"},
    {"Check3", "select Contatore from datiGenerali where id = 7", "-1"},
    {"Check4", "select Contatore from datiGenerali where id = 9", "-1"},
    {"Check5", "select Contatore from datiGenerali where id = 10", "-1"},
    {"Check6", "select Contatore from datiGenerali where Descrizione = 'Sede Amministrativa'", "-1"},
    {"Check13", "select Contatore from datiGenerali where id = 15", "-1"},
    {"Check9", "select Lunghezza from TabellaUilityConti where id = 7", "-1"},
    {"Check10", "select Lunghezza from TabellaUilityConti where id = 8", "-1"},
    {"Check11", "select Lunghezza from TabellaUilityConti where id = 8", "-2"},
    {"Check12", "select Lunghezza from TabellaUilityConti where id = 9", "1"},
    {"Check7", "select Lunghezza from TabellaUilityConti where id = 5", "-1"},
};

TEST_F(MorlanOpzioni, EachBoxWritesItsRowAtOnceAndFindsItAtTheNextOpening) {
    esegui("update datiGenerali set Contatore = 0");
    esegui("update TabellaUilityConti set Lunghezza = 0");
    apri();
    ASSERT_EQ(spuntate(), "");
    for (const Caso& caso : kCasi) {
        SCOPED_TRACE(caso.nome);
        clicca(caso.nome);
        EXPECT_EQ(valore(caso.testo), caso.spuntata);
        riapri();
        EXPECT_EQ(spuntate(), caso.nome);
        clicca(caso.nome);
        EXPECT_EQ(valore(caso.testo), "0");
        riapri();
        EXPECT_EQ(spuntate(), "");
    }
}

TEST_F(MorlanOpzioni, BothSourcesShowWhatTheRowHoldsWhereTheStoreOfTheClearedOneFails) {
    esegui("update TabellaUilityConti set Lunghezza = -2 where id = 8");
    apri();
    ASSERT_EQ(casella("Check11"), 1);
    int aperture = 0;
    script.expectMessage("Rifiutato");
    {
        const support::SomebodyElse rifiuto([&](const std::string& testo) {
            if (testo == "select * from TabellaUilityConti where id = 8" && ++aperture == 2) {
                throw ado::Error(50000, "Rifiutato");
            }
        });
        clicca("Check10");
    }
    EXPECT_EQ(aperture, 2);
    EXPECT_EQ(lunghezza(8), "-1");
    EXPECT_EQ(casella("Check10"), 1);
    EXPECT_EQ(casella("Check11"), 0);
}

TEST_F(MorlanOpzioni, ANewDatabaseGetsFourRowsAndShowsNothingOnItsFirstOpening) {
    esegui("delete from TabellaUilityConti");
    esegui("update datiGenerali set Contatore = -1");
    apri();
    EXPECT_EQ(posto.rows(support::kCompany, "select id, Lunghezza, Descrizione from TabellaUilityConti order by id"),
              (std::vector<Riga>{{"5", "0", "Budget Ong Automatico"},
                                 {"7", "NULL", "Esporta solo registrazioni di loco"},
                                 {"8", "0", "Usa InforEuro"},
                                 {"9", "0", "Usa Badge"}}));
    EXPECT_EQ(spuntate(), "Check6") << "the load ends at the new row 5";
    EXPECT_EQ(righe("DataGrid11"), 0);
    EXPECT_GT(righe("DataGrid2"), 0);
    riapri();
    EXPECT_EQ(spuntate(), "Check1 Check2 Check3 Check4 Check5 Check6 Check13");
    EXPECT_EQ(righe("DataGrid11"), 10);
}

TEST_F(MorlanOpzioni, ATickedBudgetBoxKeepsTheRestUnreadAtEveryOpening) {
    esegui("update TabellaUilityConti set Lunghezza = -1 where id = 5");
    for (int volta = 0; volta < 2; ++volta) {
        volta == 0 ? apri() : riapri();
        EXPECT_EQ(casella("Check7"), 1);
        EXPECT_EQ(casella("Check2"), 0) << "its row holds -1";
        EXPECT_EQ(righe("DataGrid11"), 0);
        EXPECT_EQ(lunghezza(5), "-1");
    }
    ASSERT_EQ(generale(8), "-1");
    clicca("Check1");
    clicca("Check1");
    EXPECT_EQ(generale(8), "0") << "a click writes the box over the stored state";
}

TEST_F(MorlanOpzioni, AnEmptyDatiGeneraliGetsTheAdministrativeSeatAlone) {
    esegui("delete from datiGenerali");
    apri();
    EXPECT_EQ(posto.rows(support::kCompany, "select Descrizione, Contatore from datiGenerali"),
              (std::vector<Riga>{{"Sede Amministrativa", "0"}}));
    EXPECT_EQ(spuntate(), "Check10");
    riapri();
    EXPECT_EQ(quante("datiGenerali"), "1");
}

TEST_F(MorlanOpzioni, AMissingRowLeavesItsBoxAndEachClickAddsARow) {
    esegui("delete from datiGenerali where id = 8");
    apri();
    EXPECT_EQ(casella("Check1"), 0);
    EXPECT_EQ(casella("Check2"), 1) << "the others are read";
    clicca("Check1");
    clicca("Check1");
    clicca("Check1");
    EXPECT_EQ(valore("select count(*) from datiGenerali where Descrizione = 'Gestione Note di Debito'"), "3");
    riapri();
    EXPECT_EQ(casella("Check1"), 0);
}

TEST_F(MorlanOpzioni, AMissingRowWhoseNumberComesUpIsReadAtTheNextOpening) {
    esegui("drop table datiGenerali");
    esegui("create table datiGenerali (id int identity(7,1) primary key, Descrizione nvarchar(255), Contatore int)");
    apri();
    EXPECT_EQ(generale(7), "0") << "the administrative seat";
    clicca("Check1");
    EXPECT_EQ(generale(8), "-1");
    riapri();
    EXPECT_EQ(casella("Check1"), 1);
}

TEST_F(MorlanOpzioni, ARowWithoutDescriptionForTheMastroBox) {
    esegui("delete from datiGenerali where id = 6");
    apri();
    clicca("Check2");
    EXPECT_EQ(riga("select Descrizione, Contatore from datiGenerali where id = (select max(id) from datiGenerali)"),
              (Riga{"NULL", "-1"}));
}

TEST_F(MorlanOpzioni, AnUnusableNumberEndsTheReadingWhereItStandsAndNextTimeToo) {
    esegui("update datiGenerali set Contatore = -1");
    apri();
    for (const char* inservibile : {"null", "5", "1", "-40000"}) {
        esegui(std::string("update datiGenerali set Contatore = ") + inservibile + " where id = 9");
        for (int volta = 0; volta < 2; ++volta) {
            riapri();
            EXPECT_EQ(spuntate(), "Check1 Check2 Check3 Check6 Check10") << inservibile;
            EXPECT_EQ(righe("DataGrid11"), 0);
        }
        EXPECT_EQ(generale(15), "-1");
    }
}

TEST_F(MorlanOpzioni, AStoredTwoGreysTheBoxAndGoesBackAsItCame) {
    esegui("update datiGenerali set Contatore = -2 where id = 7");
    apri();
    EXPECT_EQ(casella("Check3"), 2);
    EXPECT_EQ(generale(7), "-2");
    clicca("Check3");
    EXPECT_EQ(casella("Check3"), 0);
    EXPECT_EQ(generale(7), "0");
}

TEST_F(MorlanOpzioni, ARowHeldByAnotherConsoleIsToldAndTheNextClickGoesThrough) {
    apri();
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto presa = altro->hold("select * from datiGenerali where id = 8");
        script.expectMessage("Lock request time out period exceeded.");
        clicca("Check1");
        EXPECT_EQ(generale(8), "-1");
        EXPECT_EQ(casella("Check1"), 1) << "the box goes back to what its row holds";
    }
    clicca("Check1");
    EXPECT_EQ(generale(8), "0");
    EXPECT_EQ(casella("Check1"), 0);
}

TEST_F(MorlanOpzioni, WhereErrorsAreIgnoredTheBoxStandsAsItWasClicked) {
    apri();
    DbAzienda.Close();
    for (const char* nome : {"Check5", "Check7", "Check9"}) {
        const int prima = casella(nome);
        clicca(nome);
        EXPECT_EQ(casella(nome), 1 - prima) << nome;
    }
    EXPECT_EQ(script.shown().size(), 0U);
    DbAzienda.Open(StringaAzienda);
    EXPECT_EQ(lunghezza(5), "0");
}

TEST_F(MorlanOpzioni, NoBoxAsksForARight) {
    DirittiUtente = {};
    esegui("update datiGenerali set Contatore = 0");
    esegui("update TabellaUilityConti set Lunghezza = 0");
    apri();
    for (const Caso& caso : kCasi) {
        SCOPED_TRACE(caso.nome);
        clicca(caso.nome);
        EXPECT_EQ(valore(caso.testo), caso.spuntata);
        clicca(caso.nome);
        EXPECT_EQ(valore(caso.testo), "0");
    }
}

TEST_F(MorlanOpzioni, TheStandardChartIsWrittenInFiveRows) {
    esegui("delete from TabellaUilityConti where id < 5");
    apri();
    scheda(0);
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", true);
    gui.click("Avvio_Morlan", "Command31");
    EXPECT_EQ(posto.rows(support::kCompany, "select id, Lunghezza from TabellaUilityConti where id < 6 order by id"),
              (std::vector<Riga>{{"1", "0"}, {"2", "3"}, {"3", "2"}, {"4", "4"}, {"5", "0"}}));
}

TEST_F(MorlanOpzioni, AnOwnChartAsksThreeLengthsAndRepeatsTheBudgetBox) {
    apri();
    clicca("Check7");
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", false);
    script.expectInput("Lunghezza del campo Mastro ", "Lunghezza", "3", "4");
    script.expectInput("Lunghezza del campo Conto ", "Lunghezza", "2", "");
    script.expectInput("Lunghezza del campo S/Conto ", "Lunghezza", "3", "0000");
    gui.click("Avvio_Morlan", "Command31");
    EXPECT_EQ(posto.rows(support::kCompany, "select id, Lunghezza from TabellaUilityConti where id < 6 order by id"),
              (std::vector<Riga>{{"1", "-1"}, {"2", "4"}, {"3", "2"}, {"4", "3"}, {"5", "-1"}}));
}

TEST_F(MorlanOpzioni, OnlyAnAdministratorDefinesTheChart) {
    DirittiUtente.Administrator = kFalso;
    apri();
    const auto prima = posto.rows(support::kCompany, "select * from TabellaUilityConti");
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    gui.click("Avvio_Morlan", "Command31");
    EXPECT_EQ(posto.rows(support::kCompany, "select * from TabellaUilityConti"), prima);
    EXPECT_TRUE(gui.find("Avvio_Morlan", "Command31").isEnabled());
}

} // namespace
} // namespace vabo
