// A first password with each of its requests to the server refused.

#include "session/FormFixture.h"
#include "support/Replays.h"

namespace {

using namespace vabo;
using support::Lines;

/// The program's forms from the start on; whatever is refused, one of them is in sight or the process has ended.
class Programma : public FormTest {
public:
    using FormTest::gui;
    using FormTest::script;
    using FormTest::workstation;

    void TestBody() override {}

    void avvia() {
        gui.forms().show("Avvio");
        support::Gui::handleEvents();
        gui.waitForFront("About");
    }
    void scrivi(const char* campo, const char* testo) {
        end.endedBy([&] {
            gui.typeInto("About", campo, testo);
            gui.press(Qt::Key_Return);
        });
    }
    void expectAlive() const { EXPECT_TRUE(end.ended() > 0 || !gui.visibleForms().empty()); }
    void reopen() {}
    Lines fields() const { return {end.ended() > 0 ? "ended" : gui.visibleForms(), NomeDatabase, LinguaCorrente}; }
    Lines shown() const { return {}; }
    Lines held() const { return {}; }

    const support::TestWorkstation& posto = workstation;
};

// What follows the password and the rights is the taking up of the company, which has tests of its own.
TEST(SessioneRifiuto, OfAFirstPasswordIsToldAndTheLoginStays) {
    const support::Operation<Programma> operazione{
        .tables = {"AbilitazioneAccessi", "vabodatiazienda.dbo.link_programmaTerminale"},
        .reach =
            [](Programma& programma) {
                programma.script.expectMessage("Please enter your personal Password, max length. 12 char");
                programma.script.expectMessage("Confirm your Password");
                programma.avvia();
                programma.scrivi("txtUserName", "nuovo_utente");
                programma.gui.press(Qt::Key_Return);
                programma.scrivi("txtPassword1", "sole");
            },
        .act = [](Programma& programma) { programma.scrivi("txtPassword", "sole"); },
        .once = {},
        .fromThere = {}};
    const support::Run indisturbata = play(operazione, 0, support::Refusals::Lasting::Once);
    EXPECT_EQ(indisturbata.after.fields[0], "Avvio_Azienda");
    for (const auto durata : {support::Refusals::Lasting::Once, support::Refusals::Lasting::FromThere}) {
        EXPECT_EQ(outcome(play(operazione, 1, durata), indisturbata), support::kRefused) << "the password's row";
        EXPECT_EQ(outcome(play(operazione, 2, durata), indisturbata), "told it; rows done; list right; fields kept")
            << "the rights";
    }
}

} // namespace
