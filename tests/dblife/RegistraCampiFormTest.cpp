// The form of the data sources: fields that the chain enables, an empty driver, hostile texts in server and names.

#include "RegistraFormFixture.h"
#include "kit/ApriScrivibile.h"
#include "support/Attacks.h"
#include "support/HeardBoxes.h"

#include <QTest>

namespace vabo {
namespace {

using support::kCompany;

class RegistraCampi : public RegistraForm {
protected:
    RegistraCampi() { apri(); }
    void scrivi(const std::string& nome, const std::string& testo) {
        constexpr int kBattute = 20;
        const QString tutto = QString::fromStdString(testo);
        vaiA(nome);
        campo(nome).selectAll();
        gui.press(Qt::Key_Delete);
        gui.type(tutto.left(kBattute).toStdString());
        campo(nome).insert(tutto.mid(kBattute));
    }
    CampiAzienda conNome(const std::string& azienda) const {
        CampiAzienda tutti = campi();
        tutti.Azienda = azienda;
        return tutti;
    }
    /// The registry of companies in the company's own database, with one row.
    void conRegistro() {
        workstation.run(kCompany, kCreaRegistro);
        workstation.run(kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    }
};

TEST_F(RegistraCampi, TheUserEnablesThePasswordAndTheNameTheRegistration) {
    for (const auto& [da, a] : {std::pair{"txtUID", "txtPWD"}, std::pair{"Nome_Az", "cmdCancel"}}) {
        for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
            gui.find(kForm, a).setEnabled(false);
            premi(da, tasto);
            EXPECT_TRUE(abilitato(a));
            EXPECT_EQ(fuoco(), a);
        }
    }
}

TEST_F(RegistraCampi, ADriverPickedEnablesTheServerAndAnEmptyOneDoesNot) {
    auto& driver = elenco("cboDrivers");
    driver.addItem("");
    for (const auto& [riga, apre] : {std::pair{1, false}, std::pair{0, true}}) {
        gui.find(kForm, "txtServer").setEnabled(false);
        vaiA("cboDrivers");
        driver.setCurrentIndex(1 - riga);
        QTest::keyClick(&driver, riga == 1 ? Qt::Key_Down : Qt::Key_Up);
        EXPECT_EQ(driver.currentIndex(), riga);
        EXPECT_EQ(abilitato("txtServer"), apre);
        EXPECT_EQ(fuoco(), apre ? "txtServer" : "cboDrivers");
    }
}

// All of them begin with a port of the loopback where nobody listens; a backslash would ask for a named instance.
TEST_F(RegistraCampi, NoHostileServerPassesAndNoneOfThemIsWritten) {
    const support::HeardBoxes scatole;
    int volta = 0;
    for (const std::string& attacco : support::attacks()) {
        if (attacco.find('\\') != std::string::npos) {
            continue;
        }
        SCOPED_TRACE(attacco.substr(0, 60));
        const std::size_t prima = scatole.texts.size();
        scrivi("txtServer", kServerSpento + attacco);
        gui.press(Qt::Key_Return);
        ASSERT_EQ(scatole.texts.size(), prima + 1);
        EXPECT_EQ(scatole.texts.back(), "Wrong connection");
        EXPECT_EQ(fuoco(), "txtServer");
        if (++volta % 10 == 0) {
            premi("cmdCancel");
            EXPECT_EQ(scatole.texts.back(), "La connessione \n\n non è valida");
        }
    }
    EXPECT_GT(volta, 150);
    aspettaNienteDiFatto();
    scrivi("txtServer", campi().Server);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "txtDatabase");
}

TEST_F(RegistraCampi, HostileNamesAreStoredAndRegisteredAsTheyStand) {
    conRegistro();
    const auto utenti = workstation.rows(kCompany, "select * from AbilitazioneAccessi order by idautonumber");
    for (const char* nome : {"L'altra", "'; delete from AbilitazioneAccessi --", "a\"b", "/* */", "x' or '1'='1", ";;",
                             "%s%n", "SERVER=altro"}) {
        SCOPED_TRACE(nome);
        scrivi("Nome_Odbc", nome);
        scrivi("Nome_Az", nome);
        const std::string aperta = NomeAzienda;
        premi("cmdCancel");
        support::Gui::handleEvents();
        EXPECT_EQ(fonti.calls(), registrazioni(conNome(nome), std::string(nome).substr(0, 30), aperta));
        EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, nome, campi().Utente, campi().Password}}));
        EXPECT_EQ(NomeDsn, nome);
        apri();
    }
    EXPECT_EQ(workstation.rows(kCompany, "select * from AbilitazioneAccessi order by idautonumber"), utenti);
}

TEST_F(RegistraCampi, ANameOfTheCompanyTooLongForItsColumnLeavesItsColumnAlone) {
    conRegistro();
    const std::string lungo(4000, 'x');
    scrivi("Nome_Az", lungo);
    const std::string aperta = NomeAzienda;
    premi("cmdCancel");
    support::Gui::handleEvents();
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(lungo), "Tlv_Server", aperta));
    EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, "prima", campi().Utente, campi().Password}}));
}

// Not held while its columns are set: the write alone is refused, in silence.
TEST_F(RegistraCampi, ARowOfTheRegistryThatSomebodyHoldsIsTriedAndLeftAndTheDataSourcesAreRegistered) {
    conRegistro();
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from link_programma", altrui);
    tenuta["Nserver"] = "mio";
    const support::StatementRecorder recorder;
    premi("cmdCancel");
    tenuta.CancelUpdate();
    EXPECT_EQ(recorder.holding("UPDATE [link_programma]").size(), 1U);
    EXPECT_EQ(registro(), (Rows{{"NULL", "NULL", "NULL", "prima", "NULL", "NULL"}}));
    EXPECT_FALSE(fonti.calls().empty());
    aspettaConsole();
}

// As a server's name comes from where it is copied.
TEST_F(RegistraCampi, LineBreaksPastedIntoTheFieldsDoNotReachThePointerFiles) {
    for (const char* fine : {"\n", "\r\n", "\r"}) {
        for (const char* nome : {"txtServer", "txtUID", "txtPWD"}) {
            SCOPED_TRACE(nome);
            const std::string prima = testo(nome);
            metti(nome, prima + fine);
            removeFile("C:\\vabo\\IndirizzoServer.txt");
            removeFile("C:\\vabo\\NomeServer.txt");
            premi("txtServer");
            EXPECT_EQ(fuoco(), "txtDatabase");
            EXPECT_EQ(indirizzo(), server + "\r\n");
            EXPECT_EQ(nomeServer(), campi().Server + "\r\n");
            metti(nome, prima);
        }
    }
    elenco("cboDrivers").setEditText("SQL Server\n");
    metti("txtServer", campi().Server + "\n");
    premi("cmdCancel");
    EXPECT_EQ(indirizzo(), server + "\r\n");
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(companyName()), "Tlv_Server", companyName()));
}

} // namespace
} // namespace vabo
