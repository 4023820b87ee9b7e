// Money, as the documentation of a server has it.

#include "engine/DocumentedFixture.h"

namespace engine {
namespace {

constexpr const char* kRefused =
    "!40517 Keyword or statement option 'decimal with more than 15 significant digits' is not supported in this version "
    "of SQL Server.";
constexpr const char* kNoMoney = "!8115 Arithmetic overflow error converting expression to data type money.";

class DocumentedMoney : public DocumentedTest {
protected:
    DocumentedMoney() {
        run("CREATE TABLE voci (n int NOT NULL PRIMARY KEY, m money NULL, d decimal(19,4) NULL, v varchar(20) NULL)");
        run("INSERT INTO voci VALUES (1, 1, 1, '1.5'), (2, 2.00005, 2, '$2')");
        run("INSERT INTO voci VALUES (3, '$1,234.5', NULL, NULL)");
    }
};

TEST_F(DocumentedMoney, HasFourPlaces) {
    expectRows({
        {"SELECT m FROM voci", "1.0000\n2.0001\n1234.5000", "money"},
        {"SELECT m + 1, m - 0.5, m * 2, -m FROM voci WHERE n = 1", "2.0000|0.5000|2.0000|-1.0000", "money"},
        {"SELECT CAST(100 AS money) / CAST(339 AS money) * CAST(10000 AS money)", "2949.0000",
         "a page of questions: the quotient is cut"},
        {"SELECT CAST(1 AS money) / CAST(18.4172 AS money), CAST(18.4172 AS money) * CAST(1.1562 AS money)",
         "0.0542|21.2940", "a page of questions: the product is rounded"},
        {"SELECT CAST(2 AS money) / 3, CAST(-2 AS money) / 3, 7 / CAST(2 AS money)", "0.6666|-0.6666|3.5000",
         "precedence"},
        {"SELECT CAST(0.0001 AS money) * CAST(0.5 AS money)", "0.0001", "money"},
        {"SELECT CAST(5 AS money) % 3, CAST(5.5 AS money) % CAST(2 AS money)", "2.0000|1.5000", "%"},
        {"SELECT m * 1.5, m + d FROM voci WHERE n = 1", "1.50000|2.0000", "precedence: a decimal"},
        {"SELECT m + v FROM voci WHERE n < 3", "2.5000\n4.0001", "precedence"},
        {"SELECT m * 1e0 FROM voci WHERE n = 2", "2.0001", "precedence"},
        {"SELECT SUM(m), AVG(m), MIN(m), MAX(m) FROM voci", "1237.5001|412.5000|1.0000|1234.5000", "avg"},
        {"SELECT AVG(x) FROM (SELECT CAST(1 AS money) AS x UNION ALL SELECT 1 UNION ALL SELECT 0) u", "0.6666",
         "avg: its example is cut"},
        {"SELECT SUM(m), AVG(m) FROM voci WHERE n > 9", "NULL|NULL", "avg"},
        {"SELECT FLOOR(m), CEILING(m), ROUND(m, 1), ABS(-m) FROM voci WHERE n = 3",
         "1234.0000|1235.0000|1234.5000|1234.5000", "floor"},
        {"SELECT ROUND(CAST(748.58 AS money), -3)", "1000.0000", "round"},
        {"SELECT CASE n WHEN 1 THEN m ELSE 5 END FROM voci WHERE n < 3", "1.0000\n5.0000", "precedence"},
        {"SELECT 1.0 / CASE n WHEN 1 THEN m ELSE CAST(2 AS bigint) END FROM voci WHERE n = 2",
         "0.500000000000000000000", "precedence: money"},
        {"SELECT m FROM voci WHERE n = 1 UNION SELECT 1", "1.0000", "precedence"},
        {"SELECT n FROM voci WHERE m = d", "1", "="},
        {"SELECT n FROM voci WHERE m = '1,234.50' OR m IN ('$1', 7)", "1\n3", "precedence"},
        {"SELECT n FROM voci WHERE m IN (SELECT d FROM voci) OR m IN (1234.5, 9)", "1\n3", "in"},
        {"SELECT DATALENGTH(m), DATALENGTH(d) FROM voci WHERE n = 1", "8|9", "datalength"},
        {"SELECT data_type, numeric_precision, numeric_scale FROM information_schema.columns WHERE column_name IN "
         "('m', 'd') ORDER BY column_name",
         "decimal|19|4\nmoney|19|4", "columns"},
    });
}

TEST_F(DocumentedMoney, AsText) {
    expectRows({
        {"SELECT CONVERT(varchar(20), CAST(4235.98765 AS money))", "4235.99", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(3510.92 AS money), 1)", "3,510.92", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(4235.9819 AS money), 2)", "4235.9819", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(4235.9819 AS money), 126)", "4235.9819", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(4235.9819 AS money), 0)", "4235.98", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(4235.9819 AS money), 77)", "4235.98",
         "convert: other values are processed as 0"},
        {"SELECT CONVERT(varchar(20), CAST(-1234567.895 AS money), 1)", "-1,234,567.90", "convert"},
        {"SELECT CONVERT(varchar(20), CAST(999 AS money), 1), CONVERT(varchar(20), CAST(-100 AS money), 1)",
         "999.00|-100.00", "convert"},
        {"SELECT CAST(m AS nvarchar(20)), 'x' + CAST(m AS varchar(9)) FROM voci WHERE n = 2", "2.00|x2.00", "cast"},
        {"SELECT CAST(m / 3 AS varchar(20)) FROM voci WHERE n = 1", "0.33", "cast"},
        {"SELECT CAST('$ 1,000.00' AS money), CAST('€ 1,000.00' AS money), CAST('-$2.5' AS money)",
         "1000.0000|1000.0000|-2.5000", "235"},
        {"SELECT CAST('' AS money), CAST('-' AS money), CAST(' 1.23456 ' AS money)", "0.0000|0.0000|1.2346",
         "isnumeric"},
        {"SELECT CAST('ABC' AS money)",
         "!235 Cannot convert a char value to money. The char value has incorrect syntax.", "235"},
        {"SELECT CAST('1.5.2' AS money)",
         "!235 Cannot convert a char value to money. The char value has incorrect syntax.", "235"},
        {"SELECT CAST('1 2' AS money)",
         "!235 Cannot convert a char value to money. The char value has incorrect syntax.", "235"},
        {"SELECT CAST('- 2' AS money)",
         "!235 Cannot convert a char value to money. The char value has incorrect syntax.", "a refusal of ours"},
    });
}

TEST_F(DocumentedMoney, ToAndFromOtherNumbers) {
    expectRows({
        {"SELECT CAST(CAST(10.3496847 AS money) AS int), CAST(CAST(10.5 AS money) AS int)", "10|11", "cast: rounded"},
        {"SELECT CAST(CAST(-10.5 AS money) AS int), CAST(CAST(2.4999 AS money) AS bigint)", "-11|2", "cast: rounded"},
        {"SELECT CAST(CAST(255.5 AS money) AS tinyint)",
         "!8115 Arithmetic overflow error converting expression to data type tinyint.", "tinyint"},
        {"SELECT CAST(10.3496847 AS money), CAST(10.34965e0 AS money), CAST(5 AS money)", "10.3497|10.3497|5.0000",
         "cast"},
        {"SELECT CAST(CAST(1.2345 AS money) AS decimal(9,2)), CAST(CAST(1.2345 AS money) AS float)", "1.23|1.2345",
         "cast"},
        {"SELECT CAST(CAST(0.0001 AS money) AS bit), CAST(CAST(1.5 AS money) AS datetime)", "1|1900-01-02 12:00:00.000",
         "cast"},
        {"SELECT CAST(99999999999.9999 AS money), CAST(-99999999999.9999 AS money)",
         "99999999999.9999|-99999999999.9999", "money"},
        {"SELECT CAST(922337203685477 AS money)", "922337203685477.0000", "money"},
        {"SELECT CAST(922337203685477.5807 AS money)", kRefused, "a refusal of ours"},
        {"SELECT CAST('922337203685477.5807' AS money)", kRefused, "a refusal of ours"},
        {"SELECT CAST(922337203685477.5808 AS money)",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "money"},
        {"SELECT CAST(-922337203685477.5809 AS money)",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "money"},
        {"SELECT CAST('922337203685478' AS money)", kNoMoney, "money"},
        {"SELECT CAST(12345678901234567890123456789012345678 AS money)",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "money"},
        {"SELECT CAST(x AS money) FROM (SELECT CAST(999999999999999 AS decimal(15,0)) AS x) u",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "money"},
        {"SELECT CAST(1e30 AS money)", "!8115 Arithmetic overflow error converting numeric to data type money.",
         "money"},
        {"SELECT CAST(922337203685477 AS money) + 1", kNoMoney, "money"},
        {"SELECT SUM(x) FROM (SELECT CAST(922337203685477 AS money) AS x UNION ALL SELECT 1) u",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "sum"},
        {"UPDATE voci SET m = 922337203685478",
         "!8115 Arithmetic overflow error converting numeric to data type money.", "money"},
        {"SELECT CAST(1 AS money) / 0", "!8134 Divide by zero error encountered.", "/"},
    });
}

} // namespace
} // namespace engine
