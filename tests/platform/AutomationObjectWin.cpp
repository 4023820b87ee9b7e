// Objects of other applications, by those of the system's own library for scripts.

#include "ado/Error.h"
#include "os/Paths.h"
#include "platform/AutomationObject.h"
#include "support/Capabilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <objbase.h>
#include <optional>
#include <string>

namespace platform {
namespace {

constexpr const char* kFileSystem = "Scripting.FileSystemObject";
constexpr const char* kDictionary = "Scripting.Dictionary";

class AutomationObjects : public testing::Test {
protected:
    void SetUp() override {
        CoInitialize(nullptr);
        isThere_ = AutomationObject::isLibrary(kFileSystem) && AutomationObject::isLibrary(kDictionary);
    }
    void TearDown() override { CoUninitialize(); }

    support::Capability library() const {
        return isThere_ ? support::Capability{} : support::Capability{"The system's library for scripts isn't there."};
    }
    std::string place(const char* name) const { return os::utf8Of(folder_.path() / os::pathOf(name)); }
    void put(const char* name, const char* bytes) const { std::ofstream(folder_.path() / os::pathOf(name)) << bytes; }
    std::string bytes(const char* name) const {
        std::ifstream file(folder_.path() / os::pathOf(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static int numberOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const ado::Error& error) {
            EXPECT_FALSE(error.description().empty());
            return error.number();
        }
        return 0;
    }

private:
    support::TemporaryFolder folder_;
    bool isThere_ = false;
};

TEST_F(AutomationObjects, TakeTheirArgumentsInTheGivenOrder) {
    VABO_NEEDS(library());
    put("città.txt", "Bari");
    AutomationObject(kFileSystem).call("CopyFile", {place("città.txt"), place("copia.txt"), true});
    EXPECT_EQ(bytes("copia.txt"), "Bari");
}

TEST_F(AutomationObjects, AreReachedThroughOthersAndTellTextsAndNumbers) {
    VABO_NEEDS(library());
    put("città.txt", "Bari");
    const AutomationObject file = AutomationObject(kFileSystem).object("GetFile", {place("città.txt")});
    EXPECT_EQ(file.text("Name"), "città.txt");
    EXPECT_EQ(file.number("Size"), 4);
    file.put("Attributes", 1);
    EXPECT_EQ(file.number("Attributes") & 1, 1);
    file.put("Attributes", 0);
    EXPECT_EQ(file.number("Attributes") & 1, 0);
}

TEST_F(AutomationObjects, AreCountedAsMembersOfACollection) {
    VABO_NEEDS(library());
    const AutomationObject dictionary(kDictionary);
    dictionary.call("Add", {"Bari", 70});
    dictionary.call("Add", {"Lecce", false});
    EXPECT_EQ(dictionary.number("Count"), 2);
    dictionary.call("RemoveAll");
    EXPECT_EQ(dictionary.number("Count"), 0);
}

TEST_F(AutomationObjects, TellWhatFailedByItsNumber) {
    VABO_NEEDS(library());
    const AutomationObject dictionary(kDictionary);
    dictionary.call("Add", {"Bari", 70});
    EXPECT_EQ(numberOf([&] { dictionary.call("Add", {"Bari", 71}); }), 457);
    EXPECT_EQ(numberOf([&] { dictionary.call("Aggiungi", {"Bari"}); }), 438);
    EXPECT_EQ(numberOf([&] { dictionary.object("Count"); }), 424);
    EXPECT_EQ(numberOf([&] { AutomationObject(kFileSystem).object("GetFile", {place("manca.txt")}); }), 53);
    EXPECT_EQ(dictionary.number("Count"), 1);
}

TEST_F(AutomationObjects, OfAnUnknownNameCannotBeMade) {
    EXPECT_FALSE(AutomationObject::isLibrary("Vabo.Niente"));
    EXPECT_EQ(numberOf([] { AutomationObject("Vabo.Niente"); }), 429);
}

} // namespace
} // namespace platform
