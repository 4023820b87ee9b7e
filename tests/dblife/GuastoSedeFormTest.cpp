// The form of the headquarters with a server that fails at each of its statements.

#include "CaricaSedeFixture.h"
#include "session/FailureFixture.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

/// Agrees to that folder; keeps the texts of all boxes.
struct Consenso : platform::Dialogs {
    Consenso(std::string cartella, Testi& testi) : cartella(std::move(cartella)), testi(testi) {}
    void message(const std::string& text, platform::Icon /*icon*/) override { testi.push_back(text); }
    bool question(const std::string& text) override {
        testi.push_back(text);
        return false;
    }
    bool confirm(const std::string& /*text*/) override { return true; }
    std::string input(const std::string& prompt, const std::string& /*title*/,
                      const std::string& /*proposed*/) override {
        testi.push_back(prompt);
        return {};
    }
    std::string folder(const std::string& /*title*/) override { return cartella; }

    std::string cartella;
    Testi& testi;
};

class GuastoSede : public CaricaSedeForm {
protected:
    GuastoSede() { riprendiAzienda(); }
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    void riapri() {
        gui.forms().unload(kForm);
        support::Gui::handleEvents();
        apri();
    }
    /// Ends the server at statement number `fatale` of `lavoro`, counted from 1; never for 0. The boxes' texts, with
    /// the folder agreed to.
    Testi scatole(int fatale, const std::function<void()>& lavoro) {
        Testi testi;
        platform::setDialogs(std::make_unique<Consenso>("C:\\Nuova", testi));
        inviate = 0;
        ado::setStatementRecorder([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.fail(Failure::Ended);
            }
        });
        lavoro();
        ado::setStatementRecorder({});
        EXPECT_TRUE(gui.isVisible(kForm));
        EXPECT_TRUE(gui.form(kForm).isEnabled());
        return testi;
    }
    void ripara() {
        guasto.repair();
        riprendiAzienda();
    }

    FailingServer guasto{posto};
    int inviate = 0;
};

TEST_F(GuastoSede, TheStatesTellItAndTheBranchesAreSilent) {
    EXPECT_EQ(scatole(1, [this] { apri(); }), Testi{kLinkFailure});
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(pagina.combo("DCStato").count(), 0);
    ripara();
    EXPECT_EQ(scatole(2, [this] { riapri(); }), Testi{});
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_GT(pagina.combo("DCStato").count(), 0);
    ripara();
    EXPECT_EQ(scatole(0, [this] { riapri(); }), Testi{});
    EXPECT_EQ(pagina.rows("DataGrid1"), 7);
}

TEST_F(GuastoSede, ABranchThatCanNotBeReadKeepsTheFieldsInSilence) {
    apri();
    scegli("1");
    const Riga torino = campi();
    EXPECT_EQ(scatole(1, [this] { scegli("4"); }), Testi{});
    EXPECT_EQ(campi(), torino);
    ripara();
    riapri();
    scegli("1");
    EXPECT_EQ(scatole(2, [this] { scegli("4"); }), Testi{});
    EXPECT_EQ(testo("città"), "Nairobi");
    EXPECT_EQ(stato(), "Italia");
    ripara();
}

TEST_F(GuastoSede, AtWhateverStatementOfTheCommandItEndsOneBoxTellsItAndWhatStandsAheadIsWritten) {
    apri();
    scegli("1");
    EXPECT_EQ(scatole(0, [this] { applica(); }), Testi{kAnnuncio});
    const int tutte = inviate;
    ASSERT_GE(tutte, 6);
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        metti(posto, puntatoriDi("prima"));
        esegui("update sedecentrale set idsede = 1, Note = 'prima'");
        esegui("update DirectoryHQ set Directoryfile = 'prima'");
        esegui("update Directorybackup set Directoryfile = 'prima'");
        riprendiAzienda();
        riapri();
        scegli("1");
        const Testi dette = scatole(fatale, [this] { applica(); });
        ASSERT_GE(inviate, fatale);
        ASSERT_EQ(dette.size(), 2U);
        EXPECT_EQ(dette[0], kAnnuncio);
        EXPECT_THAT(dette[1], testing::AnyOf(kLinkFailure, kOutOfReach));
        ripara();
        const bool riga = sedi()[0][9] != "prima";
        const bool file = puntatori(posto) != puntatoriDi("prima");
        const bool hq = cartelle()[0] != "prima";
        const bool copie = cartelle()[1] != "prima";
        EXPECT_EQ(file, riga) << "the files follow the row";
        if (file) {
            EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Nuova"));
        }
        EXPECT_TRUE(!hq || file);
        EXPECT_FALSE(copie);
        EXPECT_EQ(riga, fatale > tutte / 3);
        EXPECT_EQ(hq, fatale > tutte * 2 / 3);
    }
    riapri();
    scegli("1");
    EXPECT_EQ(scatole(0, [this] { applica(); }), Testi{kAnnuncio});
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
}

TEST_F(GuastoSede, AServerThatDoesNotAnswerIsToldAndNothingIsWritten) {
    apri();
    scegli("1");
    const auto prima = sedi();
    guasto.fail(Failure::Frozen);
    const Testi dette = scatole(0, [this] { applica(); });
    ASSERT_EQ(dette.size(), 2U);
    EXPECT_THAT(dette[1], testing::AnyOf(kTimedOut, kOutOfReach, kLinkFailure));
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\vabo\\Server"));
    guasto.repair();
    EXPECT_EQ(sedi(), prima);
}

} // namespace
} // namespace vabo
