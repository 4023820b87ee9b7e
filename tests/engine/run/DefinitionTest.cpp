#include "engine/SessionFixture.h"

namespace engine {
namespace {

using Definition = SessionTest;

TEST_F(Definition, RefusalsHaveTheServersWords) {
    struct Case {
        const char* text;
        const char* answer;
    };
    run("create table t (a int null, b nvarchar(10) null)");
    run("insert into t values (1, 'x')");
    constexpr Case kCases[] = {
        {"create table T (a int null)", "!2714 There is already an object named 'T' in the database."},
        {"create table u (a int null, A int null)",
         "!2705 Column names in each table must be unique. Column name 'A' in table 'u' is specified more than once."},
        {"alter table t add B int null",
         "!2705 Column names in each table must be unique. Column name 'B' in table 't' is specified more than once."},
        {"alter table t add c int not null",
         "!4901 ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT definition"
         " specified, or the column being added is an identity or timestamp column, or alternatively if none of the"
         " previous conditions are satisfied the table must be empty to allow addition of this column. Column 'c'"
         " cannot be added to non-empty table 't' because it does not satisfy these conditions."},
        {"alter table manca add c int null",
         "!4902 Cannot find the object \"manca\" because it does not exist or you do not have permissions."},
        {"drop table manca",
         "!3701 Cannot drop the table 'manca', because it does not exist or you do not have permission."},
        {"drop database manca",
         "!3701 Cannot drop the database 'manca', because it does not exist or you do not have permission."},
        {"create database prova", "!1801 Database 'prova' already exists. Choose a different database name."},
        {"use manca", "!911 Database 'manca' does not exist. Make sure that the name is entered correctly."},
        {"drop index manca.i",
         "!3701 Cannot drop the index 'manca.i', because it does not exist or you do not have permission."},
        {"drop index t.i",
         "!3701 Cannot drop the index 't.i', because it does not exist or you do not have permission."},
        {"create table v (a int primary key, b int, constraint PK_b primary key (b))",
         "!8110 Cannot add multiple PRIMARY KEY constraints to table 'v'."},
        {"create table v (a int identity(1,1), b int identity(1,1))",
         "!2744 Multiple identity columns specified for table 'v'. Only one identity column per table is allowed."},
        {"truncate table manca",
         "!4701 Cannot find the object \"manca\" because it does not exist or you do not have permissions."},
        {"set identity_insert t on",
         "!8106 Table 't' does not have the identity property. Cannot perform SET operation."},
        {"create index i on t (manca)", "!1911 Column name 'manca' does not exist in the target table or view."},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(answer(one.text), one.answer) << one.text;
    }
}

TEST_F(Definition, AnAddedColumnFillsTheOldRowsOnlyUnderNotNull) {
    run("create table t (a int null)");
    run("insert into t values (1)");
    run("alter table t add piena nvarchar(255) not null default 'Sezionale Iva'");
    run("alter table t add vuota nvarchar(255) null default 'niente'");
    run("alter table t add giorno datetime not null default '20040307', n int not null default 7");
    run("insert into t (a) values (2)");
    EXPECT_EQ(rows("select * from t order by a"), "1|Sezionale Iva|NULL|2004-03-07 00:00:00.000|7\n"
                                                  "2|Sezionale Iva|niente|2004-03-07 00:00:00.000|7");
}

TEST_F(Definition, AUniqueIndexRefusesWithItsName) {
    run("create table t (a int null, b int null)");
    run("create unique index doppio on t (a, b)");
    run("insert into t values (1, 1)");
    EXPECT_EQ(answer("insert into t values (1, 1)"),
              "!2601 Cannot insert duplicate key row in object 'dbo.t' with unique index 'doppio'.");
    EXPECT_EQ(answer("create index DOPPIO on t (a)").substr(0, 6), "!1913 ");
    run("drop index t.doppio");
    EXPECT_EQ(answer("insert into t values (1, 1)"), "(1)");
    EXPECT_EQ(answer("create unique index doppio on t (a)").substr(0, 6), "!1505 ");
}

TEST_F(Definition, ADatabaseIsMadeOnlyOnce) {
    const char* text =
        "IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'Nuova')"
        "  CREATE DATABASE [Nuova]  ON (NAME = N'Nuova_dat', FILENAME = N'Nuova.mdf' ,  FILEGROWTH = 10%)"
        " LOG ON (NAME = N'Nuova_log', FILENAME = N'Nuova.ldf' , SIZE = 2, FILEGROWTH = 10%)"
        " COLLATE Latin1_General_CI_AS";
    EXPECT_EQ(answer(text), "-");
    EXPECT_EQ(answer(text), "");
    EXPECT_EQ(answer("use NUOVA select db_name()"), "-\n\nNuova");
    EXPECT_EQ(rows("select count(*) from master.dbo.sysdatabases where name = 'nuova'"), "1");
}

TEST_F(Definition, TruncateStartsTheIdentityAgain) {
    run("create table t (id int identity(1,1) not null primary key, a int null)");
    run("insert into t (a) values (1), (2)");
    run("truncate table t");
    run("insert into t (a) values (3)");
    EXPECT_EQ(rows("select id, a from t"), "1|3");
}

TEST_F(Definition, WhatAnotherSessionChangedIsSeen) {
    auto other = connect();
    run("create table t (a int null)");
    EXPECT_EQ(engine::answer(*other, "insert into t values (1)"), "(1)");
    EXPECT_EQ(rows("select * from t"), "1");
    engine::answer(*other, "alter table t add b int null default 3");
    EXPECT_EQ(rows("select * from t"), "1|NULL");
    engine::answer(*other, "drop table t");
    EXPECT_EQ(answer("select * from t"), "!208 Invalid object name 't'.");
}

TEST_F(Definition, AKeptWriteSeesWhatAnotherSessionChanged) {
    const char* const kWrites[] = {"update t set a = '007'", "insert into t values ('007')",
                                   "insert into t select '007'"};
    for (const char* write : kWrites) {
        SCOPED_TRACE(write);
        auto other = connect();
        run("create table t (a int null)");
        run("insert into t values (1)");
        EXPECT_EQ(answer(write), "(1)");
        EXPECT_EQ(rows("select max(a) from t"), "7");
        engine::answer(*other, "drop table t");
        EXPECT_EQ(answer(write), "!208 Invalid object name 't'.");
        engine::answer(*other, "create table t (a varchar(10) null)");
        engine::answer(*other, "insert into t values ('')");
        EXPECT_EQ(answer(write), "(1)");
        EXPECT_EQ(rows("select max(a) from t"), "007");
        EXPECT_EQ(answer(write), "(1)") << "kept anew";
        run("drop table t");
    }
}

TEST_F(Definition, AKeptWriteOfATransactionSeesWhatAnotherSessionChangedBefore) {
    auto other = connect();
    run("create table t (a int null)");
    run("update t set a = '007'");
    run("begin transaction");
    engine::answer(*other, "drop table t");
    engine::answer(*other, "create table t (a varchar(10) null)");
    engine::answer(*other, "insert into t values ('')");
    EXPECT_EQ(answer("update t set a = '007'"), "(1)");
    run("commit");
    EXPECT_EQ(rows("select a from t"), "007");
}

TEST_F(Definition, ColumnsTellWhereTheyComeFrom) {
    run("create table Sede (idSede int identity(1,1) not null primary key, Città nvarchar(50) null,"
        " importo decimal(12,3) not null default 0)");
    auto batch = session->execute("select IDSEDE, città, importo as quanto, 1 + 1 from sede");
    ASSERT_TRUE(batch->nextResult());
    const auto& columns = batch->columns();
    ASSERT_EQ(columns.size(), 4U);
    EXPECT_EQ(columns[0].name, "idSede");
    EXPECT_TRUE(columns[0].key);
    EXPECT_TRUE(columns[0].identity);
    EXPECT_FALSE(columns[0].nullable);
    EXPECT_EQ(columns[1].name, "Città");
    EXPECT_EQ(columns[1].baseTable, "Sede");
    EXPECT_EQ(columns[1].type.length, 50);
    EXPECT_TRUE(columns[1].nullable);
    EXPECT_EQ(columns[2].name, "quanto");
    EXPECT_EQ(columns[2].baseColumn, "importo");
    EXPECT_EQ(columns[2].type.scale, 3);
    EXPECT_EQ(columns[3].name, "");
    EXPECT_EQ(columns[3].baseTable, "");
}

TEST_F(Definition, TheSchemaCanBeRead) {
    run("create table t (a int not null, b decimal(8,2) null default 5)");
    EXPECT_EQ(rows("select TABLE_NAME, TABLE_TYPE from INFORMATION_SCHEMA.TABLES"), "t|BASE TABLE");
    EXPECT_EQ(rows("select COLUMN_NAME, IS_NULLABLE, DATA_TYPE, NUMERIC_SCALE, COLUMN_DEFAULT from"
                   " information_schema.columns order by ordinal_position"),
              "a|NO|int|0|NULL\nb|YES|decimal|2|(5)");
    EXPECT_EQ(rows("select name from sysobjects where xtype = 'U'"), "t");
    EXPECT_EQ(answer("delete from sysobjects").substr(0, 5), "!259 ");
}

TEST_F(Definition, KeysTellTheirTableAndColumns) {
    run("create table due (b int not null, a int not null, c int null, constraint pk_due primary key (a, b), "
        "constraint uq_due unique (c))");
    EXPECT_EQ(rows("select CONSTRAINT_NAME, TABLE_NAME, CONSTRAINT_TYPE from INFORMATION_SCHEMA.TABLE_CONSTRAINTS "
                   "where TABLE_NAME = 'DUE' order by 1"),
              "pk_due|due|PRIMARY KEY\nuq_due|due|UNIQUE");
    EXPECT_EQ(rows("select CONSTRAINT_NAME, COLUMN_NAME, ORDINAL_POSITION from INFORMATION_SCHEMA.KEY_COLUMN_USAGE "
                   "where TABLE_NAME = 'due' order by CONSTRAINT_NAME, ORDINAL_POSITION"),
              "pk_due|a|1\npk_due|b|2\nuq_due|c|1");
}

} // namespace
} // namespace engine
