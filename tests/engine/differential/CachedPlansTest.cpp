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
    int found = 0;
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
            try {
                found += findsPlan(third) ? 1 : 0;
            } catch (const Error&) {
                found += 0; // no statement at all
            }
            const std::string cached = effect(*session, third, answered);
            answers.count(answered);
            bool fresh = false;
            EXPECT_EQ(cached, effect(*connect(), third, fresh)) << script() << first << "\n" << second << "\n" << third;
        }
    });
    expectAnswered(answers, 50, "answered with another plan's literals");
    std::cout << found << " found plans" << std::endl;
}

} // namespace
} // namespace engine::differential
