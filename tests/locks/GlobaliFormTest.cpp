// What the two locks leave in the globals: the statement, the bar, the shared recordsets.

#include "locks/BlocchiForm.h"
#include "support/DialogScript.h"
#include "support/SomebodyElse.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr int kAltrui = 20; ///< a shared recordset that the locks have no use for

void apriAltrui() {
    RsCondivisi(kAltrui).Open("select * from progetti", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
}

void aspettaResa() {
    EXPECT_FALSE(RsCondivisi(kAltrui).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
}

class GlobalsOfTheProject : public BlocchiForm {
protected:
    GlobalsOfTheProject() : BlocchiForm("Scegli_progetto_4", "iddateend") {}
    support::DialogScript script; ///< no box
};

TEST_F(GlobalsOfTheProject, HoldTheStatementThatRunsAndHowFarTheRowsHaveCome) {
    metti({{.id = 1, .numero = 1, .seziva = 1},
           {.id = 2, .numero = 2, .seziva = 1},
           {.id = 3, .numero = 3, .seziva = 1},
           {.id = 4, .numero = 4, .seziva = 1},
           {.id = 5, .numero = 5, .seziva = 1}});
    apri();
    prendi(kProgetto);
    digita("31/03/2024");
    ValoreProgresso = 12; // of a run before
    int scritte = 0;
    std::vector<double> valori, passi;
    const support::SomebodyElse chiunque([&](const std::string& inviata) {
        if (inviata.starts_with("update") || inviata.starts_with("select * from partitadoppia")) {
            EXPECT_EQ(SqlCorrente, inviata);
            ++scritte;
        }
        if (inviata.starts_with("update progetti")) {
            EXPECT_EQ(ValoreProgresso, 0);
        }
        if (inviata.starts_with("update partitadoppia set definito = -1,")) {
            EXPECT_EQ(barra().Value(), ValoreProgresso);
            valori.push_back(ValoreProgresso);
            passi.push_back(PassoProgresso);
        }
    });
    premi("Command1");
    EXPECT_EQ(scritte, 3 + 2 + 5);
    EXPECT_THAT(valori, ElementsAre(0, 20, 40, 60, 80));
    EXPECT_THAT(passi, Each(20));
}

TEST_F(GlobalsOfTheProject, HoldTheStepOfTheLastRowsThatWereThere) {
    apri();
    PassoProgresso = 12; // of a run before
    for (const bool conRiga : {false, true}) {
        metti(conRiga ? libro::Libro{{.id = 1, .seziva = 1}} : libro::Libro{});
        prendi(kProgetto);
        digita("31/03/2024");
        premi("Command1");
        EXPECT_EQ(PassoProgresso, conRiga ? 100 : 12);
    }
}

TEST_F(GlobalsOfTheProject, ARunReleasesEverySharedRecordsetAndTheLocalConnection) {
    metti({});
    apri();
    prendi(kProgetto);
    digita("31/03/2024");
    apriAltrui();
    premi("Command1");
    aspettaVuota();
    aspettaResa();
}

TEST_F(GlobalsOfTheProject, AProjectOfKeyZeroIsNone) {
    scrivi("set identity_insert progetti on; insert into progetti (ID, titolobreve, iddate) values (0, 'Nessuno', "
           "'20240101'); set identity_insert progetti off");
    apri();
    const support::StatementRecorder recorder;
    prendi(0);
    EXPECT_EQ(testo(), "");
    EXPECT_EQ(fuoco(), "Combo1");
    digita("31/03/2024");
    premi("Command1");
    EXPECT_TRUE(recorder.texts().empty());
}

class GlobalsOfTheBranch : public BlocchiForm {
protected:
    GlobalsOfTheBranch() : BlocchiForm("Scegli_sede_Pd", "DataInizio") {}
    support::DialogScript script;
};

TEST_F(GlobalsOfTheBranch, ReadingItsDateReleasesEverySharedRecordsetAndTheLocalConnection) {
    apri();
    for (const int sede : {kSede, 1}) { // with a date and without
        apriAltrui();
        prendi(sede);
        aspettaResa();
    }
}

TEST_F(GlobalsOfTheBranch, ARunReleasesEverySharedRecordsetAndTheLocalConnection) {
    metti({});
    apri();
    prendi(kSede);
    apriAltrui();
    script.expectQuestion("Blocco la contabilità sino alla data 31/03/2024 ?", true);
    premi("Command1");
    aspettaVuota();
    aspettaResa();
}

TEST_F(GlobalsOfTheBranch, ABranchOfKeyZeroIsNone) {
    scrivi("set identity_insert ElencoSedi on; insert into ElencoSedi (IdSede, città) values (0, 'Nessuna'); set "
           "identity_insert ElencoSedi off");
    apri();
    const support::StatementRecorder recorder;
    prendi(0);
    EXPECT_EQ(fuoco(), "DataInizio");
    digita("31/03/2024");
    premi("Command1"); // asks nothing
    EXPECT_TRUE(recorder.texts().empty());
}

} // namespace
} // namespace vabo
