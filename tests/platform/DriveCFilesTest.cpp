#include "platform/DriveC.h"
#include "support/Capabilities.h"
#include "support/OwnerAlone.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"
#include "support/Unprivileged.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;
using fs::perms;
using platform::DriveC;
using platform::FileError;

namespace {

/// The result of `work`: "ok", or number and text of its error.
template<typename Work>
std::string outcome(Work&& work) {
    try {
        work();
        return "ok";
    } catch (const FileError& error) {
        return std::to_string(error.number()) + ' ' + error.what();
    }
}

constexpr const char* kFileNotFound = "53 File not found";
constexpr const char* kEndOfFile = "62 Input past end of file";
constexpr const char* kDenied = "70 Permission denied";
constexpr const char* kAccessError = "75 Path/File access error";
constexpr const char* kPathNotFound = "76 Path not found";

class DriveCFiles : public testing::Test {
protected:
    void SetUp() override { drive_.makeFolder("C:\\vabo"); }

    const fs::path& root() const { return folder_.path(); }
    void put(const char* name, std::string_view bytes) const {
        std::ofstream(root() / name, std::ios::binary) << bytes;
    }
    std::string bytes(const char* name) const {
        std::ifstream file(root() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::vector<std::string> names(const char* folder) const {
        std::vector<std::string> all;
        for (const auto& entry : fs::directory_iterator(root() / folder)) {
            all.push_back(entry.path().filename().string());
        }
        return all;
    }
    std::string firstLineOutcome(const char* path) const {
        return outcome([&] { drive_.firstLine(path); });
    }
    std::string writeOutcome(const char* path) const {
        return outcome([&] { drive_.writeLine(path, "x"); });
    }

    support::TemporaryFolder folder_;
    DriveC drive_{folder_.path()};
};

struct Line {
    std::string_view bytes;
    std::string_view line;
};

using namespace std::string_view_literals;

constexpr Line kLines[] = {
    {"uno\r\ndue\r\n", "uno"},
    {"uno\ndue\n", "uno"},
    {"uno", "uno"},
    {"uno\r", "uno"},
    {"\r\nuno", ""},
    {"\n", ""},
    {"\r", ""},
    {" uno  \r\n", " uno  "},
    {"a\rb\n", "a\rb"},
    {"a\0b\r\n"sv, "a\0b"sv},
};

} // namespace

TEST_F(DriveCFiles, TheFirstLineEndsAtEitherLineBreak) {
    for (const Line& line : kLines) {
        put("vabo/x.txt", line.bytes);
        EXPECT_EQ(drive_.firstLine("C:\\Vabo\\X.txt"), line.line) << testing::PrintToString(line.bytes);
    }
}

TEST_F(DriveCFiles, ALineOf64KilobytesIsReadWhole) {
    const std::string line(65'536, 'x');
    put("vabo/x.txt", line + "\r\nsecond");
    EXPECT_EQ(drive_.firstLine("C:\\vabo\\x.txt"), line);
}

TEST_F(DriveCFiles, OfALongerFirstLineTheRestIsGarbageThatNobodyReads) {
    put("vabo/x.txt", "");
    fs::resize_file(root() / "vabo/x.txt", 200'000'000);
    EXPECT_EQ(drive_.firstLine("C:\\vabo\\x.txt"), std::string(65'536, '\0'));
    put("vabo/x.txt", std::string(65'536, 'x') + "yz\r\n");
    EXPECT_EQ(drive_.firstLine("C:\\vabo\\x.txt"), std::string(65'536, 'x'));
}

TEST_F(DriveCFiles, GarbageIsReadAsSomething) {
    std::string garbage;
    for (int i = 0; i < 100'000; ++i) {
        garbage += static_cast<char>((i * 7919) % 256);
    }
    put("vabo/x.txt", garbage);
    EXPECT_NO_THROW(drive_.firstLine("C:\\vabo\\x.txt"));
}

TEST_F(DriveCFiles, ReadingSaysWhatIsMissing) {
    put("vabo/empty.txt", "");
    EXPECT_EQ(firstLineOutcome("C:\\vabo\\missing.txt"), kFileNotFound);
    EXPECT_EQ(firstLineOutcome("C:\\missing\\x.txt"), kPathNotFound);
    EXPECT_EQ(firstLineOutcome("C:\\vabo\\empty.txt\\x.txt"), kPathNotFound);
    EXPECT_EQ(firstLineOutcome("D:\\vabo\\x.txt"), kPathNotFound);
    EXPECT_EQ(firstLineOutcome("C:\\vabo"), kAccessError);
    EXPECT_EQ(firstLineOutcome("C:\\vabo\\empty.txt"), kEndOfFile);
    EXPECT_EQ(firstLineOutcome(("C:\\vabo\\" + std::string(5000, 'x')).c_str()), kPathNotFound);
}

TEST_F(DriveCFiles, ALineIsWrittenWithItsEndAndForTheOwnerAlone) {
    drive_.writeLine("C:\\vabo\\NomeServer.txt", "POSTO\\sede");
    EXPECT_EQ(bytes("vabo/NomeServer.txt"), "POSTO\\sede\r\n");
    EXPECT_TRUE(support::isForOwnerAlone(root() / "vabo/NomeServer.txt"));
    EXPECT_EQ(drive_.firstLine("C:\\vabo\\NomeServer.txt"), "POSTO\\sede");
}

TEST_F(DriveCFiles, WritingReplacesWhateverTheSpellingAndKeepsTheOldOne) {
    put("vabo/NomeServer.txt", "a much longer first line\r\nand a second\r\n");
    fs::permissions(root() / "vabo/NomeServer.txt", perms::owner_read | perms::owner_write | perms::others_read);
    drive_.writeLine("C:\\Vabo\\NOMESERVER.TXT", "x");
    EXPECT_EQ(bytes("vabo/NomeServer.txt"), "x\r\n");
    EXPECT_EQ(names("vabo"), std::vector<std::string>{"NomeServer.txt"});
    EXPECT_TRUE(support::isForOwnerAlone(root() / "vabo/NomeServer.txt"));
}

TEST_F(DriveCFiles, AnEmptyLineIsALine) {
    drive_.writeLine("C:\\vabo\\x.txt", "");
    EXPECT_EQ(bytes("vabo/x.txt"), "\r\n");
    EXPECT_EQ(drive_.firstLine("C:\\vabo\\x.txt"), "");
}

TEST_F(DriveCFiles, WritingSaysWhyItCannot) {
    put("vabo/file.txt", "x");
    EXPECT_EQ(writeOutcome("C:\\missing\\x.txt"), kPathNotFound);
    EXPECT_EQ(writeOutcome("C:\\vabo\\file.txt\\x.txt"), kPathNotFound);
    EXPECT_EQ(writeOutcome("D:\\x.txt"), kPathNotFound);
    EXPECT_EQ(writeOutcome("C:\\vabo"), kAccessError);
    EXPECT_EQ(writeOutcome("C:\\"), kAccessError);
    EXPECT_EQ(names("vabo"), std::vector<std::string>{"file.txt"});
}

TEST_F(DriveCFiles, AFolderIsMadeForTheOwnerAlone) {
    drive_.makeFolder("C:\\Vabo\\Sedi\\");
    EXPECT_TRUE(support::isForOwnerAlone(root() / "vabo/Sedi"));
    EXPECT_EQ(outcome([&] { drive_.makeFolder("C:\\VABO\\SEDI"); }), kAccessError);
    put("vabo/file.txt", "x");
    EXPECT_EQ(outcome([&] { drive_.makeFolder("C:\\vabo\\FILE.txt"); }), kAccessError);
    EXPECT_EQ(outcome([&] { drive_.makeFolder("C:\\missing\\sedi"); }), kPathNotFound);
    EXPECT_EQ(outcome([&] { drive_.makeFolder("E:\\sedi"); }), kPathNotFound);
}

TEST_F(DriveCFiles, WithoutRightsEverythingIsDenied) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    put("vabo/open.txt", "readable\r\n");
    put("vabo/closed.txt", "x");
    put("vabo/readonly.txt", "x");
    drive_.makeFolder("C:\\locked");
    drive_.makeFolder("C:\\fixed");
    put("fixed/x.txt", "x");
    fs::permissions(root() / "vabo/closed.txt", perms::none);
    fs::permissions(root() / "vabo/readonly.txt", perms::owner_read);
    fs::permissions(root() / "locked", perms::none);
    fs::permissions(root() / "fixed", perms::owner_read | perms::owner_exec);

    const auto bound = [&](const std::function<std::string()>& work) { return support::unprivileged(root(), work); };
    EXPECT_EQ(bound([&] { return drive_.firstLine("C:\\vabo\\open.txt"); }), "readable");
    EXPECT_EQ(bound([&] { return writeOutcome("C:\\vabo\\new.txt"); }), "ok");
    EXPECT_EQ(bound([&] { return firstLineOutcome("C:\\vabo\\closed.txt"); }), kDenied);
    EXPECT_EQ(bound([&] { return firstLineOutcome("C:\\locked\\x.txt"); }), kDenied);
    EXPECT_EQ(bound([&] { return writeOutcome("C:\\vabo\\readonly.txt"); }), kDenied);
    EXPECT_EQ(bound([&] { return writeOutcome("C:\\fixed\\new.txt"); }), kDenied);
    EXPECT_EQ(bound([&] { return writeOutcome("C:\\locked\\new.txt"); }), kDenied);
    EXPECT_EQ(bound([&] { return outcome([&] { drive_.makeFolder("C:\\fixed\\new"); }); }), kDenied);
    EXPECT_EQ(bytes("vabo/readonly.txt"), "x");
    EXPECT_EQ(bytes("fixed/x.txt"), "x");
}

TEST_F(DriveCFiles, AKilledWriterLeavesTheOldLineOrTheNewOne) {
    for (int round = 0; round < 20; ++round) {
        support::HelperProcess writer("line_writer", {root().string(), "C:\\vabo\\line.txt"});
        ASSERT_EQ(writer.readLine(), "running");
        writer.kill();
        const std::string line = bytes("vabo/line.txt");
        EXPECT_TRUE(line == std::string(200'000, 'a') + "\r\n" || line == std::string(300'000, 'b') + "\r\n")
            << line.size();
    }
}

TEST_F(DriveCFiles, ThatAreOpenAreDeniedWhereTheSystemKeepsThem) {
    const std::string expected = support::systemCapabilities().openFilesMove ? "ok" : kDenied;
    put("vabo/x.txt", "uno");
    const std::ifstream open(root() / "vabo/x.txt");
    EXPECT_EQ(writeOutcome("C:\\vabo\\x.txt"), expected);
}
