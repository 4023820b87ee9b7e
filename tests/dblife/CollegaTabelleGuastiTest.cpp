#include "dblife/CollegamentiFixture.h"
#include "engine/store/Sqlite.h"
#include "support/Capabilities.h"
#include "support/Unprivileged.h"

#include <QElapsedTimer>

#include <filesystem>

namespace {

using namespace vabo;
using testing::ElementsAre;
using testing::IsEmpty;

/// Files that are missing, broken, held or full of oddities. None of them shows a box.
class CollegaTabelleGuastiTest : public CollegamentiTest {
protected:
    /// Runs a text of the storage on the file itself.
    void storage(const std::string& text, const std::string& path = kLocale) const {
        engine::sqlite::Connection(real(path), false).run(text);
    }
};

TEST_F(CollegaTabelleGuastiTest, AFileThatCanNotBeOpenedMakesTheRunEmpty) {
    std::filesystem::create_directory(real("C:\\Vabo\\Files\\cartella.mdb"));
    workstation.putFile("C:\\Vabo\\Files\\vuoto.mdb", "");
    workstation.putFile("C:\\Vabo\\Files\\testo.mdb", "questo non è un database, ma un testo un po' più lungo\r\n");
    workstation.putFile("C:\\Vabo\\Files\\jet.mdb",
                        std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4096, 'x'));
    for (const char* path :
         {"", "C:\\Vabo\\Files\\", "C:\\Vabo\\Files\\manca.mdb", "C:\\altrove\\prova.mdb", "D:\\prova.mdb",
          "\\\\server\\share\\prova.mdb", "C:\\Vabo\\Files\\cartella.mdb", "C:\\Vabo\\Files\\vuoto.mdb",
          "C:\\Vabo\\Files\\testo.mdb", "C:\\Vabo\\Files\\jet.mdb", "C:\\Vabo\\Files\\x;Data Source=C:\\y.mdb"}) {
        PercorsoFileLocale = path;
        CollegaTabelle();
        EXPECT_THAT(vista.nomi, IsEmpty()) << path;
    }
    EXPECT_EQ(workstation.fileText("C:\\Vabo\\Files\\vuoto.mdb"), "");
    EXPECT_EQ(workstation.fileText("C:\\Vabo\\Files\\testo.mdb"),
              "questo non è un database, ma un testo un po' più lungo\r\n");
    EXPECT_FALSE(workstation.driveC().exists("C:\\Vabo\\Files\\manca.mdb")) << "none is created";
}

TEST_F(CollegaTabelleGuastiTest, AnEmptyCatalogMakesTheRunEmpty) {
    main({});
    CollegaTabelle();
    EXPECT_THAT(vista.nomi, IsEmpty());
    EXPECT_THAT(forms.calls(), ElementsAre("show FormRefreshLinks", "unload FormRefreshLinks"));
}

TEST_F(CollegaTabelleGuastiTest, ABrokenCatalogMakesTheRunEmpty) {
    main({{"LINK", "dbo_conti", kPrima}});
    storage("ALTER TABLE tables RENAME TO other");
    CollegaTabelle();
    EXPECT_THAT(vista.nomi, IsEmpty());
    storage("ALTER TABLE other RENAME TO tables; ALTER TABLE tables RENAME COLUMN type TO kind");
    CollegaTabelle();
    EXPECT_THAT(vista.nomi, IsEmpty());
}

TEST_F(CollegaTabelleGuastiTest, ACatalogThatWasCutOffEndsNothing) {
    std::vector<Voce> many;
    for (int number = 0; number < 200; ++number) {
        many.push_back({"LINK", "dbo_" + std::to_string(number), std::string(200, 'x')});
    }
    main(many);
    const auto size = std::filesystem::file_size(real(kLocale));
    ASSERT_GT(size, 16384U);
    std::filesystem::resize_file(real(kLocale), size / 2);
    make(kPersonalizzate, {{"LINK", "dbo_conti", kPrima}});
    CollegaTabelle();
    EXPECT_THAT(links(kPersonalizzate), ElementsAre(kAurora)) << "the next file is treated";
}

TEST_F(CollegaTabelleGuastiTest, ALinkThatCanNotBeWrittenStaysAndTheRunGoesOn) {
    main({{"LINK", "dbo_a", kPrima}, {"LINK", "dbo_b", kPrima}, {"LINK", "dbo_c", kPrima}});
    storage("CREATE TRIGGER refuse BEFORE UPDATE ON tables WHEN old.id = 2 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, kPrima, kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "B", "C"));
}

TEST_F(CollegaTabelleGuastiTest, WithoutThePointerFileOfTheServerTheLinksStay) {
    main({{"LINK", "dbo_a", kPrima}, {"PASS-THROUGH", "b", ado::Null{}}});
    for (const char* file : {"C:\\vabo\\NomeServer.txt", "C:\\vabo\\IndirizzoServer.txt"}) {
        workstation.removeFile(file);
        CollegaTabelle();
        EXPECT_THAT(links(), ElementsAre(kPrima, "null")) << file;
    }
    EXPECT_THAT(vista.nomi, ElementsAre("A", "B", "A", "B"));
}

TEST_F(CollegaTabelleGuastiTest, AReadOnlyCatalogStaysAsItIsAndIsShown) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    main({{"LINK", "dbo_a", kPrima}, {"LINK", "dbo_b", kPrima}});
    std::filesystem::permissions(real(kLocale), std::filesystem::perms::owner_read);
    const std::string told = support::unprivileged(workstation.driveC().root(), [&] {
        CollegaTabelle();
        return testing::PrintToString(vista.nomi);
    });
    EXPECT_EQ(told, testing::PrintToString(Testi{"A", "B"}));
    EXPECT_THAT(links(), ElementsAre(kPrima, kPrima));
}

TEST_F(CollegaTabelleGuastiTest, ACatalogWithoutPermissionMakesTheRunEmpty) {
    VABO_NEEDS(support::systemCapabilities().otherUsers);
    main({{"LINK", "dbo_a", kPrima}});
    std::filesystem::permissions(real(kLocale), std::filesystem::perms::none);
    const std::string told = support::unprivileged(workstation.driveC().root(), [&] {
        CollegaTabelle();
        return testing::PrintToString(vista.nomi);
    });
    EXPECT_EQ(told, testing::PrintToString(Testi{}));
}

TEST_F(CollegaTabelleGuastiTest, ACatalogThatAnotherProgramWritesIsLeftWithoutALongWait) {
    main({{"LINK", "dbo_a", kPrima}, {"LINK", "dbo_b", kPrima}});
    engine::sqlite::Connection other(real(kLocale), false);
    other.begin();
    QElapsedTimer clock;
    clock.start();
    CollegaTabelle();
    EXPECT_LT(clock.elapsed(), 5000);
    EXPECT_THAT(links(), ElementsAre(kPrima, kPrima));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "B"));
    other.rollback();
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, kAurora));
}

TEST_F(CollegaTabelleGuastiTest, ATableThatDisappearsMeanwhileIsShownAndTheNextOnesArePointed) {
    main({{"LINK", "dbo_a", kPrima}, {"LINK", "dbo_b", kPrima}, {"LINK", "dbo_c", kPrima}});
    vista.alla = [&](const std::string& /*nome*/) { storage("DELETE FROM tables WHERE id = 2"); };
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "B", "C"));
}

/// As the catalog of another maker may have them: this one's own tables refuse nulls in type and name.
class CollegaTabelleNulliTest : public CollegaTabelleGuastiTest {
protected:
    void loose(const std::string& rows) const {
        main({});
        storage("DROP TABLE tables; CREATE TABLE tables (id INTEGER PRIMARY KEY, type, name, provider);"
                "INSERT INTO tables (type, name, provider) VALUES " +
                rows);
    }
};

TEST_F(CollegaTabelleNulliTest, ATableWithoutTypeIsNoLink) {
    loose("(null, 'dbo_a', 'x'), ('LINK', 'dbo_b', 'x')");
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre("x", kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("B"));
}

TEST_F(CollegaTabelleNulliTest, ALinkWithoutNameIsPointedAndTheNameBeforeItStays) {
    loose("('LINK', 'dbo_a', 'x'), ('LINK', null, 'x'), ('LINK', '', 'x')");
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, kAurora, kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", ""));
    EXPECT_EQ(vista.aggiornamenti, 4) << "the form is painted for each";
}

TEST_F(CollegaTabelleNulliTest, ALinkWithoutTextGoesByTheTextBeforeIt) {
    loose(
        "('LINK', 'dbo_a', null), ('LINK', 'dbo_b', 'DSN=Tlv_Temp'), ('LINK', 'dbo_c', null), ('LINK', 'dbo_d', 'x')");
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, "DSN=Tlv_Temp", "null", kAurora));
}

TEST_F(CollegaTabelleNulliTest, NumbersAndBytesAreReadAsTexts) {
    loose("('LINK', 12, 34), (7, 'dbo_b', 'x'), ('LINK', x'64626f5f63', x'00ff')");
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora, "x", kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("12", "C"));
}

TEST_F(CollegaTabelleNulliTest, TextsOfFourThousandCharactersAreReadWrittenAndShown) {
    const std::string longName(4000, 'n');
    main({{"LINK", longName, std::string(4000, 'p')}, {"LINK", "dbo_b", std::string(4000, 'p') + "tlv_temp"}});
    NomeDatabase = std::string(4000, 'd');
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre("ODBC;DATABASE=" + NomeDatabase + ";UID=UID=sa;PWD=;DSN=Tlv_server",
                                     std::string(4000, 'p') + "tlv_temp"));
    EXPECT_THAT(vista.nomi, ElementsAre(std::string(4000, 'N'), "B"));
}

TEST_F(CollegaTabelleNulliTest, NamesAndDatabasesAreTextsAndNothingElse) {
    main({{"LINK", "dbo_'; DROP TABLE tables; --", kPrima}, {"LINK", "a\r\n\tb\x01", kPrima}});
    NomeDatabase = "x';\"/*\r\n";
    CollegaTabelle();
    EXPECT_THAT(links(), testing::Each("ODBC;DATABASE=x';\"/*\r\n;UID=UID=sa;PWD=;DSN=Tlv_server"));
    EXPECT_THAT(vista.nomi, ElementsAre("'; DROP TABLE TABLES; --", "A\r\n\tB\x01"));
}

} // namespace
