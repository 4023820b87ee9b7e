// A user who types ahead of a slow program gets what one gets who waits for it.

#include "desktop/AtTheDesktop.h"

namespace {

class Anticipo : public AtTheDesktop {
protected:
    void logIn() {
        user().awaitWindow(kLogin);
        user().ahead(program->pid(), [this] { user().enter({U"amministratore", U"primavera"}); });
        user().awaitWindow(kConsole);
    }

    std::unique_ptr<support::HelperProcess> program;
};

TEST_F(Anticipo, ALockIsTypedBeforeItsFormHandlesAKey) {
    program = startProgram();
    logIn();
    user().press("alt+m");
    user().awaitWindow(kTables);
    user().press("Right", 3);
    user().press("alt+p");
    user().awaitWindow("Aggiorna Data Definitiva Progetto");
    const QImage empty = user().look("lock");
    user().ahead(program->pid(), [this] {
        user().press("Down");
        user().type(U"sc");
        user().press("Return");
        user().enter({U"300424"});
    });
    user().look("date");
    user().press("Return");
    user().awaitSight(empty);
    EXPECT_EQ(workstation.value(support::kCompany, "select CONVERT(varchar(8), iddate, 112) from progetti where ID = "
                                                   "10000003"),
              "20240430");
}

TEST_F(Anticipo, APaymentTermIsTypedBeforeItsFormHandlesAKey) {
    program = startProgram();
    logIn();
    user().press("alt+d");
    user().awaitWindow("Dati Generali Azienda");
    user().press("Return", 5);
    user().press("ctrl+Return");
    user().awaitWindow("Condizioni di pagamento");
    user().ahead(program->pid(), [this] { user().enter({U"10 - 25", U"", U"30", U"60", U"90", U"", U"bonif"}); });
    user().look("term");
    user().press("Return");
    awaitValue(support::kCompany,
               "select NRrate from CondizioniPagamento where Descrizione = "
               "'Bonifico bancario a 30-60-90 Sc.il 10 - 25 del mes'",
               "3");
}

} // namespace
