#include "provision/Provision.h"

#include "ado/LinkFile.h"
#include "engine/errors/Error.h"
#include "provision/PointerFiles.h"
#include "provision/Sql.h"
#include "support/OwnerAlone.h"
#include "support/TemporaryFolder.h"
#include "tools/SampleWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

namespace fs = std::filesystem;
using provision::layDown;
using provision::Outcome;
using provision::Plan;
using provision::Refused;
using testing::HasSubstr;

namespace {

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const fs::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

/// Time and bytes of every file in a folder.
std::map<std::string, std::pair<fs::file_time_type, std::string>> snapshot(const fs::path& folder) {
    std::map<std::string, std::pair<fs::file_time_type, std::string>> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        found[entry.path().string()] = {entry.last_write_time(), entry.is_regular_file() ? bytesOf(entry.path()) : ""};
    }
    return found;
}

std::string refusal(const Plan& plan) {
    try {
        layDown(plan);
    } catch (const Refused& error) {
        return error.what();
    }
    return "not refused";
}

Plan smallPlan(const fs::path& driveC) {
    return {driveC, "POSTO_7", 10, 0};
}

std::int64_t ledgerRows(const fs::path& driveC) {
    return provision::integers(*openSession(driveC, provision::kFirstDatabase), "SELECT COUNT(*) FROM partitadoppia")
        .at(0);
}

} // namespace

TEST(Provision, WritesEveryPointerFileAsOneLine) {
    const fs::path vabo = SampleWorkstation::shared().vabo();
    const std::map<std::string, std::string> expected = {
        {"IndirizzoServer.txt", "Driver=SQL Server;Server=POSTO_7\\sqlexpress;UID=sa;PWD=Campione-2024;\r\n"},
        {"NomeServer.txt", "POSTO_7\\sqlexpress\r\n"},
        {"Leggi_ServerLocal.txt", "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;\r\n"},
        {"NomeServerLocal.txt", "POSTO_7\\sqlexpress\r\n"},
        {"IndirizzoServerLocal.txt", "Driver=SQL Server;Server=POSTO_7\\sqlexpress;ID utente=;Password=;\r\n"},
        {"DirectorySede.txt", "C:\\vabo\\Server\r\n"},
        {"IndirizzoVabo.txt", "C:\\vabo\\Server\\InstallazioneLoco\r\n"},
        {"IndirizzoVaboinstalla.txt", "C:\\vabo\\Server\\InstallazioneLoco\\vabo\r\n"},
        {"IndirizzoVabodati.txt", "C:\\vabo\\Server\\VaBoDati\r\n"},
        {"DirectoryHq.txt", "C:\\vabo\\Server\\VaBoDatiHQ\r\n"},
        {"IndirizzoServerVabo.txt", "C:\\vabo\\Server\r\n"},
        {"DirectoryBackup.txt", "C:\\vabo\\Server\\Backup\r\n"},
    };
    for (const auto& [name, line] : expected) {
        EXPECT_EQ(bytesOf(vabo / name), line) << name;
    }
    EXPECT_EQ(provision::pointerFiles("x").size(), expected.size());
}

TEST(Provision, MakesTheFoldersOfAWorkstation) {
    const fs::path vabo = SampleWorkstation::shared().vabo();
    EXPECT_TRUE(fs::is_directory(vabo / "sedi"));
    EXPECT_TRUE(fs::is_directory(vabo / "istanze" / "POSTO_7$sqlexpress"));
    EXPECT_TRUE(fs::is_regular_file(vabo / "Server" / "VaBoDati" / "VaBoDatiAurora.mdf"));
}

TEST(Provision, MakesALocalFileForEachCompanyAndOneForReports) {
    const fs::path files = SampleWorkstation::shared().vabo() / "Files";
    EXPECT_EQ(std::distance(fs::directory_iterator(files), fs::directory_iterator()), 3);
    for (const char* const name : {"tlv_locale_sql.mdb", "tlv_locale_ponte.mdb", "Tlv_personalizzate.mdb"}) {
        const support::TemporaryFolder copy;
        fs::copy_file(files / name, copy.path() / name); // the shared workstation is only read
        ado::LinkFile file(copy.path() / name);
        std::map<std::string, int> types;
        for (const ado::LinkFile::Entry& entry : file.entries()) {
            const std::string type = std::get<std::string>(entry.type.variant());
            ++types[type];
            EXPECT_EQ(file.provider(entry.id).isNull(), type != "LINK" && type != "PASS-THROUGH") << name;
        }
        EXPECT_GT(types["LINK"], 0) << name;
        EXPECT_GT(types["PASS-THROUGH"], 0) << name;
        EXPECT_GT(types["TABLE"], 0) << name;
    }
}

TEST(Provision, LinksTheTablesOfACompanyAndThoseOfItsDocuments) {
    const support::TemporaryFolder copy;
    fs::copy_file(SampleWorkstation::shared().vabo() / "Files" / "tlv_locale_sql.mdb",
                  copy.path() / "tlv_locale_sql.mdb");
    ado::LinkFile file(copy.path() / "tlv_locale_sql.mdb");
    const auto server = SampleWorkstation::shared().session(provision::kFirstDatabase);
    int found = 0;
    std::vector<std::string> others;
    for (const ado::LinkFile::Entry& entry : file.entries()) {
        const std::string name = std::get<std::string>(entry.name.variant());
        if (entry.type != ado::Value("LINK")) {
            continue;
        }
        ASSERT_TRUE(name.starts_with("dbo_")) << name;
        try {
            provision::integers(*server, "SELECT COUNT(*) FROM [" + name.substr(4) + "]");
            ++found;
        } catch (const engine::Error&) {
            others.push_back(name.substr(4));
        }
    }
    EXPECT_EQ(found, 25);
    EXPECT_THAT(others,
                testing::UnorderedElementsAre("Fattura", "PiedeFattura", "ScadenzeFattura", "TotaliIva", "Ordine",
                                              "PiedeOrdine", "Bolla", "PiedeBolla", "StampaBolla", "Offerta",
                                              "PiedeOfferta", "Chiusura", "Utile", "LinguaClient", "Version"));
}

TEST(Provision, KeepsEverythingForTheOwner) {
    const fs::path vabo = SampleWorkstation::shared().vabo();
    EXPECT_TRUE(support::isForOwnerAlone(vabo));
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(vabo)) {
        EXPECT_TRUE(support::isForOwnerAlone(entry.path())) << entry.path();
    }
}

TEST(Provision, LetsTheServersUserInWithItsPasswordOnly) {
    const fs::path driveC = SampleWorkstation::shared().plan().driveC;
    EXPECT_EQ(openSession(driveC, provision::kFirstDatabase)->database(), provision::kFirstDatabase);
    try {
        openSession(driveC, provision::kFirstDatabase, "wrong");
        FAIL() << "a wrong password was let in";
    } catch (const engine::Error& error) {
        EXPECT_EQ(error.number(), 18456);
    }
}

TEST(Provision, ChangesNothingTheSecondTime) {
    const support::TemporaryFolder driveC;
    ASSERT_EQ(layDown(smallPlan(driveC.path())), Outcome::Made);
    const auto before = snapshot(driveC.path());
    EXPECT_EQ(layDown(smallPlan(driveC.path())), Outcome::AlreadyThere);
    EXPECT_EQ(snapshot(driveC.path()), before);
}

TEST(Provision, KeepsWhatWasChangedSince) {
    const support::TemporaryFolder driveC;
    layDown(smallPlan(driveC.path()));
    provision::run(*openSession(driveC.path(), provision::kFirstDatabase), "DELETE FROM partitadoppia");
    writeFile(driveC.path() / "vabo" / "NomeServer.txt", "other\r\n");
    EXPECT_EQ(layDown(smallPlan(driveC.path())), Outcome::AlreadyThere);
    EXPECT_EQ(ledgerRows(driveC.path()), 0);
    EXPECT_EQ(bytesOf(driveC.path() / "vabo" / "NomeServer.txt"), "other\r\n");
}

TEST(Provision, RefusesOtherValuesThanBefore) {
    const support::TemporaryFolder driveC;
    layDown(smallPlan(driveC.path()));
    const auto before = snapshot(driveC.path());
    Plan other = smallPlan(driveC.path());
    other.ledgerRows = 12;
    EXPECT_THAT(refusal(other),
                HasSubstr("was laid down with other values: --terminal POSTO_7 --ledger 10 --accounts 0"));
    other = smallPlan(driveC.path());
    other.terminal = "POSTO_8";
    EXPECT_THAT(refusal(other), HasSubstr("was laid down with other values"));
    EXPECT_EQ(snapshot(driveC.path()), before);
}

TEST(Provision, RefusesAFolderThatSomebodyElseMade) {
    const support::TemporaryFolder driveC;
    fs::create_directory(driveC.path() / "VABO");
    writeFile(driveC.path() / "VABO" / "NomeServer.txt", "real server\r\n");
    const auto before = snapshot(driveC.path());
    EXPECT_THAT(refusal(smallPlan(driveC.path())), HasSubstr("was made by somebody else and is left alone"));
    EXPECT_EQ(snapshot(driveC.path()), before);
}

TEST(Provision, TakesAnEmptyFolderAndADriveThatIsNotThereYet) {
    const support::TemporaryFolder folder;
    const fs::path driveC = folder.path() / "deep" / "c";
    EXPECT_EQ(layDown(smallPlan(driveC)), Outcome::Made);
    EXPECT_TRUE(support::isForOwnerAlone(driveC));

    const support::TemporaryFolder other;
    fs::create_directory(other.path() / "vabo");
    EXPECT_EQ(layDown(smallPlan(other.path())), Outcome::Made);
}

TEST(Provision, LeavesOtherFoldersOfTheDriveAlone) {
    const support::TemporaryFolder driveC;
    fs::create_directory(driveC.path() / "Documenti");
    writeFile(driveC.path() / "Documenti" / "lettera.txt", "cara");
    EXPECT_EQ(layDown(smallPlan(driveC.path())), Outcome::Made);
    EXPECT_EQ(bytesOf(driveC.path() / "Documenti" / "lettera.txt"), "cara");
}

TEST(Provision, MakesAgainWhatAnInterruptedRunLeft) {
    const support::TemporaryFolder driveC;
    layDown(smallPlan(driveC.path()));
    // As after an interrupted run: half filled databases, and the instance of another terminal beside them.
    writeFile(driveC.path() / "vabo" / "provision.txt", "vabo-provision 1, unfinished: --terminal OTHER\r\n");
    provision::run(*openSession(driveC.path(), provision::kFirstDatabase), "DROP TABLE partitadoppia");
    fs::remove(driveC.path() / "vabo" / "NomeServer.txt");
    fs::create_directory(driveC.path() / "vabo" / "istanze" / "OTHER$sqlexpress");

    EXPECT_EQ(layDown(smallPlan(driveC.path())), Outcome::Made);
    EXPECT_EQ(ledgerRows(driveC.path()), 10);
    EXPECT_EQ(bytesOf(driveC.path() / "vabo" / "NomeServer.txt"), "POSTO_7\\sqlexpress\r\n");
    EXPECT_FALSE(fs::exists(driveC.path() / "vabo" / "istanze" / "OTHER$sqlexpress"));
    EXPECT_EQ(layDown(smallPlan(driveC.path())), Outcome::AlreadyThere);
}

TEST(Provision, RefusesTheMarkOfAnotherVersion) {
    const support::TemporaryFolder driveC;
    layDown(smallPlan(driveC.path()));
    writeFile(driveC.path() / "vabo" / "provision.txt", "vabo-provision 0, finished: \r\n");
    EXPECT_THAT(refusal(smallPlan(driveC.path())), HasSubstr("was not written by this version"));
}

TEST(Provision, SaysWhatIsMissing) {
    for (const char* const name :
         {"NomeServerLocal.txt", "istanze/POSTO_7$sqlexpress", "Server/VaBoDati/VaBoDatiPonte.mdf",
          "Files/tlv_locale_ponte.mdb", "Files/Tlv_personalizzate.mdb"}) {
        const support::TemporaryFolder driveC;
        layDown(smallPlan(driveC.path()));
        fs::remove_all(driveC.path() / "vabo" / name);
        EXPECT_THAT(refusal(smallPlan(driveC.path())),
                    HasSubstr((driveC.path() / "vabo" / name).make_preferred().string() + " is missing"));
    }
}

TEST(Provision, RefusesAPlanThatCanNotBe) {
    const support::TemporaryFolder driveC;
    const fs::path root = driveC.path();
    struct Case {
        Plan plan;
        const char* words;
    };
    const Case cases[] = {
        {{{}, "POSTO_7", 10, 0}, "no folder for drive C is given"},
        {{root, "", 10, 0}, "'' can't be the name of a terminal"},
        {{root, "A\\B", 10, 0}, "'A\\B' can't be the name of a terminal"},
        {{root, "A;B", 10, 0}, "'A;B' can't be the name of a terminal"},
        {{root, "POSTO_7", 1, 0}, "a ledger has no rows or at least two"},
        {{root, "POSTO_7", -1, 0}, "a ledger has no rows or at least two"},
        {{root, "POSTO_7", 10, -1}, "a chart can't have less than no accounts"},
    };
    for (const Case& refused : cases) {
        EXPECT_EQ(refusal(refused.plan), refused.words);
    }
    EXPECT_TRUE(fs::is_empty(root));
}

TEST(Provision, CanBeMovedToAnotherFolder) {
    const support::TemporaryFolder copy;
    support::copyTree(SampleWorkstation::shared().plan().driveC, copy.path());
    provision::run(*openSession(copy.path(), provision::kFirstDatabase), "DELETE FROM partitadoppia");
    EXPECT_EQ(ledgerRows(copy.path()), 0);
    EXPECT_EQ(ledgerRows(SampleWorkstation::shared().plan().driveC), 200);
}
