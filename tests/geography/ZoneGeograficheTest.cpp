// The area of a state, which enters the list of areas.

#include "geography/TabellaStatiAperta.h"

namespace vabo {
namespace {

class ZoneGeografiche : public TabellaStatiAperta {};

/// An area that somebody types to do harm, and what its statement does.
struct AreaOstile {
    const char* area;
    const char* istruzione;
    bool aggiunta; ///< stands in the list of areas afterwards
};

TEST_F(ZoneGeografiche, AnAreaThatIsThereIsNotAddedAgainWhateverItsCase) {
    const int prima = quanti("ZoneGeografiche");
    SalvaStato(0, {"A", "Caraibi", "", "", ""});
    SalvaStato(0, {"B", "CARAIBI", "", "", ""});
    SalvaStato(0, {"C", "Caraibi  ", "", "", ""});
    EXPECT_EQ(quanti("ZoneGeografiche"), prima);
    EXPECT_EQ(stato("DescStato = 'B'").back(), "CARAIBI");
}

TEST_F(ZoneGeografiche, NoAreaChosenIsStoredAsItReadsAndIsNoArea) {
    const int prima = quanti("ZoneGeografiche");
    const support::StatementRecorder recorder;
    SalvaStato(0, {"A", "Seleziona", "", "", ""});
    EXPECT_EQ(nuovo().back(), "Seleziona");
    EXPECT_TRUE(recorder.holding("eografiche").empty());
    EXPECT_EQ(quanti("ZoneGeografiche"), prima);
}

TEST_F(ZoneGeografiche, NoAreaChosenInAnotherCaseIsAnArea) {
    SalvaStato(0, {"A", "seleziona", "", "", ""});
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'seleziona'"), 1);
}

TEST_F(ZoneGeografiche, AnEmptyAreaIsAnAreaToo) {
    SalvaStato(0, {"A", "", "", "", ""});
    SalvaStato(0, {"B", "", "", "", ""});
    EXPECT_EQ(stato("DescStato = 'B'").back(), "");
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = ''"), 1);
}

TEST_F(ZoneGeografiche, AnAreaThatIsTooLongLeavesAnAreaWithoutText) {
    const int prima = quanti("ZoneGeografiche");
    SalvaStato(0, {"A", std::string(4'000, 'x'), "", "", "EUR"});
    EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", kNulla}));
    EXPECT_EQ(quanti("ZoneGeografiche"), prima + 1);
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione is null"), 1);
}

TEST_F(ZoneGeografiche, AnAreaEntersItsStatementAsItIsTyped) {
    const AreaOstile casi[] = {
        {"l'Est", "select * from Zonegeografiche where descrizione ='l'Est'", false},
        {"'", "select * from Zonegeografiche where descrizione ='''", false},
        {"''", "select * from Zonegeografiche where descrizione =''''", true},
        {"x' --", "select * from Zonegeografiche where descrizione ='x' --'", true},
        {"x' /*", "select * from Zonegeografiche where descrizione ='x' /*'", false},
        {"x' or '1'='1", "select * from Zonegeografiche where descrizione ='x' or '1'='1'", false},
        {"a;b", "select * from Zonegeografiche where descrizione ='a;b'", true},
        {"-- x", "select * from Zonegeografiche where descrizione ='-- x'", true},
        {"\"x\"", "select * from Zonegeografiche where descrizione ='\"x\"'", true},
        {"a\tb\x01\x7f", "select * from Zonegeografiche where descrizione ='a\tb\x01\x7f'", true},
        {"città ’ß", "select * from Zonegeografiche where descrizione ='città ’ß'", true},
    };
    for (const AreaOstile& caso : casi) {
        SCOPED_TRACE(caso.area);
        const support::StatementRecorder recorder;
        const int prima = quanti("ZoneGeografiche");
        SalvaStato(0, {"A", caso.area, "", "", "EUR"});
        EXPECT_EQ(nuovo(), (Riga{"A", kNulla, kNulla, "EUR", caso.area})) << "the row takes it as it is";
        EXPECT_EQ(recorder.count(caso.istruzione), 1);
        EXPECT_EQ(quanti("ZoneGeografiche"), prima + (caso.aggiunta ? 1 : 0));
    }
}

TEST_F(ZoneGeografiche, AStatementBehindAQuoteInTheAreaIsRun) {
    SalvaStato(0, {"A", "x'; delete from progetti --", "", "", "EUR"});
    EXPECT_EQ(quanti("progetti"), 0);
    EXPECT_EQ(nuovo().back(), "x'; delete from progetti --");
}

TEST_F(ZoneGeografiche, WithoutTheListOfAreasTheStateIsStoredAlone) {
    esegui("drop table ZoneGeografiche");
    SalvaStato(0, kKosovo);
    EXPECT_EQ(nuovo().back(), "Balcani");
}

} // namespace
} // namespace vabo
