// The client's language while one statement of its table fails.

#include "CondizioniAperte.h"
#include "locks/GuastoAPosto.h"
#include "session/ApriDbSede.h"
#include "session/LinguaClient.h"

namespace vabo {
namespace {

class LinguaGuasta : public CondizioniAperte {
protected:
    LinguaGuasta() { NomeTerminale = support::kTerminalName; }
    Righe righe() const { return posto.rows(support::kTemporaryDatabase, "select id, Lingua from LinguaClient"); }
    support::DialogScript nessuna; ///< no box comes
};

TEST_F(LinguaGuasta, WithoutItsColumnTheRowIsAddedAllTheSameAndTheAnswerIsItalian) {
    LeggiLinguaClient("");
    posto.run(support::kTemporaryDatabase, "drop table LinguaClient create table LinguaClient (id int null)");
    for (const char* lingua : {"EN", "", "FR"}) {
        EXPECT_EQ(LeggiLinguaClient(lingua), "IT") << lingua;
        EXPECT_EQ(LinguaCorrente, "IT");
        EXPECT_EQ(posto.rows(support::kTemporaryDatabase, "select * from LinguaClient"), Righe{{"1"}});
    }
}

TEST_F(LinguaGuasta, ARowThatSomebodyElseHoldsKeepsItsLanguageWhichIsTheAnswer) {
    LeggiLinguaClient("FR");
    {
        const auto altro = posto.engineSession(support::kTemporaryDatabase);
        const auto tenuta = altro->hold("select * from LinguaClient where id = 1");
        EXPECT_EQ(LeggiLinguaClient("EN"), "FR");
        EXPECT_EQ(LinguaCorrente, "FR");
        EXPECT_FALSE(RsCondivisi(2).IsOpen());
    }
    EXPECT_EQ(righe(), (Righe{{"1", "FR"}}));
    EXPECT_EQ(LeggiLinguaClient("EN"), "EN");
    EXPECT_EQ(righe(), (Righe{{"1", "EN"}}));
}

/// What a call for "EN" gives and leaves where one of its statements is refused, with "FR" stored before.
struct Esito {
    const char* risposta;
    const char* scritta;
};

TEST_F(LinguaGuasta, WhicheverStatementIsRefusedNothingIsSaidAndTheNextCallStores) {
    const Esito esiti[] = {{"EN", "EN"},  // the table's creation, which is refused anyway
                           {"IT", "FR"},  // the reading of the row
                           {"FR", "FR"},  // the hold of the row, without which nothing is assigned
                           {"EN", "FR"}}; // the writing: the answer is what the row was to get
    LeggiLinguaClient("FR");
    for (int posto = 1; posto <= 4; ++posto) {
        SCOPED_TRACE(posto);
        LeggiLinguaClient("FR");
        const Esito& esito = esiti[posto - 1];
        {
            const GuastoAPosto guasto(posto);
            EXPECT_EQ(LeggiLinguaClient("EN"), esito.risposta);
            EXPECT_GE(guasto.inviate(), posto);
        }
        EXPECT_EQ(LinguaCorrente, esito.risposta);
        EXPECT_EQ(righe(), (Righe{{"1", esito.scritta}}));
        EXPECT_FALSE(RsCondivisi(2).IsOpen());
        EXPECT_EQ(LeggiLinguaClient("PO"), "PO");
        EXPECT_EQ(righe(), (Righe{{"1", "PO"}}));
    }
}

} // namespace
} // namespace vabo
