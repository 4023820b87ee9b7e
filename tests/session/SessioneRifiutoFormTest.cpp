// A first password with each of its requests to the server refused.

#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

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
} // namespace vabo
