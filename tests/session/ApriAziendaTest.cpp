// Cases in which the wanted company is taken up.

#include "session/ApriAzienda.h"

#include "session/ApriDbSede.h"
#include "session/LinguaClient.h"
#include "session/SessionFixture.h"
#include "support/TestedDriver.h"

#include <filesystem>
#include <set>
#include <string>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;

class ApriAziendaTest : public SessionTest {
protected:
    void open(const std::string& database) {
        double id = idOf(database);
        ApriAzienda(id);
        EXPECT_EQ(id, idOf(database));
    }
    void setColumn(const std::string& database, const std::string& assignment) const {
        control("update link_programma set " + assignment + " where dbname = '" + database + "'");
    }
};

TEST_F(ApriAziendaTest, FillsTheGlobalStateFromTheCompanysRow) {
    double id = idOf(kOtherCompany);
    ApriAzienda(id);

    EXPECT_EQ(id, idOf(kOtherCompany));
    EXPECT_EQ(IdAzienda, id);
    EXPECT_EQ(IdAziendaLavoro, id);
    EXPECT_EQ(NomeAzienda, "Fondazione Il Ponte");
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
    EXPECT_EQ(UtenteDb, controlValue("select nRoot from link_programma where dbname = 'VaBoDatiPonte'"));
    EXPECT_EQ(PasswordDb, controlValue("select Npassw from link_programma where dbname = 'VaBoDatiPonte'"));
    EXPECT_EQ(NomeServer, workstation.serverName());
    EXPECT_EQ(StringaAzienda, server + "DATABase=VaBoDatiPonte;");
    EXPECT_EQ(StringaAziendaCopia, StringaAzienda);
    EXPECT_EQ(CartellaFile, "C:\\Vabo\\Files");
    EXPECT_EQ(FileLocale, "tlv_locale_ponte.mdb");
    EXPECT_EQ(PercorsoFileLocale, "C:\\Vabo\\Files\\tlv_locale_ponte.mdb");
    EXPECT_EQ(StringaLocale, "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\tlv_locale_ponte.mdb;");
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_EQ(NomeDsn, "Tlv_server");
}

TEST_F(ApriAziendaTest, LeavesTheCompanyOpenTheControlDatabaseClosedAndNoRecordset) {
    DbLocale = std::make_unique<ado::Connection>();
    open(kOtherCompany);
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(DbAzienda.ConnectionString(), server + "DATABase=VaBoDatiPonte");
    EXPECT_FALSE(DbControllo.IsOpen());
    EXPECT_EQ(DbControllo.ConnectionString(), server + "DATABase=vabodatiazienda");
    EXPECT_EQ(DbLocale, nullptr);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(ApriAziendaTest, SendsItsStatementsLetterForLetter) {
    ASSERT_TRUE(ApriDbTemp());
    double id = idOf(kOtherCompany);
    const std::string number = textOf(id);
    const std::string clearOwn = "update link_programmaTerminale set ultimo = 0 where   nometerminale = 'POSTO_7'";
    const std::string setOwn =
        "update link_programmaTerminale set ultimo = " + number + " where   nometerminale = 'POSTO_7'";
    const std::string exists = "SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiPonte'";
    setTerminal("POSTO_7", 1);

    const support::StatementRecorder recorder;
    ApriAzienda(id);

    EXPECT_EQ(recorder.texts(),
              (std::vector<std::string>{
                  clearOwn, setOwn, "Select * from link_programmaTerminale where   Nometerminale = 'POSTO_7'",
                  "Select * from link_programma  where   id = " + number,
                  "Create table LinguaClient (id int null, Lingua Nvarchar(2) Null )",
                  "select * from LinguaClient where id = 1", recorder.holding("INSERT").at(0), setOwn, exists, exists,
                  "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null"}));
}

TEST_F(ApriAziendaTest, ATerminalWithoutARowGetsOne) {
    open(kOtherCompany);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kOtherCompany))}}));
}

TEST_F(ApriAziendaTest, TheTerminalsRowMovesToTheCompanyAndOthersStay) {
    setTerminal("POSTO_7", idOf(kCompany));
    setTerminal("POSTO_8", idOf(kCompany));
    open(kOtherCompany);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kOtherCompany))}, {"POSTO_8", textOf(idOf(kCompany))}}));
}

TEST_F(ApriAziendaTest, TerminalsWithoutANameAreDeletedAtTheEnd) {
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (N'', 1)");
    control("insert into link_programmaTerminale (Nometerminale, ultimo) values (null, 1)");
    open(kCompany);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}}));
}

TEST_F(ApriAziendaTest, ALaterCompanyReplacesTheOneBefore) {
    open(kCompany);
    open(kOtherCompany);
    EXPECT_EQ(DbAzienda.ConnectionString(), server + "DATABase=VaBoDatiPonte");
    EXPECT_EQ(NomeAzienda, "Fondazione Il Ponte");
    open(kCompany);
    EXPECT_EQ(NomeAzienda, "Associazione Aurora");
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}}));
}

TEST_F(ApriAziendaTest, TheMachinesNameIsNormalisedInPlace) {
    NomeTerminale = "POSTO-7";
    open(kCompany);
    EXPECT_EQ(NomeTerminale, "POSTO_7");
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}}));
}

TEST_F(ApriAziendaTest, WithoutANumberTheTerminalsCompanyIsTakenAndBecomesTheChoice) {
    setTerminal("POSTO_7", idOf(kOtherCompany));
    double id = 0;
    ApriAzienda(id);
    EXPECT_EQ(id, idOf(kOtherCompany));
    EXPECT_EQ(IdAziendaScelta, id);
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
}

TEST_F(ApriAziendaTest, WithoutANumberAndARowTheFirstCompanyIsTakenAndTheTerminalGetsItsRow) {
    double id = 0;
    ApriAzienda(id);
    EXPECT_EQ(id, idOf(kCompany));
    EXPECT_EQ(IdAziendaScelta, id);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(idOf(kCompany))}}));
}

TEST_F(ApriAziendaTest, ANumberPassedInIsNotTheUsersChoice) {
    IdAziendaScelta = 7;
    open(kOtherCompany);
    EXPECT_EQ(IdAziendaScelta, 7);
}

TEST_F(ApriAziendaTest, TheGlobalNumberItselfMayBePassed) {
    IdAziendaLavoro = idOf(kOtherCompany);
    ApriAzienda(IdAziendaLavoro);
    EXPECT_EQ(IdAziendaLavoro, idOf(kOtherCompany));
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
    IdAziendaLavoro = 0;
    ApriAzienda(IdAziendaLavoro);
    EXPECT_EQ(IdAziendaLavoro, idOf(kOtherCompany)) << "the terminal's own row by now";
}

TEST_F(ApriAziendaTest, TheGlobalChoiceItselfMayBePassed) {
    IdAziendaScelta = 0;
    ApriAzienda(IdAziendaScelta);
    EXPECT_EQ(IdAziendaScelta, idOf(kCompany));
}

TEST_F(ApriAziendaTest, AnEmptyColumnKeepsTheValueOfTheCompanyBefore) {
    setColumn(kOtherCompany, "NomeAzienda = '', nRoot = null, Npassw = ' '");
    open(kCompany);
    UtenteDb = "utente";
    PasswordDb = "password";
    open(kOtherCompany);
    EXPECT_EQ(NomeAzienda, "Associazione Aurora");
    EXPECT_EQ(UtenteDb, "utente");
    EXPECT_EQ(PasswordDb, "password");
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
}

class LocalFile : public ApriAziendaTest,
                  public testing::WithParamInterface<std::tuple<const char*, const char*, const char*>> {};

TEST_P(LocalFile, DefaultsByLanguageWhileItsTextsPointAtNoFile) {
    const auto& [column, language, expected] = GetParam();
    setColumn(kCompany, std::string("tlv_sql = ") + column);
    LeggiLinguaClient(language);
    FileLocale = "di prima.mdb";
    open(kCompany);
    EXPECT_EQ(LinguaCorrente, language);
    EXPECT_EQ(FileLocale, expected);
    EXPECT_EQ(StringaLocale, "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\;");
    EXPECT_EQ(PercorsoFileLocale, "C:\\Vabo\\Files\\");
}

INSTANTIATE_TEST_SUITE_P(ApriAziendaTest, LocalFile,
                         testing::Values(std::tuple("null", "IT", "tlv_locale_sql.mdb"),
                                         std::tuple("''", "IT", "tlv_locale_sql.mdb"),
                                         std::tuple("''", "EN", "tlv_locale_sqlEN.mdb"),
                                         std::tuple("''", "en", "tlv_locale_sql.mdb"),
                                         std::tuple("''", "FR", "tlv_locale_sql.mdb")));

TEST_F(ApriAziendaTest, TheFolderOfTheLocalFilesIsMadeAndNoOther) {
    const auto folders = [&] {
        std::set<std::string> found;
        const auto drive = workstation.driveC().real("C:\\");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(drive)) {
            if (entry.is_directory()) {
                found.insert(entry.path().string());
            }
        }
        return found;
    };
    std::filesystem::create_directories(workstation.driveC().real("C:\\Vabo\\Files"));
    const std::set<std::string> before = folders();
    std::filesystem::remove_all(workstation.driveC().real("C:\\Vabo\\Files"));
    open(kCompany);
    EXPECT_TRUE(workstation.driveC().isFolder("C:\\vabo\\files"));
    EXPECT_EQ(folders(), before);
}

TEST_F(ApriAziendaTest, TheLocalTextsFallbackFileIsWrittenOnTheWay) {
    VABO_NEEDS(support::capabilities().composedLocalName);
    removeFile("C:\\vabo\\Leggi_ServerLocal.txt");
    removeFile("C:\\vabo\\IndirizzoServerLocal.txt");
    open(kCompany);
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"),
              "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;\r\n");
}

TEST_F(ApriAziendaTest, WithoutALocalInstanceTheCompanyIsTakenUpAllTheSame) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Server=127.0.0.1,9;\r\n");
    open(kOtherCompany);
    EXPECT_EQ(LinguaCorrente, "IT");
    EXPECT_TRUE(DbAzienda.IsOpen());
}

TEST_F(ApriAziendaTest, ACompanyThatCannotBeOpenedThoughItExistsIsTakenUpClosedAndSilent) {
    const std::string file = controlValue("select IndirizzoMdf from link_programma where dbname = 'VaBoDatiPonte'");
    ASSERT_TRUE(workstation.driveC().isFile(file)) << file;
    workstation.putFile(file, std::string(8192, 'x'));
    open(kOtherCompany);
    EXPECT_FALSE(DbAzienda.IsOpen());
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
    EXPECT_EQ(StringaAzienda, server + "DATABase=VaBoDatiPonte;");
}

TEST_F(ApriAziendaTest, ACompanyWithoutADatabaseKeepsTheOneBeforeOpen) {
    open(kCompany);
    control("insert into link_programma (NomeAzienda, nRoot, Npassw, tlv_sql) values "
            "('Senza archivio', 'u', 'p', 'senza.mdb')");
    double id = std::stod(controlValue("select id from link_programma where NomeAzienda = 'Senza archivio'"));
    const double expected = id;

    ApriAzienda(id);

    EXPECT_EQ(id, expected);
    EXPECT_EQ(IdAzienda, expected);
    EXPECT_EQ(IdAziendaLavoro, expected);
    EXPECT_EQ(NomeAzienda, "Senza archivio");
    EXPECT_EQ(UtenteDb + "/" + PasswordDb, "u/p");
    EXPECT_EQ(NomeDatabase, "VaBoDatiAurora");
    EXPECT_EQ(PercorsoFileLocale, "C:\\Vabo\\Files\\senza.mdb");
    EXPECT_EQ(FileLocale, "tlv_locale_sql.mdb");
    EXPECT_EQ(StringaAzienda, "Provider=SQLOLEDB;Data Source=" + workstation.serverName() +
                                  ";Integrated Security=SSPIDATABase=vabodati");
    EXPECT_EQ(StringaAziendaCopia, server + "DATABase=VaBoDatiAurora;");
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(expected)}}));
}

TEST_F(ApriAziendaTest, ACompanyWithoutADatabaseAndALocalFileKeepsThePathBefore) {
    open(kCompany);
    control("insert into link_programma (NomeAzienda, tlv_sql) values ('Senza archivio', null)");
    double id = std::stod(controlValue("select id from link_programma where NomeAzienda = 'Senza archivio'"));
    ApriAzienda(id);
    EXPECT_EQ(PercorsoFileLocale, "C:\\Vabo\\Files\\tlv_locale_sql.mdb");
}

TEST_F(ApriAziendaTest, AFolderOfLocalFilesThatCanNotBeMadeIsSkipped) {
    const std::filesystem::path folder = workstation.driveC().real("C:\\vabo\\Files");
    std::filesystem::remove_all(folder);
    std::ofstream(folder) << "a file in the folder's place";
    double id = idOf(kCompany);
    ApriAzienda(id);
    EXPECT_EQ(CartellaFile, "C:\\Vabo\\Files");
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(NomeDatabase, kCompany);
}

} // namespace
