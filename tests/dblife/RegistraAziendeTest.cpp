#include "RegistraFixture.h"
#include "platform/DriveC.h"

#include <gmock/gmock.h>

namespace vabo {
namespace {

using support::kCompany;

class RegistraAziende : public ConFonti<SessionTest> {
protected:
    ado::Connection& azienda() {
        azienda_.Open(StringaServer(campi()) + PezzoDatabase(campi()));
        return azienda_;
    }

private:
    ado::Connection azienda_;
};

TEST_F(RegistraAziende, TheCompanyChosenIsTakenUpAndTheChoiceStays) {
    IdAziendaScelta = idOf(support::kOtherCompany);
    PrendiAziendaScelta();
    EXPECT_EQ(NomeDatabase, support::kOtherCompany);
    EXPECT_EQ(IdAziendaScelta, idOf(support::kOtherCompany));
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(RegistraAziende, AChoiceWithoutADatabaseStaysWhileAnotherCompanyIsTakenUp) {
    IdAziendaScelta = idOf(support::kOtherCompany);
    drop(support::kOtherCompany);
    PrendiAziendaScelta();
    EXPECT_EQ(NomeDatabase, kCompany);
    EXPECT_EQ(IdAziendaScelta, idOf(support::kOtherCompany));
}

TEST_F(RegistraAziende, TheClientIsKnownByItsNameInSmallLettersAndForgottenWithIt) {
    control("update link_programma set NomeAzienda = 'Gruppo dornavel srl'");
    PrendiAziendaScelta();
    EXPECT_EQ(ClienteDornavel, kVero);
    control("update link_programma set NomeAzienda = 'Gruppo DORNAVEL'");
    PrendiAziendaScelta();
    EXPECT_EQ(ClienteDornavel, kFalso);
}

TEST_F(RegistraAziende, TheFieldsStartFromTheCompany) {
    PrendiAziendaScelta();
    const CampiAzienda iniziali = CampiIniziali();
    EXPECT_EQ(iniziali.Driver, "SQL Server");
    EXPECT_EQ(iniziali.Server, campi().Server);
    EXPECT_EQ(iniziali.Database, kCompany);
    EXPECT_EQ(iniziali.Utente, controlValue("select nRoot from link_programma where id = 1"));
    EXPECT_EQ(iniziali.Password, controlValue("select Npassw from link_programma where id = 1"));
    EXPECT_EQ(iniziali.Fonte, "Tlv_Server");
    EXPECT_EQ(iniziali.Azienda, NomeAzienda);
}

TEST_F(RegistraAziende, WhatCountsAsNothingHasADefault) {
    for (const char* niente : {"", " ", "0", "0000"}) {
        NomeAzienda = NomeServer = NomeDatabase = UtenteDb = PasswordDb = niente;
        const CampiAzienda iniziali = CampiIniziali();
        EXPECT_EQ(iniziali.Azienda, "Azienda") << niente;
        EXPECT_EQ(iniziali.Server, "") << niente;
        EXPECT_EQ(iniziali.Database, "VaboDati") << niente;
        EXPECT_EQ(iniziali.Utente, "") << niente;
        EXPECT_EQ(iniziali.Password, "") << niente;
    }
}

TEST_F(RegistraAziende, TheConnectionTextIsMadeOfTheFieldsAsTheyAre) {
    EXPECT_EQ(StringaServer({"SQL Server", "CENTRALE\\sql", "VaboDati", "sa", "segreta", "x", "y"}),
              "Driver=SQL Server;Server=CENTRALE\\sql;UID=sa;PWD=segreta;");
    EXPECT_EQ(StringaServer({}), "Driver=;Server=;UID=;PWD=;");
    EXPECT_EQ(StringaServer({"a", "b;c", "", "0", "", "", ""}), "Driver=a;Server=b;c;UID=0;PWD=;");
    EXPECT_EQ(PezzoDatabase({"", "", "VaboDati", "", "", "", ""}), "Database=VaboDati;");
}

TEST_F(RegistraAziende, AConnectionIsValidWhereItOpens) {
    EXPECT_TRUE(ConnessioneValida(StringaServer(campi())));
    EXPECT_TRUE(ConnessioneValida(StringaServer(campi()) + PezzoDatabase(campi())));
    EXPECT_FALSE(ConnessioneValida(StringaServer(campi()) + "Database=niente;"));
    CampiAzienda altri = campi();
    altri.Password += "x";
    EXPECT_FALSE(ConnessioneValida(StringaServer(altri)));
    altri = campi();
    altri.Server = kServerSpento;
    EXPECT_FALSE(ConnessioneValida(StringaServer(altri)));
    EXPECT_FALSE(ConnessioneValida(""));
}

TEST_F(RegistraAziende, AnAddressIsTheOnlyLineOfItsFile) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", "una riga\r\nun'altra\r\n");
    workstation.putFile("C:\\vabo\\NomeServer.txt", "una riga molto più lunga\nun'altra\n");
    ScriviIndirizzoServer("Driver=d;Server=s;UID=u;PWD=p;");
    ScriviNomeServer("s");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServer.txt"), "Driver=d;Server=s;UID=u;PWD=p;\r\n");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NomeServer.txt"), "s\r\n");
}

TEST_F(RegistraAziende, AMissingFileIsMade) {
    removeFile("C:\\vabo\\IndirizzoServer.txt");
    removeFile("C:\\vabo\\NomeServer.txt");
    ScriviIndirizzoServer("x");
    ScriviNomeServer("y");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServer.txt"), "x\r\n");
    EXPECT_EQ(workstation.fileText("C:\\vabo\\NomeServer.txt"), "y\r\n");
}

TEST_F(RegistraAziende, AFileThatCanNotBeWrittenRaises) {
    const support::TestWorkstation senzaCartella(support::TestWorkstation::DriveC::Empty);
    EXPECT_THROW(ScriviIndirizzoServer("x"), platform::FileError);
    EXPECT_THROW(ScriviNomeServer("y"), platform::FileError);
}

TEST_F(RegistraAziende, TheFirstRowByItsNumberTakesTheFields) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "set identity_insert link_programma on; "
                              "insert into link_programma (id, NomeAzienda, dbname) values (7, 'seconda', 'b'); "
                              "insert into link_programma (id, NomeAzienda, dbname) values (3, 'prima', 'a')");
    const support::StatementRecorder statements;
    ScriviPrimaRiga(campi(), azienda());
    EXPECT_EQ(statements.count("Select * from link_programma ORDER BY ID"), 1);
    EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, "Onlus", campi().Utente, campi().Password},
                                {"NULL", "NULL", "b", "seconda", "NULL", "NULL"}}));
}

TEST_F(RegistraAziende, AUserThatCountsAsNothingIsWrittenEmpty) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "insert into link_programma (nRoot, Npassw) values ('sa', 'vecchia')");
    CampiAzienda senza = campi();
    senza.Utente = "0";
    senza.Password = " ";
    ScriviPrimaRiga(senza, azienda());
    EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, "Onlus", "", ""}}));
}

TEST_F(RegistraAziende, AValueThatDoesNotFitLeavesItsColumnAlone) {
    workstation.run(kCompany, kCreaRegistro);
    workstation.run(kCompany, "insert into link_programma (nRoot, Npassw) values ('sa', 'vecchia')");
    CampiAzienda lunga = campi();
    lunga.Password = std::string(51, 'x');
    ScriviPrimaRiga(lunga, azienda());
    EXPECT_EQ(registro(), (Rows{{"VaBoDati", campi().Server, kCompany, "Onlus", campi().Utente, "vecchia"}}));
}

TEST_F(RegistraAziende, WithoutRowsNothingIsWritten) {
    workstation.run(kCompany, kCreaRegistro);
    ScriviPrimaRiga(campi(), azienda());
    EXPECT_TRUE(registro().empty());
}

TEST_F(RegistraAziende, WithoutTheTableNothingHappensAndTheControlDatabaseStaysAsItIs) {
    const Rows prima = registro(support::kControlDatabase);
    ScriviPrimaRiga(campi(), azienda());
    EXPECT_EQ(registro(support::kControlDatabase), prima);
}

TEST_F(RegistraAziende, ThreeDataSourcesAreRegisteredTwiceEach) {
    NomeDsn = "Contabilita";
    NomeAzienda = "Associazione";
    RegistraFonti(campi());
    EXPECT_EQ(fonti.calls(), registrazioni(campi(), "Contabilita", "Associazione"));
}

TEST_F(RegistraAziende, ALongNameIsRegisteredUnderItsFirstThirtyCharacters) {
    NomeDsn = "Contabilità_della_sede_di_Romaa";
    RegistraFonti(campi());
    EXPECT_EQ(fonti.calls(), registrazioni(campi(), "Contabilità_della_sede_di_Roma", NomeAzienda));
}

TEST_F(RegistraAziende, ARefusedDataSourceStopsNoOther) {
    fonti.refusesRegistration = true;
    RegistraFonti(campi());
    std::vector<std::string> chieste;
    for (const std::string& chiamata : registrazioni(campi(), NomeDsn, NomeAzienda)) {
        if (chiamata.rfind("register", 0) == 0) {
            chieste.push_back(chiamata);
        }
    }
    EXPECT_EQ(fonti.calls(), chieste);
}

} // namespace
} // namespace vabo
