#include "kit/Testi.h"

#include <gtest/gtest.h>

namespace {

TEST(Testi, CaseChangesAccentsToo) {
    EXPECT_EQ(vabo::Minuscolo("CITTÀ Über 12"), "città über 12");
    EXPECT_EQ(vabo::Maiuscolo("città en"), "CITTÀ EN");
    EXPECT_EQ(vabo::Minuscolo(""), "");
}

TEST(Testi, NullIsNoPieceOfAConcatenation) {
    EXPECT_EQ(vabo::Pezzo(ado::Null{}), "");
    EXPECT_EQ(vabo::Pezzo("x"), "x");
    EXPECT_EQ(vabo::Pezzo(2.5), "2,5");
}

} // namespace
