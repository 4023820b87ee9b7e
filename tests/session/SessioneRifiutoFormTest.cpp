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

using Operazione = support::Operation<Programma>;

TEST(SessioneRifiuto, OfAFirstPassword) {
    replay(Operazione{.tables = {"AbilitazioneAccessi"},
                      .reach =
                          [](Programma& programma) {
                              programma.script.expectMessage(
                                  "Please enter your personal Password, max length. 12 char");
                              programma.script.expectMessage("Confirm your Password");
                              programma.avvia();
                              programma.scrivi("txtUserName", "nuovo_utente");
                              programma.gui.press(Qt::Key_Return);
                              programma.scrivi("txtPassword1", "sole");
                          },
                      .act = [](Programma& programma) { programma.scrivi("txtPassword", "sole"); },
                      .once = {},
                      .fromThere = {}});
}

} // namespace
