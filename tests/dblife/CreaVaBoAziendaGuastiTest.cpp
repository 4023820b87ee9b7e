// The creation of the local databases where statements are refused, where some of it is there, and beside another
// workstation.

#include "CreaVaBoAziendaFixture.h"
#include "ado/Error.h"
#include "dblife/CreaVaBoAzienda.h"
#include "engine/errors/Error.h"
#include "session/ApriDbSede.h"
#include "support/SomebodyElse.h"
#include "support/StatementRecorder.h"

namespace vabo {
namespace {

class CreaVaBoAziendaGuasti : public CreaVaBoAzienda {
protected:
    void bareInstance() const {
        if (DbTemp.IsOpen()) {
            DbTemp.Close();
        }
        for (const char* name : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
            if (quantiDatabase(name) == "1") {
                workstation.drop(name);
            }
        }
    }
    bool hasTable(const std::string& table) const {
        return workstation.value(support::kControlDatabase,
                                 "select count(*) from sysobjects where name = '" + table + "'") == "1";
    }
};

TEST_F(CreaVaBoAziendaGuasti, WhicheverStatementIsRefusedAllOthersAreSentAndOnlyTheTemporaryDatabaseIsMissed) {
    const std::vector<std::string> all = tutteLeIstruzioni();
    ASSERT_EQ(all.size(), 41U);
    for (std::size_t refused = 0; refused < all.size(); ++refused) {
        SCOPED_TRACE(all[refused]);
        bareInstance();
        std::vector<std::string> sent;
        bool opened = false;
        {
            const support::SomebodyElse server([&](const std::string& text) {
                sent.push_back(text);
                if (sent.size() == refused + 1) {
                    throw ado::Error(ado::kUnspecified, "refused");
                }
            });
            EXPECT_NO_THROW(opened = ApriDbTemp());
        }
        // Without the control database there is no connection for its two tables.
        const bool control = all[refused] != kCreateControl;
        EXPECT_EQ(sent, std::vector<std::string>(all.begin(), all.end() - (control ? 0 : 2)));
        EXPECT_EQ(opened, all[refused] != kCreateTemporary);
        EXPECT_EQ(quantiDatabase("VaBoDatiTemp"), opened ? "1" : "0");
        ASSERT_EQ(quantiDatabase("VaBoDatiAzienda"), control ? "1" : "0");
        if (control) {
            EXPECT_EQ(hasTable("link_programma"), all[refused] != kCompanies);
            EXPECT_EQ(hasTable("link_programmaTerminale"), all[refused] != kTerminals);
        }
    }
}

TEST_F(CreaVaBoAziendaGuasti, WithBothDatabasesInPlaceOnlyTheMissingTablesAreMade) {
    CreaDatabaseControllo();
    for (const char* database : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
        workstation.run(database, "create table segno (id int not null)");
        workstation.run(database, "insert into segno (id) values (7)");
    }
    workstation.run(support::kControlDatabase, "DROP TABLE link_programma");
    workstation.run(support::kControlDatabase, "DROP TABLE link_programmaTerminale");
    const support::StatementRecorder recorder;
    CreaDatabaseControllo();
    EXPECT_EQ(recorder.texts(), tutteLeIstruzioni());
    EXPECT_EQ(quanteRighe("link_programma"), "0");
    EXPECT_EQ(quanteRighe("link_programmaTerminale"), "0");
    for (const char* database : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
        EXPECT_EQ(quantiDatabase(database), "1");
        EXPECT_EQ(workstation.value(database, "select id from segno"), "7") << "it is the same database";
    }
}

TEST_F(CreaVaBoAziendaGuasti, TheTablesAreMadeOnTheLocalServersTextWithTheControlDatabase) {
    CreaDatabaseControllo();
    EXPECT_EQ(DbTemp.ConnectionString(), Leggi_ServerLocal() + "DATABase=vabodatiazienda");
    EXPECT_FALSE(DbTemp.IsOpen());
}

/// Another workstation that sends each statement a moment earlier.
TEST_F(CreaVaBoAziendaGuasti, AWorkstationThatIsAlwaysASecondLateFindsEverythingMade) {
    bareInstance();
    std::vector<std::string> sent;
    {
        const support::SomebodyElse other([&](const std::string& text) {
            sent.push_back(text);
            const bool table = text == kCompanies || text == kTerminals;
            try {
                workstation.run(table ? support::kControlDatabase : "master", text);
            } catch (const engine::Error&) {
                ADD_FAILURE() << "the first one of the two makes it: " << text;
            }
        });
        CreaDatabaseControllo();
    }
    EXPECT_EQ(sent, tutteLeIstruzioni());
    for (const char* database : {"VaBoDatiTemp", "VaBoDatiAzienda"}) {
        EXPECT_EQ(quantiDatabase(database), "1");
    }
    EXPECT_EQ(quanteRighe("link_programma"), "0");
    EXPECT_EQ(quanteRighe("link_programmaTerminale"), "0");
    EXPECT_TRUE(ApriDbTemp());
}

} // namespace
} // namespace vabo
