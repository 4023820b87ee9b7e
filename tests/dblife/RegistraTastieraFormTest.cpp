#include "RegistraFormFixture.h"
#include "rights/AbilitazioneUtente.h"
#include "support/Attacks.h"
#include "support/HeardBoxes.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace vabo {
namespace {

using support::kCompany;

/// From the start of the program with the keyboard alone: the company can't be opened, so the form appears.
class RegistraTastiera : public RegistraForm {
protected:
    RegistraTastiera() {
        AzzeraVariabili();
        app::registerForms(gui.forms());
    }
    /// Makes the database's file unreadable, which somebody may have open; the server still lists the database.
    void guasta() {
        const std::string file = workstation.value(
            "master", std::string("select filename from master.dbo.sysdatabases where name = '") + kCompany + "'");
        posto_ = workstation.driveC().real(file);
        inizio_ = sostituito("no database     ");
    }
    void ripara() const { sostituito(inizio_); }
    void scrivi(const std::string& nome, const std::string& testo) {
        ASSERT_EQ(fuoco(), nome);
        gui.type(testo);
        gui.press(Qt::Key_Return);
    }

private:
    /// What the file began with.
    std::string sostituito(const std::string& inizio) const {
        std::fstream file(posto_, std::ios::in | std::ios::out | std::ios::binary);
        std::string prima(inizio.size(), ' ');
        file.read(prima.data(), std::ssize(prima));
        file.seekp(0);
        file << inizio << std::flush;
        EXPECT_TRUE(file);
        return prima;
    }

    std::filesystem::path posto_;
    std::string inizio_;
};

TEST_F(RegistraTastiera, ACompanyLostBetweenStartAndLoginLeadsToTheForm) {
    bool chiesto = false; // set when the start has read the table of users, its last statement
    bool guasto = false;
    ado::setStatementRecorder([&](const std::string& testo) {
        if (chiesto && !std::exchange(guasto, true)) {
            guasta();
        }
        chiesto = chiesto || testo.find("AbilitazioneAccessi") != std::string::npos;
    });
    gui.forms().show("Avvio");
    ado::setStatementRecorder({});
    gui.waitForFront(kForm);
    EXPECT_EQ(ServerMancante, kVero);
    EXPECT_FALSE(gui.forms().isLoaded("About"));
    EXPECT_EQ(gui.visibleForms(), kForm);
    EXPECT_EQ(PilaForm.back(), kForm);
    EXPECT_EQ(fuoco(), "cboDSNList");
}

TEST_F(RegistraTastiera, ACompanyOutOfReachFromTheBeginningLeadsToTheConsoleInstead) {
    guasta();
    gui.forms().show("Avvio");
    gui.waitForFront("Avvio_Azienda");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded(kForm));
    EXPECT_EQ(DirittiUtente, kDirittiAvvioSenzaUtenti);
}

TEST_F(RegistraTastiera, TheCompanyPutRightIsRegisteredByTheKeyboardAndTheConsoleComes) {
    guasta();
    gui.forms().show("About");
    gui.waitForFront(kForm);
    EXPECT_EQ(gui.visibleForms(), kForm);
    fonti.forget();

    gui.press(Qt::Key_Tab);
    scrivi("txtUID", campi().Utente);
    scrivi("txtPWD", campi().Password);
    scrivi("cboDrivers", "SQL Server");
    script.expectMessage("Wrong connection");
    scrivi("txtServer", kServerSpento);
    gui.press(Qt::Key_A, Qt::ControlModifier);
    scrivi("txtServer", campi().Server);
    scrivi("txtDatabase", kCompany);
    scrivi("Nome_Odbc", "Contabilita");
    scrivi("Nome_Az", "Onlus");
    ASSERT_EQ(fuoco(), "cmdCancel");
    script.expectMessage(std::string("La connessione \nDatabase=") + kCompany + ";\n non è valida");
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(fonti.calls().empty());
    ASSERT_EQ(fuoco(), "cmdCancel");

    ripara();
    const std::vector<std::string> attese = registrazioni(campi(), "Contabilita", NomeAzienda);
    gui.press(Qt::Key_Return);
    ASSERT_GE(fonti.calls().size(), attese.size());
    EXPECT_EQ((std::vector<std::string>{fonti.calls().begin(), fonti.calls().begin() + 12}), attese)
        << "ahead of those of the console";
    gui.waitForFront("Avvio_Azienda");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded(kForm));
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(gui.text("Avvio_Azienda", "aziendaAperta"), companyName());
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin) << "nobody has logged in";
    EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"});
}

TEST_F(RegistraTastiera, ClosingItLeadsToTheConsoleToo) {
    guasta();
    gui.forms().show("About");
    gui.waitForFront(kForm);
    premi("Command1");
    gui.waitForFront("Avvio_Azienda");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
}

/// Whatever is typed, the form stays open or the registration succeeds; boxes may come.
class RegistraAttacco : public RegistraForm {
protected:
    RegistraAttacco() {
        prima = utenti();
        apri();
    }
    /// Whether the field's text gives no user, which means a login with the account that the program runs under.
    bool NessunUtente() const { return ado::ConnectionString("UID=" + testo("txtUID") + ";").user().empty(); }
    Rows utenti() const {
        return workstation.rows(kCompany, "select * from AbilitazioneAccessi order by idautonumber");
    }
    /// Replaces the field's text: the first letters are typed, the rest is pasted.
    void scrivi(const std::string& nome, const std::string& testo) {
        constexpr std::size_t kBattute = 20;
        vaiA(nome);
        gui.press(Qt::Key_A, Qt::ControlModifier);
        gui.press(Qt::Key_Delete);
        gui.type(testo.substr(0, kBattute));
        if (nome == "cboDrivers") {
            elenco(nome).lineEdit()->insert(QString::fromStdString(testo.substr(std::min(testo.size(), kBattute))));
        } else {
            campo(nome).insert(QString::fromStdString(testo.substr(std::min(testo.size(), kBattute))));
        }
    }
    /// Opens the form again where a successful registration has closed it.
    void riapri() {
        support::Gui::handleEvents();
        if (gui.isVisible(kForm)) {
            return;
        }
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        workstation.putFile("C:\\vabo\\IndirizzoServer.txt", server + "\r\n");
        apri();
    }

    support::HeardBoxes scatole;
    std::vector<std::string>& messaggi = scatole.texts;
    Rows prima;
};

TEST_F(RegistraAttacco, NoUserAndNoPasswordButTheRightOnesPass) {
    for (const char* nome : {"txtUID", "txtPWD"}) {
        const std::string giusto = testo(nome);
        for (const std::string& testo : support::attacks()) {
            messaggi.clear();
            scrivi(nome, testo);
            if (NessunUtente()) {
                continue;
            }
            premi("txtServer");
            EXPECT_EQ(messaggi, std::vector<std::string>{"Wrong connection"}) << nome << " " << testo.substr(0, 60);
            EXPECT_EQ(fuoco(), "txtServer");
        }
        metti(nome, giusto);
    }
    aspettaNienteDiFatto();
    EXPECT_EQ(utenti(), prima);
}

TEST_F(RegistraAttacco, NoServerOfTheLoopbackPasses) {
    for (const char* testo :
         {"127.0.0.1,9", "127.0.0.1,0", "127.0.0.1,-1", "127.0.0.1,99999999", "127.0.0.1,9;Database=master",
          "{127.0.0.1,9", "{127.0.0.1,9}", "127.0.0.1,9' or '1'='1", "127.0.0.1,9\t", "127.0.0.1,9%s%n"}) {
        messaggi.clear();
        scrivi("txtServer", testo);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(messaggi, std::vector<std::string>{"Wrong connection"}) << testo;
        premi("cmdCancel");
        EXPECT_EQ(messaggi.back(), "La connessione \n\n non è valida") << testo;
    }
    aspettaNienteDiFatto();
}

TEST_F(RegistraAttacco, ADatabaseIsTheOneNamedOrNone) {
    for (const std::string& testo : support::attacks()) {
        scrivi("txtDatabase", testo);
        premi("cmdCancel");
        riapri();
    }
    EXPECT_EQ(utenti(), prima);
}

TEST_F(RegistraAttacco, ADataSourceMayBeCalledAnything) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    const std::vector<std::string> testi = support::attacks();
    for (std::size_t i = 0; i + 1 < testi.size(); i += 2) {
        scrivi("Nome_Odbc", testi[i]);
        scrivi("Nome_Az", testi[i + 1]);
        premi("cmdCancel");
        riapri();
    }
    EXPECT_EQ(utenti(), prima);
    EXPECT_EQ(registro().size(), 1U);
    EXPECT_EQ(registro()[0][2], kCompany);
}

TEST_F(RegistraAttacco, NoTextInTheDriverEndsTheProgram) {
    for (const std::string& testo : support::attacks()) {
        scrivi("cboDrivers", testo);
        premi("txtServer");
        EXPECT_EQ(fuoco(), messaggi.empty() ? "txtDatabase" : "txtServer");
        messaggi.clear();
    }
    EXPECT_EQ(utenti(), prima);
}

} // namespace
} // namespace vabo
