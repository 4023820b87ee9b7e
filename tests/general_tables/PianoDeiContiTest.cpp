#include "general_tables/PianoDeiConti.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "general_tables/RecordsetConsole.h"
#include "support/Attacks.h"

namespace vabo {
namespace {

class PianoDeiContiTest : public AziendaAperta {
protected:
    std::vector<Riga> righe() const {
        return posto.rows(support::kCompany,
                          "select id, Lunghezza, Descrizione from TabellaUilityConti where id < 6 order by id");
    }
    static void aspettaDomande(support::DialogScript& script, const std::string& mastro, const std::string& conto,
                               const std::string& sottoconto) {
        script.expectQuestion("Utilizzi il Piano dei Conti Standard?", false);
        script.expectInput("Lunghezza del campo Mastro ", "Lunghezza", "3", mastro);
        script.expectInput("Lunghezza del campo Conto ", "Lunghezza", "2", conto);
        script.expectInput("Lunghezza del campo S/Conto ", "Lunghezza", "3", sottoconto);
    }
    Riga lunghezze() const {
        Riga risultato;
        for (const Riga& r : righe()) {
            risultato.push_back(r[1]);
        }
        return risultato;
    }
};

TEST_F(PianoDeiContiTest, OnlyAnAdministratorDefinesTheChart) {
    DirittiUtente.Administrator = kFalso;
    const auto prima = righe();
    support::DialogScript script;
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    const support::StatementRecorder recorder;
    DefinisciPianoDeiConti(1);
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(righe(), prima);
}

TEST_F(PianoDeiContiTest, TheStandardChartWritesItsFiveRows) {
    esegui("delete from TabellaUilityConti where id < 6");
    support::DialogScript script;
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", true);
    DefinisciPianoDeiConti(1);
    EXPECT_EQ(righe(), (std::vector<Riga>{{"1", "0", "Standard"},
                                          {"2", "3", "Mastro"},
                                          {"3", "2", "Conto"},
                                          {"4", "4", "S/Conto"},
                                          {"5", "-1", "Budget Ong Automatico"}}));
    EXPECT_FALSE(RsCaselle().IsOpen());
}

TEST_F(PianoDeiContiTest, EachRowIsFoundByItsStatement) {
    support::DialogScript script;
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", true);
    const support::StatementRecorder recorder;
    DefinisciPianoDeiConti(0);
    EXPECT_TRUE(recorder.sentInOrder(
        {"select * from TabellaUilityConti where id = 1", "select * from TabellaUilityConti where id = 2",
         "select * from TabellaUilityConti where id = 3", "select * from TabellaUilityConti where id = 4",
         "select * from TabellaUilityConti where id = 5"}));
}

TEST_F(PianoDeiContiTest, TheProposedLengthsOfAnOwnChartDifferFromTheStandardOnes) {
    support::DialogScript script;
    aspettaDomande(script, "3", "2", "3");
    DefinisciPianoDeiConti(0);
    EXPECT_EQ(lunghezze(), (Riga{"-1", "3", "2", "3", "0"}));
}

TEST_F(PianoDeiContiTest, AnOwnChartWritesItsFiveRowsWhereThereAreNone) {
    esegui("delete from TabellaUilityConti where id < 6");
    support::DialogScript script;
    aspettaDomande(script, "5", "6", "7");
    DefinisciPianoDeiConti(1);
    EXPECT_EQ(righe(), (std::vector<Riga>{{"1", "-1", "Standard"},
                                          {"2", "5", "Mastro"},
                                          {"3", "6", "Conto"},
                                          {"4", "7", "S/Conto"},
                                          {"5", "-1", "Budget Ong Automatico"}}));
}

TEST_F(PianoDeiContiTest, AnswersThatAreNothingOrNoNumberFallBack) {
    for (const char* risposta : {"", " ", "0", "00", "000", "0000", "0,00", "abc", "3 x", "'; drop table conti --"}) {
        SCOPED_TRACE(risposta);
        support::DialogScript script;
        aspettaDomande(script, risposta, risposta, risposta);
        DefinisciPianoDeiConti(0);
        EXPECT_EQ(lunghezze(), (Riga{"-1", "3", "2", "3", "0"}));
    }
}

TEST_F(PianoDeiContiTest, AnAnswerThatIsNoNumberReachesNoStatement) {
    const auto definendo = [&](const std::string& risposta) {
        support::DialogScript script;
        aspettaDomande(script, risposta, risposta, risposta);
        const support::StatementRecorder recorder;
        DefinisciPianoDeiConti(0);
        return recorder.texts();
    };
    const auto attese = definendo("");
    const auto altre = posto.rows(support::kCompany, "select * from TabellaUilityConti where id > 5 order by id");
    for (const std::string& risposta : support::attacks()) {
        if (risposta == "-1" || risposta == "1e308") { // the only numbers among them
            continue;
        }
        EXPECT_EQ(definendo(risposta), attese) << testing::PrintToString(risposta.substr(0, 60));
        EXPECT_EQ(lunghezze(), (Riga{"-1", "3", "2", "3", "0"}));
    }
    EXPECT_EQ(posto.rows(support::kCompany, "select * from TabellaUilityConti where id > 5 order by id"), altre);
}

TEST_F(PianoDeiContiTest, ANumberBeyondAnyColumnIsTold) {
    for (const std::string& risposta : {std::string("1e308"), std::string("-1e308"), std::string(300, '9')}) {
        support::DialogScript script;
        script.expectQuestion("Utilizzi il Piano dei Conti Standard?", false);
        script.expectInput("Lunghezza del campo Mastro ", "Lunghezza", "3", risposta);
        const auto prima = lunghezze();
        EXPECT_THROW(DefinisciPianoDeiConti(0), ado::Error) << risposta;
        EXPECT_EQ(lunghezze()[1], prima[1]);
    }
}

TEST_F(PianoDeiContiTest, DigitsBeyondAnyNumberFallBack) {
    support::DialogScript script;
    aspettaDomande(script, std::string(400, '9'), "1e400", "-1e999999999999");
    DefinisciPianoDeiConti(0);
    EXPECT_EQ(lunghezze(), (Riga{"-1", "3", "2", "3", "0"}));
}

TEST_F(PianoDeiContiTest, ANumberGoesThroughWithoutACheckOfItsRange) {
    support::DialogScript script;
    aspettaDomande(script, "-2", "2,5", "100");
    DefinisciPianoDeiConti(0);
    EXPECT_EQ(lunghezze(), (Riga{"-1", "-2", "2", "100", "0"}));
}

TEST_F(PianoDeiContiTest, ANumberBeyondItsColumnIsRefusedAndTheNextDefinitionGoesThrough) {
    support::DialogScript script;
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", false);
    script.expectInput("Lunghezza del campo Mastro ", "Lunghezza", "3", "4");
    script.expectInput("Lunghezza del campo Conto ", "Lunghezza", "2", "99999999999");
    try {
        DefinisciPianoDeiConti(0);
        ADD_FAILURE() << "a number beyond the column was stored";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.description(), "Multiple-step operation generated errors. Check each status value.");
    }
    EXPECT_EQ(lunghezze(), (Riga{"-1", "4", "2", "4", "0"})) << "the rows ahead of it are written, the others aren't";
    aspettaDomande(script, "5", "5", "5");
    DefinisciPianoDeiConti(0);
    EXPECT_EQ(lunghezze(), (Riga{"-1", "5", "5", "5", "0"}));
}

TEST_F(PianoDeiContiTest, TheAnswerStaysInTheWorkText) {
    support::DialogScript script;
    aspettaDomande(script, "7", "8", "abc");
    DefinisciPianoDeiConti(0);
    EXPECT_EQ(Appoggio, "abc");
}

TEST_F(PianoDeiContiTest, EverySharedRecordsetIsClosedAtTheEnd) {
    RsCondivisi(2).Open("select * from datiGenerali", DbAzienda);
    support::DialogScript script;
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", true);
    DefinisciPianoDeiConti(0);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(PianoDeiContiTest, ADatabaseErrorIsNotTrapped) {
    support::DialogScript script;
    script.expectQuestion("Utilizzi il Piano dei Conti Standard?", true);
    DbAzienda.Close();
    EXPECT_THROW(DefinisciPianoDeiConti(0), ado::Error);
}

} // namespace
} // namespace vabo
