// The documented cases in the embedded server.

#include "engine/SessionFixture.h"
#include "engine/run/DocumentedCases.h"
#include "support/CommaLocale.h"

namespace engine {
namespace {

class Documented : public SessionTest, public ::testing::WithParamInterface<documented::Kind> {
protected:
    void expectAnswers() {
        for (const char* statement : documented::preparations()) {
            run(statement);
        }
        for (const documented::Case& one : GetParam().cases) {
            const std::string said = answer(one.statement);
            EXPECT_TRUE(documented::agrees(said, one.answer))
                << one.statement << "\nsaid:       " << said << "\ndocumented: " << one.answer
                << "\nsource:     " << one.page;
        }
    }
};

TEST_P(Documented, StatementsAreAnsweredAsTheirPagesSay) {
    expectAnswers();
}

TEST_P(Documented, StatementsAreAnsweredAlikeInAProcessThatWritesACommaInNumbers) {
    const support::CommaLocale italian;
    expectAnswers();
}

INSTANTIATE_TEST_SUITE_P(Kinds, Documented, ::testing::ValuesIn(documented::kinds().begin(), documented::kinds().end()),
                         [](const auto& kind) { return kind.param.name; });

/// What the tables of the cases can't say: the same question of several objects, and what two of them have in common.
class DocumentedNumbers : public SessionTest {};

TEST_F(DocumentedNumbers, AnObjectKeepsItsNumberByWhateverNameItIsAsked) {
    run("CREATE TABLE voci (n int)");
    const std::string id = rows("SELECT OBJECT_ID('voci')");
    run("CREATE TABLE altre (n int)");
    for (const char* name : {"VOCI", "dbo.voci", "[dbo].[voci]", "prova.dbo.voci", "prova..voci", "\"voci\""}) {
        EXPECT_EQ(rows("SELECT OBJECT_ID('" + std::string(name) + "')"), id) << name;
    }
    instance->createDatabase("seconda", "", "");
    run("USE seconda; CREATE TABLE voci (n int)");
    EXPECT_EQ(rows("SELECT OBJECT_ID('prova..voci')"), id);
    EXPECT_NE(rows("SELECT OBJECT_ID('voci')"), id);
}

TEST(DocumentedCases, AreSixHundredAndMoreWithTheirSources) {
    std::size_t count = 0;
    for (const documented::Kind& kind : documented::kinds()) {
        for (const documented::Case& one : kind.cases) {
            EXPECT_NE(std::string_view(one.page), "") << one.statement;
            ++count;
        }
    }
    EXPECT_GE(count, 600U);
}

TEST(DocumentedCases, AreToldFromOtherAnswers) {
    EXPECT_TRUE(documented::agrees("n\n1", "n\n1"));
    EXPECT_FALSE(documented::agrees("n\n1", "n\n2"));
    EXPECT_TRUE(documented::agrees("!208 Invalid object name 'x'.", "!208"));
    EXPECT_FALSE(documented::agrees("!2081 Other", "!208"));
    EXPECT_FALSE(documented::agrees("!208 Invalid object name 'x'.\n(1)", "!208"));
    EXPECT_EQ(documented::withoutSilentResults("-\nn\n-1\n-"), "n\n-1\n");
}

} // namespace
} // namespace engine
