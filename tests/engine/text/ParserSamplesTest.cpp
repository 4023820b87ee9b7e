#include "engine/StatementTexts.h"
#include "engine/errors/Error.h"
#include "engine/text/Lexer.h"
#include "engine/text/Parser.h"
#include "engine/text/Print.h"
#include "engine/text/Shape.h"

#include <gtest/gtest.h>

namespace engine::samples {

void PrintTo(const Quoted& sample, std::ostream* out) {
    *out << sample.text;
}

} // namespace engine::samples

namespace engine {
namespace {

class Sample : public testing::TestWithParam<samples::Quoted> {};

TEST_P(Sample, ParsesOrIsRefusedAsItMust) {
    int number = 0;
    try {
        EXPECT_FALSE(parse(GetParam().text).statements.empty());
    } catch (const Error& error) {
        number = error.number();
    }
    EXPECT_EQ(number, GetParam().parseError);
}

TEST_P(Sample, CutAnywhereParsesOrIsRefused) {
    const std::string_view text = GetParam().text;
    for (std::size_t length = 0; length < text.size(); ++length) {
        const auto prefix = text.substr(0, length);
        try {
            print(parse(prefix));
        } catch (const Error& error) {
            EXPECT_GE(error.number(), 102) << prefix;
            EXPECT_GE(error.position(), 0) << prefix;
            EXPECT_LE(error.position(), static_cast<int>(length)) << prefix;
        }
    }
}

TEST_P(Sample, HasOneShapeWhateverItsBlanks) {
    if (GetParam().parseError != 0) {
        return;
    }
    std::string stretched;
    for (const Token& token : tokenize(GetParam().text)) {
        stretched.append(" \r\n\t").append(token.text);
    }
    EXPECT_EQ(shapeOf(stretched).key, shapeOf(GetParam().text).key);
    EXPECT_EQ(print(parse(stretched)), print(parse(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Console, Sample, testing::ValuesIn(samples::kStatements),
                         [](const auto& info) { return std::string(info.param.name); });

/// All literals of an expression with their indexes, in order.
std::vector<std::pair<std::string, int>> literalsOf(const Expression& expression) {
    std::vector<std::pair<std::string, int>> found;
    if (const auto* literal = std::get_if<Literal>(&expression.node)) {
        found.emplace_back(literal->text, literal->index);
    } else if (const auto* binary = std::get_if<Binary>(&expression.node)) {
        found = literalsOf(*binary->left);
        for (auto& right : literalsOf(*binary->right)) {
            found.push_back(std::move(right));
        }
    } else if (const auto* conversion = std::get_if<Conversion>(&expression.node)) {
        found = literalsOf(*conversion->operand);
    }
    return found;
}

TEST(Literals, AreNumberedAsInTheShape) {
    const std::string text = "select top 7 a + 'x' from t where b = 2.5 and c > CONVERT(DATETIME, '2004-3-7', 102) and "
                             "d = cast(N'y' as nvarchar(9)) and e = 8";
    const BatchTree batch = parse(text);
    const auto& core = std::get<Select>(batch.statements.front()->node).cores.front();
    auto literals = literalsOf(*core.items.front().expression);
    for (auto& literal : literalsOf(*core.where)) {
        literals.push_back(std::move(literal));
    }
    const Shape shape = shapeOf(text);
    ASSERT_EQ(shape.literals.size(), 8U);
    ASSERT_EQ(literals.size(), 5U);
    for (const auto& [value, index] : literals) {
        EXPECT_EQ(shape.literals.at(static_cast<std::size_t>(index)).text, value);
    }
}

TEST(Literals, AreNumberedAnewInEveryStatement) {
    const BatchTree batch = parse("select 1, 2; if 3 = 3 print 'x' select 4");
    const auto& last = std::get<Select>(batch.statements.at(2)->node).cores.front();
    EXPECT_EQ(std::get<Literal>(last.items.front().expression->node).index, 0);
    const auto& choice = std::get<If>(batch.statements.at(1)->node);
    EXPECT_EQ(std::get<Literal>(std::get<Print>(choice.then->node).text->node).index, 2);
}

TEST(Literals, ThatShapeTheStatementHaveNoNumber) {
    const BatchTree batch = parse("select a, 1 from t order by 2, a + 3 create table t (a int default 5)");
    const auto& select = std::get<Select>(batch.statements.at(0)->node);
    EXPECT_EQ(std::get<Literal>(select.cores.front().items.at(1).expression->node).index, 0);
    EXPECT_EQ(std::get<Literal>(select.orderBy.at(0).expression->node).index, -1);
    const auto& sum = std::get<Binary>(select.orderBy.at(1).expression->node);
    EXPECT_EQ(std::get<Literal>(sum.right->node).index, 2);
    const auto& table = std::get<CreateTable>(batch.statements.at(1)->node);
    EXPECT_EQ(std::get<Literal>(table.columns.front().defaultValue->node).index, -1);
    EXPECT_EQ(std::get<Literal>(parseExpression("5")->node).index, -1);
}

} // namespace
} // namespace engine
