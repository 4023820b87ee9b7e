// How each reader of a pointer file handles a damaged one.

#include "platform/DriveC.h"
#include "session/ApriAzienda.h"
#include "session/ApriDbSede.h"
#include "session/Aziende.h"
#include "session/SessionFixture.h"
#include "support/Capabilities.h"
#include "support/Unprivileged.h"

#include <filesystem>
#include <functional>

namespace {

using namespace vabo;

struct Damage {
    const char* name;
    std::function<void(const std::filesystem::path&)> make;
    const char* text; ///< of the error that a reader gets
};

const std::vector<Damage>& damages() {
    namespace fs = std::filesystem;
    static const std::vector<Damage> all = {
        {"Missing", [](const fs::path& file) { fs::remove(file); }, "File not found"},
        {"Folder",
         [](const fs::path& file) {
             fs::remove(file);
             fs::create_directory(file);
         },
         "Path/File access error"},
        {"Empty", [](const fs::path& file) { fs::resize_file(file, 0); }, "Input past end of file"},
        {"WithoutItsFolder", [](const fs::path& file) { fs::rename(file.parent_path(), file.parent_path() += "x"); },
         "Path not found"},
    };
    return all;
}

class PointerFile : public SessionTest, public testing::WithParamInterface<Damage> {
protected:
    void damage(const std::string& path) { GetParam().make(workstation.driveC().real(path)); }
};

TEST_P(PointerFile, OfTheServerRaisesInItsReader) {
    damage("C:\\vabo\\IndirizzoServer.txt");
    try {
        LeggiConnessioneServer();
        ADD_FAILURE() << "nothing was raised";
    } catch (const platform::FileError& error) {
        EXPECT_STREQ(error.what(), GetParam().text);
    }
}

TEST_P(PointerFile, OfTheServersNameRaisesInItsReader) {
    damage("C:\\vabo\\NomeServer.txt");
    EXPECT_THROW(LeggiConnessioneServer(), platform::FileError);
}

TEST_P(PointerFile, OfTheServerEndsTheStartWithItsOwnText) {
    damage("C:\\vabo\\IndirizzoServer.txt");
    script.expectMessage(GetParam().text);
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
}

TEST_P(PointerFile, OfTheServersNameEndsTheStartWithItsOwnText) {
    damage("C:\\vabo\\NomeServer.txt");
    script.expectMessage(GetParam().text);
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
}

TEST_P(PointerFile, OfTheServerLeavesACompanyThatIsAskedForUnopened) {
    double id = idOf(support::kCompany);
    NomeDatabase = "prima";
    damage("C:\\vabo\\IndirizzoServer.txt");
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_EQ(NomeDatabase, "prima");
    EXPECT_FALSE(DbAzienda.IsOpen());
}

TEST_P(PointerFile, OfTheServersNameLeavesACompanyThatIsAskedForUnopened) {
    double id = idOf(support::kCompany);
    NomeDatabase = "prima";
    damage("C:\\vabo\\NomeServer.txt");
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriAzienda(id); }));
    EXPECT_EQ(NomeDatabase, "prima");
    EXPECT_FALSE(DbAzienda.IsOpen());
}

TEST_P(PointerFile, OfTheLocalTextGivesTheDefault) {
    damage("C:\\vabo\\Leggi_ServerLocal.txt");
    EXPECT_EQ(Leggi_ServerLocal(), "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;");
}

TEST_P(PointerFile, OfTheLocalNameGivesTheBareTerminal) {
    damage("C:\\vabo\\NomeServerLocal.txt");
    EXPECT_EQ(LeggiNomeServerLocal(), "POSTO_7");
}

INSTANTIATE_TEST_SUITE_P(Damaged, PointerFile, testing::ValuesIn(damages()),
                         [](const auto& test) { return std::string(test.param.name); });

class GarbagePointer : public SessionTest, public testing::WithParamInterface<std::string> {};

TEST_P(GarbagePointer, OfTheServerEndsTheStartWithTheErrorOfTheConnection) {
    workstation.putFile("C:\\vabo\\IndirizzoServer.txt", GetParam());
    script.expectMessage("Server does not exist or access denied.");
    EXPECT_TRUE(end.endedBy([] { AziendaTerminale(); }));
    EXPECT_FALSE(DbControllo.IsOpen());
}

TEST_P(GarbagePointer, OfTheLocalInstanceGivesNoTemporaryDatabase) {
    workstation.putFile("C:\\vabo\\Leggi_ServerLocal.txt", GetParam());
    EXPECT_FALSE(ApriDbTemp());
}

INSTANTIATE_TEST_SUITE_P(PointerFile, GarbagePointer,
                         testing::Values(std::string("garbage"), std::string("\xff\xfe\x80\x81 ;;=;\r\n"),
                                         std::string("\0\0\0Server", 9), std::string("\r\nServer=127.0.0.1,9;\r\n"),
                                         std::string(1'000'000, 'x'), std::string("Server={never closed")),
                         [](const auto& test) { return "Text" + std::to_string(test.index); });

TEST_F(SessionTest, AServerFileWithoutRightsEndsTheStartWithItsOwnText) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    const std::filesystem::path file = workstation.driveC().real("C:\\vabo\\IndirizzoServer.txt");
    const std::string heard = support::unprivileged(workstation.driveC().root(), [&] {
        std::filesystem::permissions(file, std::filesystem::perms::none);
        support::DialogScript childScript;
        support::EndOfProcess childEnd;
        childScript.expectMessage("Permission denied");
        const bool ended = childEnd.endedBy([] { AziendaTerminale(); });
        return std::string(ended && childScript.allShown() ? "ended" : "went on");
    });
    EXPECT_EQ(heard, "ended");
}

TEST_F(SessionTest, AFolderThatCannotBeWrittenStillGivesTheLocalDefaults) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    removeFile("C:\\vabo\\Leggi_ServerLocal.txt");
    const std::filesystem::path folder = workstation.driveC().real("C:\\vabo");
    const std::string heard = support::unprivileged(workstation.driveC().root(), [&] {
        namespace fs = std::filesystem;
        fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
        const std::string answers = Leggi_ServerLocal() + "|" + LeggiNomeServerLocal() + "|" + LeggiNomeServerLocal();
        fs::permissions(folder, fs::perms::owner_all);
        return answers;
    });
    EXPECT_EQ(heard, "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;|POSTO_7|POSTO_7");
}

} // namespace
