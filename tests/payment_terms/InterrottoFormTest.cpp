// Both forms while the server ends and comes back.

#include "CondizioniForm.h"
#include "session/FailureFixture.h"
#include "support/HeardBoxes.h"
#include "support/OneEvent.h"

namespace vabo {
namespace {

template<typename Form>
class Interrotto : public Form {
protected:
    void riprendiAzienda() {
        DbAzienda.Close();
        StringaAzienda = ConnessioneAzienda() + ";";
        DbAzienda.Open(StringaAzienda);
    }
};
using CondizioniInterrotte = Interrotto<FormCondizioni>;
using DecorrenzeInterrotte = Interrotto<FormDecorrenze>;

TEST_F(CondizioniInterrotte, AServerThatEndsAheadOfASaveIsToldOnceAndTheFieldsStay) {
    FailingServer server(posto);
    riprendiAzienda();
    apri();
    componi("Fine mese", "", {"30"}, "Assegno");
    const Riga prima = campi();
    {
        const support::HeardBoxes scatole;
        server.fail(Failure::Ended);
        support::inOneEvent([this] { invio(); });
        EXPECT_EQ(scatole.texts.size(), 1U);
    }
    EXPECT_EQ(campi(), prima);
    server.repair();
    riprendiAzienda();
    EXPECT_EQ(quanti("CondizioniPagamento"), 14);
    // The lists go by the connection text that they were opened with, which is still good.
    vaiA("Chiudi");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(ultima()[0], "Assegno a 30 Fine mese");
    EXPECT_EQ(campi(), kVuota);
}

TEST_F(CondizioniInterrotte, AServerThatIsGoneAtTheOpeningLeavesAnEmptyFormAndSaysNothing) {
    FailingServer server(posto);
    riprendiAzienda();
    server.fail(Failure::Ended);
    support::inOneEvent([this] { apri(); });
    EXPECT_EQ(gui.visibleForms(), kCondizioni);
    EXPECT_EQ(righe(), 0);
    EXPECT_EQ(testo("Label21"), "Condizioni di pagamento");
    server.repair();
    gui.click(kCondizioni, "Chiudi");
    riprendiAzienda();
    apri();
    EXPECT_EQ(righe(), 14);
}

TEST_F(DecorrenzeInterrotte, AServerThatEndsAheadOfASaveIsToldOnceAndTheFieldsStay) {
    FailingServer server(posto);
    riprendiAzienda();
    apri();
    scegli(5);
    campo("GiornoScadenza").setText("12");
    vaiA("Descrizione");
    const Riga prima = campi();
    {
        const support::HeardBoxes scatole;
        server.fail(Failure::Ended);
        support::inOneEvent([this] { invio(); });
        EXPECT_EQ(scatole.texts.size(), 1U);
    }
    EXPECT_EQ(campi(), prima);
    server.repair();
    riprendiAzienda();
    invio();
    EXPECT_EQ(regola("IDDecorrenza = 5")[1], "12");
    EXPECT_EQ(campi(), kRegolaVuota);
}

} // namespace
} // namespace vabo
