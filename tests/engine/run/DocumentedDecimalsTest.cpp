// Decimals and the ranges of all numbers, as the documentation of a server has them, and what is refused here.

#include "engine/DocumentedFixture.h"

namespace engine {
namespace {

constexpr const char* kRefused =
    "!40517 Keyword or statement option 'decimal with more than 15 significant digits' is not supported in this version "
    "of SQL Server.";
constexpr const char* kNoNumeric = "!8115 Arithmetic overflow error converting expression to data type numeric.";
constexpr const char* kZero = "!8134 Divide by zero error encountered.";

class DocumentedDecimals : public DocumentedTest {
protected:
    DocumentedDecimals() {
        run("CREATE TABLE voci (n int NOT NULL PRIMARY KEY, d decimal(18,2) NULL, w decimal(38,10) NULL, i int NULL,"
            " s smallint NULL, t tinyint NULL, b bigint NULL, f float NULL, r real NULL, x decimal(16,0) NULL)");
        run("INSERT INTO voci VALUES (1, 0.10, 0.1, 10, 1, 1, 1, 0.1, 0.1, 7), (2, 0.20, 2, 20, 2, 2, 2, 0.2, 0.2, 8),"
            " (3, 3.00, 0.0000000001, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
    }
};

TEST_F(DocumentedDecimals, OperatorsHaveTheirPrecisionAndScale) {
    expectRows({
        {"SELECT 1.10 + 2.205, 1.10 - 2.205", "3.305|-1.105", "precision"},
        {"SELECT 0.1 + 0.2, 1.1 * 1.1, 1.10 * 3", "0.3|1.21|3.30", "precision"},
        {"SELECT 10.0 / 4, 1.0 / 3, 2.0 / 3", "2.500000|0.333333|0.666666", "precision"},
        {"SELECT CAST(155 AS decimal(10,2)) / 156", "0.993589", "a page of questions: the quotient is cut"},
        {"SELECT -2.0 / 3, 1.00 / 8", "-0.666666|0.125000", "precision"},
        {"SELECT 1.0 / 0.1234567", "8.100005913", "precision"},
        {"SELECT 5.5 % 2, -5.5 % 2, 5 % 0.3, 1.25 % 0.5", "1.5|-1.5|0.2|0.25", "%"},
        {"SELECT 1 / (12345.5 % 123456.25)", "0.00008100", "precision"},
        {"SELECT 2147483647 / 2, 2147483649 / 2", "1073741823|1073741824.500000", "int"},
        {"SELECT 2147483648 + 1, -2147483649", "2147483649|-2147483649", "int"},
        {"SELECT CAST(0.0000009000 AS decimal(30,20)) * CAST(1.0000000000 AS decimal(30,20))", "0.00000090000000000",
         "precision"},
        {"SELECT CAST(0.0000009000 AS decimal(30,10)) * CAST(1.0000000000 AS decimal(30,10))", "0.000001", "precision"},
        {"SELECT CAST(1 AS decimal(38,20)) + CAST(0.5 AS decimal(38,20))", "1.50000000000000000000", "precision"},
        {"SELECT CAST(1.5 AS decimal(38,4)) + CAST(0.00006 AS decimal(20,10))", "1.5001", "precision"},
        {"SELECT CAST(7 AS bigint) * 1.5, CAST(1 AS bit) + 0.5, CAST(3 AS tinyint) / 2.0", "10.5|1.5|1.500000",
         "precision"},
        {"SELECT n * 1.5, d * n, d / n FROM voci WHERE n = 2", "3.0|0.40|0.1000000000000", "precision"},
        {"SELECT 1.5 + NULL, NULL / 1.5", "NULL|NULL", "+"},
        {"SELECT '1.25' + 1.50, 2.00 * '3'", "2.75|6.0000", "precedence"},
        {"SELECT 1.5e0 + 1.5, 1.5 + 1", "3|2.5", "precedence"},
        {"SELECT 1.0 UNION SELECT 2.25", "1.00\n2.25", "precision"},
        {"SELECT CASE n WHEN 1 THEN 1.5 ELSE 2.25 END FROM voci WHERE n < 3", "1.50\n2.25", "case"},
    });
}

TEST_F(DocumentedDecimals, WhatADoubleDoesntKeepIsRefused) {
    expectRows({
        {"SELECT 123456789012345, 12345678901.2345, 0.123456789012345",
         "123456789012345|12345678901.2345|0.123456789012345", "numeric"},
        {"SELECT 1234567890123.456", kRefused, "a refusal of ours"},
        {"SELECT 0.1234567890123456", kRefused, "a refusal of ours"},
        {"SELECT 1234567890123456", "1234567890123456", "numeric"},
        {"SELECT 9223372036854775807", "9223372036854775807", "numeric"},
        {"SELECT 9223372036854775808", kRefused, "a refusal of ours"},
        {"SELECT 9223372036854775807 + 1", kRefused, "a refusal of ours"},
        {"SELECT CAST('1234567890123.456' AS decimal(18,3))", kRefused, "a refusal of ours"},
        {"SELECT CAST('1234567890123.456' AS decimal(18,2))", "1234567890123.46", "cast"},
        {"SELECT CAST(1234567890123.456 AS decimal(18,2))", "1234567890123.46", "cast"},
        {"SELECT CAST(1234567890123456.5 AS bigint), CAST(1234567890123456.7 AS varchar(20))",
         "1234567890123456|1234567890123456.7", "cast"},
        {"SELECT CAST(0.12345678901234567 AS float) - 0.12345678901234567e0", "0", "cast"},
        {"SELECT 123456789012.34 * 100.01", kRefused, "a refusal of ours"},
        {"SELECT 999999999999.999 + 0.0001", kRefused, "a refusal of ours"},
        {"SELECT 99999999999.999 + 0.0001", "99999999999.9991", "+"},
        {"SELECT CAST(1 AS decimal(18,2)) / CAST(3 AS decimal(18,2))", kRefused, "a refusal of ours"},
        {"SELECT CAST(CAST(1 AS decimal(18,2)) / CAST(3 AS decimal(18,2)) AS decimal(9,4))", "0.3333", "cast"},
        {"SELECT CAST(d * 100 / w AS decimal(9,2)) FROM voci WHERE n < 3", "100.00\n10.00", "cast"},
        {"SELECT ROUND(CAST(2 AS decimal(18,2)) * 100 / CAST(3 AS decimal(18,2)), 2)", "66.6700000000000000", "round"},
        {"SELECT ROUND(CAST(2 AS decimal(18,2)) / CAST(3 AS decimal(18,2)), 19)", kRefused, "a refusal of ours"},
        {"SELECT CAST(CAST(123456789012345 AS decimal(18,2)) / CAST(8 AS decimal(18,2)) * 1.000000001 AS decimal(18,1))",
         "15432098641975.2", "cast"},
        {"SELECT CAST(1 - CAST(2 AS decimal(18,2)) / CAST(3 AS decimal(18,2)) AS decimal(9,4))", "0.3333", "cast"},
        {"SELECT CAST(1.5 AS decimal(18,2)) / CAST(3 AS decimal(18,2)) * 3 - 0.5", "1.000000000000000000", "precision"},
        {"SELECT CAST(d * n AS decimal(9,1)), COUNT(*) FROM voci GROUP BY d * n", "0.1|1\n0.4|1\n9.0|1", "group by"},
        {"SELECT 1 WHERE CAST(1 AS decimal(18,2)) / CAST(3 AS decimal(18,2)) = 0.3", kRefused, "a refusal of ours"},
        {"SELECT -(CAST(1 AS decimal(18,2)) / CAST(3 AS decimal(18,2)))", kRefused, "a refusal of ours"},
        {"INSERT INTO voci (n, d) VALUES (9, 12345678901234.56)", kRefused, "a refusal of ours"},
        {"INSERT INTO voci (n, d) SELECT 9, 1234567890123456", kRefused, "a refusal of ours"},
        {"UPDATE voci SET d = d + 99999999999999.99", kRefused, "a refusal of ours"},
        {"INSERT INTO voci (n, x) VALUES (9, 9007199254740993)", kRefused, "a refusal of ours"},
        {"INSERT INTO voci (n, x) SELECT 9, 9007199254740993", kRefused, "a refusal of ours"},
        {"ALTER TABLE voci ADD y decimal(16,0) NOT NULL DEFAULT 9007199254740993", kRefused, "a refusal of ours"},
        {"INSERT INTO voci (n, b) VALUES (9, 9223372036854775807)", "", "insert"},
        {"SELECT b FROM voci WHERE b = 9223372036854775807", "9223372036854775807", "numeric"},
        {"SELECT n FROM voci WHERE b = 9223372036854775806", "", "numeric"},
        {"SELECT n FROM voci WHERE b IN (9223372036854775806, 1.5)", "", "in"},
        {"DELETE voci WHERE n = 9", "", "delete"},
        {"SELECT CAST(0.1e0 AS decimal(18,10)), CAST(0.5e0 AS decimal(38,30))",
         "0.1000000000|0.500000000000000000000000000000", "cast"},
        {"SELECT CAST(0.1e0 AS decimal(38,30))", kRefused, "a refusal of ours"},
        {"SELECT CAST(1e15 AS decimal(38,0))", kRefused, "a refusal of ours"},
        {"SELECT CAST(123456789012345e0 AS decimal(38,0))", "123456789012345", "cast"},
        {"SELECT CAST(1e-23 AS decimal(38,30))", kRefused, "a refusal of ours"},
    });
}

TEST_F(DocumentedDecimals, DifferentNumbersAreNeverEqual) {
    expectRows({
        {"SELECT 1 WHERE 1234567890123456.78 = 1234567890123456.77", kRefused, "a refusal of ours"},
        {"SELECT 1 WHERE 1234567890123.78 = 1234567890123.77", "", "="},
        {"SELECT 1 WHERE 1234567890123.78 > 1234567890123.77", "1", ">"},
        {"SELECT 1 WHERE 0.1 + 0.2 = 0.3 AND 0.30 = 0.3", "1", "="},
        {"SELECT n FROM voci WHERE d = 0.1 OR d = 0.2 + 2.8 ORDER BY n", "1\n3", "="},
        {"SELECT n FROM voci WHERE d = '0.1'", "1", "="},
        {"SELECT n FROM voci WHERE d = '0.100000000000000001'", kRefused, "a refusal of ours"},
        {"SELECT n FROM voci WHERE d = '1e-1'", "!8114 Error converting data type varchar to numeric.", "="},
        {"SELECT n FROM voci WHERE d IN ('0.1', 3)", "1\n3", "in"},
        {"SELECT n FROM voci WHERE d IN (SELECT w FROM voci)", "1", "in"},
        {"SELECT n FROM voci WHERE n IN (SELECT w FROM voci)", "2", "in"},
        {"SELECT a.n, b.n FROM voci a JOIN voci b ON a.d = b.w", "1|1", "join"},
        {"SELECT a.n FROM voci a JOIN voci b ON a.n = b.w", "2", "join"},
        {"SELECT n FROM voci WHERE f = 0.1 OR f = 0.20000000000000001", "1\n2", "="},
        {"SELECT n FROM voci WHERE f = 0.20000000000000004", "", "="},
        {"SELECT n FROM voci WHERE f IN (0.10000000000000002, 0.2)", "2", "in"},
        {"SELECT n FROM voci WHERE r = 0.1 OR r = 0.2", "1\n2", "precedence"},
        {"SELECT n FROM voci WHERE r = 0.1e0", "", "precedence"},
        {"SELECT f * 1.00000000000000001 FROM voci WHERE n = 1", "0.1", "precedence"},
        {"SELECT n FROM voci WHERE d BETWEEN 0.1 AND 0.2", "1\n2", "between"},
        {"SELECT COUNT(DISTINCT d), MIN(d), MAX(w) FROM voci", "3|0.10|2.0000000000", "min"},
        {"SELECT NULLIF(0.10, 0.1), ISNULL(NULL, 0.10), COALESCE(NULL, 1, 0.5)", "NULL|0.10|1.0", "nullif"},
    });
}

TEST_F(DocumentedDecimals, AggregatesAreExact) {
    expectRows({
        {"SELECT SUM(d), AVG(d) FROM voci", "3.30|1.100000", "avg"},
        {"SELECT SUM(w), AVG(w) FROM voci", "2.1000000001|0.7000000000", "avg"},
        {"SELECT AVG(x) FROM (SELECT CAST(0 AS decimal(5,4)) AS x UNION ALL SELECT 0 UNION ALL SELECT 1) u", "0.333333",
         "a page of questions: the average is cut"},
        {"SELECT SUM(DISTINCT x), AVG(DISTINCT x) FROM (SELECT 1.5 AS x UNION ALL SELECT 1.5 UNION ALL SELECT 2) u",
         "3.5|1.750000", "avg"},
        {"SELECT SUM(d), AVG(d), SUM(i), AVG(i) FROM voci WHERE n > 9", "NULL|NULL|NULL|NULL", "avg"},
        {"SELECT SUM(d), AVG(d) FROM voci WHERE i IS NULL GROUP BY i", "3.00|3.000000", "avg"},
        {"SELECT SUM(NULLIF(d, 0.1)) FROM voci", "3.20", "sum"},
        {"SELECT SUM(x) FROM (SELECT 49999999999999.9 AS x UNION ALL SELECT 49999999999999.9) u", "99999999999999.8",
         "sum"},
        {"SELECT SUM(x) FROM (SELECT 999999999999999 AS x UNION ALL SELECT 2) u", kRefused, "a refusal of ours"},
        {"SELECT SUM(x * x) FROM (SELECT 12345.6789 AS x UNION ALL SELECT 0.0001) u", kRefused, "a refusal of ours"},
        {"SELECT CAST(SUM(x * y) AS decimal(18,4)) FROM (SELECT 12345.6789 AS x, 1000.0001 AS y UNION ALL"
         " SELECT 0.6789, -0.0001) u",
         "12345680.1345", "sum"},
        {"SELECT n FROM voci GROUP BY n HAVING SUM(d) = 0.1", "1", "having"},
        {"SELECT AVG(i), AVG(t), AVG(s), AVG(b) FROM voci", "15|1|1|1", "avg"},
        {"SELECT AVG(f) FROM voci", "0.15", "avg"},
        {"SELECT AVG(n) FROM voci GROUP BY n / 3 ORDER BY AVG(n)", "1\n3", "avg"},
    });
}

TEST_F(DocumentedDecimals, FunctionsOfNumbers) {
    constexpr const char* kNoInt = "!8115 Arithmetic overflow error converting expression to data type int.";
    expectRows({
        {"SELECT ROUND(748.58, -1), ROUND(748.58, -2), ROUND(748.58, -4)", "750.00|700.00|0.00", "round"},
        {"SELECT ROUND(748.58, -3)", "!8115 Arithmetic overflow error converting numeric to data type numeric.",
         "round"},
        {"SELECT ROUND(CAST(748.58 AS decimal(6,2)), -3)", "1000.00", "round"},
        {"SELECT ROUND(123.9994, 3), ROUND(123.9995, 3)", "123.9990|124.0000", "round"},
        {"SELECT ROUND(123.4545, 2), ROUND(123.45, -2), ROUND(150.75, 0)", "123.4500|100.00|151.00", "round"},
        {"SELECT ROUND(0.5, 0)", "!8115 Arithmetic overflow error converting numeric to data type numeric.",
         "a page of questions"},
        {"SELECT ROUND(0.123456789012345, 14)", "0.123456789012350", "round"},
        {"SELECT ROUND(744, -3), ROUND(-1.5, 0), ROUND(2.345, 2)", "1000|-2.0|2.350", "round"},
        {"SELECT ROUND(CAST(255 AS tinyint), -1), ROUND(CAST(32767 AS smallint), -1)", "260|32770", "round"},
        {"SELECT ROUND(2147483647, -1)", kNoInt, "round"},
        {"SELECT DATALENGTH(ROUND(r, 1)), DATALENGTH(FLOOR(r)) FROM voci WHERE n = 1", "8|8", "round"},
        {"SELECT ROUND(2.675e0, 2), ROUND(1e20, 2), ROUND(1e-20, 2), ROUND(999999999999999e0, -1)",
         "2.68|1e+020|0|1e+015", "round"},
        {"SELECT FLOOR(123.45), FLOOR(-123.45), CEILING(123.45), CEILING(9.9)", "123|-124|124|10", "floor"},
        {"SELECT FLOOR(12.9273), CEILING(12.9273), FLOOR(5), CEILING(1.2e0)", "12|13|5|2", "floor"},
        {"SELECT ABS(-1.50), ABS(1.0), ABS(CAST(-5 AS smallint))", "1.50|1.0|5", "abs"},
        {"SELECT ABS(CAST(-32768 AS smallint))",
         "!8115 Arithmetic overflow error converting expression to data type smallint.", "abs"},
        {"SELECT CAST(12.9 AS int), CAST(-12.9 AS int), CAST(12.5e0 AS int)", "12|-12|12", "cast"},
        {"SELECT CAST(12.345 AS decimal(9,2)), CAST(-12.345 AS decimal(9,2))", "12.35|-12.35", "cast"},
        {"SELECT CAST(0.0 AS bit), CAST(0.1 AS bit), CAST(1.5 AS datetime)", "0|1|1900-01-02 12:00:00.000", "cast"},
        {"SELECT CAST(CAST('20040307' AS datetime) AS decimal(9,2))", "38051.00", "cast"},
    });
}

TEST_F(DocumentedDecimals, OverflowAndDivisionByZero) {
    const auto no = [](const char* type) {
        return std::string("!8115 Arithmetic overflow error converting expression to data type ") + type + ".";
    };
    const std::string noTiny = no("tinyint");
    const std::string noSmall = no("smallint");
    const std::string noInt = no("int");
    const std::string noBig = no("bigint");
    const std::string noFloat = no("float");
    expectRows({
        {"SELECT CAST(200 AS tinyint) + CAST(100 AS tinyint)", noTiny.c_str(), "tinyint"},
        {"SELECT CAST(2 AS tinyint) - CAST(3 AS tinyint)", noTiny.c_str(), "tinyint"},
        {"SELECT t - s FROM voci WHERE n = 1", "0", "precedence"},
        {"SELECT CAST(32767 AS smallint) * CAST(2 AS smallint)", noSmall.c_str(), "smallint"},
        {"SELECT 2147483647 + 1", noInt.c_str(), "int"},
        {"SELECT CAST(9223372036854775807 AS bigint) + 1", noBig.c_str(), "bigint"},
        {"UPDATE voci SET t = t - 2 WHERE n = 1", "!220 Arithmetic overflow error for data type tinyint, value = -1.",
         "220"},
        {"SELECT CAST(256 AS tinyint)", "!220 Arithmetic overflow error for data type tinyint, value = 256.", "220"},
        {"SELECT CAST(2147483649 AS tinyint)", noTiny.c_str(), "tinyint"},
        {"SELECT CAST(CAST(70000 AS bigint) AS smallint)", noSmall.c_str(), "smallint"},
        {"SELECT CAST(b + 2147483647 AS int) FROM voci WHERE n = 1", noInt.c_str(), "int"},
        {"SELECT CAST(1e10 AS int)", "!232 Arithmetic overflow error for type int, value = 10000000000.000000.", "int"},
        {"SELECT CAST(99999999999.5 AS int)", noInt.c_str(), "int"},
        {"SELECT CAST(9223372036854775808 AS bigint)", noBig.c_str(), "bigint"},
        {"SELECT CAST(-9223372036854775808.9 AS bigint)", "-9223372036854775808", "bigint"},
        {"SELECT SUM(x) FROM (SELECT 2147483647 AS x UNION ALL SELECT 1) u", noInt.c_str(), "sum"},
        {"SELECT AVG(x) FROM (SELECT 2147483647 AS x UNION ALL SELECT 1) u", noInt.c_str(), "avg"},
        {"SELECT SUM(x) FROM (SELECT CAST(9223372036854775807 AS bigint) AS x UNION ALL SELECT 1) u", noBig.c_str(),
         "sum"},
        {"SELECT AVG(x) FROM (SELECT CAST(9223372036854775807 AS bigint) AS x UNION ALL SELECT 1) u", noBig.c_str(),
         "avg"},
        {"SELECT SUM(x) FROM (SELECT CAST(255 AS tinyint) AS x UNION ALL SELECT 255) u", "510", "sum"},
        {"SELECT CAST(x AS decimal(5,2)) FROM (SELECT CAST(1000 AS decimal(5,0)) AS x) u",
         "!8115 Arithmetic overflow error converting numeric to data type numeric.", "decimal"},
        {"SELECT CAST(1000 AS decimal(5,2))",
         "!8115 Arithmetic overflow error converting numeric to data type numeric.", "decimal"},
        {"SELECT CAST(CAST(99999999999999 AS decimal(38,0)) * 10000000000 AS decimal(20,0))",
         "!8115 Arithmetic overflow error converting numeric to data type numeric.", "decimal"},
        {"SELECT CAST(CAST(9999999999 AS decimal(38,6)) * CAST(1000000000000 AS decimal(38,6)) * 100000000000 AS float)",
         kNoNumeric, "decimal"},
        {"SELECT 1e308 * 10, 1", noFloat.c_str(), "float"},
        {"SELECT 1e308 / 1e-10", noFloat.c_str(), "float"},
        {"SELECT 1 / 0", kZero, "/"},
        {"SELECT 1 / 0.0", kZero, "/"},
        {"SELECT 1.5 % 0", kZero, "%"},
        {"SELECT 1e0 / 0", kZero, "/"},
        {"SELECT 1 % 0", kZero, "%"},
        {"SELECT d / (d - d) FROM voci", kZero, "/"},
        {"SELECT 5.5e0 % 2", "!402 The data types float and int are incompatible in the modulo operator.", "%"},
        {"SELECT r % 2 FROM voci", "!402 The data types real and int are incompatible in the modulo operator.", "%"},
    });
}

TEST_F(DocumentedDecimals, StylesOfAFloat) {
    expectRows({
        {"SELECT CONVERT(varchar(30), 12345.678e0), CONVERT(varchar(30), 12345.678e0, 0)", "12345.7|12345.7",
         "convert"},
        {"SELECT CONVERT(varchar(30), 12345.678e0, 1)", "1.2345678e+004", "convert"},
        {"SELECT CONVERT(varchar(30), 12345.678e0, 2)", "1.234567800000000e+004", "convert"},
        {"SELECT CONVERT(varchar(30), 0.1e0, 3)", "1.0000000000000001e-001", "convert"},
        {"SELECT CONVERT(varchar(30), -1e200, 1), CONVERT(varchar(30), 0e0, 1)", "-1.0000000e+200|0.0000000e+000",
         "convert"},
        {"SELECT CONVERT(varchar(30), r, 1) FROM voci WHERE n = 2", "2.0000000e-001", "convert"},
        {"SELECT CONVERT(varchar(30), 12345.678e0, 7)", "12345.7", "convert: other values are processed as 0"},
        {"SELECT CONVERT(varchar(30), 1e0, 126)",
         "!40517 Keyword or statement option 'style 126 of float' is not supported in this version of SQL Server.",
         "a refusal of ours"},
        {"SELECT CONVERT(varchar(30), 1e0, 128)",
         "!40517 Keyword or statement option 'style 128 of float' is not supported in this version of SQL Server.",
         "a refusal of ours"},
        {"SELECT CONVERT(varchar(30), 1e0, 129)",
         "!40517 Keyword or statement option 'style 129 of float' is not supported in this version of SQL Server.",
         "a refusal of ours"},
        {"SELECT CONVERT(varchar(30), 12.50, 1), CONVERT(varchar(30), 12, 2)", "12.50|12", "convert"},
    });
}

} // namespace
} // namespace engine
