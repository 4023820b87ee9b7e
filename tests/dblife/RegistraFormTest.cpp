#include "RegistraFormFixture.h"

namespace vabo {
namespace {

using support::kCompany;
using support::kOtherCompany;

/// The test of a server, which Enter in a field starts.
using RegistraProva = RegistraForm;

/// The registration of a company.
class Registra : public RegistraForm {
protected:
    Registra() { apri(); }
    void registra() { premi("cmdCancel"); }
    CampiAzienda conNome(const std::string& azienda) const {
        CampiAzienda tutti = campi();
        tutti.Azienda = azienda;
        return tutti;
    }
};

TEST_F(RegistraProva, AServerThatAnswersIsWrittenDown) {
    apri();
    workstation.putFile("C:\\vabo\\NomeServer.txt", "altro\r\naltro\r\n");
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    premi("txtServer");
    EXPECT_EQ(indirizzo(), server + "\r\n");
    EXPECT_EQ(nomeServer(), testo("txtServer") + "\r\n");
    EXPECT_EQ(fuoco(), "txtDatabase");
    EXPECT_TRUE(fonti.calls().empty());
}

TEST_F(RegistraProva, TheTextHoldsDriverServerUserAndPasswordAsTheyStand) {
    apri();
    elenco("cboDrivers").setEditText("sql server");
    premi("txtServer", Qt::Key_Tab);
    EXPECT_EQ(indirizzo(), "Driver=sql server;Server=" + campi().Server + ";UID=" + campi().Utente +
                               ";PWD=" + campi().Password + ";\r\n");
    EXPECT_EQ(fuoco(), "txtDatabase");
}

TEST_F(RegistraProva, AWrongOneIsToldAndTheFocusStays) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        metti("txtServer", kServerSpento);
        script.expectMessage("Wrong connection");
        premi("txtServer", tasto);
        EXPECT_EQ(fuoco(), "txtServer");
        metti("txtServer", campi().Server);
        metti("txtPWD", "sbagliata");
        script.expectMessage("Wrong connection");
        premi("txtServer", tasto);
        EXPECT_EQ(fuoco(), "txtServer");
        metti("txtPWD", campi().Password);
    }
    aspettaNienteDiFatto();
}

TEST_F(RegistraProva, WithNeitherServerNorDatabaseNothingIsTested) {
    apri();
    for (const char* niente : {"", "0", " "}) {
        for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
            metti("txtServer", niente);
            metti("txtDatabase", niente);
            premi("txtServer", tasto);
            EXPECT_EQ(fuoco(), "txtServer") << niente;
        }
    }
    aspettaNienteDiFatto();
}

TEST_F(RegistraProva, OneOfTheTwoIsEnough) {
    apri();
    metti("txtServer", "");
    script.expectMessage("Wrong connection");
    premi("txtServer");
    EXPECT_EQ(fuoco(), "txtServer");
    metti("txtServer", campi().Server);
    metti("txtDatabase", "");
    premi("txtServer");
    EXPECT_EQ(fuoco(), "txtDatabase");
}

TEST_F(RegistraProva, AFileThatCanNotBeWrittenIsTold) {
    apri();
    removeFile("C:\\vabo\\NomeServer.txt");
    workstation.driveC().makeFolder("C:\\vabo\\NomeServer.txt");
    script.expectMessage("Path/File access error");
    premi("txtServer");
    EXPECT_EQ(fuoco(), "txtServer");
}

TEST_F(Registra, WritesTheAddressAndRegistersThreeDataSourcesAndCloses) {
    const std::string nome = companyName();
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    workstation.putFile("C:\\vabo\\NomeServer.txt", "altro\r\n");
    registra();
    EXPECT_EQ(indirizzo(), server + "\r\n");
    EXPECT_EQ(nomeServer(), "altro\r\n") << "the name is the server field's to write";
    CampiAzienda attesi = conNome(nome);
    attesi.Server = ado::ConnectionString(server).server();
    EXPECT_EQ(fonti.calls(), registrazioni(attesi, "Tlv_Server", nome));
    EXPECT_EQ(NomeDsn, "Tlv_Server");
    aspettaConsole();
}

TEST_F(Registra, TakesTheFieldsAsTheyAreAndTheLastDescriptionFromTheCompany) {
    metti("Nome_Odbc", "Contabilita");
    metti("Nome_Az", "Nuovo nome");
    metti("txtDatabase", kOtherCompany);
    const std::string aperta = NomeAzienda;
    registra();
    CampiAzienda attesi = conNome("Nuovo nome");
    attesi.Database = kOtherCompany;
    EXPECT_EQ(fonti.calls(), registrazioni(attesi, "Contabilita", aperta));
    EXPECT_EQ(NomeDsn, "Contabilita");
    EXPECT_EQ(NomeAzienda, aperta);
}

TEST_F(Registra, ALongNameIsCutForTheRegistryAlone) {
    const std::string lungo = "Fonte_di_trentuno_caratteri_xyz";
    ASSERT_EQ(lungo.size(), 31U);
    metti("Nome_Odbc", lungo);
    registra();
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(companyName()), "Fonte_di_trentuno_caratteri_xy", companyName()));
    EXPECT_EQ(NomeDsn, lungo);
}

TEST_F(Registra, TheDataSourceChosenInTheListIsNotTheOneRegistered) {
    gui.forms().unload(kForm);
    fonti.names = {"Altra"};
    AzzeraPilaForm();
    apri();
    vaiA("cboDSNList");
    gui.press(Qt::Key_Down);
    ASSERT_FALSE(abilitato("txtServer"));
    registra();
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(companyName()), "Tlv_Server", companyName()));
    aspettaConsole();
}

TEST_F(Registra, WithoutDatabaseOrServerNothingHappens) {
    for (const char* nome : {"txtDatabase", "txtServer"}) {
        for (const char* niente : {"", " ", "0"}) {
            const std::string prima = testo(nome);
            metti(nome, niente);
            registra();
            metti(nome, prima);
            EXPECT_EQ(fuoco(), "cmdCancel");
        }
    }
    aspettaNienteDiFatto();
    EXPECT_EQ(NomeDsn, "Tlv_Server");
}

TEST_F(Registra, AServerThatRefusesIsToldWithoutADatabase) {
    for (const auto& [nome, valore] :
         {std::pair{"txtServer", kServerSpento}, std::pair{"txtPWD", "sbagliata"}, std::pair{"txtUID", "nessuno"}}) {
        const std::string prima = testo(nome);
        metti(nome, valore);
        script.expectMessage("La connessione \n\n non è valida");
        registra();
        EXPECT_TRUE(script.allShown()) << nome;
        metti(nome, prima);
    }
    aspettaNienteDiFatto();
}

TEST_F(Registra, ADatabaseThatDoesNotOpenIsToldByItsPieceAndMayBeCorrected) {
    metti("txtDatabase", "niente");
    metti("Nome_Odbc", "Contabilita");
    script.expectMessage("La connessione \nDatabase=niente;\n non è valida");
    registra();
    aspettaNienteDiFatto();
    EXPECT_EQ(NomeDsn, "Contabilita") << "it is taken first";
    script.expectMessage("La connessione \n\n non è valida");
    metti("txtPWD", "sbagliata");
    registra();
    metti("txtPWD", campi().Password);
    metti("txtDatabase", kCompany);
    registra();
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(companyName()), "Contabilita", companyName()));
    aspettaConsole();
}

TEST_F(Registra, TheAddressIsWrittenBeforeTheDatabaseIsTried) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    metti("txtDatabase", "niente");
    script.expectMessage("La connessione \nDatabase=niente;\n non è valida");
    registra();
    EXPECT_EQ(indirizzo(), server + "\r\n");
    EXPECT_TRUE(fonti.calls().empty());
}

TEST_F(Registra, AnAddressThatCanNotBeWrittenIsToldAndNothingIsRegistered) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    workstation.driveC().makeFolder("C:\\vabo\\IndirizzoServer.txt");
    script.expectMessage("Path/File access error");
    registra();
    EXPECT_TRUE(fonti.calls().empty());
    EXPECT_EQ(gui.visibleForms(), kForm);
}

TEST_F(Registra, TheFirstRowOfTheRegistryInTheCompanysDatabaseIsWritten) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    workstation.run(kCompany, "insert into link_programma (NomeAzienda) values ('seconda')");
    const Rows controllo = registro(support::kControlDatabase);
    metti("Nome_Az", "L'altra");
    const support::StatementRecorder statements;
    registra();
    EXPECT_EQ(statements.count("Select * from link_programma ORDER BY ID"), 1);
    EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, "L'altra", campi().Utente, campi().Password},
                                {"NULL", "NULL", "NULL", "seconda", "NULL", "NULL"}}));
    EXPECT_EQ(registro(support::kControlDatabase), controllo);
    aspettaConsole();
}

TEST_F(Registra, AnEmptyRegistryIsPassedOverInSilence) {
    workstation.run(kCompany, kCreaRegistro);
    registra();
    EXPECT_TRUE(registro().empty());
    EXPECT_EQ(fonti.calls(), registrazioni(conNome(companyName()), "Tlv_Server", companyName()));
    aspettaConsole();
}

TEST_F(Registra, DataSourcesThatAreRefusedGiveNoMessage) {
    fonti.refusesRegistration = true;
    registra();
    EXPECT_FALSE(fonti.calls().empty());
    aspettaConsole();
}

TEST_F(Registra, GivesTheSharedRecordsetsBack) {
    RsCondivisi(5).Open("select 1 as uno", DbAzienda);
    registra();
    EXPECT_FALSE(RsCondivisi(5).IsOpen());
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
}

TEST_F(Registra, ClosingChangesNothing) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    const Rows prima = registro();
    metti("txtServer", "altro");
    metti("Nome_Odbc", "altra");
    premi("Command1");
    EXPECT_EQ(indirizzo(), server + "\r\n");
    EXPECT_EQ(nomeServer(), campi().Server + "\r\n");
    EXPECT_TRUE(fonti.calls().empty());
    EXPECT_EQ(registro(), prima);
    EXPECT_EQ(NomeDsn, "Tlv_Server");
    aspettaConsole();
}

TEST_F(Registra, TheWindowsOwnCloseIsTheSame) {
    gui.form(kForm).close();
    aspettaConsole();
}

TEST_F(Registra, WhatWasTypedDiesWithTheForm) {
    metti("Nome_Az", "altro");
    premi("Command1");
    support::Gui::handleEvents();
    apri();
    EXPECT_EQ(testo("Nome_Az"), companyName());
}

} // namespace
} // namespace vabo
