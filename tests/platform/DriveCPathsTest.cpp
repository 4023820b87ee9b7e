#include "os/Paths.h"
#include "platform/DriveC.h"
#include "support/Capabilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace fs = std::filesystem;
using platform::DriveC;
using platform::FileError;

namespace {

class DriveCPaths : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(root() / "vabo" / "Files");
        touch("vabo/NomeServer.txt");
    }

    const fs::path& root() const { return folder_.path(); }
    void touch(const char* name) const { std::ofstream(root() / os::pathOf(name)) << name; }

    support::TemporaryFolder folder_;
    DriveC drive_{folder_.path()};
};

struct Way {
    const char* path;
    const char* place; ///< below the root
};

constexpr Way kWays[] = {
    {"C:\\vabo\\NomeServer.txt", "vabo/NomeServer.txt"},
    {"C:\\Vabo\\nomeserver.TXT", "vabo/NomeServer.txt"},
    {"c:/VABO/NOMESERVER.txt", "vabo/NomeServer.txt"},
    {"\\vabo\\NomeServer.txt", "vabo/NomeServer.txt"},
    {"vabo\\NomeServer.txt", "vabo/NomeServer.txt"},
    {"C:vabo\\NomeServer.txt", "vabo/NomeServer.txt"},
    {"C:\\vabo\\\\.\\files\\..\\NomeServer.txt", "vabo/NomeServer.txt"},
    {"C:\\vabo", "vabo"},
    {"C:\\Vabo\\", "vabo"},
    {"C:\\vabo\\FILES\\", "vabo/Files"},
    {"C:\\", ""},
    {"C:", ""},
    {"c:", ""},
    {"", ""},
    {"C:\\..\\..\\..\\vabo", "vabo"},
    {"C:\\vabo\\..\\..\\..\\..\\etc\\passwd", "etc/passwd"},
    {"C:\\Vabo\\Nuovo.TXT", "vabo/Nuovo.TXT"},
    {"C:\\Altra\\Cartella\\x.txt", "Altra/Cartella/x.txt"},
};

} // namespace

TEST_F(DriveCPaths, LeadToOnePlaceWhateverTheirSpelling) {
    for (const Way& way : kWays) {
        const fs::path place = *way.place == '\0' ? root() : root() / way.place;
        EXPECT_EQ(drive_.real(way.path), place) << way.path;
    }
}

TEST_F(DriveCPaths, OfNamesThatOtherSystemsRefuseAreNames) {
    VABO_NEEDS(support::systemCapabilities().anyFileName);
    EXPECT_EQ(drive_.real("C:\\vabo\\..."), root() / "vabo" / "...");
}

TEST_F(DriveCPaths, OfAnotherDriveOrMachineAreNotFound) {
    for (const char* path : {"D:\\vabo", "d:", "A:/x", "1:\\x", "\\\\server\\share\\x", "//server/share"}) {
        try {
            drive_.real(path);
            ADD_FAILURE() << path;
        } catch (const FileError& error) {
            EXPECT_EQ(error.number(), 76) << path;
            EXPECT_STREQ(error.what(), "Path not found");
        }
        EXPECT_FALSE(drive_.exists(path)) << path;
        EXPECT_FALSE(drive_.isFile(path)) << path;
        EXPECT_FALSE(drive_.isFolder(path)) << path;
    }
}

TEST_F(DriveCPaths, WithANulLeadNowhere) {
    const std::string path("C:\\vabo\\NomeServer.txt\0x", 24);
    EXPECT_FALSE(drive_.exists(path));
    EXPECT_THROW(drive_.firstLine(path), FileError);
}

TEST_F(DriveCPaths, TheExactSpellingComesFirst) {
    VABO_NEEDS(support::systemCapabilities().caseInFileNames);
    touch("vabo/nomeserver.TXT");
    EXPECT_EQ(drive_.real("C:\\vabo\\nomeserver.TXT"), root() / "vabo/nomeserver.TXT");
    EXPECT_EQ(drive_.real("C:\\vabo\\NomeServer.txt"), root() / "vabo/NomeServer.txt");
}

TEST_F(DriveCPaths, WithoutTheExactSpellingTheFirstNameInByteOrderCounts) {
    VABO_NEEDS(support::systemCapabilities().caseInFileNames);
    touch("vabo/nomeserver.TXT");
    touch("vabo/NOMESERVER.txt");
    EXPECT_EQ(drive_.real("C:\\vabo\\nomeServer.txt"), root() / "vabo/NOMESERVER.txt");
}

TEST_F(DriveCPaths, CaseIsUnicodes) {
    fs::create_directory(root() / os::pathOf("Città"));
    touch("Città/PERCHÉ.txt");
    EXPECT_TRUE(drive_.isFile("C:\\CITTÀ\\perché.TXT"));
    EXPECT_FALSE(drive_.exists("C:\\Citta"));
}

TEST_F(DriveCPaths, AreFilesOrFolders) {
    EXPECT_TRUE(drive_.exists("C:\\vabo"));
    EXPECT_TRUE(drive_.isFolder("C:\\VABO\\"));
    EXPECT_FALSE(drive_.isFile("C:\\vabo"));
    EXPECT_TRUE(drive_.isFile("C:\\vabo\\nomeserver.txt"));
    EXPECT_FALSE(drive_.isFolder("C:\\vabo\\nomeserver.txt"));
    EXPECT_FALSE(drive_.exists("C:\\vabo\\altro.txt"));
    EXPECT_FALSE(drive_.exists("C:\\altra\\altro.txt"));
}

TEST_F(DriveCPaths, HoldWhereTheDriveItselfIsMissing) {
    const DriveC none(root() / "missing");
    EXPECT_FALSE(none.exists("C:\\"));
    EXPECT_EQ(none.real("C:\\vabo\\x.txt"), root() / "missing" / "vabo" / "x.txt");
}
