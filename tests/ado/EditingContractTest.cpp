#include "ado/AdoFixture.h"
#include "support/StatementRecorder.h"

#include <vector>

namespace ado {
namespace {

using support::StatementRecorder;
using test::Contract;
using test::display;
using test::errorOf;
using test::raises;
using Texts = std::vector<std::string>;

class Editing : public Contract {};

TEST_F(Editing, AnUpdateSendsTheTouchedColumnsByTheIdentity) {
    Recordset rs;
    open(rs);
    rs.MoveNext();
    const StatementRecorder recorder;
    rs["cap"] = "20100";
    rs["sede"] = true;
    EXPECT_EQ(display(rs["cap"]), "20100");
    EXPECT_TRUE(recorder.texts().empty());
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"UPDATE [Comuni] SET [cap] = N'20100', [sede] = 1 WHERE [id] = 2"});
    EXPECT_EQ(display(rs["cap"]), "20100");
    EXPECT_EQ(cell("select cap, sede, nome from Comuni where id = 2"), "20100|Vero|Milano");
}

TEST_F(Editing, UpdateWithNothingPendingSendsNothing) {
    Recordset rs;
    open(rs);
    const StatementRecorder recorder;
    rs.Update();
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(Editing, APrimaryKeyServesWhereThereIsNoIdentity) {
    Recordset rs;
    open(rs, "select testo, id from Tipi");
    const StatementRecorder recorder;
    rs["testo"] = "l'ora";
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"UPDATE [Tipi] SET [testo] = N'l''ora' WHERE [id] = 1"});
    EXPECT_EQ(cell("select testo from Tipi"), "l'ora");
}

TEST_F(Editing, TheKeyItselfCanBeChanged) {
    Recordset rs;
    open(rs, "Tipi");
    rs["id"] = 5;
    rs.Update();
    const StatementRecorder recorder;
    rs["intero"] = 9;
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"UPDATE [Tipi] SET [intero] = 9 WHERE [id] = 5"});
    EXPECT_EQ(cell("select id, intero from Tipi"), "5|9");
}

TEST_F(Editing, AllValuesServeWhereTheKeyIsNotWhole) {
    connection.Execute("CREATE TABLE Coppie (a int NOT NULL, b int NOT NULL, c nvarchar(5) NULL, PRIMARY KEY (a, b))");
    connection.Execute("INSERT INTO Coppie (a, b, c) VALUES (1, 1, 'x'), (1, 2, NULL)");
    Recordset rs;
    open(rs, "select a, c from Coppie order by b");
    const StatementRecorder recorder;
    rs["c"] = "z";
    rs.Update();
    rs.MoveNext();
    rs["c"] = "w";
    rs.Update();
    EXPECT_EQ(recorder.texts(), (Texts{"UPDATE [Coppie] SET [c] = N'z' WHERE [a] = 1 AND [c] = N'x'",
                                       "UPDATE [Coppie] SET [c] = N'w' WHERE [a] = 1 AND [c] IS NULL"}));
    EXPECT_EQ(rowsOf("select a, b, c from Coppie order by b"), (Texts{"1|1|z", "1|2|w"}));
}

TEST_F(Editing, AWholeKeyOfTwoColumnsServes) {
    connection.Execute("CREATE TABLE Coppie (a int NOT NULL, b int NOT NULL, c int NULL, PRIMARY KEY (a, b))");
    connection.Execute("INSERT INTO Coppie (a, b) VALUES (1, 2)");
    Recordset rs;
    open(rs, "Coppie");
    const StatementRecorder recorder;
    rs["c"] = 3;
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"UPDATE [Coppie] SET [c] = 3 WHERE [a] = 1 AND [b] = 2"});
}

TEST_F(Editing, EveryTypeIsWrittenSoThatItReadsBack) {
    connection.Execute("CREATE TABLE Senza (logico bit, ottetto tinyint, corto smallint, grande bigint, doppio float, "
                       "decimale decimal(10,2), denaro money, data datetime, stretto varchar(20), testo nvarchar(20))");
    Recordset rs;
    open(rs, "Senza");
    rs.AddNew();
    rs["logico"] = false;
    rs["ottetto"] = std::uint8_t{255};
    rs["corto"] = std::int16_t{-32768};
    rs["grande"] = Decimal{-9000000000, 0};
    rs["doppio"] = 0.1;
    rs["decimale"] = Decimal{-5, 2};
    rs["denaro"] = Currency{-5};
    rs["data"] = Date::of(2004, 3, 7, 8, 5, 9);
    rs["stretto"] = "a'b";
    rs["testo"] = "perché 'sì'";
    StatementRecorder recorder;
    rs.Update();
    EXPECT_EQ(
        recorder.texts(),
        Texts{"INSERT INTO [Senza] ([logico], [ottetto], [corto], [grande], [doppio], [decimale], [denaro], [data], "
              "[stretto], [testo]) VALUES (0, 255, -32768, -9000000000, 0.1, -0.05, -0.0005, CONVERT(DATETIME, "
              "'2004-03-07 08:05:09.000', 121), 'a''b', N'perché ''sì''')"});
    recorder.clear();
    // All values are the key here: the statement must find the row by each of them.
    rs["ottetto"] = 7;
    rs.Update();
    ASSERT_EQ(recorder.texts().size(), 1U);
    EXPECT_EQ(cell("select * from Senza"),
              "Falso|7|-32768|-9000000000|0,1|-0,05|-0,0005|07/03/2004 08:05:09|a'b|perché 'sì'");
}

TEST_F(Editing, ANewRowBecomesCurrentWithItsIdentityAndStaysAtTheEnd) {
    Recordset rs;
    open(rs, "select * from Comuni order by nome");
    const StatementRecorder recorder;
    rs.AddNew();
    EXPECT_FALSE(rs.EOF());
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_TRUE(rs["nome"].Value().isNull());
    rs["nome"] = "Ancona";
    rs["abitanti"] = Null{};
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"INSERT INTO [Comuni] ([nome], [abitanti]) VALUES (N'Ancona', NULL)"});
    EXPECT_EQ(rs["id"].Value(), Value(5));
    EXPECT_EQ(rs.RecordCount(), 5);
    EXPECT_EQ(rs.AbsolutePosition(), 5);
    EXPECT_TRUE(rs["cap"].Value().isNull());
    rs["cap"] = "60100";
    rs.Update();
    EXPECT_EQ(cell("select nome, cap from Comuni where id = 5"), "Ancona|60100");
    rs.MoveNext();
    EXPECT_TRUE(rs.EOF());
    rs.Requery();
    EXPECT_EQ(display(rs["nome"]), "Ancona");
    EXPECT_EQ(display(rs["id"]), "5");
}

TEST_F(Editing, DefaultsOfUntouchedColumnsShowAfterARequery) {
    Recordset rs;
    open(rs);
    rs.AddNew();
    rs["nome"] = "Pisa";
    rs.Update();
    rs.Requery();
    rs.MoveLast();
    EXPECT_EQ(display(rs["cap"]), "00000");
    EXPECT_EQ(rs["sede"].Value(), Value(false));
}

TEST_F(Editing, ANewRowWithNothingTouchedIsAllDefaults) {
    connection.Execute("CREATE TABLE Contatori (id int IDENTITY (10, 5) NOT NULL PRIMARY KEY, n int NULL DEFAULT 7)");
    Recordset rs;
    open(rs, "Contatori");
    const StatementRecorder recorder;
    rs.AddNew();
    rs.Update();
    EXPECT_EQ(recorder.texts(), Texts{"INSERT INTO [Contatori] DEFAULT VALUES"});
    EXPECT_EQ(rs["id"].Value(), Value(10));
    EXPECT_EQ(cell("select id, n from Contatori"), "10|7");
}

TEST_F(Editing, AddNewInAPendingEditUpdatesFirst) {
    Recordset rs;
    open(rs);
    rs["cap"] = "1";
    rs.AddNew();
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "1");
    rs["nome"] = "Pisa";
    rs.AddNew();
    rs["nome"] = "Lucca";
    rs.Update();
    EXPECT_EQ(rowsOf("select nome from Comuni where id > 4 order by id"), (Texts{"Pisa", "Lucca"}));
}

TEST_F(Editing, CancelUpdateGivesTheOldValuesAndTheOldRowBack) {
    Recordset rs;
    open(rs);
    rs.MoveNext();
    rs["nome"] = "Altro";
    rs.CancelUpdate();
    EXPECT_EQ(display(rs["nome"]), "Milano");
    rs.AddNew();
    rs["nome"] = "Pisa";
    rs.CancelUpdate();
    EXPECT_EQ(display(rs["nome"]), "Milano");
    EXPECT_EQ(rs.AbsolutePosition(), 2);
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.CancelUpdate(); }));
    rs.Close();
    EXPECT_EQ(cell("select count(*) from Comuni where nome in ('Altro', 'Pisa')"), "0");
}

TEST_F(Editing, MovingAwayUpdates) {
    Recordset rs;
    open(rs);
    rs["cap"] = "1";
    rs.MoveNext();
    EXPECT_EQ(display(rs["nome"]), "Milano");
    rs["cap"] = "2";
    rs.setFilter("cap = '2'");
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rowsOf("select cap from Comuni where id < 3 order by id"), (Texts{"1", "2"}));
}

TEST_F(Editing, WhereTheUpdateFailsTheMoveRaisesAndAllStays) {
    Recordset rs;
    open(rs);
    rs["nome"] = Null{};
    rs["cap"] = "9";
    EXPECT_TRUE(raises(kConstraint, [&] { rs.MoveNext(); }));
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    EXPECT_TRUE(rs["nome"].Value().isNull());
    EXPECT_EQ(display(rs["cap"]), "9");
    rs["nome"] = "Roma";
    rs.MoveNext();
    EXPECT_EQ(rs.AbsolutePosition(), 2);
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "9");
}

TEST_F(Editing, ANullWhereNoneMayStandIsRefusedAtUpdateInTheServersWords) {
    Recordset rs;
    open(rs);
    rs["nome"] = Null{};
    const auto error = errorOf([&] { rs.Update(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kConstraint);
    EXPECT_EQ(error->nativeError(), 515);
    EXPECT_EQ(
        error->description(),
        "Cannot insert the value NULL into column 'nome', table 'Vabodati.dbo.Comuni'; column does not allow nulls. "
        "UPDATE fails.");
    EXPECT_EQ(error->statement(), "UPDATE [Comuni] SET [nome] = NULL WHERE [id] = 1");
    rs.CancelUpdate();
    rs.AddNew();
    EXPECT_TRUE(raises(kConstraint, [&] { rs.Update(); }));
    rs["nome"] = "Pisa";
    rs.Update();
    EXPECT_EQ(cell("select count(*) from Comuni"), "5");
}

TEST_F(Editing, ADuplicateKeyIsRefusedAtUpdate) {
    Recordset rs;
    open(rs, "Tipi");
    rs.AddNew();
    rs["id"] = 1;
    const auto error = errorOf([&] { rs.Update(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->nativeError(), 2627);
    rs["id"] = 2;
    rs.Update();
    EXPECT_EQ(rowsOf("select id from Tipi order by id"), (Texts{"1", "2"}));
}

TEST_F(Editing, AClosingWithAPendingEditIsNotAllowed) {
    Recordset rs;
    open(rs);
    rs["cap"] = "1";
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.Close(); }));
    EXPECT_TRUE(raises(kNotAllowedHere, [&] { rs.Requery(); }));
    EXPECT_TRUE(rs.IsOpen());
    rs.CancelUpdate();
    rs.Close();
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "00118");
}

TEST_F(Editing, ARecordsetGivenUpDropsItsEdit) {
    {
        Recordset rs;
        open(rs, "Comuni", CursorType::Keyset, LockType::Pessimistic);
        rs["cap"] = "1";
    }
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "00118");
}

TEST_F(Editing, ARowThatIsGoneCannotBeLocated) {
    Recordset rs;
    open(rs);
    connection.Execute("delete from Comuni where id = 1");
    rs["cap"] = "1";
    const auto error = errorOf([&] { rs.Update(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), kRowChanged);
    EXPECT_EQ(error->description(),
              "Row cannot be located for updating. Some values may have been changed since it was last read.");
    rs.CancelUpdate();
    EXPECT_EQ(display(rs["cap"]), "00118");
}

TEST_F(Editing, WhatCannotBeUpdatedSaysSo) {
    struct ReadOnly {
        const char* source;
        LockType lock;
    };
    const ReadOnly sources[] = {
        {"Comuni", LockType::ReadOnly},
        {"select c.id, c.nome from Comuni c inner join Tipi t on t.id = c.id", LockType::Optimistic},
        {"select c.nome, t.testo from Comuni c, Tipi t", LockType::Optimistic},
        {"select count(*) as nome from Comuni", LockType::Optimistic},
        {"select nome from Comuni group by nome", LockType::Optimistic},
        {"select distinct nome from Comuni", LockType::Optimistic},
        {"select nome from Comuni union select testo from Tipi", LockType::Optimistic},
        {"select 1 as nome", LockType::Pessimistic},
    };
    for (const ReadOnly& source : sources) {
        Recordset rs;
        open(rs, source.source, CursorType::Keyset, source.lock);
        EXPECT_TRUE(raises(kNotUpdatable, [&] { rs["nome"] = "x"; })) << source.source;
        EXPECT_TRUE(raises(kNotUpdatable, [&] { rs.AddNew(); })) << source.source;
        rs.Update();
        rs.Close();
    }
    EXPECT_EQ(cell("select count(*) from Comuni where nome = 'x'"), "0");
}

TEST_F(Editing, AComputedColumnAndAnIdentityTakeNoValue) {
    Recordset rs;
    open(rs, "select id, nome, abitanti + 1 as dopo from Comuni order by id");
    EXPECT_TRUE(raises(kMultipleStep, [&] { rs["dopo"] = 1; }));
    EXPECT_TRUE(raises(kMultipleStep, [&] { rs["id"] = 9; }));
    rs["nome"] = "ROMA";
    rs.Update();
    EXPECT_EQ(cell("select nome from Comuni where id = 1"), "ROMA");
}

TEST_F(Editing, ANewRowStandsAlsoWhereTheFilterWouldNotAdmitIt) {
    Recordset rs;
    open(rs);
    rs.setFilter("id < 3");
    rs.AddNew();
    rs["nome"] = "Pisa";
    rs.Update();
    EXPECT_EQ(display(rs["nome"]), "Pisa");
    EXPECT_EQ(rs.AbsolutePosition(), 3);
}

TEST_F(Editing, AFieldTakesTheValueOfAnother) {
    Recordset rs;
    open(rs);
    rs["cap"] = rs["nome"];
    rs.CancelUpdate();
    rs["nome"] = rs["cap"];
    rs.Update();
    EXPECT_EQ(cell("select nome from Comuni where id = 1"), "00118");
}

} // namespace
} // namespace ado
