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

    FailingServer server{posto};
};

TEST_F(ServerAzienda, AtWhicheverStatementTheServerEndsTheSaveIsToldAndALaterOneStores) {
    apri();
    const int tutte = corri(0, Failure::Ended, [this] { salva(); });
    ASSERT_GE(tutte, 3);
    for (int fatale = 1; fatale <= tutte; ++fatale) {
        SCOPED_TRACE(fatale);
        esegui("update DatiAzienda set Banca = 'Banca del Mattino'");
        const Riga prima = tutto();
        const support::HeardBoxes scatole;
        apri();
        metti("Banca", "Altra");
        corri(fatale, Failure::Ended, [this] { salva(); });
        EXPECT_EQ(scatole.texts.size(), 1U);
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

TEST_F(ServerAzienda, AServerThatFallsSilentIsWaitedForOnceInALoad) {
    const support::HeardBoxes scatole;
    QElapsedTimer tempo;
    tempo.start();
    corri(2, Failure::Frozen, [this] { apri(); });
    constexpr qint64 kUnAttesa = 10'000;
    EXPECT_LT(tempo.elapsed(), kUnAttesa);
    EXPECT_EQ(scatole.texts, Testi{}) << "failing statements of the load are skipped";
    EXPECT_EQ(testo("nomesocietà"), "Associazione Aurora");
    server.repair();
    chiudi();
    apri();
    EXPECT_EQ(testi({"DCPagamento1", "DataCombo2"}), (Riga{"Rimessa diretta a 30 Data fattura", "Italia"}));
}

} // namespace
} // namespace vabo
