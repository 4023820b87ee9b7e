// How the terminal's row is written and read while a company is taken up.

#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/LinguaClient.h"
#include "session/SessionFixture.h"
#include "support/SomebodyElse.h"

#include <algorithm>

namespace {

using namespace vabo;
using support::kCompany;
using support::kOtherCompany;
using Texts = std::vector<std::string>;

constexpr const char* kReadTerminal = "Select * from link_programmaTerminale where   Nometerminale = 'POSTO_7'";
constexpr const char* kClearTerminal =
    "update link_programmaTerminale set ultimo = 0 where   nometerminale = 'POSTO_7'";
constexpr const char* kDeleteBlank =
    "delete from link_programmaTerminale where nometerminale = N'' or nometerminale is null";
constexpr const char* kLastOfTerminal =
    "Select * from link_programmaterminale where not nometerminale = N'' and   nometerminale = 'POSTO_7'";
constexpr const char* kFirstDatabase =
    "SELECT * FROM master.dbo.sysdatabases where name like 'vabodati%' and not name like '%azienda%'";

class ApriAziendaTerminale : public SessionTest {
protected:
    std::string setTo(double number) const {
        return "update link_programmaTerminale set ultimo = " + textOf(number) + " where   nometerminale = 'POSTO_7'";
    }
};

TEST_F(ApriAziendaTerminale, ATerminalAndAServerWithoutACompanySendTheirStatementsLetterForLetter) {
    control("delete from link_programma");
    noCompanyDatabases();
    setTerminal("POSTO_7", 0);
    double id = 0;
    script.expectMessage("Non è possibile caricare il DataBase");
    const support::StatementRecorder recorder;
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_EQ(recorder.texts(),
              (Texts{// AziendaTerminale
                     "delete from link_programmaTerminale where Nometerminale = N'' or Nometerminale is null",
                     "Select * from link_programmaTerminale where   Nometerminale like 'POSTO_7'",
                     "Select * from link_programma  order by dbname  ",
                     // UltimaAziendaTerminale
                     kDeleteBlank, kLastOfTerminal, kFirstDatabase, "Select * from link_programma where  dbname=''",
                     "Select * from link_programma  where   id = 0", kDeleteBlank,
                     // the number from the terminal's row
                     "delete from link_programmaTerminale where nometerminale is null", kReadTerminal,
                     // the choice is written and read again
                     kClearTerminal, setTo(0), kReadTerminal,
                     // the company, then the fallback
                     "Select * from link_programma  where   id = 0", kFirstDatabase,
                     "Select * from link_programma where  dbname=''"}));
}

TEST_F(ApriAziendaTerminale, TheChoiceIsReadBackFromTheTerminalsRow) {
    setTerminal("POSTO_7", idOf(kCompany));
    double id = idOf(kCompany);
    const double other = idOf(kOtherCompany);
    // Another process writes its choice between the two.
    const support::SomebodyElse somebody([&](const std::string& text) {
        if (text == kReadTerminal) {
            control("update link_programmaTerminale set ultimo = " + textOf(other));
        }
    });
    ApriAzienda(id);
    EXPECT_EQ(IdAziendaLavoro, other);
    EXPECT_EQ(NomeDatabase, kOtherCompany);
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(other)}}));
}

TEST_F(ApriAziendaTerminale, WithoutANumberTheTerminalsRowIsReadOnceMore) {
    control("delete from link_programma");
    noCompanyDatabases();
    setTerminal("POSTO_7", 0);
    Texts heard;
    bool meanwhile = false;
    // Another process writes its choice before that reading.
    const support::SomebodyElse somebody([&](const std::string& text) {
        heard.push_back(text);
        if (text != kReadTerminal || meanwhile) {
            return;
        }
        meanwhile = true;
        control("update link_programmaTerminale set ultimo = 42");
    });
    double id = 0;
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_EQ(std::count(heard.begin(), heard.end(), setTo(42)), 1) << "the number just read is the choice";
}

// With neither a row nor a number the recordset is at EOF, so nothing assigned to it is stored.
TEST_F(ApriAziendaTerminale, WithoutANumberItGetsNoRowBeforeACompanyIsFound) {
    ASSERT_TRUE(ApriDbTemp());
    LeggiLinguaClient("");
    control("delete from link_programma");
    setTerminal("POSTO_7", 0);
    Texts heard;
    bool meanwhile = false;
    // While the choice is written, another process deletes the terminal's row and adds the first company.
    const support::SomebodyElse somebody([&](const std::string& text) {
        if (meanwhile) {
            heard.push_back(text);
        }
        if (meanwhile || !text.starts_with("update link_programmaTerminale")) {
            return;
        }
        meanwhile = true;
        control("delete from link_programmaTerminale");
        control("insert into link_programma (NomeAzienda, dbname) values ('Aurora', 'VaBoDatiAurora')");
    });
    double id = 0;
    ApriAzienda(id);
    EXPECT_EQ(id, idOf(kCompany));
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(id)}}));
    const std::string aurora = "Select * from link_programma where  dbname='VaBoDatiAurora'";
    Texts expected = {setTo(0), kReadTerminal,
                      // whether there is a company, and which; no row is written
                      kFirstDatabase, aurora, kFirstDatabase, aurora,
                      // zero isn't a company, so the first one is taken
                      "Select * from link_programma  where   id = 0", kFirstDatabase, aurora, kFirstDatabase, aurora,
                      kFirstDatabase, aurora, kFirstDatabase, aurora,
                      // this attempt has a number and adds the row
                      kClearTerminal, setTo(id), kReadTerminal};
    ASSERT_GT(heard.size(), expected.size() + 1);
    EXPECT_EQ(Texts(heard.begin(), heard.begin() + static_cast<long>(expected.size())), expected);
    EXPECT_TRUE(heard[expected.size()].starts_with("INSERT")) << heard[expected.size()];
}

// Where the local server has no pointer file, its connection text overwrites Appoggio, which held the terminal's name.
TEST_F(ApriAziendaTerminale, WithoutALocalPointerFileTheLastUpdateNamesTheLocalServerInsteadOfTheTerminal) {
    removeFile("C:\\vabo\\Leggi_ServerLocal.txt");
    double id = idOf(kCompany);
    const support::StatementRecorder recorder;
    ApriAzienda(id);
    EXPECT_EQ(
        recorder.holding("update link_programmaTerminale"),
        (Texts{kClearTerminal, setTo(id),
               "update link_programmaTerminale set ultimo = " + textOf(id) +
                   " where   nometerminale = 'Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;'"}));
    EXPECT_EQ(terminals(), (Rows{{"POSTO_7", textOf(id)}}));
}

TEST_F(ApriAziendaTerminale, ACompanyWithoutADatabaseNamesTheServerOfTheMoment) {
    double id = idOf(kCompany);
    ApriAzienda(id);
    control("insert into link_programma (NomeAzienda) values ('Senza archivio')");
    id = std::stod(controlValue("select id from link_programma where dbname is null"));
    NomeServer = "un altro";
    ApriAzienda(id);
    EXPECT_EQ(StringaAzienda, "Provider=SQLOLEDB;Data Source=" + workstation.serverName() +
                                  ";Integrated Security=SSPIDATABase=vabodati");
}

TEST_F(ApriAziendaTerminale, ACompanyWithoutADatabaseTakesBackTheSharedRecordsets) {
    double id = idOf(kCompany);
    ApriAzienda(id);
    control("insert into link_programma (NomeAzienda) values ('Senza archivio')");
    id = std::stod(controlValue("select id from link_programma where dbname is null"));
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    ApriAzienda(id);
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
}

} // namespace
