// One lock of a project, from the start of the program to the rows of the ledger.

#include "desktop/AtTheDesktop.h"

namespace {

using Rows = std::vector<support::TestWorkstation::Row>;

class ProgettoBloccato : public AtTheDesktop {
protected:
};

TEST_F(ProgettoBloccato, FromTheStartToTheLedger) {
    const auto program = startProgram();
    user().awaitWindow(kLogin);
    user().look("login");
    user().enter({U"amministratore", U"primavera"});
    user().awaitWindow(kConsole);
    user().look("console");
    user().press("alt+m");
    user().awaitWindow(kTables);
    user().look("tables");
    user().press("Right", 3);
    user().look("tab3");
    user().press("alt+p");
    user().awaitWindow("Aggiorna Data Definitiva Progetto");
    user().look("project");
    user().press("Down");
    user().type(U"sc");
    user().look("picking");
    user().press("Return");
    user().look("picked");
    user().type(U"300424");
    user().press("Return");
    user().look("date");
    user().press("Return");
    awaitValue(support::kCompany, "select CONVERT(varchar(10), iddate, 120) from progetti where ID = 10000003", "2024-04-30");
    user().look("done");
    user().press("alt+c");
    user().awaitWindow(kTables);
    user().look("tables-again");
    user().press("alt+c");
    user().awaitWindow(kConsole);
    user().look("console-again");
    user().press("alt+F4");
    user().awaitNoWindow();
    user().look("nothing");
    EXPECT_TRUE(program->isRunning());
}

} // namespace
