// The general tables console while its server fails: some stores skip the failing statements, others show the error.

#include "MorlanFixture.h"
#include "general_tables/Opzioni.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"

#include <gmock/gmock.h>

#include <map>
#include <ostream>

namespace vabo {
namespace {

constexpr const char* kTabelle[] = {"datiGenerali",           "TabellaUilityConti",   "TabellaContiUtili",
                                    "BusteTabellaContiUtili", "ivaTabellaContiUtili", "IvaAliquotaStandard",
                                    "tipoanagrafica"};

constexpr const char* kGriglie[] = {"DataGrid2", "DataGrid4", "DataGrid11", "DataGridPersonale"};

class GuastoMorlan : public MorlanForm {
protected:
    GuastoMorlan() { riprendiAzienda(); }
    /// All tables that the console writes.
    std::vector<Riga> tutto() const {
        std::vector<Riga> righe;
        for (const std::string tabella : kTabelle) {
            for (const Riga& riga : posto.rows(support::kCompany, "select * from " + tabella + " order by 1")) {
                righe.push_back(riga);
            }
        }
        return righe;
    }
    void premi(const char* bottone) { gui.click("Avvio_Morlan", bottone); }
    /// The boxes shown while `lavoro` runs. The console must be visible and enabled afterwards.
    std::vector<std::string> scatoleDurante(const std::function<void()>& lavoro) const {
        std::vector<std::string> testi;
        {
            const support::HeardBoxes scatole;
            lavoro();
            testi = scatole.texts;
        }
        EXPECT_TRUE(gui.isVisible("Avvio_Morlan"));
        EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        return testi;
    }
    /// How many rows each list and grid shows.
    std::map<std::string, int> liste() const {
        std::map<std::string, int> quante;
        for (const char* nome : {"DCBItem1", "DCBitem2", "DCBItems3", "DCBitems4", "DCBitem5"}) {
            quante[nome] = combo(nome).count();
        }
        for (const char* nome : kGriglie) {
            quante[nome] = righe(nome);
        }
        return quante;
    }
    /// Takes up the company again with the present pointer files.
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }

    FailingServer guasto{posto};
};

using Testi = std::vector<std::string>;

class GuastoAlCaricamento : public GuastoMorlan, public testing::WithParamInterface<Failure> {};

TEST_P(GuastoAlCaricamento, IsToldOnceAndTheConsoleComesUpEmpty) {
    guasto.fail(GetParam());
    EXPECT_EQ(scatoleDurante([this] { apri(); }), Testi{GetParam() == Failure::Frozen ? kTimedOut : kLinkFailure});
    EXPECT_EQ(spuntate(), "");
    EXPECT_EQ(combo("DCBItem1").count(), 0);
    for (const char* nome : kGriglie) {
        EXPECT_EQ(righe(nome), 0) << nome;
    }
    guasto.repair();
    riapri();
    EXPECT_GT(righe("DataGrid2"), 0);
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoAlCaricamento, testing::Values(Failure::Ended, Failure::Frozen), kNameOfFailure);

// A check box that the load sets runs its own handler, which may show an error of its own.
TEST_F(GuastoMorlan, AtWhateverStatementOfTheLoadTheServerEndsTheLoadAndOneBoxAtMostTellIt) {
    int tutte = 0;
    ado::setStatementRecorder([&](const std::string& /*testo*/) { ++tutte; });
    apri();
    ado::setStatementRecorder({});
    ASSERT_GT(tutte, 20);
    const auto prima = tutto();
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        int inviate = 0;
        ado::setStatementRecorder([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.fail(Failure::Ended);
            }
        });
        const Testi dette = scatoleDurante([this] { riapri(); });
        ado::setStatementRecorder({});
        ASSERT_GE(inviate, fatale);
        EXPECT_THAT(dette, testing::AnyOf(Testi{}, Testi{kLinkFailure}, Testi{kLinkFailure, kOutOfReach}));
        guasto.repair();
        riprendiAzienda(); // the program may not have noticed the loss yet
    }
    EXPECT_EQ(tutto(), prima);
    riapri();
    EXPECT_GT(righe("DataGrid2"), 0);
}

TEST_F(GuastoMorlan, InTheMiddleOfWhateverAnswerOfTheLoadTheWireIsCutAListIsWholeOrEmpty) {
    constexpr long kProve = 60;
    const auto filo = guasto.wire();
    riprendiAzienda();
    filo->mend();
    apri();
    const long tutti = filo->passed();
    const std::map<std::string, int> intere = liste();
    EXPECT_GT(intere.at("DCBItem1"), 0);
    const auto prima = tutto();
    for (long prova = 0; prova < kProve; ++prova) {
        SCOPED_TRACE(prova);
        filo->cutAfter(tutti * prova / kProve);
        EXPECT_LE(scatoleDurante([this] { riapri(); }).size(), 2U);
        for (const auto& [nome, quante] : liste()) {
            EXPECT_THAT(quante, testing::AnyOf(0, intere.at(nome))) << nome;
        }
        filo->mend();
    }
    EXPECT_EQ(tutto(), prima);
    riapri();
    EXPECT_EQ(liste(), intere);
}

TEST_F(GuastoMorlan, ABoxTellsThatItsRowWasNotWrittenOrKeepsSilentByItsOwnRule) {
    apri();
    const auto prima = tutto();
    guasto.fail(Failure::Ended);
    const char* parole = kLinkFailure;
    for (const Opzione& opzione : kOpzioni) {
        const std::string nome(opzione.casella);
        const Testi dette = scatoleDurante([&] { controllo<controls::CheckBox>(nome).setValue(1 - casella(nome)); });
        EXPECT_EQ(dette, opzione.ignoraErrori ? Testi{} : Testi{parole}) << nome;
        parole = kOutOfReach;
    }
    guasto.repair();
    EXPECT_EQ(tutto(), prima);
}

TEST_F(GuastoMorlan, TheChartsDefinitionTellsIt) {
    apri();
    guasto.fail(Failure::Ended);
    EXPECT_EQ(scatoleDurante([&] { premi("Command31"); }),
              (Testi{"Utilizzi il Piano dei Conti Standard?", kLinkFailure}));
}

struct Salvataggio {
    std::string nome;
    int scheda;
    const char* griglia;
    const char* riga;
    const char* selettore;
    Testi scatole; ///< shown for the failure
};
std::ostream& operator<<(std::ostream& out, const Salvataggio& uno) {
    return out << uno.nome;
}

class GuastoNelSalvataggio : public GuastoMorlan, public testing::WithParamInterface<Salvataggio> {};

TEST_P(GuastoNelSalvataggio, LeavesTheRowsAsTheyAreAndTheConsoleUsable) {
    apri();
    const auto prima = tutto();
    scheda(GetParam().scheda);
    scegli(GetParam().griglia, GetParam().riga);
    ASSERT_EQ(fuoco(), GetParam().selettore);
    guasto.fail(Failure::Ended);
    EXPECT_EQ(scatoleDurante([&] { gui.press(Qt::Key_Return); }), GetParam().scatole);
    guasto.repair();
    EXPECT_EQ(tutto(), prima);
    riapri();
    scheda(GetParam().scheda);
    scegli(GetParam().griglia, GetParam().riga);
    EXPECT_EQ(scatoleDurante([&] { gui.press(Qt::Key_Return); }), Testi{});
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoNelSalvataggio,
                         testing::Values(Salvataggio{"ContiUtili", 1, "DataGrid2", "4", "DCBItem1", {}},
                                         Salvataggio{"AltriConti", 2, "DataGrid4", "2", "DCBitem2", {kLinkFailure}},
                                         Salvataggio{"Fatture", 4, "DataGrid11", "3", "DCBItems3", {kLinkFailure}},
                                         Salvataggio{"Personale", 5, "DataGridPersonale", "3", "DCBitems4", {}}),
                         [](const auto& info) { return info.param.nome; });

// Lists and grids open connections of their own, so they work again as soon as their server does.
TEST_F(GuastoMorlan, TheTurnOfTheOtherAccountsTellsItAndTheNextOneShowsItsTableAgain) {
    apri();
    scheda(2);
    guasto.fail(Failure::Ended);
    EXPECT_EQ(scatoleDurante([&] { premi("Command18"); }), Testi{kOutOfReach});
    EXPECT_EQ(righe("DataGrid4"), 0);
    guasto.repair();
    EXPECT_EQ(scatoleDurante([&] { premi("Command18"); }), Testi{});
    EXPECT_GT(righe("DataGrid4"), 0);
}

TEST_F(GuastoMorlan, ATreatmentPickedIsToldAndNotStored) {
    apri();
    scheda(4);
    const auto prima = tutto();
    const std::string altra = valore("select Descrizione from IvaTrattamento where idautonumber = 3");
    guasto.fail(Failure::Ended);
    EXPECT_EQ(scatoleDurante([&] { prendi("DCBitem5", altra); }), Testi{"Type mismatch"}) << "of a rate not read";
    guasto.repair();
    EXPECT_EQ(tutto(), prima);
}

TEST_F(GuastoMorlan, ItClosesWithoutItsServer) {
    apri();
    guasto.fail(Failure::Frozen);
    premi("Command13");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("Avvio_Morlan"));
}

} // namespace
} // namespace vabo
