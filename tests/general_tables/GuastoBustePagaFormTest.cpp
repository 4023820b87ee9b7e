// The form of the accounts of pay slips while its server fails: the load and the opening of the row tell it, everything
// else skips the failing statements.

#include "BustePagaFixture.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"

#include <gmock/gmock.h>

#include <functional>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

class GuastoBustePaga : public BustePagaForm {
protected:
    GuastoBustePaga() { riprendiAzienda(); }
    /// Takes up the company again with the present pointer files.
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    /// The boxes shown while `lavoro` runs. The form must be visible and enabled afterwards.
    Testi scatoleDurante(const std::function<void()>& lavoro) const {
        Testi testi;
        {
            const support::HeardBoxes scatole;
            lavoro();
            testi = scatole.texts;
        }
        EXPECT_TRUE(gui.isVisible(kForm));
        EXPECT_TRUE(gui.form(kForm).isEnabled());
        return testi;
    }
    /// The same, and the server ends ahead of the statement with that number, counted from 1.
    Testi conLaFineAlla(int fatale, const std::function<void()>& lavoro) {
        int inviate = 0;
        ado::setStatementRecorder([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.fail(Failure::Ended);
            }
        });
        Testi dette = scatoleDurante(lavoro);
        ado::setStatementRecorder({});
        EXPECT_GE(inviate, fatale);
        guasto.repair();
        return dette;
    }
    static int quante(const std::function<void()>& lavoro) {
        const support::StatementRecorder recorder;
        lavoro();
        return static_cast<int>(recorder.texts().size());
    }

    FailingServer guasto{posto};
};

class GuastoDelleBusteAlCaricamento : public GuastoBustePaga, public testing::WithParamInterface<Failure> {};

TEST_P(GuastoDelleBusteAlCaricamento, IsToldOnceAndTheFormComesUpEmpty) {
    guasto.fail(GetParam());
    EXPECT_EQ(scatoleDurante([this] { apri(); }), Testi{kOutOfReach});
    EXPECT_EQ(conti(), Testi(kSelettori));
    EXPECT_EQ(pagina.combo(combo(0)).count(), 0);
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    guasto.repair();
    riapri();
    EXPECT_EQ(pagina.rows("DataGrid1"), 4);
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoDelleBusteAlCaricamento, testing::Values(Failure::Ended, Failure::Frozen),
                         kNameOfFailure);

constexpr int kStatementsOfLists = 10;

TEST_F(GuastoBustePaga, AtAListOfTheLoadItIsToldAndEndsItAndAtANameThatNameIsMissing) {
    const int tutte = quante([this] { apri(); });
    ASSERT_EQ(tutte, kStatementsOfLists + kSelettori);
    const Testi nomi = conti();
    const auto prima = this->tutte();
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        const bool lista = fatale <= kStatementsOfLists;
        EXPECT_EQ(conLaFineAlla(fatale, [this] { riapri(); }).size(), lista ? 1U : 0U);
        for (int i = 0; i < kSelettori; ++i) {
            EXPECT_EQ(pagina.combo(combo(i)).count() > 0, i + 1 < fatale) << i;
            EXPECT_EQ(conto(i), i + 1 + kStatementsOfLists < fatale ? nomi.at(static_cast<std::size_t>(i)) : "") << i;
        }
        EXPECT_EQ(pagina.rows("DataGrid1"), lista ? 0 : 4);
        riprendiAzienda(); // the program may not have noticed the loss yet
    }
    EXPECT_EQ(this->tutte(), prima);
}

TEST_F(GuastoBustePaga, AtANameOfARowTheNamesFromThereOnAreMissingAndTheAccountsAreStored) {
    apri();
    scegli(5);
    const Testi nomi = conti();
    for (int fatale = 1; fatale <= kSelettori; ++fatale) {
        SCOPED_TRACE(fatale);
        scegli(4);
        EXPECT_EQ(conLaFineAlla(fatale, [this] { scegli(5); }), Testi{});
        for (int i = 0; i < kSelettori; ++i) {
            EXPECT_EQ(conto(i), i + 1 < fatale ? nomi.at(static_cast<std::size_t>(i)) : "") << i;
        }
        EXPECT_EQ(pagina.text("Titolo"), "Collaboratori");
        riprendiAzienda();
    }
    salva();
    EXPECT_EQ(righe(5), (Testi{"1081", "1082", "1083", "1090", "1091", "1186", "45", "1187", "45", "0", "0", "0", "0",
                               "0", "0"}));
}

constexpr int kUpdateOfASave = 6;
constexpr int kStatementsOfASave = 8;

TEST_F(GuastoBustePaga, AtTheRowOfASaveItIsToldAndAtEveryOtherStatementTheRowIsOldOrNewInSilence) {
    apri();
    prendi(0, 1099);
    ASSERT_EQ(quante([this] { salva(); }), kStatementsOfASave);
    esegui("update TipoAnagraficaCPartite set IdIrpef = 1080, IdCIrapE = 1189 where id = 4");
    const Testi vecchia = righe(4);
    const Testi nuova = {"1099", "1082", "1083", "1089", "1091", "1185", "45", "1187",
                         "45",   "0",    "0",    "0",    "0",    "0",    "0"};
    const auto altre = [this] {
        return posto.rows(support::kCompany, "select * from TipoAnagraficaCPartite where id > 4");
    };
    const auto prima = altre();
    for (int fatale = 1; fatale <= kStatementsOfASave; ++fatale) {
        SCOPED_TRACE(fatale);
        EXPECT_EQ(conLaFineAlla(fatale, [this] { salva(); }), fatale == 1 ? Testi{kLinkFailure} : Testi{});
        EXPECT_EQ(righe(4), fatale <= kUpdateOfASave ? vecchia : nuova);
        EXPECT_EQ(pagina.rows("DataGrid1"), fatale == 1 ? 4 : 0);
        EXPECT_EQ(conto(0), "203.05.0001 Debiti v/partner");
        riprendiAzienda();
    }
    EXPECT_EQ(altre(), prima);
    salva();
    EXPECT_EQ(pagina.rows("DataGrid1"), 4) << "the next save brings the rows back";
}

TEST_F(GuastoBustePaga, InTheMiddleOfWhateverAnswerOfASaveTheWireIsCutTheRowIsOldOrNew) {
    constexpr long kProve = 40;
    const auto filo = guasto.wire();
    riprendiAzienda();
    apri();
    prendi(0, 1099);
    const Testi vecchia = righe(4);
    filo->mend();
    salva();
    const long tutti = filo->passed();
    const Testi nuova = righe(4);
    ASSERT_NE(vecchia, nuova);
    int vecchie = 0;
    for (long prova = 0; prova < kProve; ++prova) {
        SCOPED_TRACE(prova);
        esegui("update TipoAnagraficaCPartite set IdIrpef = 1080, IdCAltriFondiE = 1188, IdGAltriFondiE = 45, "
               "IdAltriFondiP = 1092, IdCIrapE = 1189, IdGIrapE = 45, IdIrapP = 1084 where id = 4");
        filo->cutAfter(tutti * prova / kProve);
        EXPECT_LE(scatoleDurante([this] { salva(); }).size(), 1U);
        filo->mend();
        riprendiAzienda();
        EXPECT_THAT(righe(4), testing::AnyOf(vecchia, nuova));
        vecchie += righe(4) == vecchia ? 1 : 0;
    }
    EXPECT_GT(vecchie, 0);
    EXPECT_LT(vecchie, kProve);
    salva();
    EXPECT_EQ(righe(4), nuova);
}

TEST_F(GuastoBustePaga, AServerThatDoesNotAnswerIsToldBeforeASave) {
    apri();
    const auto prima = tutte();
    guasto.fail(Failure::Frozen);
    EXPECT_EQ(scatoleDurante([this] { salva(); }), Testi{kTimedOut});
    guasto.repair();
    EXPECT_EQ(tutte(), prima);
    EXPECT_EQ(pagina.rows("DataGrid1"), 4);
}

TEST_F(GuastoBustePaga, ItClosesWithoutItsServer) {
    apri();
    guasto.fail(Failure::Frozen);
    gui.click(kForm, "Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded(kForm));
}

} // namespace
} // namespace vabo
