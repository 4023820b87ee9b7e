#include "engine/functions/Functions.h"

#include "engine/SessionFixture.h"

#include <set>

namespace engine {
namespace {

using Functions = SessionTest;

struct Case {
    const char* expression;
    const char* value;
};

const char* sampleOf(FunctionParameter::Kind kind) {
    switch (kind) {
    case FunctionParameter::Kind::Text:
    case FunctionParameter::Kind::Written:
        return "'abc'";
    case FunctionParameter::Kind::Int:
        return "1";
    case FunctionParameter::Kind::Float:
    case FunctionParameter::Kind::Number:
        return "2.5";
    case FunctionParameter::Kind::Date:
        return "'20040307'";
    case FunctionParameter::Kind::DatePart:
        return "month";
    case FunctionParameter::Kind::Any:
    case FunctionParameter::Kind::Typed:
        break;
    }
    return "N'x'";
}

/// A SELECT of a row's function with so many arguments; those beyond the row's are 0.
std::string callOf(const FunctionRow& row, std::size_t arguments) {
    std::string text = "select " + std::string(row.name);
    if (row.name.starts_with("@@")) {
        return text;
    }
    text += '(';
    for (std::size_t i = 0; i < arguments; ++i) {
        text += i == 0 ? "" : ", ";
        text += i < row.parameters.most() ? sampleOf(row.parameters[i].kind) : "0";
    }
    return text + ')';
}

TEST_F(Functions, CanBeCalledWithLeastAndMostArguments) {
    ASSERT_FALSE(functionRows().empty());
    for (const FunctionRow* row : functionRows()) {
        for (const std::size_t count : {row->parameters.least(), row->parameters.most()}) {
            const std::string call = callOf(*row, count);
            EXPECT_EQ(answer(call).find('!'), std::string::npos) << call << ": " << answer(call);
        }
    }
}

TEST_F(Functions, RefuseFewerAndMoreArguments) {
    for (const FunctionRow* row : functionRows()) {
        if (row->name.starts_with("@@")) {
            continue;
        }
        const std::size_t least = row->parameters.least();
        const std::size_t most = row->parameters.most();
        const std::string refusal =
            "!174 The " + std::string(row->name) + " function requires " + std::to_string(most) + " argument(s).";
        EXPECT_NE(answer(callOf(*row, most + 1)).find(refusal), std::string::npos) << row->name;
        if (least > 0) {
            EXPECT_NE(answer(callOf(*row, least - 1)).find(refusal), std::string::npos) << row->name;
        }
    }
}

TEST_F(Functions, AreFoundByTheirNameInAnyCase) {
    std::set<std::string> names;
    for (const FunctionRow* row : functionRows()) {
        std::string small(row->name);
        for (char& c : small) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        EXPECT_EQ(row->name.starts_with("@@") ? findServerVariable(small) : findFunction(small), row);
        EXPECT_TRUE(names.insert(storageName(*row)).second) << row->name << " stands twice";
    }
    EXPECT_EQ(findFunction("manca"), nullptr);
    EXPECT_EQ(findServerVariable("@@manca"), nullptr);
}

TEST_F(Functions, GiveTheServersValues) {
    constexpr Case kCases[] = {
        {"isnull(null, 'x')", "x"},
        {"isnull(5, '6')", "5"},
        {"coalesce(null, null, 3)", "3"},
        {"nullif('A', 'a ')", "NULL"},
        {"nullif(1, 2)", "1"},
        {"len('àb  ')", "2"},
        {"datalength(N'àb ')", "6"},
        {"datalength('àb ')", "3"},
        {"datalength(1)", "4"},
        {"upper('città')", "CITTÀ"},
        {"lower('CITTÀ')", "città"},
        {"'[' + ltrim('  a ') + ']'", "[a ]"},
        {"'[' + rtrim('  a ') + ']'", "[  a]"},
        {"left('città', 5)", "città"},
        {"left('città', 4)", "citt"},
        {"right('città', 2)", "tà"},
        {"substring('abcdef', 2, 3)", "bcd"},
        {"substring('abcdef', 0, 3)", "ab"},
        {"substring('abcdef', 5, 30)", "ef"},
        {"replace('Roma roma', 'ROMA', 'x')", "x x"},
        {"replace('aaa', 'a', 'aa')", "aaaaaa"},
        {"charindex('B', 'abcb')", "2"},
        {"charindex('b', 'abcb', 3)", "4"},
        {"charindex('z', 'abcb')", "0"},
        {"str(12.5, 6, 1)", "  12.5"},
        {"str(7)", "         7"},
        {"str(12345, 3)", "***"},
        {"'[' + space(3) + ']'", "[   ]"},
        {"replicate('ab', 3)", "ababab"},
        {"replicate('ab', -1)", "NULL"},
        {"reverse('città')", "àttic"},
        {"abs(-5)", "5"},
        {"round(2.567, 1)", "2.600"},
        {"round(1250, -2)", "1300"},
        {"floor(-2.5)", "-3"},
        {"ceiling(2.1)", "3"},
        {"year('20041231')", "2004"},
        {"month('20041231')", "12"},
        {"day('20041231')", "31"},
        {"dateadd(month, 1, '20040131')", "2004-02-29 00:00:00.000"},
        {"dateadd(day, -1, '20040301')", "2004-02-29 00:00:00.000"},
        {"dateadd(yy, 1, '20040229')", "2005-02-28 00:00:00.000"},
        {"datediff(day, '20040228', '20040301')", "2"},
        {"datediff(month, '20040131', '20040201')", "1"},
        {"datediff(year, '20041231', '20050101')", "1"},
        {"datepart(weekday, '20040307')", "1"},
        {"isnumeric('12.5')", "1"},
        {"isnumeric('abc')", "0"},
        {"isdate('20041231')", "1"},
        {"isdate('boh')", "0"},
        {"cast('12' as int) + 1", "13"},
        {"cast('abcdef' as nvarchar(3))", "abc"},
        {"cast(5 as nchar(3)) + '|'", "5  |"},
        {"convert(varchar(10), convert(datetime, '20040307'), 103)", "07/03/2004"},
        {"cast(2.5 as int)", "2"},
        {"cast(12.345 as decimal(5,1))", "12.3"},
        {"db_name()", "prova"},
        {"db_id('manca')", "NULL"},
        {"db_name(1)", "master"},
        {"object_id('manca')", "NULL"},
        {"@@trancount", "0"},
        {"user_name()", "dbo"},
        {"serverproperty('ServerName')", "pc01\\prova"},
        {"@@servername", "pc01\\prova"},
        {"1 + '2'", "3"},
        {"'a' + 'b'", "ab"},
        {"1.10 * 3", "3.30"},
        {"10.0 / 4", "2.500000"},
        {"-(3)", "-3"},
        {"convert(datetime, '20040307') + 1", "2004-03-08 00:00:00.000"},
        {"convert(bit, 7)", "1"},
        {"convert(bit, 'false')", "0"},
        {"case 2 when 1 then 'a' when 2 then 'b' end", "b"},
        {"case when null = null then 1 end", "NULL"},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(rows(std::string("select ") + one.expression), one.value) << one.expression;
    }
}

TEST_F(Functions, ConditionsFollowTheDialect) {
    constexpr Case kCases[] = {
        {"'a' = 'A  '", "1"},
        {"'a' = 'à'", "0"},
        {"'abc' like 'A_[a-c]'", "1"},
        {"'5%' like '5[%]'", "1"},
        {"'5%' like '5!%' escape '!'", "1"},
        {"'b' between 'A' and 'C'", "1"},
        {"'B' in ('a', 'b')", "1"},
        {"null = null", "0"},
        {"null is null", "1"},
        {"not 1 = 2 and 1 = 1", "1"},
        {"'10' > 9", "1"},
        {"0.1 + 0.2 = 0.3", "1"},
        {"exists (select 1)", "1"},
        {"5 in (select 5)", "1"},
        {"1 = (select 1)", "1"},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(rows(std::string("select case when ") + one.expression + " then 1 else 0 end"), one.value)
            << one.expression;
    }
}

TEST_F(Functions, RefusalsHaveTheServersWords) {
    constexpr Case kCases[] = {
        {"select manca(1)", "!195 'manca' is not a recognized built-in function name."},
        {"select left('a')", "!174 The left function requires 2 argument(s)."},
        {"select left('a', -1)", "!537 Invalid length parameter passed to the LEFT or SUBSTRING function."},
        {"select dateadd(boh, 1, '20040101')", "!155 'boh' is not a recognized dateadd option."},
        {"select 'a' - 'b'", "!402 The data types varchar and varchar are incompatible in the subtract operator."},
        {"select @@manca", "!137 Must declare the scalar variable \"@@manca\"."},
        {"select 1 where 'abc' = 1",
         "!245 Conversion failed when converting the varchar value 'abc' to data type int."},
        {"select 1 / 0", "!8134 Divide by zero error encountered."},
        {"select 1 % 0", "!8134 Divide by zero error encountered."},
        {"select (select 1 union all select 2)",
         "!512 Subquery returned more than 1 value. This is not permitted when the subquery follows =, !=, <, <= , >, >="
         " or when the subquery is used as an expression."},
        {"select cast(9223372036854775807 as bigint) + 1",
         "!8115 Arithmetic overflow error converting expression to data type bigint."},
        {"select dateadd(year, 9000, '20040101')", "!517 Adding a value to a 'datetime' column caused an overflow."},
    };
    for (const Case& one : kCases) {
        const std::string said = answer(one.expression);
        EXPECT_EQ(said.substr(std::min(said.find('!'), said.size())), one.value) << one.expression;
    }
}

} // namespace
} // namespace engine
