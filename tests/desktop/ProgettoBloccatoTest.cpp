// One lock of a project, from the start of the program to the rows of the ledger.

#include "desktop/AtTheDesktop.h"

#include <fstream>
#include <iterator>
#include <vector>

namespace {

using Rows = std::vector<support::TestWorkstation::Row>;

/// A row of the ledger: what it is there for, and its flag and date before and after the lock.
struct LedgerRow {
    const char* what;
    int transaction;
    const char* day;
    const char* reported; ///< null where it is nullptr
    int account;
    int project;
    int currency;
    int section; ///< of VAT
    int definito;
    int definitoAfter;
    const char* reportedAfter;
};

constexpr int kProject = 10000003, kOtherProject = 10000004;
constexpr int kPlain = 1200, kDefinitive = 1051, kHeadquarters = 1167;
constexpr int kEuro = 1001, kShilling = 1005;

// The balance is of 31/12/2023, the lock of 30/04/2024.
constexpr LedgerRow kLedger[] = {
    {"reported before", 1, "20240210", "20240310", kPlain, kProject, kEuro, 0, 0, -1, "2024-03-10"},
    {"reported on the day", 2, "20240210", "20240430", kPlain, kProject, kEuro, 0, 0, -1, "2024-04-30"},
    {"reported later", 3, "20240210", "20240501", kPlain, kProject, kEuro, 0, -1, 0, "2024-05-01"},
    {"later, but of the balance", 4, "20231231", "20240501", kPlain, kProject, kEuro, 0, -1, -1, "2024-05-01"},
    {"open in the balance", 5, "20231130", "20240501", kPlain, kProject, kEuro, 0, 0, 0, "2024-05-01"},
    {"never reported", 6, "20240210", nullptr, kPlain, kProject, kEuro, 0, -1, 0, nullptr},
    {"VAT", 7, "20240601", "20240630", kPlain, kProject, kEuro, 1, 0, -1, "2024-06-01"},
    {"beside the VAT", 7, "20240601", "20240630", kPlain, kOtherProject, kEuro, 0, 0, -1, "2024-06-01"},
    {"definitive account", 8, "20240115", "20240430", kDefinitive, kProject, kEuro, 0, 0, -1, "2024-01-15"},
    {"headquarters", 9, "20240701", "20240731", kHeadquarters, kProject, kEuro, 0, 0, -1, "2024-07-01"},
    {"another currency", 10, "20240701", "20240731", kPlain, kProject, kShilling, 0, 0, -1, "2024-07-01"},
    {"another project", 11, "20240210", "20240310", kPlain, kOtherProject, kEuro, 0, 0, 0, "2024-03-10"},
};

std::string quotedOrNull(const char* date) {
    return date == nullptr ? "null" : "'" + std::string(date) + "'";
}

class ProgettoBloccato : public AtTheDesktop {
protected:
    static constexpr const char* kLock = "Aggiorna Data Definitiva Progetto";

    void writeLedger() const {
        workstation.run(support::kCompany, "delete from partitadoppia");
        for (const LedgerRow& row : kLedger) {
            // A row in another currency has no value in the accounting currency.
            const std::string amount = row.currency == kEuro ? "12.50" : "0";
            workstation.run(support::kCompany,
                            "insert into partitadoppia (numerotransazione, idsede, datatransazione, datareport, "
                            "idconto, idprogettorendiconto, idsedecompetenza, Descrizione, importodepositi, "
                            "importoprelievi, idvaluta, seziva, definito) values (" +
                                std::to_string(row.transaction) + ", 1, '" + row.day + "', " +
                                quotedOrNull(row.reported) + ", " + std::to_string(row.account) + ", " +
                                std::to_string(row.project) + ", 4, '" + row.what + "', " + amount + ", 0, " +
                                std::to_string(row.currency) + ", " + std::to_string(row.section) + ", " +
                                std::to_string(row.definito) + ")");
        }
    }
    Rows ledger() const {
        return workstation.rows(support::kCompany,
                                "select Descrizione, definito, CONVERT(varchar(8), datatransazione, 112), "
                                "CONVERT(varchar(10), datareport, 120) from partitadoppia order by idautonumber");
    }
    static Rows lockedLedger() {
        Rows rows;
        for (const LedgerRow& row : kLedger) {
            rows.push_back({row.what, std::to_string(row.definitoAfter), row.day,
                            row.reportedAfter == nullptr ? "NULL" : row.reportedAfter});
        }
        return rows;
    }
    std::string lockOf(int project) const {
        return workstation.value(support::kCompany,
                                 "select CONVERT(varchar(10), iddate, 120) from progetti where ID = " +
                                     std::to_string(project));
    }
    std::string dataSources() const {
        std::ifstream file(workstation.dataSourceFile());
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(ProgettoBloccato, FromTheStartToTheLedger) {
    writeLedger();
    const auto program = startProgram();

    user().awaitWindow(kLogin);
    user().look("login");
    EXPECT_EQ(workstation.rows(support::kControlDatabase, "select L.dbname from link_programmaTerminale T "
                                                          "inner join link_programma L on T.ultimo = L.id"),
              (Rows{{support::kCompany}}))
        << "the terminal takes the first company";
    for (const char* source : {"[Tlv_server]", "[Tlv_Temp]", "[Tlv_Azienda]"}) {
        EXPECT_THAT(dataSources(), testing::HasSubstr(source));
    }
    EXPECT_EQ(workstation.value(support::kTemporaryDatabase, "select count(*) from Version"), "1");

    user().enter({U"amministratore", U"primavera"});
    user().awaitWindow(kConsole);
    user().press("alt+m");
    user().awaitWindow(kTables);
    user().press("Right", 3);
    user().look("tables");
    user().press("alt+p");

    user().awaitWindow(kLock);
    const QImage empty = user().look("lock");
    user().press("Down");
    user().type(U"sc");
    user().press("Return");
    user().look("date-of-the-project");
    user().type(U"31042024"); // no such day: the field keeps the focus, and its text is selected
    user().enter({U"", U"300424"});
    user().look("date");
    EXPECT_EQ(lockOf(kProject), "2024-03-31") << "as it was";
    user().press("Return");
    user().awaitSight(empty);
    EXPECT_EQ(lockOf(kProject), "2024-04-30");
    EXPECT_EQ(lockOf(kOtherProject), "2023-12-31");
    EXPECT_EQ(ledger(), lockedLedger());

    user().press("alt+c");
    user().awaitWindow(kTables);
    user().look("tables-again");
    user().press("alt+c");
    user().awaitWindow(kConsole);
    user().press("alt+F4");
    user().awaitOnlyHidden(kStart);
    EXPECT_TRUE(program->isRunning());
    program->kill();
    EXPECT_EQ(ledger(), lockedLedger()) << "whatever becomes of the program";
}

} // namespace
