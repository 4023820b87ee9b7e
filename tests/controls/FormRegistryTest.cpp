#include "RecordedForm.h"
#include "support/DialogScript.h"
#include "support/EndOfProcess.h"
#include "support/Gui.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QScreen>

#include <gmock/gmock.h>

namespace {

using support::Gui;
using testing::ElementsAre;

class FormRegistry : public testing::Test {
protected:
    void add(const char* name, const RecordedForm::Events& events = {}) {
        gui.forms().add(name, [this, name, events] { return std::make_unique<RecordedForm>(name, log, events); });
    }

    std::vector<std::string> log;
    Gui gui;
};

TEST_F(FormRegistry, AFormIsLoadedThenVisibleThenActive) {
    bool visibleInLoad = true;
    bool visibleInActivate = false;
    add("A", {.load = [&](RecordedForm& form) { visibleInLoad = form.isVisible(); },
              .activate = [&](RecordedForm& form) { visibleInActivate = form.isVisible(); }});
    EXPECT_TRUE(gui.forms().show("A"));
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate"));
    EXPECT_FALSE(visibleInLoad);
    EXPECT_TRUE(visibleInActivate);
    EXPECT_TRUE(gui.isVisible("A"));
}

TEST_F(FormRegistry, ShowingAVisibleFormAgainFiresNothing) {
    add("A");
    gui.forms().show("A");
    gui.forms().show("A");
    Gui::handleEvents();
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate"));
}

TEST_F(FormRegistry, ThereIsOneInstanceOfAName) {
    add("A");
    gui.forms().show("A");
    const controls::Form* first = &gui.form("A");
    gui.forms().hide("A");
    gui.forms().makeVisible("A");
    EXPECT_EQ(&gui.form("A"), first);
}

TEST_F(FormRegistry, AHiddenFormIsActivatedAgainWithoutAnotherLoad) {
    add("A");
    gui.forms().show("A");
    gui.forms().hide("A");
    EXPECT_TRUE(gui.forms().isLoaded("A"));
    gui.forms().makeVisible("A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Activate"));
}

TEST_F(FormRegistry, AFormIsActivatedWhenAnotherWasInBetween) {
    add("A");
    add("B");
    gui.forms().show("A");
    gui.forms().show("B");
    Gui::handleEvents();
    gui.forms().makeVisible("A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "B.Load", "B.Activate", "A.Activate"));
}

TEST_F(FormRegistry, TheFormBelowBecomesActiveWhenTheUserGoesToIt) {
    add("A");
    add("B");
    gui.forms().show("A");
    gui.forms().show("B");
    Gui::handleEvents();
    gui.form("A").activateWindow();
    Gui::waitFor("A active", [&] { return gui.forms().active() == &gui.form("A"); });
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "B.Load", "B.Activate", "A.Activate"));
}

TEST_F(FormRegistry, AFormWhoseActivateStillRunsIsNotActivatedAgain) {
    add("B");
    add("A", {.activate = [&](RecordedForm& form) {
            gui.forms().show("B");
            gui.forms().unload("B");
            form.activateWindow();
            Gui::handleEvents();
            log.emplace_back("A is ready");
        }});
    gui.forms().show("A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "B.Load", "B.Activate", "B.Unload", "deleted", "A is ready"));
    gui.forms().hide("A");
    gui.forms().show("A");
    EXPECT_EQ(std::ranges::count(log, "A.Activate"), 2) << "the next one runs again";
}

TEST_F(FormRegistry, ABoxInBetweenActivatesNothing) {
    add("A");
    gui.forms().show("A");
    Gui::handleEvents();
    QDialog box(&gui.form("A"));
    box.show();
    Gui::waitFor("the box in front", [&] { return QApplication::activeWindow() == &box; });
    box.close();
    gui.form("A").activateWindow(); // what a window manager does
    gui.waitForFront("A");
    Gui::handleEvents();
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate"));
}

TEST_F(FormRegistry, UnloadEndsTheStateOfAForm) {
    add("A");
    gui.forms().show("A");
    gui.forms().unload("A");
    EXPECT_FALSE(gui.forms().isLoaded("A"));
    EXPECT_EQ(gui.visibleForms(), "");
    Gui::handleEvents();
    gui.forms().show("A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Unload", "deleted", "A.Load", "A.Activate"));
}

TEST_F(FormRegistry, ClosingTheWindowIsAnUnload) {
    add("A");
    gui.forms().show("A");
    gui.form("A").close();
    EXPECT_FALSE(gui.forms().isLoaded("A"));
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Unload"));
}

TEST_F(FormRegistry, AFormMayUnloadItselfInItsLoad) {
    add("A", {.load = [](RecordedForm& form) { form.UnloadMe(); }});
    EXPECT_TRUE(gui.forms().show("A"));
    EXPECT_FALSE(gui.forms().isLoaded("A"));
    EXPECT_EQ(gui.visibleForms(), "");
    Gui::handleEvents();
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Unload", "deleted"));
}

TEST_F(FormRegistry, AFormMayUnloadItselfInItsActivateAndShowAnother) {
    add("A", {.activate = [this](RecordedForm& form) {
            form.UnloadMe();
            gui.forms().show("B");
        }});
    add("B");
    gui.forms().show("A");
    EXPECT_EQ(gui.visibleForms(), "B");
    Gui::handleEvents();
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Unload", "B.Load", "B.Activate", "deleted"));
}

TEST_F(FormRegistry, AnUnloadInsideTheUnloadIsOne) {
    add("A", {.unload = [](RecordedForm& form) { form.UnloadMe(); }});
    gui.forms().show("A");
    gui.forms().unload("A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Unload"));
}

TEST_F(FormRegistry, AFormShownInItsOwnUnloadIsMadeAnew) {
    int unloads = 0;
    add("A", {.unload = [&](RecordedForm&) {
            if (++unloads == 1) {
                gui.forms().makeVisible("A");
            }
        }});
    gui.forms().show("A");
    gui.forms().unload("A");
    EXPECT_EQ(gui.visibleForms(), "A");
    EXPECT_THAT(log, ElementsAre("A.Load", "A.Activate", "A.Unload", "A.Load", "A.Activate"));
    gui.forms().unload("A");
    EXPECT_EQ(gui.visibleForms(), "");
}

TEST_F(FormRegistry, AFormOfTheScreensSizeKeepsTheUsersSizeWithinTheProcess) {
    add("A", {.load = [](RecordedForm& form) { form.takeScreen(); }});
    gui.forms().show("A");
    const QSize screen = gui.form("A").screen()->availableSize();
    const QSize size = gui.form("A").size();
    ASSERT_LT(screen.width(), 1000);
    EXPECT_EQ(size.width(), screen.width()) << "of a narrow screen all";
    EXPECT_EQ(size.height(), screen.height() * 9 / 10);
    gui.form("A").resize(size - QSize(60, 40));
    gui.forms().unload("A");
    Gui::handleEvents();
    gui.forms().show("A");
    EXPECT_EQ(gui.form("A").size(), size - QSize(60, 40));
}

TEST_F(FormRegistry, NamesAreComparedExactly) {
    add("frmcomuni");
    EXPECT_FALSE(gui.forms().show("frmComuni"));
    EXPECT_FALSE(gui.forms().show(""));
    EXPECT_FALSE(gui.forms().makeVisible("Login"));
    EXPECT_TRUE(log.empty());
}

TEST_F(FormRegistry, HidingOrUnloadingWhatIsNotLoadedDoesNothing) {
    add("A");
    gui.forms().hide("A");
    gui.forms().unload("A");
    gui.forms().unload("nobody");
    EXPECT_TRUE(log.empty());
}

TEST_F(FormRegistry, AnErrorInTheLoadIsTold) {
    add("A", {.load = [](RecordedForm&) { throw std::runtime_error("Invalid object name 'stati'."); }});
    support::DialogScript script;
    script.expectMessage("Invalid object name 'stati'.");
    EXPECT_TRUE(gui.forms().show("A"));
    EXPECT_TRUE(gui.isVisible("A"));
}

TEST_F(FormRegistry, AnErrorInTheUnloadIsToldAndTheFormGoes) {
    add("A", {.unload = [](RecordedForm&) { throw std::runtime_error("late"); }});
    gui.forms().show("A");
    support::DialogScript script;
    script.expectMessage("late");
    gui.forms().unload("A");
    EXPECT_FALSE(gui.forms().isLoaded("A"));
}

TEST_F(FormRegistry, AMarkStandsForAFormOfThatNameAndLoadsNone) {
    add("A");
    EXPECT_EQ(gui.forms().markOf("A"), "");
    gui.forms().mark("A", "one");
    gui.forms().mark("B", "other");
    gui.forms().mark("A", "two");
    EXPECT_FALSE(gui.forms().isLoaded("A"));
    EXPECT_EQ(gui.forms().markOf("A"), "two");
    EXPECT_EQ(gui.forms().markOf("B"), "other");
    EXPECT_EQ(gui.forms().markOf("a"), "");
}

TEST_F(FormRegistry, TheEndOfTheProcessPassesEveryEvent) {
    add("A", {.load = [](RecordedForm&) { platform::TerminaProcesso(); }});
    add("B", {.activate = [this](RecordedForm&) { gui.forms().show("A"); }});
    support::EndOfProcess end;
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("B"); }));
    EXPECT_EQ(end.ended(), 1);
}

} // namespace
