// The form of the company's data while the server goes and comes back.

#include "fiscal/AziendaForm.h"
#include "session/ApriDbSede.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"
#include "support/SomebodyElse.h"

#include <QElapsedTimer>

namespace vabo {
namespace {

constexpr qint64 kUnAttesa = 10'000; // one second, and as long again for the answer to its cancel

/// The company is taken up by the way that the pointer files tell now.
class ServerAzienda : public AziendaForm {
protected:
    ServerAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
    /// Ahead of the statement of that number the server fails; how many were sent.
    int corri(int fatale, Failure failure, const std::function<void()>& evento) {
        int inviate = 0;
        const support::SomebodyElse altro([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                server.fail(failure);
            }
        });
        support::inOneEvent(evento);
        return inviate;
    }

    /// A save that fails at each of its statements in turn, and one behind each that stores.
    void salvaDoveFallisce(Failure failure) {
        apri();
        const int tutte = corri(0, failure, [this] { salva(); });
        ASSERT_GE(tutte, 3);
        for (int fatale = 1; fatale <= tutte; ++fatale) {
            SCOPED_TRACE(fatale);
            esegui("update DatiAzienda set Banca = 'Banca del Mattino'");
            const Riga prima = tutto();
            const support::HeardBoxes scatole;
            apri();
            metti("Banca", "Altra");
            QElapsedTimer tempo;
            tempo.start();
            corri(fatale, failure, [this] { salva(); });
            EXPECT_LT(tempo.elapsed(), kUnAttesa);
            ASSERT_EQ(scatole.texts.size(), 1U);
            EXPECT_EQ(scatole.texts.front() == kTimedOut, failure == Failure::Frozen);
            EXPECT_TRUE(aperta());
            server.repair();
            EXPECT_EQ(tutto(), prima);
            for (int volta = 0; volta < 2 && aperta(); ++volta) { // the first may find the connection lost
                salva();
            }
            EXPECT_FALSE(aperta());
            EXPECT_EQ(colonna("Banca"), "Altra");
        }
    }

    FailingServer server{posto};
};

TEST_F(ServerAzienda, AtWhicheverStatementOfTheLoadTheServerFallsSilentItIsWaitedForOnceAndNothingIsTold) {
    const int tutte = corri(0, Failure::Frozen, [this] { apri(); });
    ASSERT_EQ(tutte, 7); // the company, the terms, the towns, the states; both descriptions, the state's name
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        chiudi();
        const support::HeardBoxes scatole;
        QElapsedTimer tempo;
        tempo.start();
        corri(fatale, Failure::Frozen, [this] { apri(); });
        EXPECT_LT(tempo.elapsed(), kUnAttesa);
        EXPECT_EQ(scatole.texts, Testi{}) << "failing statements of the load are skipped";
        EXPECT_EQ(testo("nomesocietà"), fatale == 1 ? "" : "Associazione Aurora");
        EXPECT_EQ(pagina.combo("DCPagamento1").count() == 0, fatale <= 2);
        EXPECT_EQ(pagina.combo("DataCombo1").count() == 0, fatale <= 3);
        EXPECT_EQ(pagina.combo("DataCombo2").count() == 0, fatale <= 4);
        server.repair();
    }
    chiudi();
    DbAzienda.Close();
    DbAzienda.Open(StringaAzienda);
    apri();
    EXPECT_EQ(testi({"DCPagamento1", "DataCombo2"}), (Riga{"Rimessa diretta a 30 Data fattura", "Italia"}));
}

TEST_F(ServerAzienda, AtWhicheverStatementTheServerEndsTheSaveIsToldAndALaterOneStores) {
    salvaDoveFallisce(Failure::Ended);
}

TEST_F(ServerAzienda, AtWhicheverStatementTheServerFallsSilentTheSaveIsToldOnceAndALaterOneStores) {
    salvaDoveFallisce(Failure::Frozen);
}

TEST_F(ServerAzienda, AtWhicheverStatementTheServerFallsSilentTheTownIsToldAndMayBeLeftAgain) {
    for (int fatale = 1; fatale <= 3; ++fatale) { // the towns, the state, the towns again
        SCOPED_TRACE(fatale);
        apri();
        vaiA("nomesocietà");
        metti("statooprovincia", "");
        const support::HeardBoxes scatole;
        QElapsedTimer tempo;
        tempo.start();
        corri(fatale, Failure::Frozen, [this] {
            vaiA("DataCombo1");
            vaiA("cap");
        });
        EXPECT_LT(tempo.elapsed(), kUnAttesa);
        EXPECT_EQ(scatole.texts.empty(), false);
        EXPECT_EQ(scatole.texts.front(), kTimedOut);
        EXPECT_EQ(testo("statooprovincia"), fatale == 1 ? "" : "TO");
        EXPECT_EQ(fuoco(), "cap");
        server.repair();
        chiudi();
        DbAzienda.Close();
        DbAzienda.Open(StringaAzienda);
        apri();
        metti("statooprovincia", "");
        vaiA("DataCombo1");
        vaiA("cap");
        EXPECT_EQ(testi({"cap", "statooprovincia"}), (Riga{"10121", "TO"}));
        chiudi();
    }
}

} // namespace
} // namespace vabo
