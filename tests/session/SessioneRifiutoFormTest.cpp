// A login that succeeds with each of its requests to the server refused.

#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

// What follows the password and the rights is the taking up of the company, which has tests of its own.
TEST(SessioneRifiuto, OfAFirstPasswordIsToldAndTheLoginStays) {
    const support::Operation<Programma> operazione{
        .tables = {"VaBoDatiPonte.dbo.AbilitazioneAccessi", "vabodatiazienda.dbo.link_programmaTerminale"},
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

// The row of a terminal without a name is what a login writes: it deletes it. A list that can't be read stays empty.
TEST(SessioneRifiuto, OfALoginIsToldOrTheConsoleComesWithTheCompanyThatTheTerminalsRowNames) {
    const std::string ripiegata = "silent; rows of company 1, language IT, program none; list right; fields changed to "
                                  "Avvio_Azienda, VaBoDatiAurora, Associazione Aurora";
    const std::string senzaElenco = "list right; fields changed to Avvio_Azienda, ";
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string prima = "before; list right; fields changed to ended, ";
    const std::string conOpzioni = "silent; rows of company 2, language IT, program none; list right; fields done";
    replay(support::Operation<ProgrammaConConsole>{
        .tables = {"vabodatiazienda.dbo.link_programmaTerminale", "sources", "options"},
        .reach =
            [](ProgrammaConConsole& programma) {
                programma.prepara();
                programma.mostra("About");
                programma.gui.waitForFront("About");
                programma.scrivi("txtUserName", "amministratore");
                programma.control("insert into link_programmaTerminale (ultimo) values (1)");
            },
        .act = [](ProgrammaConConsole& programma) { programma.scrivi("txtPassword", "primavera"); },
        .once = support::inTurn(
            {{2, support::kRefused},
             {2, support::kStored},
             {1, ripiegata},
             {3, support::kStored},
             {1, conOpzioni},
             {3, support::kStored},
             {2, ripiegata},
             {1, support::kStored},
             {1, "silent; rows done; list right; fields changed to Avvio_Azienda, no company, Fondazione Il Ponte"},
             {2, ripiegata},
             {2, support::kStored},
             {2, "told it; rows done; " + senzaElenco},
             {7, support::kStored},
             {1, conOpzioni}}),
        .fromThere = support::inTurn(
            {{2, support::kRefused},
             {2, impossibile + prima},
             {1, impossibile + "of company 0, language IT, program none; list right; fields changed to ended, "},
             {2, impossibile + prima},
             {9, impossibile + prima + "no company, "},
             {2, impossibile + prima},
             {2, "told it; rows before; " + senzaElenco},
             {2, "told it; rows done; " + senzaElenco},
             {8, support::kStored}})});
}

} // namespace
} // namespace vabo
