#pragma once

#include "engine/SessionFixture.h"
#include "engine/differential/Answers.h"
#include "engine/differential/Tables.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace engine::differential {

/// Rounds of random statements, each from a seed of its own. VABO_DIFFERENTIAL_SEED sets the first seed,
/// VABO_DIFFERENTIAL_ROUNDS their number, VABO_DIFFERENTIAL_SECONDS a time in the place of a number.
class DifferentialTest : public SessionTest {
protected:
    /// Of what was asked, what could be compared; a test whose statements are all refused compares nothing.
    struct Tally {
        int asked = 0;
        int answered = 0;
        void count(bool wasAnswered) {
            ++asked;
            answered += wasAnswered ? 1 : 0;
        }
    };

    DifferentialTest() {
        instance->createDatabase("altra", "", "");
        other = connect("altra");
    }

    /// `round(dice)` until the rounds or the time are over, or something is found.
    template<class Round>
    void repeat(int usualRounds, Round round) {
        const auto setting = [](const char* name, long usual) {
            const char* text = std::getenv(name);
            return text == nullptr ? usual : std::strtol(text, nullptr, 10);
        };
        const auto seed = static_cast<std::uint32_t>(setting("VABO_DIFFERENTIAL_SEED", kUsualSeed));
        const std::chrono::seconds time(setting("VABO_DIFFERENTIAL_SECONDS", 0));
        const long rounds = setting("VABO_DIFFERENTIAL_ROUNDS", usualRounds);
        const auto until = std::chrono::steady_clock::now() + time;
        const auto more = [&](long done) {
            return time.count() > 0 ? std::chrono::steady_clock::now() < until : done < rounds;
        };
        std::cout << "seed " << seed << std::endl;
        long done = 0;
        for (; more(done) && !HasFailure(); ++done) {
            const std::uint32_t own = seed + static_cast<std::uint32_t>(done);
            SCOPED_TRACE("VABO_DIFFERENTIAL_ROUNDS=1 VABO_DIFFERENTIAL_SEED=" + std::to_string(own));
            Dice dice(own);
            round(dice);
        }
        std::cout << done << " rounds" << std::endl;
    }

    /// At least so many of a hundred were answered; what is usual was measured.
    void expectShare(const Tally& tally, int hundredth, const char* kind) {
        std::cout << kind << ": " << tally.answered << " of " << tally.asked << std::endl;
        RecordProperty(kind, tally.answered);
        EXPECT_TRUE(HasFailure() || 100 * tally.answered >= hundredth * tally.asked) << kind;
    }

    /// New tables with the same rows in both databases; the statements are kept for a message. The second `u` may have
    /// its key from the start, an identity.
    void makeTables(Dice& dice) {
        script_.clear();
        for (Session* one : {session.get(), other.get()}) {
            ask(*one, "drop table t");
            ask(*one, "drop table u");
        }
        identity_ = dice.once(2);
        for (const std::string& statement : tables(dice)) {
            make(*session, statement);
            std::string second = statement;
            if (identity_ && statement.starts_with("create table u")) {
                second.replace(second.find("not null"), 0, "identity primary key ");
            } else if (identity_ && statement.starts_with("insert into u")) {
                second = "set identity_insert u on; " + statement + "; set identity_insert u off";
            }
            make(*other, second);
            addToScript(second);
        }
    }
    bool otherHasIdentity() const { return identity_; }

    /// For the message of a failure.
    const std::string& script() const { return script_; }
    void addToScript(const std::string& statement) { script_ += statement + "\n"; }

    std::unique_ptr<Session> other; ///< of a second database with the same rows

private:
    static void make(Session& on, const std::string& statement) {
        const Answer made = ask(on, statement);
        ASSERT_FALSE(made.refused()) << statement << "\n" << made.told();
    }

    static constexpr long kUsualSeed = 20040307;

    std::string script_;
    bool identity_ = false;
};

} // namespace engine::differential
