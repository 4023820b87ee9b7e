// An administrator's day: from one login to that of the user who was added last, and to the end of the process.

#include "desktop/AtTheDesktop.h"

#include <string>
#include <vector>

namespace {

using Row = support::TestWorkstation::Row;

class Giornata : public AtTheDesktop {
protected:
    static constexpr const char* kData = "Dati Generali Azienda";

    // Two rows of the project's ledger, two of the branch's. The balance is of 31/12/2022.
    void writeLedger() const {
        run("delete from partitadoppia");
        run("insert into partitadoppia (numerotransazione, idsede, datatransazione, datareport, idconto, "
            "idprogettorendiconto, idsedecompetenza, Descrizione, importodepositi, importoprelievi, definito) values "
            "(1, 1, '20230110', '20230310', 1200, 10000002, 3, 'Progetto, rendicontata', 10, 0, 0), "
            "(2, 1, '20230410', '20230410', 1200, 10000002, 3, 'Progetto, successiva', 10, 0, -1), "
            "(3, 1, '20221130', '20221130', 1200, 10000003, 2, 'Sede, di bilancio', 10, 0, 0), "
            "(4, 1, '20230710', '20230710', 1200, 10000003, 2, 'Sede, successiva', 10, 0, -1)");
    }
    void run(const std::string& sql) const { workstation.run(kCompany, sql); }
    Row row(const std::string& sql) const { return workstation.row(kCompany, sql); }
    void await(const std::string& sql, const std::string& expected) { awaitValue(kCompany, sql, expected); }
    std::string definito(const std::string& description) const {
        return workstation.value(kCompany,
                                 "select definito from partitadoppia where Descrizione = '" + description + "'");
    }
    std::string company() const {
        return workstation.value(support::kControlDatabase, "select L.dbname from link_programmaTerminale T inner "
                                                            "join link_programma L on T.ultimo = L.id");
    }

    // The steps of the day

    void logIn() {
        user().awaitWindow(kLogin);
        user().enter({U"amministratore", U"inverno"});
        user().answerBox("Return"); // "User not allowed! "
        user().awaitWindow(kLogin);
        user().look("name-again");
        user().enter({U"Amministratore", U"Primavera"});
        user().awaitWindow(kConsole);
        EXPECT_EQ(company(), support::kCompany);
    }
    void changeCompany() {
        user().type(U"ponte");
        user().look("search-of-a-company");
        user().press("Return");
        awaitValue(support::kControlDatabase,
                   "select count(*) from link_programmaTerminale T inner join link_programma L on T.ultimo = L.id "
                   "where L.dbname = 'VaBoDatiPonte'",
                   "1");
        user().look("other-company");
    }
    void switchOption() {
        user().press("alt+m");
        user().awaitWindow(kTables);
        user().press("Right", 3);
        user().press("Tab", 4);
        user().press("space");
        await("select Contatore from datiGenerali where id = 9", "-1");
        user().look("option");
    }
    void pointAccount() {
        user().press("ctrl+shift+Tab", 2);
        user().look("accounts-tab"); // its grid has the focus
        user().press("Down", 2);
        user().press("Return");
        user().look("row");
        user().type(U"esercizi precedenti");
        user().look("search-of-an-account");
        user().press("Return");
        await("select IdConto from TabellaContiUtili where ID = 3", "1052");
        EXPECT_EQ(row("select idconto1 from TabellaContiUtili where ID = 3"), Row{"19"});
        user().look("account");
    }
    void lockProject() {
        user().press("ctrl+Tab", 2);
        user().press("alt+p");
        user().awaitWindow("Aggiorna Data Definitiva Progetto");
        const QImage empty = user().look("project");
        user().press("Down");
        user().type(U"ba");
        user().enter({U"", U"310323"});
        user().press("Return");
        user().awaitSight(empty);
        EXPECT_EQ(row("select CONVERT(varchar(8), iddate, 112) from progetti where ID = 10000002"), Row{"20230331"});
        EXPECT_EQ(definito("Progetto, rendicontata"), "-1");
        EXPECT_EQ(definito("Progetto, successiva"), "0");
        user().press("alt+c");
        user().awaitWindow(kTables);
    }
    void lockBranch() {
        user().press("alt+e");
        user().awaitWindow(kLogin); // the form has the program's title
        const QImage empty = user().look("branch");
        user().press("Down");
        user().type(U"na");
        user().enter({U"", U"300623"});
        user().press("Return");
        user().answerBox("Return"); // "Blocco la contabilità sino alla data 30/06/2023 ?"
        user().awaitSight(empty);
        EXPECT_EQ(row("select CONVERT(varchar(8), idDatainvio, 112) from elencosedi where idsede = 2"),
                  Row{"20230630"});
        EXPECT_EQ(definito("Sede, di bilancio"), "-1");
        EXPECT_EQ(definito("Sede, successiva"), "0");
        user().press("alt+c");
        user().awaitWindow(kTables);
    }
    void addSection() {
        user().press("ctrl+Tab");
        user().press("alt+s");
        user().awaitWindow("Gestione Sezionali Iva");
        user().enter({U"Mostre e mercatini", U"Attività sul territorio"});
        user().type(U"7");
        user().press("alt+a");
        user().answerBox("Return"); // "Sei sicuro?"
        await("select Descrizione from IvaSezionale where id = 7", "Mostre e mercatini");
        EXPECT_EQ(row("select AreaAttivita, idsede, CONVERT(varchar(8), UltimaDataAcquisti, 112), "
                      "ultimaFatturaAcquisti, Liquidazione from IvaSezionale where id = 7"),
                  (Row{"Attività sul territorio", "1", "20230530", "0", "1"}));
        user().look("section");
        user().press("alt+c");
        user().awaitWindow(kTables);
        user().press("alt+c");
        user().awaitWindow(kConsole);
    }
    void addTermAndChangeData() {
        user().press("alt+d");
        user().awaitWindow(kData);
        user().look("data");
        user().enter({U"Fondazione Il Ponte più", U"Salita del Ponte 5/A"});
        user().press("Return", 3); // town, postal code, province
        user().look("at-the-terms");
        user().press("ctrl+Return");
        user().awaitWindow("Condizioni di pagamento");
        addTerm();
        user().press("alt+c");
        user().awaitWindow(kData);
        user().look("data-again");
        user().type(U"bonifico bancario a 30-60-90");
        user().look("search-of-a-term");
        user().press("Return", 3); // the term, the other term, the tax code
        user().press("Return", 3);
        user().type(U"posta@ponte.example");
        user().look("changed");
        user().press("alt+s");
        user().awaitWindow(kConsole);
        EXPECT_EQ(row("select Nome, Via, città, cap, telefonoufficio, numerofax, indirizzopostaelettronica, sito, "
                      "IDPagamento, (select Descrizione from CondizioniPagamento where IDPagamento = IdIncasso), "
                      "Codicefiscale, PartitaIva from DatiAzienda"),
                  (Row{"Fondazione Il Ponte più", "Salita del Ponte 5/A", "Genova (GE)", "16121", "010 5550700", "NULL",
                       "posta@ponte.example", "NULL", "2", kTerm, "95103440103", "95103440103"}))
            << "a change of the town appends the province";
    }
    void addTerm() {
        user().type(U"10 - 25");
        user().look("search-of-a-rule");
        user().press("Return", 2); // the rule, the advance instalment
        user().enter({U"30", U"60", U"90", U""});
        user().type(U"bonif");
        user().press("Return");
        user().look("term");
        user().press("Return");
        await("select Descrizione from CondizioniPagamento where IDPagamento = "
              "(select max(IDPagamento) from CondizioniPagamento)",
              kTerm);
        EXPECT_EQ(row("select NRrate, IDDecorrenza, Scadenza1, Scadenza2, Scadenza3, Scadenza4, IdTipoRimessa from "
                      "CondizioniPagamento where Descrizione = '" +
                      std::string(kTerm) + "'"),
                  (Row{"3", "5", "30", "60", "90", "0", "2"}));
    }
    void addUser() {
        user().press("alt+a");
        user().awaitWindow("Gestione Abilitazione Utenti");
        user().enter({U"Carla Rossi"});
        user().press("Tab", 4);
        user().look("new-user");
        user().press("space"); // may insert, which leads to the button
        user().press("Return");
        await("select count(*) from AbilitazioneAccessi where NomeUtente = 'carla_rossi'", "1");
        EXPECT_EQ(row("select PaswUtente, Administrator, A_Inserisci, A_Cancella, Disabilita from AbilitazioneAccessi "
                      "where NomeUtente = 'carla_rossi'"),
                  (Row{"NULL", "0", "1", "0", "0"}));
        user().look("users");
        user().press("alt+c");
        user().awaitWindow(kConsole);
    }
    void logInAsThatUser() {
        user().awaitWindow(kLogin);
        user().look("login-of-the-new-user");
        user().enter({U"Carla Rossi", U""});
        user().answerBox("Return"); // "Please enter your personal Password, max length. 12 char"
        user().awaitWindow(kLogin);
        user().enter({U"Girasole"});
        user().answerBox("Return"); // "Confirm your Password"
        user().awaitWindow(kLogin);
        user().look("repeat");
        user().enter({U"girasole"});
        user().awaitWindow(kConsole);
        EXPECT_EQ(row("select PaswUtente from AbilitazioneAccessi where NomeUtente = 'carla_rossi'"), Row{"girasole"});
        EXPECT_EQ(company(), kCompany) << "the one of this terminal";
        user().press("alt+a");
        user().answerBox("Return"); // "Utente non abilitato! …"
        user().awaitWindow(kConsole);
    }
    /// A company is wanted, and none can be opened any more.
    void endTheProgram() {
        workstation.run(support::kControlDatabase, "delete from link_programma");
        user().press("shift+Tab", 2);
        user().type(U"aurora");
        user().press("Return");
        user().answerBox("Return"); // "Non è possibile caricare il DataBase"
    }

    static constexpr const char* kCompany = support::kOtherCompany;
    static constexpr const char* kTerm = "Bonifico bancario a 30-60-90 Sc.il 10 - 25 del mes";
};

TEST_F(Giornata, FromTheLoginToTheEndOfTheProcess) {
    writeLedger();
    const auto morning = startProgram();
    logIn();
    changeCompany();
    switchOption();
    pointAccount();
    lockProject();
    lockBranch();
    addSection();
    addTermAndChangeData();
    addUser();
    user().press("alt+F4");
    user().awaitOnlyHidden(kStart);

    const auto evening = startProgram();
    logInAsThatUser();
    endTheProgram();
    EXPECT_EQ(evening->finish(), 0);
}

} // namespace
