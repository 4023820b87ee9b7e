#include "os/Files.h"

#include "os/Paths.h"
#include "support/Capabilities.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    const support::TemporaryFolder folder;
    const std::string name = "citt\xc3\xa0.txt";
    const fs::path file = folder.path() / os::pathOf(name);

    std::string content() const {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    std::ptrdiff_t entries() const { return std::distance(fs::directory_iterator(folder.path()), {}); }
};

TEST_F(Files, HaveNamesInUtf8) {
    os::replaceFile(file, "uno");
    const fs::path found = fs::directory_iterator(folder.path())->path();
    EXPECT_EQ(os::utf8Of(found.filename()), name);
    EXPECT_EQ(found, file);
}

TEST_F(Files, AreReplacedWholeAndLeaveNothingBeside) {
    os::replaceFile(file, std::string(100'000, 'x'));
    os::replaceFile(file, "due\r\n");
    EXPECT_EQ(content(), "due\r\n");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, ThatCanNotBeReplacedStayAndLeaveNothingBeside) {
    ASSERT_TRUE(fs::create_directory(file));
    EXPECT_THROW(os::replaceFile(file, "due"), std::system_error);
    EXPECT_TRUE(fs::is_directory(file));
    EXPECT_EQ(entries(), 1);
    try {
        os::replaceFile(folder.path() / "manca" / "a.txt", "due");
        FAIL() << "there is no such folder";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(Files, OfTheOwnerAreMadeEmptyAndOnlyOnce) {
    os::makeFileOfOwner(file);
    EXPECT_EQ(fs::file_size(file), 0U);
    os::replaceFile(file, "uno");
    os::makeFileOfOwner(file);
    EXPECT_EQ(content(), "uno");
    os::makeFileOfOwner(folder.path() / "manca" / "a.txt");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, BelongToTheirOwnerHoweverTheyAreMade) {
    os::makeFileOfOwner(file);
    EXPECT_TRUE(support::isForOwnerAlone(file));
    os::replaceFile(file, "uno");
    EXPECT_TRUE(support::isForOwnerAlone(file));
    const fs::path open = folder.path() / "open.txt";
    std::ofstream(open) << "uno";
    EXPECT_FALSE(support::isForOwnerAlone(open));
    EXPECT_FALSE(os::keepForOwner(open));
    EXPECT_TRUE(support::isForOwnerAlone(open));
    EXPECT_TRUE(os::keepForOwner(folder.path() / "manca.txt")) << "an error";
    os::makePrivateFolder(folder.path() / "own");
    EXPECT_TRUE(support::isForOwnerAlone(folder.path() / "own"));
}

TEST_F(Files, CanBeRemovedOnceTheyAreClosed) {
    EXPECT_TRUE(os::canBeRemoved(file)) << "there is none";
    std::ofstream open(file);
    open << "uno" << std::flush;
    EXPECT_EQ(os::canBeRemoved(file), bool(support::systemCapabilities().openFilesMove));
    open.close();
    EXPECT_TRUE(os::canBeRemoved(file));
    EXPECT_EQ(content(), "uno");
}

TEST_F(Files, HaveTheirSizeAlsoWhileTheyAreWritten) {
    EXPECT_EQ(os::sizeOf(file), std::nullopt);
    std::ofstream open(file);
    EXPECT_EQ(os::sizeOf(file), 0U);
    open << "uno" << std::flush;
    EXPECT_EQ(os::sizeOf(file), 3U);
    EXPECT_EQ(os::sizeOf(folder.path()), std::nullopt) << "a folder";
}

TEST_F(Files, AreRemovedWhereTheyAre) {
    os::removeFile(file);
    os::removeFile(folder.path() / "manca" / "a.txt");
    os::replaceFile(file, "uno");
    os::removeFile(file);
    EXPECT_EQ(entries(), 0);
    fs::create_directories(file / "dentro");
    EXPECT_THROW(os::removeFile(file), fs::filesystem_error);
}

// Another program reads it for a moment, where that keeps it from being replaced or removed.
TEST_F(Files, ThatAreInUseForAMomentAreReplacedAndRemoved) {
    const auto whileItIsRead = [&](const auto& work) {
        std::ifstream reader(file);
        std::thread other([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            reader.close();
        });
        EXPECT_NO_THROW(work());
        other.join();
    };
    os::replaceFile(file, "uno");
    whileItIsRead([&] { os::replaceFile(file, "due"); });
    EXPECT_EQ(content(), "due");
    whileItIsRead([&] { os::removeFile(file); });
    EXPECT_EQ(entries(), 0);
}

TEST_F(Files, AndFoldersAreTheContentOfAFolder) {
    os::replaceFile(file, "uno");
    fs::create_directory(folder.path() / "sotto");
    const os::FolderContent content = os::contentOf(folder.path());
    EXPECT_EQ(content.files, std::vector{file});
    EXPECT_EQ(content.folders, std::vector{folder.path() / "sotto"});
    EXPECT_TRUE(os::contentOf(folder.path() / "sotto").files.empty());
    EXPECT_TRUE(os::contentOf(folder.path() / "manca").folders.empty());
}

TEST_F(Files, StandInFoldersThatAreMadeOnce) {
    os::makePrivateFolder(file);
    EXPECT_TRUE(fs::is_directory(file));
    try {
        os::makePrivateFolder(file);
        FAIL() << "it is there already";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::file_exists);
    }
    try {
        os::makePrivateFolder(folder.path() / "manca" / "sotto");
        FAIL() << "there is no such folder";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(Files, PrivateFoldersAreMadeWithThoseAbove) {
    const fs::path below = folder.path() / "sopra" / "mezzo" / "sotto";
    os::makePrivateFolders(below);
    EXPECT_TRUE(support::isForOwnerAlone(below));
    os::makePrivateFolders(below);
    EXPECT_TRUE(fs::is_empty(below));
}

TEST_F(Files, PrivateFoldersMayBeNamedFromWhereTheProgramIsAndWithASeparatorBehind) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    os::makePrivateFolders("uno");
    os::makePrivateFolders("due/");
    os::makePrivateFolders("./tre/quattro/");
    fs::current_path(before);
    for (const char* made : {"uno", "due", "tre/quattro"}) {
        EXPECT_TRUE(support::isForOwnerAlone(folder.path() / made)) << made;
    }
}

TEST_F(Files, AreFoundInTheSpellingOfTheDisk) {
    os::makeFileOfOwner(file);
    EXPECT_EQ(os::entryOf(folder.path(), name), file);
    EXPECT_EQ(os::entryOf(folder.path(), "manca.txt"), std::nullopt);
    EXPECT_EQ(os::entryOf(folder.path() / "manca", name), std::nullopt);
}

TEST_F(Files, HaveNoEmptyNameAndNoSeparatorOrEndInIt) {
    EXPECT_TRUE(os::isFileName(name));
    EXPECT_TRUE(os::isFileName("IndirizzoServer.txt"));
    EXPECT_TRUE(os::isFileName("Campione 2024 (copia)"));
    EXPECT_FALSE(os::isFileName(""));
    EXPECT_FALSE(os::isFileName("a/b"));
    EXPECT_FALSE(os::isFileName(std::string("a\0b", 3)));
}

} // namespace
