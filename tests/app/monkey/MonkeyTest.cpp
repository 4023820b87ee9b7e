#include "app/monkey/Application.h"
#include "app/monkey/Checks.h"
#include "app/monkey/Growth.h"
#include "app/monkey/Life.h"
#include "app/monkey/Story.h"
#include "support/Capabilities.h"
#include "support/TestedDriver.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

using monkey::Dice;
using monkey::Growth;
using monkey::Hands;
using monkey::Life;

long fromEnvironment(const char* name, long otherwise) {
    const char* value = std::getenv(name);
    return value == nullptr || *value == '\0' ? otherwise : std::strtol(value, nullptr, 10);
}

QtMessageHandler others = nullptr;

/// The fonts of this machine needn't have what the monkey types, and the first press of a double click may make a list
/// smaller, so that the second falls beside it.
void passOverHarmless(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.contains(QLatin1String("OpenType support missing for ")) &&
        !message.contains(QLatin1String("occurs outside target window"))) {
        others(type, context, message);
    }
}

/// Two halves, so that each ends well within the time that a test may take.
class Monkey : public testing::TestWithParam<int> {
protected:
    Monkey() { others = qInstallMessageHandler(passOverHarmless); }
    ~Monkey() override { qInstallMessageHandler(others); }
};

// VABO_MONKEY_SEED and VABO_MONKEY_EVENTS set the seed and the number of events of each half. A failure prints both.
TEST_P(Monkey, FindsNothingThatBreaksTheProgram) {
    VABO_NEEDS(support::systemCapabilities().guardedResolver);
    constexpr long kEvents = 100'000;
    constexpr long kEventsOnTheWire = 5'000;
    const bool wire = support::testedDriver() == support::TestedDriver::Wire;
    const long events = fromEnvironment("VABO_MONKEY_EVENTS", wire ? kEventsOnTheWire : kEvents);
    const long seed = fromEnvironment("VABO_MONKEY_SEED", 1) * 2 + GetParam();
    const std::string headline = "monkey: seed " + std::to_string(seed / 2) + ", half " + std::to_string(seed % 2) +
                                 ", events " + std::to_string(events);
    SCOPED_TRACE(headline);
    monkey::story::printAtDeath(headline);

    Dice dice(static_cast<std::uint64_t>(seed));
    Hands hands(dice);
    monkey::Boxes boxes(dice, hands);
    monkey::Watchdog watchdog;
    Growth growth;
    std::vector<std::string> forms;
    int lives = 0;
    int ends = 0;
    while (hands.events() < events && !HasFailure()) {
        {
            Life life(dice, hands, boxes, watchdog);
            forms = life.forms();
            for (int rounds = 2; rounds > 0 && !life.isOver() && hands.events() < events && !HasFailure(); --rounds) {
                life.visitAll();
            }
            ends += life.ends();
            monkey::checkDatabases(life.workstation());
        }
        growth.measure();
        ++lives;
    }
    for (const std::string& form : forms) {
        EXPECT_TRUE(hands.eventsOf().contains(form)) << form << " was never used";
    }
    EXPECT_EQ(growth.complaint(), "");
    std::printf("%s: %ld events in %d lives, %ld boxes, %d ends of the program, longest event %ld ms\n%s\n",
                headline.c_str(), hands.events(), lives, boxes.count(), ends,
                static_cast<long>(watchdog.longest().count()), growth.text().c_str());
    if (HasFailure()) {
        std::fprintf(stderr, "%s", monkey::story::text().c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(Half, Monkey, testing::Values(0, 1));

} // namespace
