#include "engine/text/Lexer.h"

#include "engine/ExpectError.h"
#include "engine/text/Shape.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

using Kind = Token::Kind;

struct TokenCase {
    const char* text;
    Kind kind;
    const char* value;
};

class SingleToken : public testing::TestWithParam<TokenCase> {};

TEST_P(SingleToken, IsReadWhole) {
    const auto tokens = tokenize(GetParam().text);
    ASSERT_EQ(tokens.size(), 2U);
    EXPECT_EQ(tokens[0].kind, GetParam().kind);
    EXPECT_EQ(valueOf(tokens[0]), GetParam().value);
    EXPECT_EQ(tokens[1].kind, Kind::End);
}

INSTANTIATE_TEST_SUITE_P(
    Lexer, SingleToken,
    testing::Values(TokenCase{"idsede", Kind::Identifier, "idsede"}, TokenCase{"città", Kind::Identifier, "città"},
                    TokenCase{"_a$b#c@d9", Kind::Identifier, "_a$b#c@d9"}, TokenCase{"#tmp", Kind::Identifier, "#tmp"},
                    TokenCase{"[nome con ]] dentro]", Kind::QuotedName, "nome con ] dentro"},
                    TokenCase{"\"nome con \"\" dentro\"", Kind::QuotedName, "nome con \" dentro"},
                    TokenCase{"[select]", Kind::QuotedName, "select"}, TokenCase{"SeLeCt", Kind::Keyword, "SeLeCt"},
                    TokenCase{"@nome", Kind::Variable, "@nome"},
                    TokenCase{"@@rowcount", Kind::ServerVariable, "@@rowcount"}, TokenCase{"''", Kind::Text, ""},
                    TokenCase{"''''", Kind::Text, "'"}, TokenCase{"'l''età -- /* '", Kind::Text, "l'età -- /* "},
                    TokenCase{"N'x'", Kind::NationalText, "x"}, TokenCase{"n'a''b'", Kind::NationalText, "a'b"},
                    TokenCase{"007", Kind::Integer, "007"}, TokenCase{"2147483647", Kind::Integer, "2147483647"},
                    TokenCase{"00000000002147483647", Kind::Integer, "00000000002147483647"},
                    TokenCase{"2147483648", Kind::Decimal, "2147483648"}, TokenCase{"1.50", Kind::Decimal, "1.50"},
                    TokenCase{"1.", Kind::Decimal, "1."}, TokenCase{".5", Kind::Decimal, ".5"},
                    TokenCase{"1e3", Kind::Float, "1e3"}, TokenCase{"1.5E-3", Kind::Float, "1.5E-3"},
                    TokenCase{"0x1aF", Kind::Hexadecimal, "0x1aF"}, TokenCase{"<>", Kind::Symbol, "<>"},
                    TokenCase{"!=", Kind::Symbol, "!="}, TokenCase{"!<", Kind::Symbol, "!<"},
                    TokenCase{">=", Kind::Symbol, ">="}, TokenCase{" \t\r\n\v\f a -- behind", Kind::Identifier, "a"},
                    TokenCase{"/* one /* two */ still */a", Kind::Identifier, "a"},
                    TokenCase{"-- first line\na", Kind::Identifier, "a"}));

struct ErrorCase {
    const char* name;
    std::string text;
    int number;
    std::string message;
};

class RefusedText : public testing::TestWithParam<ErrorCase> {};

TEST_P(RefusedText, TellsNumberAndWords) {
    EXPECT_EQ(errorOf([] { tokenize(GetParam().text); }), std::to_string(GetParam().number) + ' ' + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Lexer, RefusedText,
    testing::Values(
        ErrorCase{"Text", "select 'abc", 105, "Unclosed quotation mark after the character string 'abc'."},
        ErrorCase{"DoubledQuoteAtTheEnd", "'abc''", 105, "Unclosed quotation mark after the character string 'abc'''."},
        ErrorCase{"LoneQuote", "'", 105, "Unclosed quotation mark after the character string ''."},
        ErrorCase{"NationalText", "N'abc", 105, "Unclosed quotation mark after the character string 'abc'."},
        ErrorCase{"DoubleQuote", "select \" as x", 105, "Unclosed quotation mark after the character string ' as x'."},
        ErrorCase{"Bracket", "select [a b", 105, "Unclosed quotation mark after the character string 'a b'."},
        ErrorCase{"Comment", "select /* 1 /* 2 */", 113, "Missing end comment mark '*/'."},
        ErrorCase{"CommentOfThreeCharacters", "/*/", 113, "Missing end comment mark '*/'."},
        ErrorCase{"ControlCharacter", "select \x01", 102, "Incorrect syntax near '\x01'."},
        ErrorCase{"NulCharacter", std::string("a\0b", 3), 102, "Incorrect syntax near ''."},
        ErrorCase{"Question", "select ?", 102, "Incorrect syntax near '?'."},
        ErrorCase{"EmptyName", "select []", 1038,
                  "An object or column name is missing or empty. For SELECT INTO statements, verify each column has a "
                  "name. For other statements, look for empty alias names. Aliases defined as \"\" or [] are not "
                  "allowed. Change the alias to a valid name."},
        ErrorCase{"LongName", std::string(129, 'a'), 103,
                  "The identifier that starts with '" + std::string(128, 'a') +
                      "' is too long. Maximum length is 128."},
        ErrorCase{"LongNameInBrackets", "[" + std::string(129, 'b') + "]", 103,
                  "The identifier that starts with '" + std::string(128, 'b') +
                      "' is too long. Maximum length is 128."}),
    [](const auto& info) { return info.param.name; });

TEST(Lexer, AcceptsNamesOfTheGreatestLengthInCharacters) {
    std::string name;
    for (int i = 0; i < 128; ++i) {
        name += "à";
    }
    EXPECT_EQ(valueOf(tokenize("[" + name + "]")[0]), name);
    EXPECT_EQ(valueOf(tokenize(name)[0]), name);
}

TEST(Lexer, TellsWhereTokensStand) {
    const auto tokens = tokenize("select  id\r\n,'x'");
    ASSERT_EQ(tokens.size(), 5U);
    EXPECT_EQ(tokens[1].position, 8);
    EXPECT_EQ(tokens[2].position, 12);
    EXPECT_EQ(tokens[3].end(), 16);
    EXPECT_EQ(tokens[4].position, 16);
}

TEST(Lexer, NumbersEndWhereLettersBegin) {
    const auto tokens = tokenize("1abc 1.2.3");
    ASSERT_EQ(tokens.size(), 5U);
    EXPECT_EQ(tokens[0].text, "1");
    EXPECT_EQ(tokens[1].text, "abc");
    EXPECT_EQ(tokens[2].text, "1.2");
    EXPECT_EQ(tokens[3].text, ".3");
}

TEST(Keywords, AreFoundInAnyCaseAndNothingElseIs) {
    EXPECT_EQ(keywordOf("identity_insert"), Keyword::IdentityInsert);
    EXPECT_EQ(keywordOf("Add"), Keyword::Add);
    EXPECT_EQ(keywordOf("WRITETEXT"), Keyword::Reserved);
    EXPECT_EQ(keywordOf("current_timestamp"), Keyword::CurrentTimestamp);
    for (const char* word :
         {"",     "x",    "Version", "Description", "Type",   "Number",  "id",
          "Note", "Area", "name",    "filename",    "ultimo", "Via",     "Nome",
          "Cab",  "log",  "cast",    "go",          "selec",  "selects", "a_word_that_is_longer_than_any_keyword"}) {
        EXPECT_EQ(keywordOf(word), Keyword::None) << word;
    }
}

TEST(Shape, LeavesTheLiteralsOut) {
    const Shape shape = shapeOf("Update  [t] set a=-1, B = N'x''y' -- done\n where c in (2.5, 1e3,'z', 3000000000)");
    EXPECT_EQ(shape.key, "UPDATE [t] SET a = - ?i , B = ?n WHERE c IN ( ?d , ?f , ?t , ?d )");
    ASSERT_EQ(shape.literals.size(), 6U);
    EXPECT_EQ(shape.literals[0].text, "1");
    EXPECT_EQ(shape.literals[1].text, "x'y");
    EXPECT_EQ(shape.literals[1].kind, Literal::Kind::NationalText);
    EXPECT_EQ(shape.literals[5].kind, Literal::Kind::Decimal);
}

TEST(Shape, IsTheSameForOtherValuesAlone) {
    EXPECT_EQ(shapeOf("select * from t where id = 1").key, shapeOf("SELECT *\r\nFROM t WHERE id=275").key);
    EXPECT_NE(shapeOf("select * from t where id = 1").key, shapeOf("select * from t where id = '1'").key);
    EXPECT_NE(shapeOf("select * from t").key, shapeOf("select * from [t]").key);
    EXPECT_NE(shapeOf("select a from t").key, shapeOf("select A from t").key);
}

} // namespace
} // namespace engine
