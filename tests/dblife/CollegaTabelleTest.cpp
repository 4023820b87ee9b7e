#include "dblife/CollegamentiFixture.h"

namespace {

using namespace vabo;
using testing::ElementsAre;
using testing::IsEmpty;

using CollegaTabelleTest = CollegamentiTest;

TEST_F(CollegaTabelleTest, LinksAndPassThroughTablesArePointedAtTheCompany) {
    main({{"LINK", "dbo_conti", kPrima}, {"PASS-THROUGH", "saldi", "ODBC;DSN=altra"}, {"LINK", "dbo_Sede", ""}});
    CollegaTabelle();
    EXPECT_THAT(tables(), ElementsAre(Voce{"LINK", "dbo_conti", kAurora}, Voce{"PASS-THROUGH", "saldi", kAurora},
                                      Voce{"LINK", "dbo_Sede", kAurora}));
    EXPECT_EQ(Appoggio, kAurora);
}

TEST_F(CollegaTabelleTest, UserAndPasswordStandWithTheirKeys) {
    const std::vector<std::pair<std::string, std::string>> logins = {
        {"UID=sa;PWD=x;", "UID=UID=sa;PWD="},
        {"UID=;PWD=x;", "UID=;PWD="},
        {"UID=sa;PWD=segreta", "UID=UID=sa;PWD=PWD=segreta"},
        {"ID utente=capo;Password=segreta", "UID=ID utente=capo;PWD=Password=segreta"},
        {"UID=o'neil--;PWD=a\"b/*c", "UID=UID=o'neil--;PWD=PWD=a\"b/*c"}};
    main({{"LINK", "dbo_conti", kPrima}});
    for (const auto& [login, expected] : logins) {
        server(login);
        CollegaTabelle();
        EXPECT_THAT(links(), ElementsAre("ODBC;DATABASE=VaBoDatiAurora;" + expected + ";DSN=Tlv_server")) << login;
    }
}

TEST_F(CollegaTabelleTest, AnotherCompanyMovesTheLinksAgain) {
    main({{"LINK", "dbo_conti", kPrima}});
    CollegaTabelle();
    NomeDatabase = support::kOtherCompany;
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre("ODBC;DATABASE=VaBoDatiPonte;UID=UID=sa;PWD=;DSN=Tlv_server"));
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre("ODBC;DATABASE=VaBoDatiPonte;UID=UID=sa;PWD=;DSN=Tlv_server"));
}

TEST_F(CollegaTabelleTest, TheTablesOfDocumentsKeepTheirLinksWhateverTheirCase) {
    std::vector<Voce> before;
    Testi shown;
    for (const std::string name :
         {"fattura", "totaliiva", "stampabolla", "chiusura", "utile", "ordine", "piedeordine", "bolla", "offerta",
          "piedebolla", "scadenzefattura", "piedefattura", "piedeofferta"}) {
        const std::string capitals = QString::fromStdString(name).toUpper().toStdString();
        before.push_back({"LINK", "dbo_" + name, kPrima});
        before.push_back({"PASS-THROUGH", "dbo_" + capitals, kPrima});
        before.push_back({"LINK", "DBO_" + name, kPrima});
        shown.insert(shown.end(), {capitals, capitals, "DBO_" + capitals});
    }
    before.push_back({"LINK", "dbo_TotaliIva", kPrima});
    shown.emplace_back("TOTALIIVA");
    main(before);
    Appoggio = "come prima";
    CollegaTabelle();
    EXPECT_EQ(tables(), before);
    EXPECT_EQ(vista.nomi, shown);
    EXPECT_EQ(Appoggio, "come prima") << "their text isn't even read";
}

TEST_F(CollegaTabelleTest, NamesThatOnlyResembleThemArePointedAtTheCompany) {
    for (const char* name : {"fattura", "dbo_fatture", "dbo_fattura ", " dbo_fattura", "xdbo_fattura", "dbo.fattura",
                             "[dbo_fattura]", "dbo_fattura1", "dbo_"}) {
        std::filesystem::remove(real(kLocale));
        main({{"LINK", name, kPrima}});
        CollegaTabelle();
        EXPECT_THAT(links(), ElementsAre(kAurora)) << name;
    }
}

TEST_F(CollegaTabelleTest, LinksToTheTemporaryDatabaseKeepTheirText) {
    const Testi texts = {kTemp, "tlv_temp", "ODBC;DSN=TLV_TEMP", "DSN=xTlv_Tempo;", "a\nTlv_TEMP\nb"};
    std::vector<Voce> before;
    for (const std::string& text : texts) {
        before.push_back({"LINK", "dbo_Version", text});
    }
    main(before);
    CollegaTabelle();
    EXPECT_EQ(tables(), before);
    EXPECT_EQ(vista.nomi, Testi(texts.size(), "VERSION"));
}

TEST_F(CollegaTabelleTest, OtherTextsAreNotTakenForTheTemporaryDatabase) {
    for (const char* text : {"ODBC;DATABASE=VaBoDatiTemp", "tlvtemp", "tlvxtemp", "tlv temp", "Tlv-Temp"}) {
        std::filesystem::remove(real(kLocale));
        main({{"LINK", "dbo_Version", text}});
        CollegaTabelle();
        EXPECT_THAT(links(), ElementsAre(kAurora)) << text;
    }
}

TEST_F(CollegaTabelleTest, TablesOfTheFileItselfAreNeitherChangedNorShown) {
    std::vector<Voce> before;
    for (const char* type : {"TABLE", "SYSTEM TABLE", "ACCESS TABLE", "VIEW", "", "link", "Link", "LINK ",
                             "PASS THROUGH", "pass-through"}) {
        before.push_back({type, "dbo_conti", kPrima});
    }
    main(before);
    CollegaTabelle();
    EXPECT_EQ(tables(), before);
    EXPECT_THAT(vista.nomi, IsEmpty());
    EXPECT_EQ(vista.aggiornamenti, 1) << "of the empty form";
}

TEST_F(CollegaTabelleTest, NamesAreShownWithoutTheOwnerAndInCapitals) {
    main({{"LINK", "dbo_conti", kPrima},
          {"LINK", "dbo_fattura", kPrima},
          {"LINK", "dbo_Version", kTemp},
          {"TABLE", "dbo_lavoro", kPrima},
          {"PASS-THROUGH", "saldi per città", kPrima},
          {"LINK", "DBO_stati", kPrima},
          {"LINK", "dbo_a_dbo_b", kPrima}});
    CollegaTabelle();
    EXPECT_THAT(vista.nomi, ElementsAre("CONTI", "FATTURA", "VERSION", "SALDI PER CITTÀ", "DBO_STATI", "A_B"));
    EXPECT_EQ(vista.aggiornamenti, 7) << "once when it appears, once for each table";
    EXPECT_THAT(vista.parti, ElementsAre(1 / 7.0, 2 / 7.0, 3 / 7.0, 5 / 7.0, 6 / 7.0, 1.0));
}

TEST_F(CollegaTabelleTest, EachTableIsShownWhenItIsWritten) {
    main({{"LINK", "dbo_a", kPrima}, {"LINK", "dbo_b", kPrima}});
    Testi seen;
    vista.alla = [&](const std::string& /*nome*/) {
        for (const std::string& link : links()) {
            seen.push_back(link == kAurora ? "company" : "before");
        }
    };
    CollegaTabelle();
    EXPECT_THAT(seen, ElementsAre("company", "before", "company", "company"));
}

TEST_F(CollegaTabelleTest, TheProgressFormIsShownAndUnloaded) {
    main({{"LINK", "dbo_conti", kPrima}});
    vista.alla = [&](const std::string& /*nome*/) { EXPECT_THAT(forms.calls(), ElementsAre("show FormRefreshLinks")); };
    CollegaTabelle();
    EXPECT_THAT(forms.calls(), ElementsAre("show FormRefreshLinks", "unload FormRefreshLinks"));
}

TEST_F(CollegaTabelleTest, WithoutAProgressFormTheLinksArePointedAllTheSame) {
    main({{"LINK", "dbo_conti", kPrima}});
    forms.miss("FormRefreshLinks");
    {
        const VistaRegistrata gone; // the last that was created, so none is left
    }
    CollegaTabelle();
    EXPECT_THAT(links(), ElementsAre(kAurora));
    EXPECT_THAT(vista.nomi, IsEmpty());
}

TEST_F(CollegaTabelleTest, TheEndOfAnEarlierFormLeavesThePresentOneTold) {
    main({{"LINK", "dbo_conti", kPrima}});
    auto earlier = std::make_unique<VistaRegistrata>();
    const VistaRegistrata present;
    earlier.reset();
    CollegaTabelle();
    EXPECT_THAT(present.nomi, ElementsAre("CONTI"));
}

TEST_F(CollegaTabelleTest, WithoutCustomersReportsTheSecondPassDoesNothing) {
    main({{"LINK", "dbo_conti", kPrima}});
    CollegaTabellePersonalizzate();
    EXPECT_THAT(links(), ElementsAre(kPrima));
    EXPECT_THAT(forms.calls(), IsEmpty());
    EXPECT_EQ(vista.aggiornamenti, 0);
    std::filesystem::create_directory(real(kPersonalizzate));
    CollegaTabellePersonalizzate();
    EXPECT_THAT(forms.calls(), IsEmpty()) << "a folder of that name isn't the file";
}

TEST_F(CollegaTabelleTest, InTheCustomersReportsNoTableIsExcepted) {
    main({{"LINK", "dbo_conti", kPrima}});
    make(kPersonalizzate, {{"LINK", "dbo_fattura", kPrima},
                           {"PASS-THROUGH", "donatori", kPrima},
                           {"LINK", "dbo_Version", kTemp},
                           {"TABLE", "modelli", kPrima}});
    CollegaTabelle();
    EXPECT_THAT(links(kPersonalizzate), ElementsAre(kAurora, kAurora, kTemp, kPrima));
    EXPECT_THAT(links(), ElementsAre(kAurora));
    EXPECT_THAT(vista.nomi, ElementsAre("CONTI", "FATTURA", "DONATORI", "VERSION"));
    EXPECT_THAT(forms.calls(),
                ElementsAre("show FormRefreshLinks", "unload FormRefreshLinks", "unload FormRefreshLinks"));
}

TEST_F(CollegaTabelleTest, TheCustomersReportsAreTreatedWhereTheCompanyHasNoLocalFile) {
    make(kPersonalizzate, {{"LINK", "dbo_conti", kPrima}});
    PercorsoFileLocale = "C:\\Vabo\\Files\\";
    CollegaTabelle();
    EXPECT_THAT(links(kPersonalizzate), ElementsAre(kAurora));
}

TEST_F(CollegaTabelleTest, TheCustomersReportsStandInTheCompanysFolderAndInAnyCase) {
    make("C:\\vabo\\sedi\\TLV_PERSONALIZZATE.MDB", {{"LINK", "dbo_conti", kPrima}});
    CollegaTabellePersonalizzate();
    EXPECT_THAT(links("C:\\vabo\\sedi\\TLV_PERSONALIZZATE.MDB"), ElementsAre(kPrima));
    CartellaFile = "C:\\VABO\\sedi";
    CollegaTabellePersonalizzate();
    EXPECT_THAT(links("C:\\vabo\\sedi\\TLV_PERSONALIZZATE.MDB"), ElementsAre(kAurora));
}

TEST_F(CollegaTabelleTest, WithoutAFolderTheCustomersReportsAreSoughtOnTheDriveItself) {
    CartellaFile.clear();
    make("C:\\Tlv_personalizzate.mdb", {{"LINK", "dbo_conti", kPrima}});
    CollegaTabellePersonalizzate();
    EXPECT_THAT(links("C:\\Tlv_personalizzate.mdb"), ElementsAre(kAurora));
}

} // namespace
