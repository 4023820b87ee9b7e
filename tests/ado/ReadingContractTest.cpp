#include "ado/AdoFixture.h"
#include "ado/Conversions.h"
#include "support/StatementRecorder.h"

namespace ado {
namespace {

using support::StatementRecorder;
using test::Contract;
using test::display;
using test::errorOf;
using test::raises;

class Reading : public Contract {};

TEST_F(Reading, ATableIsOpenedByItsNameAlone) {
    const StatementRecorder recorder;
    for (const char* source : {"Comuni", "[Comuni]", "dbo.Comuni"}) {
        Recordset rs;
        rs.Open(source, connection, CursorType::Keyset, LockType::Pessimistic);
        EXPECT_EQ(rs.RecordCount(), 4) << source;
        EXPECT_EQ(rs.Source(), source);
    }
    Recordset rs;
    rs.Open("Comuni", connection, CursorType::Static, LockType::ReadOnly, 2);
    EXPECT_EQ(rs.RecordCount(), 4);
    EXPECT_EQ(recorder.texts(), (std::vector<std::string>{"select * from [Comuni]", "select * from [Comuni]",
                                                          "select * from [dbo].[Comuni]", "select * from [Comuni]"}));
}

TEST_F(Reading, FieldsAreFoundByNameInAnyCaseAndByPlace) {
    Recordset rs;
    open(rs);
    EXPECT_EQ(rs.FieldCount(), 5);
    EXPECT_EQ(display(rs["NOME"]), "Roma");
    EXPECT_EQ(display(rs[1]), "Roma");
    EXPECT_EQ(rs["NoMe"].Name(), "nome");
    EXPECT_TRUE(raises(kItemNotFound, [&] { rs["manca"]; }));
    EXPECT_TRUE(raises(kItemNotFound, [&] { rs[5]; }));
    EXPECT_TRUE(raises(kItemNotFound, [&] { rs[-1]; }));
}

TEST_F(Reading, ANameThatStandsTwiceIsTheFirst) {
    Recordset rs;
    rs.Open("select id as a, nome as a from Comuni order by id", connection);
    EXPECT_EQ(rs["a"].Value(), Value(1));
}

TEST_F(Reading, AnEmptyTextIsToldFromANull) {
    connection.Execute("create table vuoti (testo nvarchar(10) null, corto varchar(5) null, giorno datetime null)");
    connection.Execute("insert into vuoti values ('', '', '20040307'), (null, null, null)");
    Recordset rs;
    rs.Open("select testo, corto, giorno, testo + 'x' from vuoti order by giorno desc", connection);
    for (const int column : {0, 1}) {
        EXPECT_EQ(rs[column].Value(), Value("")) << column;
    }
    EXPECT_EQ(rs[3].Value(), Value("x"));
    rs.MoveNext();
    for (const int column : {0, 1, 2, 3}) {
        EXPECT_EQ(rs[column].Value(), Value(Null{})) << column;
    }
}

TEST_F(Reading, AnUnknownNameIsToldFromAMissingRow) {
    Recordset rs;
    open(rs, "select * from Comuni where id = 0");
    EXPECT_TRUE(rs.EOF());
    EXPECT_TRUE(rs.BOF());
    EXPECT_TRUE(raises(kItemNotFound, [&] { rs["manca"].Value(); }));
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs["nome"].Value(); }));
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs["nome"] = "x"; }));
    EXPECT_TRUE(raises(kNoCurrentRecord, [&] { rs.MoveFirst(); }));
    EXPECT_EQ(rs["nome"].description().name, "nome");
}

TEST_F(Reading, AClosedRecordsetSaysSo) {
    Recordset rs;
    const auto closed = [&](const auto& work) { return raises(kObjectClosed, work); };
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(rs.IsOpen());
        EXPECT_TRUE(closed([&] { rs.EOF(); }));
        EXPECT_TRUE(closed([&] { rs.BOF(); }));
        EXPECT_TRUE(closed([&] { rs.Close(); }));
        EXPECT_TRUE(closed([&] { rs.MoveFirst(); }));
        EXPECT_TRUE(closed([&] { rs.MoveLast(); }));
        EXPECT_TRUE(closed([&] { rs.MoveNext(); }));
        EXPECT_TRUE(closed([&] { rs.Move(3); }));
        EXPECT_TRUE(closed([&] { rs["nome"]; }));
        EXPECT_TRUE(closed([&] { rs[0]; }));
        EXPECT_TRUE(closed([&] { rs.AddNew(); }));
        EXPECT_TRUE(closed([&] { rs.Update(); }));
        EXPECT_TRUE(closed([&] { rs.CancelUpdate(); }));
        EXPECT_TRUE(closed([&] { rs.Requery(); }));
        EXPECT_TRUE(closed([&] { rs.setFilter("id = 1"); }));
        EXPECT_TRUE(closed([&] { rs.AbsolutePosition(); }));
        EXPECT_TRUE(closed([&] { rs.setAbsolutePosition(1); }));
        EXPECT_TRUE(closed([&] { rs.RecordCount(); }));
        if (round == 0) {
            open(rs);
            EXPECT_TRUE(raises(kObjectOpen, [&] { open(rs); }));
            rs.Close();
        }
    }
}

TEST_F(Reading, AStatementWithoutRowsLeavesTheRecordsetClosed) {
    Recordset rs;
    rs.Open("update Comuni set cap = '5' where id = 1", connection);
    EXPECT_FALSE(rs.IsOpen());
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "5");
}

TEST_F(Reading, AFailedOpenLeavesTheRecordsetClosedAndUsable) {
    Recordset rs;
    const auto error = errorOf([&] { open(rs, "select * from Assente"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), "Invalid object name 'Assente'.");
    EXPECT_EQ(error->statement(), "select * from Assente");
    EXPECT_FALSE(rs.IsOpen());
    open(rs);
    EXPECT_EQ(rs.RecordCount(), 4);
}

TEST_F(Reading, EveryTypeOfTheServerHasItsOwn) {
    connection.Execute("update Tipi set logico = 1, ottetto = 200, corto = -5, intero = 70000, grande = 5000000000, "
                       "singolo = 0.5, doppio = 0.1, decimale = -12.30, denaro = 1.2345, data = '20040307', "
                       "testo = N'perché', stretto = 'abc', fisso = 'xyz', lungo = 'lunghissimo'");
    Recordset rs;
    open(rs, "Tipi");
    EXPECT_EQ(rs["logico"].Value(), Value(true));
    EXPECT_EQ(rs["ottetto"].Value(), Value(std::uint8_t{200}));
    EXPECT_EQ(rs["corto"].Value(), Value(std::int16_t{-5}));
    EXPECT_EQ(rs["intero"].Value(), Value(70000));
    EXPECT_EQ(rs["grande"].Value(), Value(Decimal{5000000000, 0}));
    EXPECT_EQ(rs["singolo"].Value(), Value(0.5F));
    EXPECT_EQ(rs["doppio"].Value(), Value(0.1));
    EXPECT_EQ(rs["decimale"].Value(), Value(Decimal{-1230, 2}));
    EXPECT_EQ(rs["denaro"].Value(), Value(Currency{12345}));
    EXPECT_EQ(rs["data"].Value(), Value(Date::of(2004, 3, 7)));
    EXPECT_EQ(rs["testo"].Value(), Value("perché"));
    EXPECT_EQ(rs["stretto"].Value(), Value("abc"));
    EXPECT_EQ(rs["fisso"].Value(), Value("xyz"));
    EXPECT_EQ(rs["lungo"].Value(), Value("lunghissimo"));
}

TEST_F(Reading, ANullIsNullInEveryType) {
    Recordset rs;
    open(rs, "Tipi");
    for (int i = 1; i < rs.FieldCount(); ++i) {
        EXPECT_TRUE(rs[i].Value().isNull()) << rs[i].Name();
    }
}

TEST_F(Reading, ColumnsDescribeThemselves) {
    Recordset rs;
    open(rs);
    const FieldDescription& id = rs["id"].description();
    EXPECT_TRUE(id.identity);
    EXPECT_FALSE(id.nullable);
    EXPECT_EQ(id.type, FieldType::Integer);
    const FieldDescription& nome = rs["nome"].description();
    EXPECT_EQ(nome.type, FieldType::WChar);
    EXPECT_EQ(nome.length, 20);
    EXPECT_FALSE(nome.nullable);
    EXPECT_TRUE(rs["cap"].description().nullable);
    if (support::capabilities().fieldsTellTheirSource) {
        EXPECT_TRUE(id.key);
        EXPECT_EQ(nome.baseTable, "Comuni");
        EXPECT_EQ(nome.baseColumn, "nome");
    }
}

TEST_F(Reading, TheFirstSelectionOfSeveralStatementsIsTheRecordset) {
    Recordset rs;
    open(rs, "update Comuni set cap = '7' where id = 1 select nome from Comuni where cap = '7' select 5 as n");
    ASSERT_TRUE(rs.IsOpen());
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(display(rs[0]), "Roma");
}

TEST_F(Reading, AnOwnConnectionLivesAsLongAsTheRecordset) {
    Recordset rs;
    rs.Open("Comuni", server.connectionString(), CursorType::Keyset, LockType::Optimistic);
    rs["cap"] = "33333";
    rs.Update();
    EXPECT_EQ(cell("select cap from Comuni where id = 1"), "33333");
    rs.Close();
    EXPECT_TRUE(raises(kLogin, [&] { rs.Open("Comuni", server.connectionString("Assente")); }));
    EXPECT_FALSE(rs.IsOpen());
}

TEST_F(Reading, RequeryReadsAnewAndGoesToTheFirstRow) {
    Recordset rs;
    open(rs);
    rs.MoveLast();
    connection.Execute("insert into Comuni (nome) values ('Pisa') update Comuni set nome = 'ROMA' where id = 1");
    EXPECT_EQ(rs.RecordCount(), 4);
    rs.Requery();
    EXPECT_EQ(rs.RecordCount(), 5);
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    EXPECT_EQ(display(rs["nome"]), "ROMA");
}

TEST_F(Reading, AListenerHearsOfEveryChangeOfRow) {
    Recordset rs;
    int heard = 0;
    rs.onChange([&] { ++heard; });
    const auto once = [&](const auto& work) {
        const int before = heard;
        work();
        return heard > before;
    };
    EXPECT_TRUE(once([&] { open(rs); }));
    EXPECT_TRUE(once([&] { rs.MoveNext(); }));
    EXPECT_TRUE(once([&] { rs.MoveFirst(); }));
    EXPECT_TRUE(once([&] { rs.setFilter("id = 2"); }));
    EXPECT_TRUE(once([&] { rs.Requery(); }));
    EXPECT_TRUE(once([&] { rs.AddNew(); }));
    EXPECT_TRUE(once([&] { rs.CancelUpdate(); }));
    EXPECT_FALSE(once([&] { rs["nome"].Value(); }));
    EXPECT_FALSE(once([&] { errorOf([&] { rs.setFilter("nonsense"); }); }));
}

} // namespace
} // namespace ado
