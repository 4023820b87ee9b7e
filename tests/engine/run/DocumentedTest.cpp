// What a server answers to a statement, as its documentation has it: a row for each, with the page in a word.

#include "engine/DocumentedFixture.h"

namespace engine {
namespace {

class Documented : public DocumentedTest {
protected:
    Documented() {
        run("CREATE TABLE voci (n int NOT NULL PRIMARY KEY, c char(10) NULL, v varchar(10) NULL, b bit NULL)");
        run("INSERT INTO voci VALUES (1, 'ab', 'ab', 1), (2, 'cd', 'xy  ', 0), (3, 'xy', NULL, NULL)");
    }
};

TEST_F(Documented, TrailingBlanksCountInNoComparison) {
    expect({
        {"SELECT a.n FROM voci a JOIN voci b ON a.c = b.v ORDER BY a.n", "n\n1\n3", "join"},
        {"SELECT a.n FROM voci a JOIN voci b ON a.v = b.c + '   ' ORDER BY a.n", "n\n1\n2", "join"},
        {"SELECT a.n FROM voci a LEFT JOIN voci b ON b.v = a.c WHERE b.n IS NULL", "n\n2", "join"},
        {"SELECT n FROM voci WHERE c IN (SELECT v FROM voci) ORDER BY n", "n\n1\n3", "in"},
        {"SELECT n FROM voci a WHERE EXISTS (SELECT * FROM voci WHERE v = a.c) ORDER BY n", "n\n1\n3", "exists"},
        {"UPDATE voci SET b = 0 FROM voci, voci AS x WHERE x.v = voci.c AND x.n <> voci.n", "(1)", "update"},
        {"SELECT n FROM voci WHERE b = 0 ORDER BY n", "n\n2\n3", "update"},
    });
}

TEST_F(Documented, ABareNullTakesTheTypeOfWhatItMeets) {
    expect({
        {"SELECT 'a' UNION SELECT NULL", "\nNULL\na", "union"},
        {"SELECT NULL UNION SELECT 'a'", "\nNULL\na", "union"},
        {"SELECT NULL UNION SELECT NULL", "\nNULL", "union"},
        {"SELECT NULL UNION ALL SELECT 5 UNION ALL SELECT NULL", "\nNULL\n5\nNULL", "union"},
        {"SELECT 1 WHERE 'a' IN (SELECT NULL)", "", "in"},
        {"SELECT 1 WHERE 'a' NOT IN (SELECT NULL)", "", "in"},
        {"SELECT 1 WHERE 'a' IN (SELECT NULL UNION SELECT 'a')", "\n1", "in"},
        {"SELECT COALESCE(NULL, NULL)",
         "!4127 At least one of the arguments to COALESCE must be an expression that is not the NULL constant.",
         "coalesce"},
        {"SELECT COALESCE(NULL, 'x', NULL)", "\nx", "coalesce"},
        {"SELECT NULLIF(NULL, 2)",
         "!4151 The type of the first argument to NULLIF cannot be the NULL constant because the type of the first "
         "argument has to be known.",
         "nullif"},
        {"SELECT NULLIF(2, NULL)", "\n2", "nullif"},
    });
}

TEST_F(Documented, ABitIsNoNumberToAnAggregate) {
    expect({
        {"SELECT MIN(b) FROM voci", "!8117 Operand data type bit is invalid for min operator.", "min"},
        {"SELECT MAX(b) FROM voci", "!8117 Operand data type bit is invalid for max operator.", "max"},
        {"SELECT SUM(b) FROM voci", "!8117 Operand data type bit is invalid for sum operator.", "sum"},
        {"SELECT COUNT(b) FROM voci", "\n2", "count"},
        {"SELECT MAX(CAST(b AS int)) FROM voci", "\n1", "max"},
        {"SELECT CAST(CAST('20040307' AS datetime) AS bit), CAST(CAST('19000101' AS datetime) AS bit)", "|\n1|0",
         "cast"},
    });
}

TEST_F(Documented, OrderAndNamesOfASelectAreChecked) {
    constexpr const char* kSubquery =
        "!1033 The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, and common table "
        "expressions, unless TOP or FOR XML is also specified.";
    constexpr const char* kDistinct =
        "!145 ORDER BY items must appear in the select list if SELECT DISTINCT is specified.";
    expect({
        {"SELECT DISTINCT b FROM voci ORDER BY n", kDistinct, "order by"},
        {"SELECT DISTINCT n FROM voci ORDER BY n + 1", kDistinct, "order by"},
        {"SELECT DISTINCT n + 1 FROM voci ORDER BY n + 1", "\n2\n3\n4", "order by"},
        {"SELECT DISTINCT a.n FROM voci a ORDER BY a.n DESC", "n\n3\n2\n1", "order by"},
        {"SELECT DISTINCT n AS m FROM voci ORDER BY m", "m\n1\n2\n3", "order by"},
        {"SELECT n FROM (SELECT n FROM voci ORDER BY n) x", kSubquery, "order by"},
        {"SELECT 1 WHERE 1 IN (SELECT n FROM voci ORDER BY n)", kSubquery, "order by"},
        {"SELECT 1 WHERE EXISTS (SELECT n FROM voci ORDER BY n)", kSubquery, "order by"},
        {"SELECT (SELECT MAX(n) FROM voci ORDER BY 1)", kSubquery, "order by"},
        {"SELECT n FROM (SELECT TOP 2 n FROM voci ORDER BY n DESC) x ORDER BY n", "n\n2\n3", "order by"},
        {"SELECT a FROM (SELECT 1) x", "!8155 No column name was specified for column 1 of 'x'.", "from"},
        {"SELECT a FROM (SELECT 1 AS a, n FROM voci UNION SELECT 2, 3) x WHERE n = 3", "a\n1\n2", "from"},
        {"SELECT 1 FROM (SELECT n AS a, c AS A FROM voci) x",
         "!8156 The column 'A' was specified multiple times for 'x'.", "from"},
    });
}

TEST_F(Documented, AnEscapeIsOneCharacter) {
    expect({
        {"SELECT 1 WHERE 'a%' LIKE 'a!%' ESCAPE '!'", "\n1", "like"},
        {"SELECT 1 WHERE 'a%' LIKE 'aè%' ESCAPE 'è'", "\n1", "like"},
        {"SELECT 1 WHERE 'ab' LIKE 'a!%' ESCAPE '!'", "", "like"},
        {"SELECT 1 WHERE 'a%' LIKE 'a''%' ESCAPE ''''", "\n1", "like"},
        {"SELECT 1 WHERE 'a%' LIKE 'a!%' ESCAPE '!!'",
         "!506 The invalid escape character \"!!\" was specified in a LIKE predicate.", "like"},
        {"SELECT 1 WHERE 'a%' LIKE 'a!%' ESCAPE ''",
         "!506 The invalid escape character \"\" was specified in a LIKE predicate.", "like"},
        {"SELECT 1 WHERE 'a%' LIKE 'a!%' ESCAPE 5",
         "!506 The invalid escape character \"5\" was specified in a LIKE predicate.", "like"},
        {"SELECT 1 FROM voci WHERE 'a%' LIKE 'a!%' ESCAPE v",
         "!506 The invalid escape character \"\" was specified in a LIKE predicate.", "a refusal of ours"},
    });
}

TEST_F(Documented, WhatIsNumeric) {
    expect({
        {"SELECT ISNUMERIC('1e5'), ISNUMERIC('-5.'), ISNUMERIC(' 5 '), ISNUMERIC(5), ISNUMERIC(1.5)", "||||\n1|1|1|1|1",
         "isnumeric"},
        {"SELECT ISNUMERIC('$5'), ISNUMERIC('-$5'), ISNUMERIC('€1,000.50'), ISNUMERIC('£'), ISNUMERIC('¥')",
         "||||\n1|1|1|1|1", "isnumeric"},
        {"SELECT ISNUMERIC('+'), ISNUMERIC('-'), ISNUMERIC('.'), ISNUMERIC(',')", "|||\n1|1|1|1", "isnumeric"},
        {"SELECT ISNUMERIC(''), ISNUMERIC('  '), ISNUMERIC(NULL), ISNUMERIC('5 5')", "|||\n0|0|0|0", "isnumeric"},
        {"SELECT ISNUMERIC('--1'), ISNUMERIC('1.5.2'), ISNUMERIC('1$'), ISNUMERIC('$$1'), ISNUMERIC('1-')",
         "||||\n0|0|0|0|0", "isnumeric"},
        {"SELECT ISNUMERIC('1.5,2'), ISNUMERIC('abc')", "|\n0|0", "isnumeric"},
    });
}

TEST_F(Documented, TextsEndAtEightThousandBytes) {
    expect({
        {"SELECT LEN(REPLICATE('a', 8001))", "\n8000", "replicate"},
        {"SELECT LEN(REPLICATE('a', 5000) + REPLICATE('b', 5000))", "\n8000", "+"},
        {"SELECT RIGHT(REPLICATE('a', 5000) + REPLICATE('b', 5000), 2)", "\nbb", "+"},
        {"SELECT LEN(REPLICATE('a', 7999) + 'bc' + 'd')", "\n8000", "+"},
        {"SELECT LEN(REPLACE(REPLICATE('a', 5000), 'a', 'bc'))", "\n8000", "replace"},
    });
}

TEST_F(Documented, MillisecondsAreAddedToTheNearestTick) {
    expect({
        {"SELECT DATEADD(ms, 1, '20040307')", "\n2004-03-07 00:00:00.000", "dateadd"},
        {"SELECT DATEADD(ms, 2, '20040307')", "\n2004-03-07 00:00:00.003", "dateadd"},
        {"SELECT DATEADD(ms, 5, '20040307')", "\n2004-03-07 00:00:00.007", "dateadd"},
        {"SELECT DATEADD(ms, -2, '20040307')", "\n2004-03-06 23:59:59.997", "dateadd"},
        {"SELECT DATEADD(ms, 999, '20040307')", "\n2004-03-07 00:00:01.000", "dateadd"},
    });
}

TEST_F(Documented, ATransactionIsTakenBackByItsNameAlone) {
    expect({
        {"BEGIN TRAN uno", "-", "begin transaction"},
        {"BEGIN TRAN due", "-", "begin transaction"},
        {"ROLLBACK TRAN due", "!6401 Cannot roll back due. No transaction or savepoint of that name was found.",
         "rollback transaction"},
        {"ROLLBACK TRAN UNO", "!6401 Cannot roll back UNO. No transaction or savepoint of that name was found.",
         "rollback transaction"},
        {"SELECT @@TRANCOUNT", "\n2", "@@trancount"},
        {"COMMIT TRAN altro", "-", "commit transaction"},
        {"ROLLBACK TRAN uno", "-", "rollback transaction"},
        {"SELECT @@TRANCOUNT", "\n0", "@@trancount"},
        {"ROLLBACK TRAN uno", "!3903 The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION.",
         "rollback transaction"},
        {"BEGIN TRAN ROLLBACK", "-\n-", "rollback transaction"},
    });
}

TEST_F(Documented, ATableOfASessionIsRefused) {
    expect({
        {"CREATE TABLE #voci (n int)",
         "!40510 Statement 'CREATE TABLE #voci' is not supported in this version of SQL Server.", "a refusal of ours"},
        {"CREATE TABLE ##voci (n int)",
         "!40510 Statement 'CREATE TABLE ##voci' is not supported in this version of SQL Server.", "a refusal of ours"},
        {"SELECT * FROM #voci", "!208 Invalid object name '#voci'.", "from"},
    });
}

TEST_F(Documented, AnObjectKeepsItsNumber) {
    const std::string id = rows("SELECT OBJECT_ID('voci')");
    run("CREATE TABLE altre (n int CONSTRAINT pk_altre PRIMARY KEY, m int CONSTRAINT uq_altre UNIQUE)");
    for (const char* name : {"VOCI", "dbo.voci", "[dbo].[voci]", "prova.dbo.voci", "prova..voci", "\"voci\""}) {
        EXPECT_EQ(rows("SELECT OBJECT_ID('" + std::string(name) + "')"), id) << name;
    }
    expect({
        {"SELECT OBJECT_ID('manca'), OBJECT_ID('x.voci'), OBJECT_ID('manca..voci'), OBJECT_ID('')",
         "|||\nNULL|NULL|NULL|NULL", "object_id"},
        {"SELECT name, xtype FROM sysobjects WHERE parent_obj = OBJECT_ID('altre') ORDER BY name",
         "name|xtype\npk_altre|PK\nuq_altre|UQ", "sysobjects"},
        {"SELECT COUNT(*) FROM sysobjects WHERE id = OBJECT_ID('altre') AND xtype = 'U' AND parent_obj = 0", "\n1",
         "sysobjects"},
        {"SELECT COUNT(*) - COUNT(DISTINCT id) FROM sysobjects", "\n0", "sysobjects"},
        {"SELECT * FROM syscomments", "!208 Invalid object name 'syscomments'.", "a refusal of ours"},
    });
    instance->createDatabase("seconda", "", "");
    run("USE seconda; CREATE TABLE voci (n int)");
    EXPECT_EQ(rows("SELECT OBJECT_ID('prova..voci')"), id);
    EXPECT_NE(rows("SELECT OBJECT_ID('voci')"), id);
}

TEST_F(Documented, TypesWhoseValuesAreNotKeptAreRefused) {
    expect({
        {"CREATE TABLE t (n date)", "!2715 Column, parameter, or variable #1: Cannot find data type date.",
         "a refusal of ours"},
        {"CREATE TABLE t (n smalldatetime)",
         "!2715 Column, parameter, or variable #1: Cannot find data type smalldatetime.", "a refusal of ours"},
        {"CREATE TABLE t (n smallmoney)", "!2715 Column, parameter, or variable #1: Cannot find data type smallmoney.",
         "a refusal of ours"},
        {"SELECT CAST('20040307' AS date)", "!243 Type date is not a defined system type.", "a refusal of ours"},
        {"SELECT CAST(1 AS binary(2))", "!243 Type binary is not a defined system type.", "a refusal of ours"},
    });
}

TEST_F(Documented, ConstraintsThatAreNotKeptAreRefused) {
    expect({
        {"CREATE TABLE figli (n int REFERENCES voci (n))", "!156 Incorrect syntax near the keyword 'REFERENCES'.",
         "a refusal of ours"},
        {"CREATE TABLE figli (n int, FOREIGN KEY (n) REFERENCES voci (n))",
         "!156 Incorrect syntax near the keyword 'FOREIGN'.", "a refusal of ours"},
        {"CREATE TABLE figli (n int CHECK (n > 0))", "!156 Incorrect syntax near the keyword 'CHECK'.",
         "a refusal of ours"},
        {"ALTER TABLE voci ADD CONSTRAINT x CHECK (n > 0)", "!156 Incorrect syntax near the keyword 'CHECK'.",
         "a refusal of ours"},
        {"ALTER TABLE voci WITH NOCHECK ADD CONSTRAINT x FOREIGN KEY (n) REFERENCES voci (n)",
         "!156 Incorrect syntax near the keyword 'FOREIGN'.", "a refusal of ours"},
    });
}

} // namespace
} // namespace engine
