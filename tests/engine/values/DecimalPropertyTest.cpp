#include "engine/values/DecimalOfDigits.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cmath>

namespace engine {
namespace {

struct Digits {
    std::int64_t digits;
    int places;
};

/// Of every length, since numbers of a full range are almost all long.
Digits anyDigits() {
    const auto most = static_cast<std::int64_t>(std::pow(10, *rc::gen::inRange(1, 16)));
    return {*rc::gen::inRange(-most + 1, most), *rc::gen::inRange(0, kMostPlaces + 1)};
}

TEST(Decimals, ComeBackFromTheirDoubles) {
    EXPECT_TRUE(rc::check("fifteen digits", [] {
        const auto [digits, places] = anyDigits();
        const Decimal number = decimal(digits, places);
        RC_ASSERT(Decimal::of(number.kept()).text(places) == number.text(places));
    }));
}

TEST(Decimals, HaveDoublesInTheirOwnOrder) {
    EXPECT_TRUE(rc::check("neighbours", [] {
        const auto [digits, places] = anyDigits();
        RC_PRE(digits + 1 < kBeyond);
        RC_ASSERT(decimal(digits, places).kept() < decimal(digits + 1, places).kept());
    }));
}

} // namespace
} // namespace engine
