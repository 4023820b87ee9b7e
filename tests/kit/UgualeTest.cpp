#include "kit/Uguale.h"

#include "ado/Error.h"

#include <gtest/gtest.h>

namespace vabo {
namespace {

TEST(Uguale, ComparesNumbersOfEveryType) {
    EXPECT_TRUE(Uguale(std::int32_t{1}, 1));
    EXPECT_TRUE(Uguale(-2.0, -2));
    EXPECT_TRUE(Uguale(std::string("1"), 1));
    EXPECT_FALSE(Uguale(std::int32_t{-1}, 1));
    EXPECT_FALSE(Uguale(1.5, 1));
}

TEST(Uguale, ANullEqualsNoNumberAndRaisesNothing) {
    EXPECT_FALSE(Uguale(ado::Null{}, 0));
    EXPECT_FALSE(Uguale(ado::Null{}, 1));
}

TEST(Uguale, ATextThatIsNoNumberDoesNotCompare) {
    EXPECT_THROW(Uguale(std::string("uno"), 1), ado::Error);
}

} // namespace
} // namespace vabo
