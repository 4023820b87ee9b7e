#include "rights/Permesso.h"

#include "support/DialogScript.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;

TEST(Permesso, WhoHasTheRightIsToldNothing) {
    const support::DialogScript noBox;
    EXPECT_TRUE(Permesso(kVero));
    EXPECT_TRUE(Permesso(1, "mai"));
}

TEST(Permesso, WhoHasItNotIsToldSo) {
    support::DialogScript script;
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    EXPECT_FALSE(Permesso(kFalso));
    script.expectMessage("Non disponi dei diritti");
    EXPECT_FALSE(Permesso(kFalso, "Non disponi dei diritti"));
}

} // namespace
