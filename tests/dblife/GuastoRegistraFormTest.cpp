// The form of the data sources with a server that fails.

#include "RegistraFormFixture.h"
#include "session/FailureFixture.h"

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
    void avviene(Failure cosa) {
        if (cosa == Failure::Silent) {
            metti("txtServer", conAttesa(guasto.silent.server()));
        } else if (cosa == Failure::WrongPort) {
            metti("txtServer", kServerSpento);
        } else if (cosa == Failure::WrongPassword) {
            metti("txtPWD", "inverno");
        } else {
            guasto.fail(cosa);
        }
        guasto_ = cosa;
    }
    void ripara() {
        if (guasto_ == Failure::Ended || guasto_ == Failure::Frozen) {
            guasto.repair();
        }
        metti("txtServer", conAttesa(workstation.serverName()));
        metti("txtPWD", campi().Password);
    }
    std::string rigaDiIndirizzo() const {
        return "Driver=SQL Server;Server=" + conAttesa(workstation.serverName()) + ";UID=" + campi().Utente +
               ";PWD=" + campi().Password + ";\r\n";
    }

    FailingServer guasto{workstation};

private:
    Failure guasto_ = Failure::Ended;
};

class GuastoNellaProva : public GuastoRegistra, public testing::WithParamInterface<Failure> {};

TEST_P(GuastoNellaProva, IsAWrongConnectionAndOnceItIsPutRightEnterGoesOn) {
    apriSulServer();
    avviene(GetParam());
    const auto puntatori = guasto.pointerFiles();
    script.expectMessage("Wrong connection");
    premi("txtServer");
    EXPECT_EQ(fuoco(), "txtServer");
    EXPECT_EQ(guasto.pointerFiles(), puntatori);
    ripara();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "txtDatabase");
    EXPECT_EQ(indirizzo(), rigaDiIndirizzo());
    EXPECT_EQ(nomeServer(), conAttesa(workstation.serverName()) + "\r\n");
}

TEST_P(GuastoNellaProva, IsNoValidConnectionAndOnceItIsPutRightTheButtonRegisters) {
    apriSulServer();
    avviene(GetParam());
    const auto puntatori = guasto.pointerFiles();
    script.expectMessage("La connessione \n\n non è valida");
    premi("cmdCancel");
    EXPECT_EQ(gui.visibleForms(), kForm);
    EXPECT_EQ(guasto.pointerFiles(), puntatori);
    EXPECT_TRUE(fonti.calls().empty());
    ripara();
    premi("cmdCancel");
    aspettaConsole();
    EXPECT_EQ(fonti.calls().size(), 12U);
    EXPECT_EQ(indirizzo(), rigaDiIndirizzo());
}

INSTANTIATE_TEST_SUITE_P(Di, GuastoNellaProva, testing::ValuesIn(kFailures), kNameOfFailure);

TEST_F(GuastoRegistra, AServerThatEndsOnceItIsOpenKeepsNothingFromBeingRegistered) {
    workstation.run(support::kCompany, kCreaRegistro);
    workstation.run(support::kCompany, "insert into link_programma (NomeAzienda) values ('prima')");
    apriSulServer();
    int inviate = 0;
    ado::setStatementRecorder([&](const std::string& /*testo*/) {
        if (++inviate == 1) {
            guasto.fail(Failure::Ended);
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
    guasto.fail(Failure::Ended);
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { ApriForm(kForm, true); }));
}

} // namespace
} // namespace vabo
