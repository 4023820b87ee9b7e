// Both forms while their server ends, falls silent, or is cut off in the middle of an answer.

#include "geography/GrigliaForm.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"
#include "support/SomebodyElse.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>

namespace vabo {
namespace {

using testing::AnyOf;

/// A form, and a row that is entered into it.
struct Lavoro {
    const char* form;
    const char* nome; ///< on the stack
    const char* tabella;
    const char* colonna;
    Riga valori; ///< ends with the field whose leaving stores the row
    /// The boxes of a load, by the statement ahead of which the server ends.
    std::vector<Testi> scatole;
    int istruzioni; ///< of a save
};

void PrintTo(const Lavoro& lavoro, std::ostream* out) {
    *out << lavoro.form;
}

constexpr const char* kNonImpostato = "Object variable or With block variable not set";

const Lavoro kStati = {"stati",
                       "stati",
                       "stati",
                       "DescStato",
                       {"Repubblica del Kosovo", "Illiria", "17022008", "", "EUR"},
                       {{kLinkFailure}, {kLinkFailure}},
                       6};
// Behind a load that ended, the timer finds no list of states, or one that it can't read again.
const Lavoro kComuni = {"frmComuni",
                        "frmcomuni",
                        "Comuni",
                        "DES_COMUNE",
                        {"Palestrina", "RM", "00036", "Italia"},
                        {{kLinkFailure, kNonImpostato}, {kLinkFailure, kLinkFailure}, {kLinkFailure}, {kLinkFailure}},
                        4};

class GuastoGriglia : public GrigliaForm, public testing::WithParamInterface<Lavoro> {
protected:
    GuastoGriglia() : GrigliaForm(GetParam().form, GetParam().nome) { riprendiAzienda(); }

    /// Takes up the company again with the present pointer files.
    static void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    /// Opens the form, the reading behind it included.
    void carica() {
        apri();
        constexpr int kPiuDelTimer = 10;
        QTest::qWait(kPiuDelTimer);
    }
    void riapri() {
        gui.forms().unload(form);
        support::Gui::handleEvents();
        carica();
    }
    /// Enters the row up to its last field, which is still to be left.
    void scrivi() const {
        vaiA(GetParam().colonna);
        for (std::size_t i = 0; i + 1 < GetParam().valori.size(); ++i) {
            campo(GetParam().valori[i]);
        }
        gui.type(GetParam().valori.back());
    }
    void registra() const {
        support::inOneEvent([this] { invio(); });
    }
    /// The server fails ahead of the statement of that number; 0 for none. Tells how many were sent.
    int conGuasto(int fatale, const std::function<void()>& lavoro, Failure come = Failure::Ended) {
        int inviate = 0;
        const support::SomebodyElse altro([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.fail(come);
            }
        });
        lavoro();
        return inviate;
    }
    /// All rows of the table but for their keys.
    std::vector<Riga> tutta() const {
        auto righe = posto.rows(support::kCompany, std::string("select * from ") + GetParam().tabella);
        for (Riga& riga : righe) {
            riga.erase(riga.begin());
        }
        std::ranges::sort(righe);
        return righe;
    }
    int nuove() const {
        return quanti(std::string(GetParam().tabella) + " where " + GetParam().colonna + " = '" +
                      GetParam().valori.front() + "'");
    }
    void togli() const {
        esegui(std::string("delete from ") + GetParam().tabella + " where " + GetParam().colonna + " = '" +
               GetParam().valori.front() + "'");
    }
    /// A connection that the driver kept for more than a second is asked first, and then a login fails: the same.
    static Testi perdute(Testi testi) {
        std::ranges::replace(testi, std::string(kOutOfReach), std::string(kLinkFailure));
        return testi;
    }
    void verificaInOrdine() const {
        EXPECT_TRUE(gui.isVisible(form));
        EXPECT_TRUE(gui.form(form).isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }

    FailingServer guasto{posto};
};

TEST_P(GuastoGriglia, AtWhateverStatementOfTheLoadTheServerEndsItIsToldAndTheFormOpensAgain) {
    const int quante = conGuasto(0, [this] { carica(); });
    ASSERT_EQ(static_cast<std::size_t>(quante), GetParam().scatole.size());
    const int righe = pagina.rows("DataGrid1");
    for (int fatale = 1; fatale <= quante; ++fatale) {
        SCOPED_TRACE(fatale);
        {
            const support::HeardBoxes scatole;
            conGuasto(fatale, [this] { riapri(); });
            EXPECT_EQ(perdute(scatole.texts), GetParam().scatole.at(static_cast<std::size_t>(fatale - 1)));
        }
        verificaInOrdine();
        guasto.repair();
        riprendiAzienda();
        riapri();
        EXPECT_EQ(pagina.rows("DataGrid1"), righe);
    }
}

TEST_P(GuastoGriglia, AtWhateverStatementOfASaveTheServerEndsTheRowIsWholeOrMissing) {
    const auto prima = tutta();
    carica();
    scrivi();
    const int quante = conGuasto(0, [this] { registra(); });
    ASSERT_EQ(quante, GetParam().istruzioni);
    const auto dopo = tutta();
    ASSERT_EQ(nuove(), 1);
    int mancate = 0;
    for (int fatale = 1; fatale <= quante; ++fatale) {
        SCOPED_TRACE(fatale);
        togli();
        riapri();
        scrivi();
        {
            const support::HeardBoxes scatole;
            conGuasto(fatale, [this] { registra(); });
            EXPECT_EQ(scatole.texts, fatale == 1 ? Testi{kLinkFailure} : Testi{});
        }
        verificaInOrdine();
        EXPECT_EQ(testo(GetParam().colonna) == GetParam().valori.front(), fatale == 1) << "told, the fields stay";
        guasto.repair();
        riprendiAzienda();
        EXPECT_THAT(tutta(), AnyOf(prima, dopo));
        mancate += 1 - nuove();
        if (nuove() == 0) {
            riapri();
            scrivi();
            registra();
            EXPECT_EQ(tutta(), dopo) << "a second time";
        }
    }
    EXPECT_EQ(mancate, 2) << "once in silence";
}

TEST_P(GuastoGriglia, AServerThatFallsSilentInASaveIsWaitedForOnce) {
    constexpr qint64 kUnAttesa = 10'000; // one second, and as long again for the answer to its cancel
    carica();
    for (int fatale = 1; fatale <= GetParam().istruzioni; ++fatale) {
        SCOPED_TRACE(fatale);
        togli();
        scrivi();
        QElapsedTimer tempo;
        {
            const support::HeardBoxes scatole;
            tempo.start();
            conGuasto(
                fatale, [this] { registra(); }, Failure::Frozen);
            EXPECT_EQ(scatole.texts, fatale == 1 ? Testi{kTimedOut} : Testi{});
        }
        EXPECT_LT(tempo.elapsed(), kUnAttesa);
        verificaInOrdine();
        EXPECT_EQ(testo(GetParam().colonna) == GetParam().valori.front(), fatale == 1) << "told, the fields stay";
        guasto.repair();
        riprendiAzienda();
        riapri();
        if (fatale != 2) { // that one writes the row: the server may still take it when it goes on
            EXPECT_EQ(nuove(), fatale > 2 ? 1 : 0);
        }
    }
}

// How far into the answers, in parts of all their bytes.
TEST_P(GuastoGriglia, InTheMiddleOfWhateverAnswerOfTheLoadTheWireIsCutAListIsWholeOrEmpty) {
    constexpr long kProve = 24;
    const auto filo = guasto.wire();
    riprendiAzienda();
    filo->mend();
    carica();
    const long tutti = filo->passed();
    const int righe = pagina.rows("DataGrid1");
    const int voci = pagina.combo("DataCombo1").count();
    const auto prima = tutta();
    for (long prova = 0; prova < kProve; ++prova) {
        SCOPED_TRACE(prova);
        filo->cutAfter(tutti * prova / kProve);
        {
            const support::HeardBoxes scatole;
            riapri();
            EXPECT_THAT(scatole.texts.size(), AnyOf(1U, 2U));
        }
        EXPECT_THAT(pagina.rows("DataGrid1"), AnyOf(0, righe));
        EXPECT_THAT(pagina.combo("DataCombo1").count(), AnyOf(0, voci));
        verificaInOrdine();
        filo->mend();
    }
    EXPECT_EQ(tutta(), prima);
    riprendiAzienda();
    riapri();
    EXPECT_EQ(pagina.rows("DataGrid1"), righe);
}

TEST_P(GuastoGriglia, InTheMiddleOfWhateverAnswerOfASaveTheWireIsCutTheRowIsWholeOrMissing) {
    constexpr long kProve = 24;
    const auto prima = tutta();
    const auto filo = guasto.wire();
    riprendiAzienda();
    carica();
    scrivi();
    filo->mend();
    registra();
    const long tutti = filo->passed();
    const auto dopo = tutta();
    for (long prova = 0; prova < kProve; ++prova) {
        SCOPED_TRACE(prova);
        togli();
        riprendiAzienda();
        riapri();
        scrivi();
        filo->cutAfter(tutti * prova / kProve);
        {
            const support::HeardBoxes scatole;
            registra();
            EXPECT_LE(scatole.texts.size(), 1U);
            EXPECT_EQ(scatole.texts.empty(), testo(GetParam().colonna) != GetParam().valori.front())
                << "told, the fields stay";
        }
        verificaInOrdine();
        filo->mend();
        EXPECT_THAT(tutta(), AnyOf(prima, dopo));
    }
}

TEST_P(GuastoGriglia, WithoutAServerTheWayOutIsToldWhereItPurgesAndFreeWhereNot) {
    const bool pulisce = std::string(form) == "stati";
    carica();
    guasto.fail(Failure::Ended);
    {
        const support::HeardBoxes scatole;
        gui.click(form, "Command4");
        EXPECT_EQ(scatole.texts, pulisce ? Testi{kLinkFailure} : Testi{});
    }
    EXPECT_EQ(gui.isVisible(form), pulisce);
    guasto.repair();
    if (pulisce) {
        gui.click(form, "Command4");
    }
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoGriglia, testing::Values(kStati, kComuni),
                         [](const auto& info) { return std::string(info.param.form); });

} // namespace
} // namespace vabo
