#include "engine/values/Collation.h"
#include "engine/values/CompareByLibrary.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

namespace engine {
namespace {

void agree(const std::string& left, const std::string& right) {
    RC_ASSERT(sign(compareTexts(left, right)) == compareByLibrary(left, right));
    RC_ASSERT((collationKey(left) == collationKey(right)) == (compareByLibrary(left, right) == 0));
}

TEST(Comparison, OfAsciiTextsAgreesWithTheLibrary) {
    const bool held = rc::check("any ASCII, control characters too", [] {
        const auto text = [] {
            return rc::gen::container<std::string>(
                rc::gen::map(rc::gen::inRange(0, 128), [](int c) { return char(c); }));
        };
        agree(*text(), *text());
    });
    EXPECT_TRUE(held);
}

TEST(Comparison, OfTextsThatHardlyDifferAgreesWithTheLibrary) {
    const bool held = rc::check("one alphabet of few letters", [] {
        const auto piece = [] {
            return rc::gen::element<std::string>("a", "A", "b", "l", " ", "-", "'", "1", "\u00e0", "\u00b7", "\u0301",
                                                 "\u200b", "\uff41", "\x01", "ss", "\u00df", "\u20ac");
        };
        const auto text = [&] {
            std::string joined;
            for (const std::string& part : *rc::gen::container<std::vector<std::string>>(piece())) {
                joined += part;
            }
            return joined;
        };
        const std::string left = text();
        const std::string right = text();
        agree(left, right);
    });
    EXPECT_TRUE(held);
}

} // namespace
} // namespace engine
