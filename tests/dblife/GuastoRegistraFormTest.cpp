// The form of the data sources with a server that fails.

#include "RegistraFormFixture.h"
#include "session/GuastoFixture.h"

namespace vabo {
namespace {

class GuastoRegistra : public RegistraForm {
protected:
    /// A server's name for the form's field, followed by a shorter time-out: the fields go into the connection text as
    /// typed.
    static std::string conAttesa(const std::string& server) { return server + ";Connect Timeout=1"; }
    void apriSulServer() {
        apri();
        metti("txtServer", conAttesa(workstation.serverName()));
        metti("txtUID", campi().Utente);
        metti("txtPWD", campi().Password);
    }
    void avviene(Guasto cosa) {
        if (cosa == Guasto::Muto) {
            metti("txtServer", conAttesa(guasto.muto.server()));
        } else if (cosa == Guasto::PortaSbagliata) {
            metti("txtServer", kServerSpento);
        } else if (cosa == Guasto::PasswordSbagliata) {
            metti("txtPWD", "inverno");
        } else {
            guasto.avviene(cosa);
        }
        guasto_ = cosa;
    }
    void ripara() {
        if (guasto_ == Guasto::Spento || guasto_ == Guasto::Gelato) {
            guasto.ripara();
        }
        metti("txtServer", conAttesa(workstation.serverName()));
        metti("txtPWD", campi().Password);
    }
    std::string rigaDiIndirizzo() const {
        return "Driver=SQL Server;Server=" + conAttesa(workstation.serverName()) + ";UID=" + campi().Utente +
               ";PWD=" + campi().Password + ";\r\n";
    }

    ServerGuasto guasto{workstation};

private:
    Guasto guasto_ = Guasto::Spento;
};

class GuastoNellaProva : public GuastoRegistra, public testing::WithParamInterface<Guasto> {};

TEST_P(GuastoNellaProva, IsAWrongConnectionAndOnceItIsPutRightEnterGoesOn) {
    apriSulServer();
    avviene(GetParam());
    const auto puntatori = guasto.puntatori();
    script.expectMessage("Wrong connection");
    premi("txtServer");
    EXPECT_EQ(fuoco(), "txtServer");
    EXPECT_EQ(guasto.puntatori(), puntatori);
    ripara();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "txtDatabase");
    EXPECT_EQ(indirizzo(), rigaDiIndirizzo());
    EXPECT_EQ(nomeServer(), conAttesa(workstation.serverName()) + "\r\n");
}

TEST_P(GuastoNellaProva, IsNoValidConnectionAndOnceItIsPutRightTheButtonRegisters) {
    apriSulServer();
    avviene(GetParam());
    const auto puntatori = guasto.puntatori();
    script.expectMessage("La connessione \n\n non è valida");
    premi("cmdCancel");
    EXPECT_EQ(gui.visibleForms(), kForm);
    EXPECT_EQ(guasto.puntatori(), puntatori);
    EXPECT_TRUE(fonti.calls().empty());
    ripara();
    premi("cmdCancel");
    aspettaConsole();
    EXPECT_EQ(fonti.calls().size(), 12U);
    EXPECT_EQ(indirizzo(), rigaDiIndirizzo());
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoNellaProva, testing::ValuesIn(kGuasti), kNomeDelGuasto);

TEST_F(GuastoRegistra, AServerThatEndsOnceItIsOpenKeepsNothingFromBeingRegistered) {
    workstation.run(support::kCompany, kCreaRegistro);
    workstation.run(support::kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    apriSulServer();
    int inviate = 0;
    ado::setStatementRecorder([&](const std::string& /*testo*/) {
        if (++inviate == 1) {
            guasto.avviene(Guasto::Spento);
        }
    });
    premi("cmdCancel");
    ado::setStatementRecorder({});
    aspettaConsole();
    EXPECT_EQ(fonti.calls().size(), 12U);
    EXPECT_EQ(indirizzo(), rigaDiIndirizzo());
    EXPECT_EQ(registro()[0][3], "prima");
}

TEST_F(GuastoRegistra, LoadedWithoutItsServerItEndsTheProcess) {
    IdAziendaScelta = idOf(support::kCompany);
    guasto.avviene(Guasto::Spento);
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriForm(kForm, true); }));
}

} // namespace
} // namespace vabo
