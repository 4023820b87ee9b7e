// The choice of the folder on the server, and the pointer files made of it.

#include "session/ScegliFolder.h"

#include "platform/DriveC.h"
#include "session/PuntatoriCartella.h"
#include "support/DialogScript.h"

namespace vabo {
namespace {

constexpr const char* kTitoloCartella = "Seleziona la cartella VABO sul Server";

class ScegliFolder : public testing::Test {
protected:
    support::TestWorkstation posto{support::TestWorkstation::DriveC::Empty};
    support::DialogScript script; ///< no box but those that the test expects
};

TEST_F(ScegliFolder, TheBrowserHasThatTitleAndGivesAPathOrNothing) {
    script.expectFolder("Un titolo", "C:\\Server");
    EXPECT_EQ(ScegliCartella("Un titolo"), "C:\\Server");
    script.expectFolder("Un titolo", "");
    EXPECT_EQ(ScegliCartella("Un titolo"), "");
}

TEST_F(ScegliFolder, TheUserIsToldAheadOfTheBrowser) {
    script.expectMessage("Selezionare la cartella VABO sul Server", platform::Icon::None);
    AnnunciaCartellaServer();
}

TEST_F(ScegliFolder, TheFolderIsShownAndAgreedTo) {
    script.expectFolder(kTitoloCartella, "C:\\Server Vabo");
    script.expectConfirm("C:\\Server Vabo", true);
    EXPECT_EQ(ScegliCartellaServer(), "C:\\Server Vabo");
}

TEST_F(ScegliFolder, CancelAtTheBoxIsNothing) {
    for (const char* cartella : {"C:\\Server", ""}) {
        script.expectFolder(kTitoloCartella, cartella);
        script.expectConfirm(cartella, false);
        EXPECT_EQ(ScegliCartellaServer(), std::nullopt);
    }
}

TEST_F(ScegliFolder, NoFolderIsShownAsAnEmptyLineAndRefusedAfterOk) {
    script.expectFolder(kTitoloCartella, "");
    script.expectConfirm("", true);
    script.expectMessage("Selezionare la directory di lavoro!", platform::Icon::None);
    EXPECT_EQ(ScegliCartellaServer(), "");
}

TEST_F(ScegliFolder, TheSevenFilesHoldTheFolderAndWhatFollowsFromIt) {
    posto.driveC().makeFolder("C:\\vabo");
    ScriviPuntatoriCartella("C:\\Città di \"prova\"; '");
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Città di \"prova\"; '"));
}

TEST_F(ScegliFolder, ADrivesRootLeavesTwoBackslashes) {
    posto.driveC().makeFolder("C:\\vabo");
    ScriviPuntatoriCartella("C:\\");
    EXPECT_EQ(posto.fileText("C:\\vabo\\DirectorySede.txt"), "C:\\\r\n");
    EXPECT_EQ(posto.fileText("C:\\vabo\\IndirizzoVabodati.txt"), "C:\\\\VaBoDati\r\n");
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\"));
}

TEST_F(ScegliFolder, EachFileIsReplacedWhole) {
    metti(posto, puntatoriDi("una riga molto più lunga della nuova\r\ne un'altra"));
    ScriviPuntatoriCartella("C:\\S");
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\S"));
}

TEST_F(ScegliFolder, WithoutTheirFolderTheFirstFileRaises) {
    try {
        ScriviPuntatoriCartella("C:\\Server");
        ADD_FAILURE() << "nothing raised";
    } catch (const platform::FileError& errore) {
        EXPECT_EQ(errore.number(), 76);
    }
}

TEST_F(ScegliFolder, AFileThatCanNotBeWrittenRaisesBehindTheOnesAheadOfIt) {
    const Puntatori nuovi = puntatoriDi("C:\\Nuova");
    for (std::size_t guasto = 0; guasto < nuovi.size(); ++guasto) {
        SCOPED_TRACE(nuovi[guasto].first);
        const Puntatori vecchi = puntatoriDi("prima");
        metti(posto, vecchi);
        impedisci(posto, nuovi[guasto].first);
        try {
            ScriviPuntatoriCartella("C:\\Nuova");
            ADD_FAILURE() << "nothing raised";
        } catch (const platform::FileError& errore) {
            EXPECT_EQ(errore.number(), 75);
        }
        const Puntatori adesso = puntatori(posto);
        for (std::size_t i = 0; i < nuovi.size(); ++i) {
            EXPECT_EQ(adesso[i].second, i < guasto    ? nuovi[i].second
                                        : i == guasto ? ""
                                                      : vecchi[i].second)
                << nuovi[i].first;
        }
        std::filesystem::remove(posto.driveC().real("C:\\vabo\\" + nuovi[guasto].first));
    }
}

} // namespace
} // namespace vabo
