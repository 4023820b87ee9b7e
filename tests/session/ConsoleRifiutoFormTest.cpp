// A company chosen in the console's list, with each request to the server of its taking up refused.

#include "session/ProgrammaRifiutato.h"

namespace vabo {
namespace {

using support::inTurn;

class Console : public ProgrammaConConsole {
public:
    void apri() {
        NomeTerminale = support::kTerminalName;
        IdAziendaScelta = 2;
        mostra("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
    }
    void scegli(const char* database) {
        esegui([&] { gui.pick("Avvio_Azienda", "DataCombo1", companyName(database)); });
    }
};

// What can't be read leaves the company before open, whose name the console shows; the list keeps what was clicked. A
// database that can't be found out about is asked for once more, as the first one of the server.
TEST(ConsoleRifiuto, OfAChosenCompanyLeavesTheOneBeforeOrTakesItUpOrEndsTheProcess) {
    const std::string scritta = "Associazione Aurora";
    const std::string impossibile = "told Non è possibile caricare il DataBase; rows ";
    const std::string finita = "; list right; fields changed to ended, ";
    const std::string aurora = "of company 1, language IT, program none";
    replay(support::Operation<Console>{
        .tables = {"vabodatiazienda.dbo.link_programmaTerminale", "VaBoDatiTemp.dbo.LinguaClient", "sources",
                   "options"},
        .reach =
            [](Console& console) {
                console.prepara();
                console.apri();
            },
        .act = [](Console& console) { console.scegli(support::kCompany); },
        .once = inTurn({{1, "silent; rows before; list right; fields changed to " + scritta},
                        {3, support::kStored},
                        {1, "silent; rows " + aurora + "; list old; fields changed to " + scritta},
                        {1, support::kStored},
                        {1, "silent; rows " + aurora + "; list right; fields done"},
                        {6, support::kStored},
                        {1, "silent; rows done; list right; fields changed to no company, " + scritta},
                        {6, support::kStored}}),
        .fromThere = inTurn({{2, impossibile + "before" + finita + scritta},
                             {1, impossibile + "of company 0, language IT, program none" + finita + scritta},
                             {2, impossibile + aurora + finita + scritta},
                             {9, impossibile + aurora + finita + "no company, " + scritta},
                             {2, impossibile + aurora + finita + "VaBoDatiAurora, " + scritta},
                             {4, support::kStored}})});
}

} // namespace
} // namespace vabo
