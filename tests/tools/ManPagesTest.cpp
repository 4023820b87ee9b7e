// The man pages name what the programs understand, and nothing else.

#include "provision/PointerFiles.h"
#include "support/Processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace fs = std::filesystem;
using Words = std::set<std::string>;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const fs::path kRoot = VABO_ROOT;

std::string textOf(const fs::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A page of the manual as its reader sees it, as far as hyphens are concerned.
std::string page(const std::string& name) {
    const std::string text = textOf(kRoot / "tools" / "debian" / "man" / name);
    return std::regex_replace(text, std::regex(R"(\\-)"), "-");
}

/// What the first group of the pattern takes, wherever it matches.
Words found(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    Words words;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
        words.insert((*match)[1].str());
    }
    return words;
}

std::string help() {
    support::HelperProcess process("vabo-provision", {"--help"});
    return process.readAll();
}

Words loggingCategories() {
    Words categories;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kRoot / "src")) {
        if (entry.path().extension() == ".cpp") {
            categories.merge(found(textOf(entry.path()), R"re(Q_LOGGING_CATEGORY\([^)]*"([a-z.]+)")re"));
        }
    }
    return categories;
}

} // namespace

TEST(ManPages, OfTheSampleHasTheOptionsAndDefaultsOfItsHelp) {
    constexpr const char* kOption = "(--[a-z]+)";
    const Words options = found(help(), kOption);
    EXPECT_EQ(found(page("vabo-provision.1"), kOption), options);
    EXPECT_EQ(options, (Words{"--accounts", "--help", "--ledger", "--terminal"}));

    const Words defaults = found(help(), R"(default: ([0-9]+))");
    EXPECT_EQ(found(page("vabo-provision.1"), R"(Without it ([0-9]+))"), defaults);
    EXPECT_FALSE(defaults.empty());
}

TEST(ManPages, OfTheSampleNamesItsUsersAndTheirPasswords) {
    const std::string text = page("vabo-provision.1");
    const std::string users = help().substr(help().find("Users of both companies"));
    Words names = found(users, R"(\n  ([a-z_]+))");
    names.merge(found(users, "password ([a-z0-9]+)[,\n]"));
    EXPECT_EQ(names.size(), 7U);
    for (const std::string& name : names) {
        EXPECT_THAT(text, HasSubstr(name));
    }
}

TEST(ManPages, OfTheConsoleNamesFilesAndLoggingThatExist) {
    const std::string text = page("vabo.1");
    Words files;
    for (const provision::PointerFile& file : provision::pointerFiles("S")) {
        files.insert(file.path.substr(file.path.rfind('\\') + 1));
    }
    const Words named = found(text, R"(\n\.I ([A-Za-z_]+\.txt))");
    EXPECT_EQ(named.size(), 4U);
    for (const std::string& file : named) {
        EXPECT_THAT(files, Contains(file));
    }

    const Words categories = loggingCategories();
    const Words logged = found(text, "(vabo\\.[a-z]+)=true");
    EXPECT_EQ(logged.size(), 4U);
    for (const std::string& category : logged) {
        EXPECT_THAT(categories, Contains(category));
    }
    EXPECT_THAT(text, Not(HasSubstr("--"))) << "the console has no options";
}

TEST(ManPages, AreInstalledAll) {
    Words listed = found(textOf(kRoot / "tools" / "debian" / "debian" / "vabo.manpages"), "/man/([a-z-]+\\.1)\n");
    Words there;
    for (const fs::directory_entry& entry : fs::directory_iterator(kRoot / "tools" / "debian" / "man")) {
        there.insert(entry.path().filename().string());
    }
    EXPECT_EQ(listed, there);
    EXPECT_EQ(there, (Words{"vabo-provision.1", "vabo-start.1", "vabo.1"}));
}
