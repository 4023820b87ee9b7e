// The languages by the code of the client.

#include "payment_terms/Didascalie.h"

#include <gtest/gtest.h>

namespace vabo {
namespace {

TEST(LinguaDi, FiveCodesInTheirCaseAndItalianForAnyOther) {
    EXPECT_EQ(LinguaDi("IT"), Lingua::IT);
    EXPECT_EQ(LinguaDi("EN"), Lingua::EN);
    EXPECT_EQ(LinguaDi("ES"), Lingua::ES);
    EXPECT_EQ(LinguaDi("PO"), Lingua::PO);
    EXPECT_EQ(LinguaDi("FR"), Lingua::FR);
    for (const char* altro : {"", "en", "Fr", "DE", "EN ", "E", "ENG"}) {
        EXPECT_EQ(LinguaDi(altro), Lingua::IT) << altro;
    }
}

} // namespace
} // namespace vabo
