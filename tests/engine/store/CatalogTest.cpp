#include "engine/store/Catalog.h"

#include "engine/ExpectError.h"
#include "engine/store/Sqlite.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace engine {
namespace {

using Kind = DataType::Kind;

ColumnInfo column(const std::string& name, Kind kind, int length = 0) {
    ColumnInfo made;
    made.name = name;
    made.type.kind = kind;
    made.type.length = length;
    return made;
}

TableInfo progetti() {
    TableInfo table;
    table.name = "Progetti";
    ColumnInfo id = column("id", Kind::Int);
    id.nullable = false;
    id.identity = true;
    id.seed = 10;
    id.increment = 5;
    ColumnInfo description = column("Citt\u00e0", Kind::NVarChar, 255);
    description.defaultText = "N'x'";
    description.defaultName = "DF_citta";
    ColumnInfo amount = column("Importo", Kind::Decimal);
    amount.type.precision = 18;
    amount.type.scale = 2;
    table.columns = {id, description, amount};
    table.keys = {{"PK_progetti", true, {"id"}}, {"U_progetti", false, {"Importo", "Citt\u00e0"}}};
    return table;
}

class CatalogOfTwo : public testing::Test {
protected:
    support::TemporaryFolder folder;
    sqlite::Connection connection{folder.path() / "a.mdf", true};
    sqlite::Connection otherConnection{folder.path() / "a.mdf", true};
    Catalog catalog{connection};
    Catalog other{otherConnection};
};

void expectProgetti(const TableInfo* table) {
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->name, "Progetti");
    ASSERT_EQ(table->columns.size(), 3U);
    const TableInfo wanted = progetti();
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(table->columns[i].name, wanted.columns[i].name);
        EXPECT_EQ(table->columns[i].type, wanted.columns[i].type);
        EXPECT_EQ(table->columns[i].nullable, wanted.columns[i].nullable);
        EXPECT_EQ(table->columns[i].defaultText, wanted.columns[i].defaultText);
        EXPECT_EQ(table->columns[i].defaultName, wanted.columns[i].defaultName);
    }
    ASSERT_NE(table->identity(), nullptr);
    EXPECT_EQ(table->identity()->seed, 10);
    EXPECT_EQ(table->identity()->increment, 5);
    ASSERT_NE(table->primaryKey(), nullptr);
    EXPECT_EQ(table->primaryKey()->name, "PK_progetti");
    ASSERT_EQ(table->keys.size(), 2U);
    EXPECT_FALSE(table->keys[1].primary);
    EXPECT_EQ(table->keys[1].columns, (std::vector<std::string>{"Importo", "Citt\u00e0"}));
}

TEST_F(CatalogOfTwo, FindsTablesAndColumnsUnderTheCollation) {
    catalog.addTable(progetti());
    expectProgetti(catalog.table("PROGETTI"));
    EXPECT_EQ(catalog.table("progetti")->find("CITT\u00c0"), 1);
    EXPECT_EQ(catalog.table("progetti")->find("citta"), -1);
    EXPECT_EQ(catalog.table("conti"), nullptr);
}

TEST_F(CatalogOfTwo, ATableWithoutKeysHasNone) {
    TableInfo table;
    table.name = "t";
    table.columns = {column("a", Kind::Int)};
    catalog.addTable(table);
    EXPECT_EQ(catalog.table("t")->identity(), nullptr);
    EXPECT_EQ(catalog.table("t")->primaryKey(), nullptr);
}

TEST_F(CatalogOfTwo, SeesWhatAnotherSessionChanged) {
    EXPECT_FALSE(other.refresh());
    catalog.addTable(progetti());
    EXPECT_TRUE(other.refresh());
    expectProgetti(other.table("progetti"));
    EXPECT_FALSE(other.refresh());

    catalog.addColumn("progetti", column("Note", Kind::NVarChar, -1));
    catalog.addKey("progetti", {"U_note", false, {"Note"}});
    EXPECT_TRUE(other.refresh());
    EXPECT_EQ(other.table("progetti")->find("note"), 3);
    EXPECT_EQ(other.table("progetti")->keys.at(2).name, "U_note");

    catalog.removeTable("PROGETTI");
    EXPECT_TRUE(other.refresh());
    EXPECT_EQ(other.table("progetti"), nullptr);
    EXPECT_TRUE(other.tableNames().empty());
}

TEST_F(CatalogOfTwo, DoesNotReloadForRowsThatChange) {
    connection.run("CREATE TABLE t (a)");
    other.refresh();
    connection.run("INSERT INTO t VALUES (1)");
    EXPECT_FALSE(other.refresh());
}

TEST_F(CatalogOfTwo, ListsTablesInTheirOrder) {
    for (const char* name : {"sedi", "Conti", "\u00c0nagrafe", "ivaSezionale"}) {
        TableInfo table;
        table.name = name;
        table.columns = {column("a", Kind::Int)};
        catalog.addTable(table);
    }
    EXPECT_EQ(catalog.tableNames(), (std::vector<std::string>{"\u00c0nagrafe", "Conti", "ivaSezionale", "sedi"}));
}

TEST_F(CatalogOfTwo, ForgetsWhatWasRolledBack) {
    {
        sqlite::Transaction transaction(connection);
        catalog.addTable(progetti());
        EXPECT_NE(catalog.table("progetti"), nullptr);
    }
    catalog.refresh();
    EXPECT_EQ(catalog.table("progetti"), nullptr);
}

TEST_F(CatalogOfTwo, IsNotMisledWhenAnotherTakesTheNumberOfAChangeRolledBack) {
    {
        sqlite::Transaction transaction(connection);
        catalog.addTable(progetti());
    }
    TableInfo table;
    table.name = "conti";
    table.columns = {column("a", Kind::Int)};
    other.addTable(table);
    EXPECT_TRUE(catalog.refresh());
    EXPECT_EQ(catalog.tableNames(), std::vector<std::string>{"conti"});
}

TEST_F(CatalogOfTwo, ForgetsAChangeThatFailedHalfWay) {
    connection.run("CREATE TRIGGER full BEFORE INSERT ON _vabo_keys BEGIN SELECT raise(ABORT, 'no room'); END");
    EXPECT_THROW(catalog.addTable(progetti()), sqlite::Failure);
    EXPECT_TRUE(catalog.refresh());
    EXPECT_EQ(catalog.table("progetti"), nullptr);
}

TEST_F(CatalogOfTwo, TellsOfItsOwnChangesOnce) {
    catalog.addTable(progetti());
    EXPECT_TRUE(catalog.refresh());
    EXPECT_FALSE(catalog.refresh());
}

TEST_F(CatalogOfTwo, ATableOfTheSameNameIsRefusedByTheFileItself) {
    catalog.addTable(progetti());
    TableInfo again = progetti();
    again.name = "PROGETTI";
    EXPECT_THROW(other.addTable(again), sqlite::Failure);
    other.refresh();
    EXPECT_EQ(other.tableNames().size(), 1U);
}

TEST_F(CatalogOfTwo, GivesIdentitiesFromTheSeedToAllSessions) {
    catalog.addTable(progetti());
    other.refresh();
    EXPECT_EQ(catalog.currentIdentity(*catalog.table("progetti")), 10);
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 10);
    EXPECT_EQ(other.nextIdentity(*other.table("progetti")), 15);
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 20);
    EXPECT_EQ(other.currentIdentity(*other.table("progetti")), 20);
}

TEST_F(CatalogOfTwo, AFailedInsertUsesItsIdentityUp) {
    catalog.addTable(progetti());
    other.refresh();
    const TableInfo& table = *catalog.table("progetti");
    {
        sqlite::Transaction transaction(connection);
        EXPECT_EQ(catalog.nextIdentity(table), 10);
        EXPECT_EQ(catalog.nextIdentity(table), 15);
    }
    catalog.settleIdentities();
    EXPECT_EQ(other.nextIdentity(*other.table("progetti")), 20);
    EXPECT_EQ(catalog.nextIdentity(table), 25);
}

TEST_F(CatalogOfTwo, AFailedInsertUsesItsIdentityUpForItsOwnSessionEvenUnsettled) {
    catalog.addTable(progetti());
    const TableInfo& table = *catalog.table("progetti");
    {
        sqlite::Transaction transaction(connection);
        EXPECT_EQ(catalog.nextIdentity(table), 10);
    }
    EXPECT_EQ(catalog.nextIdentity(table), 15);
}

TEST_F(CatalogOfTwo, SettlingInsideATransactionSurvivesItsStatement) {
    catalog.addTable(progetti());
    const TableInfo& table = *catalog.table("progetti");
    sqlite::Transaction transaction(connection);
    {
        sqlite::Transaction statement(connection);
        EXPECT_EQ(catalog.nextIdentity(table), 10);
    }
    catalog.settleIdentities();
    transaction.commit();
    other.refresh();
    EXPECT_EQ(other.nextIdentity(*other.table("progetti")), 15);
}

TEST_F(CatalogOfTwo, SettlingWritesNothingWhereNothingWasLost) {
    catalog.addTable(progetti());
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 10);
    other.refresh();
    sqlite::Transaction writer(otherConnection);
    catalog.settleIdentities();
    EXPECT_EQ(catalog.currentIdentity(*catalog.table("progetti")), 10);
}

TEST_F(CatalogOfTwo, AnIdentityWrittenByHandRaisesTheNextOnlyWhenItLiesBehindIt) {
    catalog.addTable(progetti());
    const TableInfo& table = *catalog.table("progetti");
    catalog.raiseIdentity(table, 100);
    EXPECT_EQ(catalog.nextIdentity(table), 105);
    catalog.raiseIdentity(table, 3);
    EXPECT_EQ(catalog.nextIdentity(table), 110);
}

TEST_F(CatalogOfTwo, AResetStartsFromTheSeedForAllSessions) {
    catalog.addTable(progetti());
    other.refresh();
    EXPECT_EQ(other.nextIdentity(*other.table("progetti")), 10);
    catalog.resetIdentity(*catalog.table("progetti"));
    EXPECT_TRUE(other.refresh());
    EXPECT_EQ(other.nextIdentity(*other.table("progetti")), 10);
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 15);
}

TEST_F(CatalogOfTwo, AnIdentityCountsDownWhereItsIncrementSaysSo) {
    TableInfo table = progetti();
    table.columns[0].seed = -1;
    table.columns[0].increment = -1;
    catalog.addTable(table);
    const TableInfo& made = *catalog.table("progetti");
    {
        sqlite::Transaction transaction(connection);
        EXPECT_EQ(catalog.nextIdentity(made), -1);
    }
    EXPECT_EQ(catalog.nextIdentity(made), -2);
    catalog.raiseIdentity(made, -10);
    EXPECT_EQ(catalog.nextIdentity(made), -11);
}

TEST_F(CatalogOfTwo, AnIdentityEndsWithItsType) {
    TableInfo table = progetti();
    table.columns[0].type.kind = Kind::TinyInt;
    table.columns[0].seed = 255;
    table.columns[0].increment = 1;
    catalog.addTable(table);
    const TableInfo& made = *catalog.table("progetti");
    EXPECT_EQ(catalog.nextIdentity(made), 255);
    EXPECT_EQ(errorOf([&] { catalog.nextIdentity(made); }),
              "8115 Arithmetic overflow error converting IDENTITY to data type tinyint.");

    table.name = "down";
    table.columns[0].seed = 0;
    table.columns[0].increment = -1;
    catalog.addTable(table);
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("down")), 0);
    EXPECT_EQ(errorNumberOf([&] { catalog.nextIdentity(*catalog.table("down")); }), 8115);
}

TEST_F(CatalogOfTwo, ATableMadeAgainStartsFromItsSeed) {
    catalog.addTable(progetti());
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 10);
    catalog.removeTable("progetti");
    catalog.addTable(progetti());
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 10);
}

TEST_F(CatalogOfTwo, SurvivesTheEndOfItsSession) {
    catalog.addTable(progetti());
    EXPECT_EQ(catalog.nextIdentity(*catalog.table("progetti")), 10);
    sqlite::Connection third(folder.path() / "a.mdf", false);
    Catalog reopened(third);
    expectProgetti(reopened.table("progetti"));
    EXPECT_EQ(reopened.nextIdentity(*reopened.table("progetti")), 15);
}

} // namespace
} // namespace engine
