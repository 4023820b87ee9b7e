// Paths of the system as paths of drive C, and the search for a file on it.

#include "platform/FileSearch.h"

#include "os/Paths.h"
#include "support/Capabilities.h"
#include "support/TemporaryFolder.h"
#include "support/Unprivileged.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace fs = std::filesystem;

namespace {

class FileSearch : public testing::Test {
protected:
    const fs::path& root() const { return folder_.path(); }
    fs::path place(std::string_view below) const { return root() / os::pathOf(below); }
    void file(std::string_view name) const {
        fs::create_directories(place(name).parent_path());
        std::ofstream(place(name)) << "x";
    }
    std::string found(const std::string& name) const {
        return platform::findFile(drive, name, [] {}).value_or("nothing");
    }

    support::TemporaryFolder folder_;
    platform::DriveC drive{folder_.path()};
};

TEST_F(FileSearch, APlaceOnTheDriveHasAPathThatLeadsBackToIt) {
    file("vabo/Città di Castello/x.txt");
    const std::pair<const char*, const char*> places[] = {
        {"vabo", "C:\\vabo"},
        {"vabo/", "C:\\vabo"},
        {"vabo/Città di Castello", "C:\\vabo\\Città di Castello"},
        {"vabo/Città di Castello/x.txt", "C:\\vabo\\Città di Castello\\x.txt"},
        {"vabo/../vabo/./Nuova", "C:\\vabo\\Nuova"},
    };
    for (const auto& [below, path] : places) {
        EXPECT_EQ(drive.pathOf(place(below)), path);
        EXPECT_EQ(drive.real(path), (place(below) / "").lexically_normal().parent_path());
    }
}

TEST_F(FileSearch, ThePathOfTheRootAloneEndsInASeparator) {
    EXPECT_EQ(drive.pathOf(root()), "C:\\");
    EXPECT_EQ(drive.pathOf(root() / ""), "C:\\");
    EXPECT_EQ(platform::DriveC(root() / "").pathOf(root()), "C:\\");
    EXPECT_EQ(platform::DriveC(root() / "").pathOf(root() / "vabo"), "C:\\vabo");
}

TEST_F(FileSearch, ARootNamedFromTheCurrentFolderIsTheSameDrive) {
    const fs::path before = fs::current_path();
    fs::current_path(root().parent_path());
    const auto path = platform::DriveC(fs::relative(root())).pathOf(root() / "vabo");
    fs::current_path(before);
    EXPECT_EQ(path, "C:\\vabo");
}

TEST_F(FileSearch, APlaceElsewhereHasNoPath) {
    for (const fs::path& place : {fs::path("/"), root().parent_path(), root() / ".." / "x", fs::path("/tmp/x/y/z"),
                                  fs::path(root().string() + "x")}) {
        EXPECT_EQ(drive.pathOf(place), std::nullopt) << place;
    }
}

TEST_F(FileSearch, ANameThatIsNoPartOfAPathHasNone) {
    VABO_NEEDS(support::systemCapabilities().anyFileName);
    EXPECT_EQ(drive.pathOf(root() / "a\\b"), std::nullopt);
    EXPECT_EQ(drive.pathOf(root() / "a\\b" / "c"), std::nullopt);
    EXPECT_EQ(drive.pathOf(root() / "\xff\xfe"), std::nullopt);
    EXPECT_EQ(drive.pathOf(root() / "a'; \"b"), "C:\\a'; \"b");
}

TEST_F(FileSearch, FindsAFileInTheRootAndBelowInAnyCase) {
    file("autoexec.txt");
    file("vabo/Files/Aurora.MDB");
    EXPECT_EQ(found("AutoExec.txt"), "C:\\autoexec.txt");
    EXPECT_EQ(found("aurora.mdb"), "C:\\vabo\\Files\\Aurora.MDB");
    EXPECT_EQ(found("AURORA.MDB"), "C:\\vabo\\Files\\Aurora.MDB");
}

TEST_F(FileSearch, ComparesLettersWithAccentsInLowerCaseToo) {
    file("CITTÀ.txt");
    EXPECT_EQ(found("città.TXT"), "C:\\CITTÀ.txt");
    EXPECT_EQ(found("citta.txt"), "nothing");
}

TEST_F(FileSearch, FindsWholeNamesOfFilesAlone) {
    file("dati.txt/x");
    file("dati.txt.old");
    file("i dati.txt");
    EXPECT_EQ(found("dati.txt"), "nothing");
    EXPECT_EQ(found("*"), "nothing");
    EXPECT_EQ(found(""), "nothing");
    EXPECT_EQ(found("."), "nothing");
}

TEST_F(FileSearch, TheFilesOfAFolderComeBeforeItsFoldersInTheOrderOfTheirNames) {
    file("a/a/x");
    EXPECT_EQ(found("x"), "C:\\a\\a\\x");
    file("b/x");
    EXPECT_EQ(found("x"), "C:\\a\\a\\x") << "all of the first folder";
    file("a/b/x");
    EXPECT_EQ(found("x"), "C:\\a\\a\\x");
    file("a/X");
    EXPECT_EQ(found("x"), "C:\\a\\X");
    file("a/x");
    EXPECT_EQ(found("x"), "C:\\a\\X");
    file("x");
    EXPECT_EQ(found("x"), "C:\\x");
}

TEST_F(FileSearch, FollowsNoLinkAndFindsNone) {
    VABO_NEEDS(support::systemCapabilities().symbolicLinks);
    const support::TemporaryFolder elsewhere;
    std::ofstream(elsewhere.path() / "fuori.txt") << "x";
    file("vabo/dentro.txt");
    fs::create_directory_symlink(elsewhere.path(), root() / "legame");
    fs::create_directory_symlink(root(), root() / "vabo" / "giro");
    fs::create_symlink(elsewhere.path() / "fuori.txt", root() / "fuori.txt");
    EXPECT_EQ(found("fuori.txt"), "nothing");
    EXPECT_EQ(found("dentro.txt"), "C:\\vabo\\dentro.txt");
}

TEST_F(FileSearch, PassesOverWhatNoPathCanName) {
    VABO_NEEDS(support::systemCapabilities().anyFileName);
    file("a\\b/x.txt");
    file("c\\x.txt");
    EXPECT_EQ(found("x.txt"), "nothing");
    EXPECT_EQ(found("c\\x.txt"), "nothing");
    file("z/x.txt");
    EXPECT_EQ(found("x.txt"), "C:\\z\\x.txt");
}

TEST_F(FileSearch, PassesOverFoldersThatMayNotBeRead) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    file("a/chiuso/x.txt");
    file("b/x.txt");
    const std::string path = support::unprivileged(root(), [this] {
        fs::permissions(root() / "a" / "chiuso", fs::perms::none);
        const std::string found = this->found("x.txt");
        fs::permissions(root() / "a" / "chiuso", fs::perms::owner_all);
        return found;
    });
    EXPECT_EQ(path, "C:\\b\\x.txt");
}

TEST_F(FileSearch, ADriveThatIsNotThereHasNothing) {
    EXPECT_EQ(platform::findFile(platform::DriveC(root() / "no"), "x", [] {}), std::nullopt);
}

TEST_F(FileSearch, GoesAsDeepAsTheFoldersDo) {
    VABO_NEEDS(support::systemCapabilities().longPaths);
    constexpr int kDeep = 400;
    std::string place;
    std::string path = "C:";
    for (int i = 0; i < kDeep; ++i) {
        place += "d/";
        path += "\\d";
    }
    file(place + "x.txt");
    EXPECT_EQ(found("x.txt"), path + "\\x.txt");
}

TEST_F(FileSearch, PausesAheadOfEachFolderUpToTheFirstHit) {
    file("a/b/1");
    file("c/2");
    int pauses = 0;
    const auto count = [&pauses] { ++pauses; };
    platform::findFile(drive, "no", count);
    EXPECT_EQ(pauses, 4);
    pauses = 0;
    platform::findFile(drive, "1", count);
    EXPECT_EQ(pauses, 3);
}

} // namespace
