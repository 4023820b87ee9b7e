// The two hidden lists of the login, which get the folder of the branch's file.

#include "session/FormFixture.h"

namespace {

using namespace vabo;
using support::kCompany;

class AboutDirectory : public FormTest {
protected:
    void show() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    void companySays(const std::string& columns) const {
        workstation.run(kCompany, "update DirectorySede set " + columns);
    }
    std::string pathOf(const char* list) { return gui.find("About", list).property("Path").toString().toStdString(); }
    void expectPath(const std::string& path) {
        EXPECT_EQ(pathOf("Dir1"), path);
        EXPECT_EQ(pathOf("File1"), path);
        EXPECT_FALSE(gui.find("About", "Dir1").isVisible());
        EXPECT_FALSE(gui.find("About", "File1").isVisible());
        EXPECT_EQ(gui.focus(), "About.txtUserName");
    }
};

TEST_F(AboutDirectory, TheListsGetTheFolderOfTheStoredFile) {
    companySays("Directoryfile = 'D:\\Server\\Vabo\\Dati.mdb'");
    show();
    expectPath("D:\\Server\\Vabo\\");
}

TEST_F(AboutDirectory, AFileWithoutAPathIsSearchedAndItsPathStored) {
    workstation.putFile("C:\\Dati\\Sede.dat", "x");
    companySays("Directoryfile = null, NomeFile = 'sede.DAT'");
    show();
    expectPath("C:\\Dati\\");
    EXPECT_EQ(workstation.value(kCompany, "select Directoryfile from DirectorySede"), "C:\\Dati\\Sede.dat");
}

TEST_F(AboutDirectory, AFileThatIsNotThereIsToldAtEachLogin) {
    companySays("Directoryfile = null, NomeFile = 'manca.dat'");
    for (int login = 0; login < 2; ++login) {
        script.expectMessage("There were no files found.", platform::Icon::None);
        show();
        expectPath("");
        EXPECT_TRUE(script.allShown());
        gui.forms().unload("About");
        support::Gui::handleEvents();
    }
}

TEST_F(AboutDirectory, ATableThatCanNotBeReadIsSkippedAndTheLoginGoesOn) {
    workstation.run(kCompany, "drop table DirectorySede");
    show();
    expectPath("");
    EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password :");
}

TEST_F(AboutDirectory, TheTableIsReadBehindTheBranch) {
    const support::StatementRecorder recorder;
    show();
    EXPECT_TRUE(recorder.sentInOrder(
        {"Select * from Sede", "Select * from DirectorySede", "select * from [AbilitazioneAccessi]"}));
    EXPECT_EQ(recorder.count("Select * from DirectorySede"), 1);
}

} // namespace
