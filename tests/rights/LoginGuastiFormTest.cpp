// The form of the users while its server refuses a statement, or refuses from one on.

#include "UtentiForm.h"
#include "locks/GuastoAPosto.h"

namespace vabo {
namespace {

class LoginGuasti : public UtentiForm {
protected:
    using Durata = GuastoAPosto::Durata;

    /// How many statements `lavoro` sends.
    static int inviateDa(const std::function<void()>& lavoro) {
        const GuastoAPosto conta;
        lavoro();
        return conta.inviate();
    }
    void riapri() {
        gui.forms().unload("Login");
        support::Gui::handleEvents();
        apri();
    }
};

TEST_F(LoginGuasti, AListThatCanNotBeReadIsToldAndTheFormIsClosed) {
    {
        const GuastoAPosto guasto(1);
        script.expectMessage(GuastoAPosto::kRifiuto);
        apri();
    }
    EXPECT_TRUE(gui.isVisible("Login"));
    EXPECT_EQ(elenco(), Riga{});
    EXPECT_FALSE(aperta());
    EXPECT_EQ(caselle(), "000000000002");
    riapri();
    EXPECT_EQ(elenco().size(), 4U);
}

/// One statement refused, or all from it on.
class GuastoAlSalva : public LoginGuasti, public testing::WithParamInterface<GuastoAPosto::Durata> {
protected:
    /// Refuses each statement of a save in turn, and saves again without a refusal.
    void prova(const std::string& utente, int scritta) {
        apri();
        const auto prepara = [&] {
            riapri();
            if (!utente.empty()) {
                scegli(utente);
            }
            nuovo("mario");
        };
        prepara();
        const int tutte = inviateDa([this] { premi("cmdUpdate"); });
        ASSERT_GE(tutte, 5);
        const auto dopo = tabella();
        esegui("delete from AbilitazioneAccessi where NomeUtente = 'mario'");
        for (int posto = 1; posto <= tutte; ++posto) {
            SCOPED_TRACE(posto);
            if (!utente.empty()) {
                esegui("delete from AbilitazioneAccessi where NomeUtente in ('mario', '" + utente + "')");
                esegui("insert into AbilitazioneAccessi (NomeUtente) values ('" + utente + "')");
            }
            prepara();
            const auto prima = tabella();
            script.expectMessage(GuastoAPosto::kRifiuto);
            {
                const GuastoAPosto guasto(posto, GetParam());
                premi("cmdUpdate");
            }
            EXPECT_TRUE(script.allShown());
            EXPECT_TRUE(gui.isVisible("Login"));
            EXPECT_TRUE(gui.form("Login").isEnabled());
            EXPECT_FALSE(RsCondivisi(2).IsOpen());
            EXPECT_EQ(nome(), "mario") << "the fields stay";
            EXPECT_TRUE(aperta());
            EXPECT_EQ(tabella() != prima, posto > scritta);
            if (posto <= scritta) {
                premi("cmdUpdate");
                EXPECT_EQ(nome(), "");
                EXPECT_FALSE(aperta());
            }
            EXPECT_EQ(valore("select count(*) from AbilitazioneAccessi where NomeUtente = 'mario'"), "1");
            esegui("delete from AbilitazioneAccessi where NomeUtente = 'mario'");
        }
        EXPECT_EQ(dopo.size(), utente.empty() ? 5U : 4U);
    }
};

// Two tests, the selection, the row, the list.
TEST_P(GuastoAlSalva, OfANewUserIsToldAndASecondSaveStoresIt) {
    prova("", 4);
}

// The row is held before it is written.
TEST_P(GuastoAlSalva, OfAKnownUserIsToldAndASecondSaveStoresIt) {
    prova("contabile", 5);
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoAlSalva, testing::Values(GuastoAPosto::Durata::Una, GuastoAPosto::Durata::DaQui),
                         [](const auto& caso) {
                             return std::string(caso.param == GuastoAPosto::Durata::Una ? "Una" : "DaQui");
                         });

TEST_F(LoginGuasti, AfterAListThatCouldNotBeReadBehindASaveTheGridIsEmptyAndIsClickedInSilence) {
    apri();
    nuovo("mario");
    {
        script.expectMessage(GuastoAPosto::kRifiuto);
        const GuastoAPosto guasto(5);
        premi("cmdUpdate");
    }
    EXPECT_EQ(elenco(), Riga{});
    vaiA("DataGrid1");
    gui.press(Qt::Key_Space);
    QTest::mouseClick(pagina.grid("DataGrid1").viewport(), Qt::LeftButton);
    support::Gui::handleEvents();
    EXPECT_EQ(nome(), "mario");
}

TEST_F(LoginGuasti, ADisablingWhoseTestFailsChangesNothing) {
    apri();
    scegli("contabile");
    invioNelNome();
    {
        script.expectMessage(GuastoAPosto::kRifiuto);
        const GuastoAPosto guasto(1);
        premi("CancelButton");
    }
    EXPECT_EQ(caselle(), "010110010000");
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
    premi("CancelButton");
    EXPECT_EQ(caselle(), "000000000002");
}

TEST_F(LoginGuasti, ADeletionThatFailsDeletesNothingAndOneWhoseListFailsHasDeleted) {
    for (const int posto : {1, 2}) {
        SCOPED_TRACE(posto);
        riapri();
        scegli("disabilitato");
        script.expectQuestion("Vuoi cancellare disabilitato?", true);
        script.expectMessage(GuastoAPosto::kRifiuto);
        {
            const GuastoAPosto guasto(posto);
            gui.press(Qt::Key_D, Qt::ControlModifier);
        }
        EXPECT_EQ(tabella().size(), posto == 1 ? 4U : 3U);
        EXPECT_EQ(elenco().size(), posto == 1 ? 4U : 0U);
        EXPECT_EQ(nome(), "disabilitato");
        EXPECT_TRUE(gui.isVisible("Login"));
    }
}

} // namespace
} // namespace vabo
