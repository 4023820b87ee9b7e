#include "engine/SessionFixture.h"

namespace engine {
namespace {

class Write : public SessionTest {
protected:
    Write() {
        run("create table voci (id int identity(1,1) not null primary key, codice nvarchar(5) not null,"
            " importo decimal(10,2) null, giorno datetime null, chiuso bit not null default 0, quante int null,"
            " nota nvarchar(20) null default 'nuova', constraint UQ_codice unique (codice))");
        run("create table righe (a int null, b int null)");
    }
};

TEST_F(Write, AnIdentityIsGivenAndReadBack) {
    EXPECT_EQ(answer("insert into voci (codice) values ('a')"), "(1)");
    EXPECT_EQ(session->lastIdentity(), 1);
    EXPECT_EQ(rows("select @@identity"), "1");
    EXPECT_EQ(rows("select scope_identity()"), "1");
    EXPECT_EQ(rows("select id, codice, importo, chiuso, nota from voci"), "1|a|NULL|0|nuova");
}

TEST_F(Write, ADefaultIsForAnOmittedColumnOnly) {
    run("insert into voci (codice, nota) values ('a', null)");
    run("insert into voci (codice, nota) values ('b', default)");
    EXPECT_EQ(rows("select nota from voci order by codice"), "NULL\nnuova");
}

TEST_F(Write, AFailedInsertUsesAnIdentityUp) {
    run("insert into voci (codice) values ('a')");
    EXPECT_EQ(answer("insert into voci (codice) values ('A ')").substr(0, 6), "!2627 ");
    EXPECT_EQ(answer("insert into voci (codice) values (null)").substr(0, 5), "!515 ");
    run("insert into voci (codice) values ('b')");
    EXPECT_EQ(rows("select id from voci order by id"), "1\n4");
}

TEST_F(Write, RefusalsHaveTheServersWords) {
    struct Case {
        const char* text;
        const char* answer;
    };
    run("insert into voci (codice) values ('a'), ('b')");
    constexpr Case kCases[] = {
        {"insert into voci (codice) values ('troppo lungo')", "!8152 String or binary data would be truncated."},
        {"insert into voci (codice) values (null)",
         "!515 Cannot insert the value NULL into column 'codice', table 'prova.dbo.voci'; column does not allow nulls."
         " INSERT fails."},
        {"update voci set codice = null",
         "!515 Cannot insert the value NULL into column 'codice', table 'prova.dbo.voci'; column does not allow nulls."
         " UPDATE fails."},
        {"insert into voci (id, codice) values (9, 'c')",
         "!544 Cannot insert explicit value for identity column in table 'voci' when IDENTITY_INSERT is set to OFF."},
        {"update voci set id = 9", "!8102 Cannot update identity column 'id'."},
        {"insert into voci (codice) values ('A')",
         "!2627 Violation of UNIQUE KEY constraint 'UQ_codice'. Cannot insert duplicate key in object 'dbo.voci'."},
        {"insert into voci values (1)",
         "!213 Column name or number of supplied values does not match table definition."},
        {"insert into voci (codice) values (1, 2)",
         "!110 There are fewer columns in the INSERT statement than values specified in the VALUES clause. The number"
         " of values in the VALUES clause must match the number of columns specified in the INSERT statement."},
        {"insert into voci (codice, nota) values (1)",
         "!109 There are more columns in the INSERT statement than values specified in the VALUES clause. The number of"
         " values in the VALUES clause must match the number of columns specified in the INSERT statement."},
        {"update voci set quante = 'abc'",
         "!245 Conversion failed when converting the varchar value 'abc' to data type int."},
        {"update voci set importo = '1,5'", "!8114 Error converting data type varchar to numeric."},
        {"update voci set giorno = 'domani'",
         "!241 Conversion failed when converting date and/or time from character string."},
        {"update voci set manca = 1", "!207 Invalid column name 'manca'."},
        {"update manca set a = 1", "!208 Invalid object name 'manca'."},
        {"delete from manca", "!208 Invalid object name 'manca'."},
        {"update voci set quante = 1 / 0", "!8134 Divide by zero error encountered."},
        {"update voci set quante = 2147483647 + 1",
         "!8115 Arithmetic overflow error converting expression to data type int."},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(answer(one.text), one.answer) << one.text;
    }
}

TEST_F(Write, ValuesTakeTheTypeOfTheirColumn) {
    run("insert into voci (codice, importo, giorno, chiuso, quante) values ('a    ', 2.345, '20201231', -1, '7')");
    run("insert into voci (codice, importo, giorno, chiuso, quante) values"
        " (12, '3', convert(datetime, '2004-3-7', 102), 'true', 2.9)");
    EXPECT_EQ(rows("select codice, importo, giorno, chiuso, quante from voci order by id"),
              "a    |2.35|2020-12-31 00:00:00.000|1|7\n12|3.00|2004-03-07 00:00:00.000|1|2");
}

TEST_F(Write, TheValuesOfSeveralRowsMeetInOneTypeBeforeTheColumns) {
    run("insert into voci (codice, importo) values ('7 ', '2.50'), (8, 3), (N'9', default), ('10', 4.25)");
    EXPECT_EQ(rows("select codice, importo from voci order by id"), "7|2.50\n8|3.00\n9|NULL\n10|4.25");
    EXPECT_EQ(answer("insert into voci (codice) values ('a'), (12)"),
              "!245 Conversion failed when converting the varchar value 'a' to data type int.");
    EXPECT_EQ(answer("insert into voci (codice) values (12), ('b'), ('c')").substr(0, 4), "!245");
    EXPECT_EQ(answer("insert into voci (codice) values ('a'), (convert(datetime, '20040307', 112))").substr(0, 4),
              "!241");
    run("insert into voci (codice) values ('a'), (N'b'), ('c')");
    EXPECT_EQ(rows("select count(*) from voci"), "7");
}

TEST_F(Write, TheExcessOfTrailingBlanksIsCutInSilence) {
    EXPECT_EQ(answer("insert into voci (codice) values ('abc          ')"), "(1)");
    EXPECT_EQ(rows("select datalength(codice) from voci"), "10");
}

TEST_F(Write, AFailingUpdateOfManyRowsChangesNothing) {
    run("insert into voci (codice, nota) values ('a', '1'), ('b', '2'), ('c', 'x')");
    EXPECT_EQ(answer("update voci set quante = nota").substr(0, 5), "!245 ");
    EXPECT_EQ(rows("select count(*) from voci where quante is null"), "3");
    EXPECT_EQ(answer("update voci set codice = 'z'").substr(0, 6), "!2627 ");
    EXPECT_EQ(rows("select codice from voci order by id"), "a\nb\nc");
}

TEST_F(Write, AThousandRowsAreTheMostOfOneStatement) {
    std::string text = "insert into righe values (1, 1)";
    for (int i = 1; i < 1000; ++i) {
        text += ",(1, 1)";
    }
    EXPECT_EQ(answer(text), "(1000)");
    EXPECT_EQ(answer(text + ",(1, 1)").substr(0, 7), "!10738 ");
}

TEST_F(Write, AnUpdateTellsItsRows) {
    run("insert into voci (codice, quante) values ('a', 1), ('b', 2), ('c', 3)");
    EXPECT_EQ(answer("update voci set quante = quante + 10 where quante > 1"), "(2)");
    EXPECT_EQ(rows("select @@rowcount"), "2");
    EXPECT_EQ(rows("select quante from voci order by id"), "1\n12\n13");
    EXPECT_EQ(answer("delete from voci where codice in ('A', 'c')"), "(2)");
    EXPECT_EQ(answer("delete from voci where codice = 'zz'"), "(0)");
}

TEST_F(Write, StatementsOfOneShapeKeepTheirOwnLiterals) {
    for (const char* text : {"insert into righe (a, b) values (1, 10)", "insert into righe (a, b) values (2, 20)",
                             "insert into righe (a, b) values ('3', 30)"}) {
        EXPECT_EQ(answer(text), "(1)");
    }
    EXPECT_EQ(answer("update righe set b = 11 where a = 1"), "(1)");
    EXPECT_EQ(answer("update righe set b = 22 where a = 2"), "(1)");
    EXPECT_EQ(rows("select a, b from righe order by 1"), "1|11\n2|22\n3|30");
    EXPECT_EQ(rows("select a, b from righe order by 2"), "1|11\n2|22\n3|30");
    EXPECT_EQ(rows("select top 1 a from righe order by 1"), "1");
    EXPECT_EQ(rows("select top 2 a from righe order by 1"), "1\n2");
    EXPECT_EQ(rows("select 1.5 * 2"), "3.0");
    EXPECT_EQ(rows("select 1.25 * 2"), "2.50");
}

TEST_F(Write, RowsComeFromASelect) {
    run("insert into righe values (1, 10), (2, 20)");
    EXPECT_EQ(answer("insert into righe select a + 100, b from righe"), "(2)");
    EXPECT_EQ(answer("insert into voci (codice, quante) select a, b from righe"), "(4)");
    EXPECT_EQ(rows("select id, codice, quante, nota from voci order by id"),
              "1|1|10|nuova\n2|2|20|nuova\n3|101|10|nuova\n4|102|20|nuova");
    EXPECT_EQ(answer("insert into voci (codice) select b from righe").substr(0, 6), "!2627 ");
    EXPECT_EQ(rows("select count(*) from voci"), "4");
}

TEST_F(Write, IdentityInsertTakesTheValueGiven) {
    run("set identity_insert voci on");
    EXPECT_EQ(answer("insert into voci (id, codice) values (50, 'a')"), "(1)");
    EXPECT_EQ(answer("insert into voci (codice) values ('b')").substr(0, 5), "!545 ");
    run("set identity_insert voci off");
    run("insert into voci (codice) values ('c')");
    EXPECT_EQ(rows("select id from voci order by id"), "50\n51");
}

TEST_F(Write, AnUpdateMayReadOtherTables) {
    run("insert into righe values (1, 10), (2, 20)");
    run("insert into voci (codice) values ('1'), ('2'), ('3')");
    EXPECT_EQ(answer("update voci set quante = r.b from voci v inner join righe r on v.codice = r.a"), "(2)");
    EXPECT_EQ(answer("update v set nota = 'due' from voci v where v.codice = '2'"), "(1)");
    EXPECT_EQ(rows("select quante, nota from voci order by id"), "10|nuova\n20|due\nNULL|nuova");
}

TEST_F(Write, ATransactionIsTakenBackWhole) {
    run("begin tran insert into righe values (1, 1) update righe set b = 2");
    EXPECT_EQ(rows("select @@trancount"), "1");
    EXPECT_EQ(rows("select a, b from righe"), "1|2");
    run("rollback");
    EXPECT_EQ(rows("select count(*) from righe"), "0");
    run("begin transaction insert into righe values (1, 1) commit");
    EXPECT_EQ(rows("select count(*) from righe"), "1");
    EXPECT_EQ(answer("commit").substr(0, 6), "!3902 ");
    EXPECT_EQ(answer("rollback").substr(0, 6), "!3903 ");
}

TEST_F(Write, TheReachOfAnError) {
    // A refused row ends its statement, a conversion the batch, a missing table the batch at its place.
    EXPECT_EQ(answer("insert into voci (codice) values (null) select 1").substr(0, 5), "!515 ");
    EXPECT_NE(answer("insert into voci (codice) values (null) select 1").find("\n1"), std::string::npos);
    EXPECT_EQ(answer("select 1 select convert(int, 'x') select 2"),
              "\n1\n!245 Conversion failed when converting the varchar value 'x' to data type int.");
    EXPECT_EQ(answer("insert into righe values (5, 5) select * from manca select 2"),
              "(1)\n!208 Invalid object name 'manca'.");
    EXPECT_EQ(answer("insert into righe values (6, 6) select manca from righe"), "!207 Invalid column name 'manca'.");
    EXPECT_EQ(rows("select a from righe"), "5");
}

} // namespace
} // namespace engine
