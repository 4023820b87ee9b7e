#include "MorlanFixture.h"

namespace vabo {
namespace {

/// The boxes of the rates' source and of the badge.
class MorlanTassi : public MorlanForm {
protected:
    void clicca(const std::string& nome) {
        scheda(3);
        controllo<controls::CheckBox>(nome).setFocus();
        gui.press(Qt::Key_Space);
    }
    std::string lunghezza(int id) const {
        return valore("select Lunghezza from TabellaUilityConti where id = " + std::to_string(id));
    }
};

TEST_F(MorlanTassi, TheSourceOfTheRatesAsTheRowSaysIt) {
    const std::pair<const char*, const char*> casi[] = {
        {"-1", "Check10"}, {"-2", "Check11"}, {"0", ""}, {"1", ""}, {"null", ""}};
    esegui("update datiGenerali set Contatore = 0");
    apri();
    for (const auto& [stored, attese] : casi) {
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + stored + " where id = 8");
        riapri();
        EXPECT_EQ(spuntate(), attese) << stored;
    }
}

TEST_F(MorlanTassi, WithNoSourceEachBoxStoresItsOwn) {
    esegui("update TabellaUilityConti set Lunghezza = 0 where id = 8");
    apri();
    clicca("Check10");
    EXPECT_EQ(lunghezza(8), "-1");
    clicca("Check10");
    EXPECT_EQ(lunghezza(8), "0");
    clicca("Check11");
    EXPECT_EQ(lunghezza(8), "-2");
}

TEST_F(MorlanTassi, AChangeStraightFromOneSourceToTheOtherLeavesNone) {
    esegui("update TabellaUilityConti set Lunghezza = -2 where id = 8");
    apri();
    clicca("Check10");
    EXPECT_EQ(casella("Check10"), 1);
    EXPECT_EQ(casella("Check11"), 0);
    EXPECT_EQ(lunghezza(8), "0");
    riapri();
    EXPECT_EQ(casella("Check10"), 0);
    EXPECT_EQ(casella("Check11"), 0);
    clicca("Check10");
    EXPECT_EQ(lunghezza(8), "-1");
    clicca("Check11");
    EXPECT_EQ(lunghezza(8), "0") << "the other way round as well";
    EXPECT_EQ(casella("Check11"), 1);
}

TEST_F(MorlanTassi, ASourceChangedToIsStoredOnceItIsUntickedAndTickedAgain) {
    const std::pair<const char*, const char*> casi[] = {{"Check10", "-1"}, {"Check11", "-2"}};
    for (const auto& [nome, atteso] : casi) {
        SCOPED_TRACE(nome);
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + (nome == casi[0].first ? "-2" : "-1") +
               " where id = 8");
        riapri();
        clicca(nome);
        EXPECT_EQ(lunghezza(8), "0");
        clicca(nome);
        EXPECT_EQ(lunghezza(8), "0");
        clicca(nome);
        EXPECT_EQ(lunghezza(8), atteso);
    }
}

TEST_F(MorlanTassi, OnlyExactlyOneIsABadge) {
    apri();
    for (const auto& [stored, attesa] : {std::pair{"-1", 0}, {"1", 1}, {"2", 0}, {"0", 0}}) {
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + stored + " where id = 9");
        riapri();
        EXPECT_EQ(casella("Check12"), attesa) << stored;
        EXPECT_EQ(lunghezza(9), stored);
    }
}

TEST_F(MorlanTassi, OneCustomersBadgeIsTickedFromTheSecondOpeningOn) {
    esegui("delete from TabellaUilityConti where id = 9");
    NomeDatabase = "VaboDatiDORNAVEL";
    apri();
    EXPECT_EQ(casella("Check12"), 0);
    EXPECT_EQ(lunghezza(9), "1");
    riapri();
    EXPECT_EQ(casella("Check12"), 1);
}

} // namespace
} // namespace vabo
