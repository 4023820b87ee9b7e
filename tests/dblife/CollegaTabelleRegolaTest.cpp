#include "dblife/CatalogoFinto.h"
#include "dblife/CollegamentiFixture.h"

namespace {

using namespace vabo;
using testing::ElementsAre;

/// Each statement that fails is skipped alone, and a test that fails counts as true.
class CollegaTabelleRegolaTest : public CollegamentiTest {
protected:
    Testi run(const std::string& failing) {
        catalog.failing = {failing};
        catalog.calls.clear();
        vista.nomi.clear();
        vista.aggiornamenti = 0;
        CollegaTabelle();
        return catalog.calls;
    }
    Testi providers() const {
        Testi all;
        for (const CatalogoFinto::Tabella& table : catalog.tables) {
            all.push_back(stampata(table.provider));
        }
        return all;
    }

    CatalogoFinto catalog{{{"LINK", "dbo_a", kPrima}, {"TABLE", "b", ado::Null{}}, {"LINK", "dbo_c", kPrima}}};
};

TEST_F(CollegaTabelleRegolaTest, TheStepsComeInTheirOrder) {
    EXPECT_THAT(run("nothing"),
                ElementsAre("open", "Count", "Refresh", "Tables",                                     //
                            "Type 1", "Name 1", "read 1", "write 1", "read 1", "refresh 1", "Name 1", //
                            "Type 2",                                                                 //
                            "Type 3", "Name 3", "read 3", "write 3", "read 3", "refresh 3", "Name 3", "close"));
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
    EXPECT_THAT(catalog.opened, ElementsAre("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\prova.mdb"));
}

TEST_F(CollegaTabelleRegolaTest, TheCustomersReportsAreOpenedByTheirPathWhenTheOtherFileIsClosed) {
    workstation.putFile(kPersonalizzate, "whatever");
    catalog.tables = {{"LINK", "dbo_fattura", kPrima}};
    EXPECT_THAT(run("nothing"), ElementsAre("open", "Count", "Refresh", "Tables", "Type 1", "Name 1", "refresh 1",
                                            "Name 1", "close", "open", "Count", "Refresh", "Tables", "Type 1", "read 1",
                                            "write 1", "read 1", "refresh 1", "Name 1", "close"));
    EXPECT_THAT(catalog.opened,
                ElementsAre("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\prova.mdb",
                            "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Vabo\\Files\\Tlv_personalizzate.mdb"));
}

TEST_F(CollegaTabelleRegolaTest, AFileThatIsRefusedIsLeft) {
    EXPECT_THAT(run("open"), ElementsAre("open"));
    EXPECT_THAT(forms.calls(), ElementsAre("show FormRefreshLinks", "unload FormRefreshLinks"));
}

TEST_F(CollegaTabelleRegolaTest, TablesThatCanNotBeCountedCountAsNone) {
    EXPECT_THAT(run("Count"), ElementsAre("open", "Count", "close"));
}

TEST_F(CollegaTabelleRegolaTest, AListThatCanNotBeReadAgainIsWalkedAsItIs) {
    run("Refresh");
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
}

TEST_F(CollegaTabelleRegolaTest, AListThatCanNotBeWalkedIsLeft) {
    EXPECT_THAT(run("Tables"), ElementsAre("open", "Count", "Refresh", "Tables", "close"));
}

TEST_F(CollegaTabelleRegolaTest, ATableWhoseTypeCanNotBeReadCountsAsALink) {
    run("Type 2");
    EXPECT_THAT(providers(), ElementsAre(kAurora, kAurora, kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "B", "C"));
}

TEST_F(CollegaTabelleRegolaTest, ATableWhoseNameCanNotBeReadCountsAsExcepted) {
    run("Name 1");
    EXPECT_THAT(providers(), ElementsAre(kPrima, "null", kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("C"));
    EXPECT_EQ(vista.aggiornamenti, 3);
}

TEST_F(CollegaTabelleRegolaTest, WhereNoneIsExceptedAnUnreadableNameIsPointed) {
    workstation.putFile(kPersonalizzate, "whatever");
    catalog.failing = {"Name 1"};
    CollegaTabellePersonalizzate();
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
}

TEST_F(CollegaTabelleRegolaTest, ATextThatCanNotBeReadIsReplacedBlindly) {
    catalog.tables[0].provider = kTemp;
    run("read 1");
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
}

TEST_F(CollegaTabelleRegolaTest, BehindALinkToTheTemporaryDatabaseATextThatCanNotBeReadStays) {
    catalog.tables[0].provider = kTemp;
    run("read 3");
    EXPECT_THAT(providers(), ElementsAre(kTemp, "null", kPrima));
}

TEST_F(CollegaTabelleRegolaTest, ALinkThatIsRefusedStaysAndIsReadBackAndShown) {
    EXPECT_THAT(run("write 1"), testing::IsSupersetOf({"read 1", "write 1", "refresh 1", "write 3"}));
    EXPECT_THAT(providers(), ElementsAre(kPrima, "null", kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "C"));
    catalog.tables[2].provider = kPrima;
    run("write 3");
    EXPECT_EQ(Appoggio, kPrima) << "what the link is, not what it should be";
}

TEST_F(CollegaTabelleRegolaTest, PropertiesThatCanNotBeReadAgainHideNoName) {
    run("refresh 1");
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("A", "C"));
}

TEST_F(CollegaTabelleRegolaTest, AFormThatFailsStopsNoLink) {
    vista.alla = [](const std::string& /*nome*/) { throw std::runtime_error("no screen"); };
    run("nothing");
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
    EXPECT_EQ(vista.aggiornamenti, 3);
    EXPECT_THAT(vista.parti, ElementsAre(1 / 3.0, 1.0));
}

TEST_F(CollegaTabelleRegolaTest, WithoutAnyFormHostTheLinksArePointed) {
    platform::setFormHost(nullptr);
    run("nothing");
    EXPECT_THAT(providers(), ElementsAre(kAurora, "null", kAurora));
}

TEST_F(CollegaTabelleRegolaTest, TheServersTextIsReadForEachLink) {
    vista.alla = [&](const std::string& /*nome*/) { server("UID=altro;PWD=;"); };
    run("nothing");
    EXPECT_THAT(providers(),
                ElementsAre(kAurora, "null", "ODBC;DATABASE=VaBoDatiAurora;UID=UID=altro;PWD=;DSN=Tlv_server"));
}

} // namespace
