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

TEST_F(LinguaGuasta, WhicheverStatementIsRefusedNothingIsSaidAndTheNextCallStores) {
    LeggiLinguaClient("FR");
    int tutte = 0;
    {
        const GuastoAPosto conta;
        LeggiLinguaClient("ES");
        tutte = conta.inviate();
    }
    ASSERT_GE(tutte, 3);
    for (int posto = 1; posto <= tutte; ++posto) {
        SCOPED_TRACE(posto);
        LeggiLinguaClient("FR");
        std::string lingua;
        {
            const GuastoAPosto guasto(posto);
            lingua = LeggiLinguaClient("EN");
            EXPECT_EQ(guasto.inviate() >= posto, true);
        }
        const bool scritta = righe() == Righe{{"1", "EN"}};
        EXPECT_TRUE(scritta || righe() == (Righe{{"1", "FR"}}));
        EXPECT_EQ(LinguaCorrente, lingua);
        EXPECT_FALSE(RsCondivisi(2).IsOpen());
        RecordProperty("posto" + std::to_string(posto), lingua + (scritta ? " scritta" : ""));
        EXPECT_EQ(LeggiLinguaClient("PO"), "PO");
        EXPECT_EQ(righe(), (Righe{{"1", "PO"}}));
    }
}

} // namespace
} // namespace vabo
