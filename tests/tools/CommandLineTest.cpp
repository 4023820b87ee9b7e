#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

struct Answer {
    int code;
    std::string words;
};

Answer provisionWith(const std::vector<std::string>& arguments) {
    support::HelperProcess process("vabo-provision", arguments);
    const std::string words = process.readAll();
    return {process.finish(), words};
}

} // namespace

TEST(ProvisionCommand, LaysDownAndSaysSo) {
    const support::TemporaryFolder driveC;
    const std::vector<std::string> arguments = {driveC.path().string(), "--terminal", "POSTO-9", "--ledger", "10"};
    const Answer first = provisionWith(arguments);
    EXPECT_EQ(first.code, 0);
    EXPECT_THAT(first.words, HasSubstr("laid down, server POSTO_9\\sqlexpress"));
    EXPECT_TRUE(fs::is_directory(driveC.path() / "vabo" / "istanze" / "POSTO_9$sqlexpress"));

    const Answer second = provisionWith(arguments);
    EXPECT_EQ(second.code, 0);
    EXPECT_THAT(second.words, HasSubstr("already laid down, nothing changed, server POSTO_9\\sqlexpress"));
}

TEST(ProvisionCommand, MakesTheFolderWhereItIsMissingHoweverItIsNamed) {
    const support::TemporaryFolder above;
    const fs::path before = fs::current_path();
    fs::current_path(above.path());
    for (const char* folder : {"uno", "due/", "./tre/quattro"}) {
        EXPECT_EQ(provisionWith({folder, "--ledger", "10"}).code, 0) << folder;
        EXPECT_TRUE(fs::is_directory(above.path() / folder / "vabo" / "istanze")) << folder;
    }
    fs::current_path(before);
}

TEST(ProvisionCommand, RefusesWhatItDoesNotUnderstand) {
    const support::TemporaryFolder driveC;
    const std::string folder = driveC.path().string();
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {folder, "--ledger"},
        {folder, "--ledger", "many"},
        {folder, "--ledger", "10x"},
        {folder, "--ledger", "1"},
        {folder, "--ledger", "99999999999999999999"},
        {folder, "--unknown"},
        {folder, "second"},
        {"--terminal", "A"},
    };
    for (const auto& arguments : wrong) {
        EXPECT_EQ(provisionWith(arguments).code, 1) << testing::PrintToString(arguments);
    }
    EXPECT_TRUE(fs::is_empty(driveC.path()));
}

TEST(ProvisionCommand, ExplainsItself) {
    const Answer help = provisionWith({"--help"});
    EXPECT_EQ(help.code, 0);
    for (const char* const word :
         {"--terminal", "--ledger", "--accounts", "VABO_DRIVE_C", "amministratore   password primavera"}) {
        EXPECT_THAT(help.words, HasSubstr(word));
    }
}
