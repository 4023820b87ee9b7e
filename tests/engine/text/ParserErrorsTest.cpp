#include "engine/ExpectError.h"
#include "engine/text/Parser.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

struct ErrorCase {
    const char* text;
    const char* error; ///< number and words
};

void PrintTo(const ErrorCase& error, std::ostream* out) {
    *out << error.text;
}

class RefusedBatch : public testing::TestWithParam<ErrorCase> {};

TEST_P(RefusedBatch, TellsNumberAndWords) {
    EXPECT_EQ(errorOf([] { parse(GetParam().text); }), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(AtTheEnd, RefusedBatch,
                         testing::Values(ErrorCase{"select", "102 Incorrect syntax near 'select'."},
                                         ErrorCase{"select * from", "102 Incorrect syntax near 'from'."},
                                         ErrorCase{"select * from t where", "102 Incorrect syntax near 'where'."},
                                         ErrorCase{"select * from t where a =", "102 Incorrect syntax near '='."},
                                         ErrorCase{"select * from t where a in (1, 'due'",
                                                   "102 Incorrect syntax near 'due'."},
                                         ErrorCase{"select * from (select 1 a)", "102 Incorrect syntax near ')'."},
                                         ErrorCase{"update t", "102 Incorrect syntax near 't'."},
                                         ErrorCase{"create table [a b]", "102 Incorrect syntax near 'a b'."},
                                         ErrorCase{"exec", "102 Incorrect syntax near 'exec'."},
                                         ErrorCase{"begin select 1", "102 Incorrect syntax near '1'."}));

INSTANTIATE_TEST_SUITE_P(
    AtAKeyword, RefusedBatch,
    testing::Values(ErrorCase{"select from t", "156 Incorrect syntax near the keyword 'from'."},
                    ErrorCase{"select a as From t", "156 Incorrect syntax near the keyword 'From'."},
                    ErrorCase{"select * from t where key = 1", "156 Incorrect syntax near the keyword 'key'."},
                    ErrorCase{"select t.user from t", "156 Incorrect syntax near the keyword 'user'."},
                    ErrorCase{"create table order (a int)", "156 Incorrect syntax near the keyword 'order'."},
                    ErrorCase{"alter table t ADD COLUMN a int", "156 Incorrect syntax near the keyword 'COLUMN'."},
                    ErrorCase{"select 1 from t order by a union select 2",
                              "156 Incorrect syntax near the keyword 'union'."},
                    ErrorCase{"select not a = 1", "156 Incorrect syntax near the keyword 'not'."},
                    ErrorCase{"begin end", "156 Incorrect syntax near the keyword 'end'."},
                    ErrorCase{"grant select on t to u", "156 Incorrect syntax near the keyword 'grant'."},
                    ErrorCase{"select a into b from c", "156 Incorrect syntax near the keyword 'into'."},
                    ErrorCase{"create table t (a int null not null)", "156 Incorrect syntax near the keyword 'null'."},
                    ErrorCase{"insert into t exec p", "156 Incorrect syntax near the keyword 'exec'."}));

INSTANTIATE_TEST_SUITE_P(
    AtAnotherToken, RefusedBatch,
    testing::Values(ErrorCase{"select 'abc' 5", "102 Incorrect syntax near '5'."},
                    ErrorCase{"select a b c", "102 Incorrect syntax near 'c'."},
                    ErrorCase{"select * from t where a = b = c", "102 Incorrect syntax near '='."},
                    ErrorCase{"select * from t where (a = b) + 1 = 2", "102 Incorrect syntax near '+'."},
                    ErrorCase{"select (a = b)", "102 Incorrect syntax near ')'."},
                    ErrorCase{"select * from t where a is null is null", "156 Incorrect syntax near the keyword 'is'."},
                    ErrorCase{"select * from (t)", "102 Incorrect syntax near ')'."},
                    ErrorCase{"select * from a join b", "102 Incorrect syntax near 'b'."},
                    ErrorCase{"select top -1 a", "102 Incorrect syntax near '-'."},
                    ErrorCase{"select top 1.5 a", "102 Incorrect syntax near '1.5'."},
                    ErrorCase{"select sum(*)", "102 Incorrect syntax near '*'."},
                    ErrorCase{"select 0xff", "102 Incorrect syntax near '0xff'."},
                    ErrorCase{"selekt * from t", "102 Incorrect syntax near '*'."},
                    ErrorCase{"select 1 ; sp_help", "102 Incorrect syntax near 'sp_help'."},
                    ErrorCase{"if 1 = 1 sp_help", "102 Incorrect syntax near 'sp_help'."},
                    ErrorCase{"exec ('select 1')", "102 Incorrect syntax near '('."},
                    ErrorCase{"exec p 1 + 1", "102 Incorrect syntax near '+'."},
                    ErrorCase{"set transaction isolation level high", "102 Incorrect syntax near 'high'."},
                    ErrorCase{"create database x on (colour = 1)", "102 Incorrect syntax near 'colour'."},
                    ErrorCase{"create database x on (size = 1 PB)", "102 Incorrect syntax near 'PB'."},
                    ErrorCase{"select convert(datetime, a, b)", "102 Incorrect syntax near 'b'."},
                    ErrorCase{"select * from t where a like 'x' 'y'", "102 Incorrect syntax near 'y'."}));

INSTANTIATE_TEST_SUITE_P(
    OfOtherNumbers, RefusedBatch,
    testing::Values(
        ErrorCase{"select 'abc", "105 Unclosed quotation mark after the character string 'abc'."},
        ErrorCase{"select 1 /* 2", "113 Missing end comment mark '*/'."},
        ErrorCase{"select a.b.c.d.e", "117 The object name 'a.b.c.d.e' contains more than the maximum number of "
                                      "prefixes. The maximum is 3."},
        ErrorCase{"create table t (a varchar(9000))", "131 The size (9000) given to the column 'a' exceeds the maximum "
                                                      "allowed for any data type (8000)."},
        ErrorCase{"select @x", "137 Must declare the scalar variable \"@x\"."},
        ErrorCase{"set @x = 1", "137 Must declare the scalar variable \"@x\"."},
        ErrorCase{"exec p @x", "137 Must declare the scalar variable \"@x\"."},
        ErrorCase{"create table t (a decimal(5,6))",
                  "183 The scale (6) for column 'a' must be within the range 0 to 5."},
        ErrorCase{"select cast(a as colour)", "243 Type colour is not a defined system type."},
        ErrorCase{"create table t (a varchar(9) collate Greek_CI_AS)", "448 Invalid collation 'Greek_CI_AS'."},
        ErrorCase{"create table t (a nvarchar(0))", "1001 Line 1: Length or precision specification 0 is invalid."},
        ErrorCase{"create table t (a int, b uniqueidentifier)",
                  "2715 Column, parameter, or variable #2: Cannot find data type uniqueidentifier."},
        ErrorCase{"create table t (a nvarchar(4001))",
                  "2717 The size (4001) given to the column 'a' exceeds the maximum allowed (4000)."},
        ErrorCase{"select cast(a as nchar(4001))",
                  "2717 The size (4001) given to the type 'nchar' exceeds the maximum allowed (4000)."},
        ErrorCase{"create table t (a int, b decimal(39))",
                  "2750 Column or parameter #2: Specified column precision 39 is greater than the maximum precision of "
                  "38."},
        ErrorCase{"select * from t where a", "4145 An expression of non-boolean type specified in a context where a "
                                             "condition is expected, near 'a'."},
        ErrorCase{"select * from t where a and b = 1", "4145 An expression of non-boolean type specified in a context "
                                                       "where a condition is expected, near 'and'."},
        ErrorCase{"if 1 select 1", "4145 An expression of non-boolean type specified in a context where a condition is "
                                   "expected, near 'select'."},
        ErrorCase{"create table t (a int null primary key)",
                  "8111 Cannot define PRIMARY KEY constraint on nullable column in table 't'."},
        ErrorCase{"alter table t add a int identity null",
                  "8147 Could not create IDENTITY attribute on nullable column 'a', table 't'."}));

TEST(RefusedBatch, TellsThePlaceAndEndsTheWholeBatch) {
    try {
        parse("select 1\r\nselect * frm t");
        FAIL() << "accepted";
    } catch (const Error& error) {
        EXPECT_EQ(error.position(), 19);
        EXPECT_EQ(error.reach(), Error::Reach::Batch);
    }
}

constexpr const char* kTooDeep = "191 Some part of your SQL statement is nested too deeply. Rewrite the query or break "
                                 "it up into smaller queries.";

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

struct NestingCase {
    const char* name;
    std::string before, repeat, middle, after, end;
};

class Nesting : public testing::TestWithParam<NestingCase> {};

TEST_P(Nesting, IsFollowedToALimit) {
    const auto& nesting = GetParam();
    const auto batch = [&](int times) {
        return nesting.before + repeated(nesting.repeat, times) + nesting.middle + repeated(nesting.after, times) +
               nesting.end;
    };
    EXPECT_EQ(errorOf([&] { parse(batch(50)); }), "no error");
    EXPECT_EQ(errorOf([&] { parse(batch(kDeepestNesting + kTallestTree)); }), kTooDeep);
    EXPECT_EQ(errorOf([&] { parse(batch(100'000)); }), kTooDeep);
}

INSTANTIATE_TEST_SUITE_P(
    Parser, Nesting,
    testing::Values(NestingCase{"Brackets", "select ", "(", "1", ")", ""},
                    NestingCase{"BracketsOfConditions", "select 1 where ", "(", "a = 1", ")", ""},
                    NestingCase{"Sums", "select a", "+a", "", "", ""},
                    NestingCase{"Disjunctions", "select 1 where a = 1", " or a = 2", "", "", ""},
                    NestingCase{"Signs", "select ", "- ", "1", "", ""},
                    NestingCase{"Negations", "select 1 where ", "not ", "a = 1", "", ""},
                    NestingCase{"Calls", "select ", "f(", "1", ")", ""},
                    NestingCase{"Cases", "select ", "case when 1 = 1 then ", "1", " end", ""},
                    NestingCase{"Casts", "select ", "cast(", "1", " as int)", ""},
                    NestingCase{"Conversions", "select ", "convert(int, ", "1", ")", ""},
                    NestingCase{"ScalarSelects", "select ", "(select ", "1", ")", ""},
                    NestingCase{"ExistsSelects", "select 1 where ", "exists (select 1 where ", "1 = 1", ")", ""},
                    NestingCase{"DerivedTables", "select * from ", "(select * from ", "t", ") x", ""},
                    NestingCase{"Joins", "select * from t", " cross join t", "", "", ""},
                    NestingCase{"JoinsInBrackets", "select * from ", "(", "t", " cross join u)", ""},
                    NestingCase{"JoinsWithLateConditions", "select * from t", " join t", "", " on 1 = 1", ""},
                    NestingCase{"Ifs", "", "if 1 = 1 ", "select 1", "", ""},
                    NestingCase{"Elses", "", "if 1 = 1 select 1 else ", "select 1", "", ""},
                    NestingCase{"Blocks", "", "begin ", "select 1", " end", ""}),
    [](const auto& info) { return info.param.name; });

TEST(Nesting, CountsChainsInsideOfBracketsToo) {
    const std::string chain = repeated("+a", kTallestTree / 4);
    const std::string batch = "select " + repeated("(", 100) + "a" + repeated(chain + ")", 100);
    EXPECT_EQ(errorOf([&] { parse(batch); }), kTooDeep);
}

TEST(Nesting, DoesNotCountWhatStandsSideBySide) {
    EXPECT_EQ(errorOf([] { parse("insert t values (-1, 1+1)" + repeated(", (-1, 1+1)", 5000)); }), "no error");
    EXPECT_EQ(errorOf([] { parse("select a+1" + repeated(", a+1", 5000)); }), "no error");
    EXPECT_EQ(errorOf([] { parse("select 1" + repeated(" union select 1", 5000)); }), "no error");
    EXPECT_EQ(errorOf([] { parse(repeated("if 1 = 1 begin select 1 end ", 5000)); }), "no error");
}

} // namespace
} // namespace engine
