// What hostile texts in the dates of both locks do: the forms stay usable, and nothing but the rows of the lock
// changes.

#include "kit/IsEmptyValue.h"
#include "locks/ProgettoForm.h"
#include "locks/SedeForm.h"
#include "support/Attacks.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;
using testing::AnyOf;
using testing::Each;

/// Every attack, some of them also between a day with its month and a year, as the check of typed dates looks at
/// these alone.
std::vector<std::string> testiOstili() {
    const std::vector<std::string> attacchi = support::attacks();
    std::vector<std::string> tutti = attacchi;
    for (std::size_t i = 0; i < attacchi.size(); i += 3) {
        if (attacchi[i].find_first_of("';%*(\"") != std::string::npos) {
            tutti.push_back("0103" + attacchi[i] + "04");
        }
    }
    return tutti;
}

template<typename Base>
class ConAttacchi : public Base {
protected:
    /// Puts a text into the date as a user does: its beginning is typed, the rest is pasted.
    void incolla(const std::string& testo) {
        constexpr std::size_t kBattute = 10;
        this->data().setFocus();
        this->data().selectAll();
        this->gui.press(Qt::Key_Delete);
        const QString tutto = QString::fromStdString(testo);
        this->gui.type(tutto.left(kBattute).toStdString());
        this->data().insert(tutto.mid(kBattute));
    }
    /// Everything that a second statement could have changed.
    std::vector<std::string> resto() const {
        auto tutto = this->lettura("select * from AbilitazioneAccessi order by idautonumber");
        for (const char* tabella : {"select * from progetti order by ID", "select * from ElencoSedi order by IdSede",
                                    "select * from contatorepd", "select * from TabellaContiUtili order by ID"}) {
            const auto righe = this->lettura(tabella);
            tutto.insert(tutto.end(), righe.begin(), righe.end());
        }
        return tutto;
    }
    static Libro righe() {
        return {{.id = 1, .transazione = alle("2023-05-02"), .report = alle("2023-05-02"), .definito = -1},
                {.id = 2, .numero = 2, .transazione = alle("2024-05-02"), .report = alle("2024-05-02")},
                {.id = 3,
                 .numero = 3,
                 .transazione = alle("2024-05-02"),
                 .report = {},
                 .progetto = 10000004,
                 .competenza = 5,
                 .definito = -1}};
    }
};

using ProjectAttack = ConAttacchi<ProjectForm>;
using BranchAttack = ConAttacchi<BranchForm>;

TEST_F(ProjectAttack, NoTextIsADateThatTheEnterAndTheRunTakeForOne) {
    metti(righe());
    apri();
    senzaGruppi();
    const auto prima = resto();
    const auto libroPrima = letto();
    int corse = 0;
    for (const std::string& testo : testiOstili()) {
        SCOPED_TRACE(testo.substr(0, 60));
        prendi(kProgetto);
        incolla(testo);
        gui.press(Qt::Key_Return);
        if (fuoco() == "Command1") {
            const support::StatementRecorder recorder;
            gui.press(Qt::Key_Return);
            EXPECT_TRUE(recorder.holding("set iddate").empty()) << "no date, no statement";
            ++corse;
            aspettaVuota();
        } else {
            EXPECT_EQ(fuoco(), "iddateend");
        }
    }
    EXPECT_GT(corse, 20);
    EXPECT_EQ(resto(), prima);
    EXPECT_EQ(letto(), libroPrima);
    prendi(kProgetto);
    digita("30/04/2024");
    premi("Command1");
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30")) << "the form is as good as new";
}

TEST_F(ProjectAttack, ARunByAClickStoresNoneOfThem) {
    metti(righe());
    apri();
    const auto prima = resto();
    const auto libroPrima = letto();
    const std::vector<std::string> tutti = testiOstili();
    for (std::size_t i = 0; i < tutti.size(); i += 12) {
        SCOPED_TRACE(tutti[i].substr(0, 60));
        prendi(kProgetto);
        incolla(tutti[i]);
        const support::StatementRecorder recorder;
        premi("Command1");
        EXPECT_TRUE(recorder.holding("set iddate").empty());
        EXPECT_TRUE(recorder.holding("datareport <").empty()) << "nothing is closed up to a date that is none";
    }
    EXPECT_EQ(resto(), prima);
    EXPECT_EQ(letto(), libroPrima);
}

TEST_F(BranchAttack, EnterTellsThatNoneIsADateAndTheQuestionShowsItAndYesRunsNothing) {
    metti(righe());
    apri();
    prendi(kSede);
    const auto prima = resto();
    const auto libroPrima = letto();
    const support::StatementRecorder recorder;
    for (const std::string& attacco : testiOstili()) {
        SCOPED_TRACE(attacco.substr(0, 60));
        incolla(attacco);
        script.expectMessage("Type mismatch");
        gui.press(Qt::Key_Return);
        ASSERT_TRUE(script.allShown());
        EXPECT_EQ(fuoco(), "DataInizio");
        const std::string scritto = testo();
        const std::size_t scatole = script.shown().size();
        if (!IsEmptyValue(scritto)) {
            script.expectQuestion(domanda(scritto), true);
        }
        premi("Command1");
        EXPECT_EQ(script.shown().size() - scatole, IsEmptyValue(scritto) ? 0U : 1U);
        ASSERT_TRUE(script.allShown());
        EXPECT_EQ(elenco().ItemData(), kSede) << "the branch stays chosen";
    }
    EXPECT_THAT(recorder.texts(),
                Each(AnyOf("SELECT  iddatainvio From  elencosedi   Where  idsede = 4", "Select * from contatorepd")));
    EXPECT_EQ(resto(), prima);
    EXPECT_EQ(letto(), libroPrima);
    digita("30/04/2024");
    script.expectQuestion(domanda("30/04/2024"), true);
    premi("Command1");
    EXPECT_EQ(dataDellaSede(), alle("2024-04-30"));
}

} // namespace
} // namespace vabo
