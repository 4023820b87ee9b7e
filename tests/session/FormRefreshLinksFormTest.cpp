#include "session/FormFixture.h"

namespace {

using FormRefreshLinksForm = FormTest;

TEST_F(FormRefreshLinksForm, ShowsTheVersionAndNothingElseHappens) {
    const support::StatementRecorder recorder;
    EXPECT_TRUE(gui.forms().show("FormRefreshLinks"));
    EXPECT_EQ(gui.visibleForms(), "FormRefreshLinks");
    EXPECT_EQ(gui.text("FormRefreshLinks", "lblVersion"), "Ver. 1.2.3");
    EXPECT_EQ(gui.text("FormRefreshLinks", "Nome"), "");
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(FormRefreshLinksForm, HasTheControlsOfTheStartForm) {
    gui.forms().show("FormRefreshLinks");
    for (const char* name :
         {"lblVersion", "Label1", "Picture1", "ProgressBar1", "Nome", "Please", "lblCompanyProduct", "Label2"}) {
        EXPECT_NO_THROW(gui.find("FormRefreshLinks", name)) << name;
    }
}

} // namespace
