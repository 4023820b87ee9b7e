#include "support/DialogScript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using platform::Icon;
using support::DialogScript;

TEST(DialogScript, ExpectedBoxesGetTheirAnswers) {
    DialogScript script;
    script.expectMessage("Fatto");
    script.expectQuestion("Vuoi uscire?", true);
    script.expectQuestion("Davvero?", false);
    script.expectConfirm("Prosegui?", true);
    script.expectInput("Nome", "Titolo", "proposto", "scritto");
    script.expectFolder("Cartella", "C:\\dati");

    platform::dialogs().message("Fatto", Icon::Stop);
    EXPECT_TRUE(platform::dialogs().question("Vuoi uscire?"));
    EXPECT_FALSE(platform::dialogs().question("Davvero?"));
    EXPECT_TRUE(platform::dialogs().confirm("Prosegui?"));
    EXPECT_EQ(platform::dialogs().input("Nome", "Titolo", "proposto"), "scritto");
    EXPECT_EQ(platform::dialogs().folder("Cartella"), "C:\\dati");

    EXPECT_TRUE(script.allShown());
    const std::vector<std::string> texts{"Fatto", "Vuoi uscire?", "Davvero?", "Prosegui?", "Nome", "Cartella"};
    EXPECT_EQ(script.shown(), texts);
}

TEST(DialogScript, AnUnexpectedBoxFailsAtOnceAndGetsASafeAnswer) {
    DialogScript script;
    bool yes = true;
    EXPECT_NONFATAL_FAILURE(yes = platform::dialogs().question("Cancello tutto?"),
                            "Unexpected box: question \"Cancello tutto?\"");
    EXPECT_FALSE(yes);
    std::string typed = "x";
    EXPECT_NONFATAL_FAILURE(typed = platform::dialogs().input("Nome", "T", "P"), "titled \"T\" proposing \"P\"");
    EXPECT_EQ(typed, "");
    EXPECT_EQ(script.shown().size(), 2U);
}

TEST(DialogScript, ABoxOfAnotherKindIsUnexpected) {
    DialogScript script;
    script.expectMessage("Fatto");
    EXPECT_NONFATAL_FAILURE(platform::dialogs().question("Fatto"), "Next expected: message \"Fatto\"");
    platform::dialogs().message("Fatto");
}

TEST(DialogScript, AnotherTextFailsAndGetsASafeAnswer) {
    DialogScript script;
    script.expectConfirm("Chiudo?", true);
    bool ok = true;
    EXPECT_NONFATAL_FAILURE(ok = platform::dialogs().confirm("Apro?"), "Chiudo?");
    EXPECT_FALSE(ok);
}

TEST(DialogScript, AnotherIconOrAnotherProposalFails) {
    DialogScript script;
    script.expectMessage("Errore", Icon::Stop);
    EXPECT_NONFATAL_FAILURE(platform::dialogs().message("Errore"), "stop sign");
    script.expectInput("Nome", "Titolo", "proposto", "");
    EXPECT_NONFATAL_FAILURE(platform::dialogs().input("Nome", "Titolo", "altro"), "altro");
}

TEST(DialogScript, ABoxThatDoesNotComeFailsAtTheEnd) {
    EXPECT_NONFATAL_FAILURE(
        {
            DialogScript script;
            script.expectMessage("Mai");
        },
        "A box didn't come: message \"Mai\"");
}

TEST(DialogScript, WithoutAScriptThereAreNoBoxes) {
    { const DialogScript script; }
    EXPECT_THROW(platform::dialogs().message("?"), std::logic_error);
}
