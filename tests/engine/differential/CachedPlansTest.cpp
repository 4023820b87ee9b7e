#include "engine/differential/DifferentialFixture.h"
#include "engine/differential/StatementMaker.h"
#include "engine/run/ServerSession.h"

namespace engine::differential {
namespace {

class CachedPlans : public DifferentialTest {
protected:
    /// The answer and the table after it; all is rolled back.
    static std::string effect(Session& on, const std::string& text, bool& answered) {
        ask(on, "begin transaction");
        const Answer answer = ask(on, text);
        answered = !answer.refused();
        std::string told = answer.told() + ask(on, "select * from t order by id").told();
        ask(on, "rollback");
        EXPECT_FALSE(answer.broken()) << text << "\n" << answer.told();
        return told;
    }

    bool findsPlan(const std::string& text) {
        return dynamic_cast<ServerSession&>(*session).current().cache().find(shapeOf(text)) != nullptr;
    }
};

TEST_F(CachedPlans, AnswerAsPlansMadeAnew) {
    Tally answers;
    Tally found;
    repeat(60, [&](Dice& dice) {
        makeTables(dice);
        constexpr int kStatements = 40;
        for (int i = 0; i < kStatements; ++i) {
            Draft draft = StatementMaker(dice, dice.once(3) ? Manner::Calm : Manner::Wild).any();
            const std::string first = draft.spelled(dice);
            const std::string second = draft.respelled(dice);
            const std::string third = draft.respelled(dice);
            bool answered = false;
            effect(*session, first, answered);
            effect(*session, second, answered);
            found.count(findsPlan(third));
            const std::string cached = effect(*session, third, answered);
            answers.count(answered);
            bool fresh = false;
            EXPECT_EQ(cached, effect(*connect(), third, fresh)) << script() << first << "\n" << second << "\n" << third;
        }
    });
    expectShare(answers, 70, "answered");
    expectShare(found, 55, "answered by the plan of other literals");
}

} // namespace
} // namespace engine::differential
