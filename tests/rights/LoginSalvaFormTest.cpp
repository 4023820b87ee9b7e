// What the form of the users stores, and the two tests that keep an administrator in the company.

#include "UtentiForm.h"
#include "session/RegoleLogin.h"
#include "support/SomebodyElse.h"

namespace vabo {
namespace {

class LoginSalva : public UtentiForm {
protected:
    static std::string provaSenza(int chiave) {
        return std::string(kProvaAttesa) + " and not idautonumber = " + std::to_string(chiave);
    }
    /// Whether the editing area is as it was before the first pick.
    void attesaChiusa() const {
        EXPECT_EQ(nome(), "");
        EXPECT_EQ(pagina.text("txtPassword1"), "");
        EXPECT_EQ(caselle(), "000000000002");
        EXPECT_FALSE(aperta());
    }
};

TEST_F(LoginSalva, ANewUserIsStoredByTheseStatements) {
    apri();
    nuovo("Mario");
    spazioSu("txtA_Iva");
    spazioSu("txtDisabilita");
    const support::StatementRecorder recorder;
    premi("cmdUpdate");
    EXPECT_EQ(recorder.texts(),
              (Testi{kProvaAttesa, kProvaAttesa, kSelezioneAttesa,
                     ("INSERT INTO [AbilitazioneAccessi] ([NomeUtente], [Administrator], [A_Inserisci], [A_Cancella], "
                      "[A_Iva], [A_Bilancio], [A_Personale], [A_ArchivioStoria], [A_PFinanza], [A_Synchro], "
                      "[A_EmettiPagamenti], [A_Progetta], [Disabilita]) VALUES (N'mario', 0, 0, 0, 1, 0, 0, 0, 0, 0, "
                      "0, 0, 0)"),
                     kElencoAtteso}));
    EXPECT_EQ(tabella().back(),
              (Riga{"5", "mario", "NULL", "0", "0", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0"}));
    EXPECT_EQ(elenco(), (Riga{"contabile", "disabilitato", "mario", "nuovo_utente", "amministratore"}));
    attesaChiusa();
    EXPECT_TRUE(salvaSiVede()) << "the button stays";
}

TEST_F(LoginSalva, ANewUserIsDisabledUnlessARightEnablesIt) {
    apri();
    nuovo("mario");
    premi("cmdUpdate");
    EXPECT_EQ(flag("mario"), "000000000001");
    nuovo("anna");
    premi("Command1");
    premi("cmdUpdate");
    EXPECT_EQ(flag("anna"), "011111111110") << "the two rights that aren't seen, too";
}

TEST_F(LoginSalva, ANewUserHasNoPasswordYetAndTheLoginAsksForOne) {
    apri();
    nuovo("Mario Rossi");
    vaiA("txtPassword1");
    gui.type("segreta");
    premi("Command1");
    premi("cmdUpdate");
    EXPECT_EQ(valore("select PaswUtente from AbilitazioneAccessi where NomeUtente = 'mario_rossi'"), "NULL");
    double utente = 0;
    EXPECT_EQ(ControllaLogin(Normalizzato("Mario Rossi"), "", utente), EsitoLogin::PrimaPassword);
    EXPECT_EQ(utente, 5);
}

// The cleaner runs ahead of the trimming, so a blank behind the name has become an underscore by then.
TEST_F(LoginSalva, ANameWithABlankBehindItIsStoredInSmallLettersWithoutTheBlank) {
    apri();
    for (const auto& [digitato, salvato] : {std::pair{"MARIO ", "mario_"}, std::pair{"Anna  ", "anna__"}}) {
        nuovo(digitato);
        premi("Command1");
        premi("cmdUpdate");
        EXPECT_EQ(tabella().back()[1], salvato);
    }
}

TEST_F(LoginSalva, APickedUserIsChangedAndKeepsItsPassword) {
    apri();
    const auto prima = tabella();
    scegli("contabile");
    invioNelNome();
    vaiA("txtPassword1");
    gui.type("altra");
    spazioSu("txtA_Cancella");
    spazioSu("txtA_Inserisci");
    const support::StatementRecorder recorder;
    premi("cmdUpdate");
    EXPECT_TRUE(recorder.sentInOrder(
        {kProvaAttesa, provaSenza(2), std::string(kSelezioneAttesa) + " where idautonumber = 2", kElencoAtteso}));
    EXPECT_EQ(recorder.holding("UPDATE ["),
              Testi{"UPDATE [AbilitazioneAccessi] SET [NomeUtente] = N'contabile', [Administrator] = 0, [A_Inserisci] "
                    "= 0, [A_Cancella] = 1, [A_Iva] = 1, [A_Bilancio] = 1, [A_Personale] = 0, [A_ArchivioStoria] = "
                    "0, [A_PFinanza] = 1, [A_Synchro] = 0, [A_EmettiPagamenti] = 0, [A_Progetta] = 0, [Disabilita] "
                    "= 0 WHERE [idautonumber] = 2"});
    auto attesa = prima;
    attesa[1] = {"2", "contabile", "estate24", "0", "0", "1", "1", "1", "0", "0", "1", "0", "0", "0", "0"};
    EXPECT_EQ(tabella(), attesa);
    attesaChiusa();
}

TEST_F(LoginSalva, EnterInTheNameOfAPickedUserRenamesIt) {
    apri();
    scegli("contabile");
    nuovo("Ragioniere");
    premi("cmdUpdate");
    EXPECT_EQ(tabella().size(), 4U);
    EXPECT_EQ(tabella()[1][1], "ragioniere");
    nuovo("altro");
    premi("cmdUpdate");
    EXPECT_EQ(tabella().size(), 5U) << "the next one is new again";
}

TEST_F(LoginSalva, WithoutEnterTheNameIsStoredAsItStands) {
    apri();
    scegli("contabile");
    vaiA("txtNomeUtente");
    gui.type(" Il Ragioniere ");
    premi("cmdUpdate");
    EXPECT_EQ(tabella()[1][1], " Il Ragioniere ");
    vaiA("txtNomeUtente");
    gui.type("Mario ");
    premi("cmdUpdate");
    EXPECT_EQ(tabella().back()[1], "Mario ");
}

TEST_F(LoginSalva, WithoutANameNothingHappens) {
    apri();
    invioNelNome();
    const support::StatementRecorder recorder;
    for (const char* niente : {"", " ", "0", "00", "0,00"}) {
        pagina.control<controls::TextBox>("txtNomeUtente").setText(niente);
        premi("cmdUpdate");
        EXPECT_EQ(nome(), niente);
        EXPECT_TRUE(aperta());
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(LoginSalva, TheDoubleOfANameIsStoredToo) {
    apri();
    nuovo("contabile");
    premi("cmdUpdate");
    EXPECT_EQ(valore("select count(*) from AbilitazioneAccessi where NomeUtente = 'contabile'"), "2");
}

TEST_F(LoginSalva, TheOnlyAdministratorCanNotBeUntickedAndGetsTheTenRights) {
    esegui("update AbilitazioneAccessi set A_Cancella = 0, Disabilita = 1 where NomeUtente = 'amministratore'");
    apri();
    const auto prima = tabella();
    scegli("amministratore");
    nuovo("capo");
    spazioSu("txtAdministrator");
    vaiA("txtNomeUtente");
    const support::StatementRecorder recorder;
    script.expectMessage(kOccorre);
    premi("cmdUpdate");
    EXPECT_EQ(recorder.texts(), (Testi{kProvaAttesa, provaSenza(1)}));
    EXPECT_EQ(tabella(), prima);
    EXPECT_EQ(caselle(), "022222222220");
    EXPECT_EQ(nome(), "capo") << "the user stays on the screen";
    EXPECT_TRUE(aperta());
    EXPECT_EQ(fuoco(), "cmdUpdate");
    spazioSu("txtAdministrator");
    premi("cmdUpdate");
    EXPECT_EQ(flag("capo"), "111111111110");
    EXPECT_EQ(tabella().size(), 4U) << "it is still the picked one";
}

TEST_F(LoginSalva, TheDisabledOnlyAdministratorIsCaughtByTheSave) {
    apri();
    const auto prima = tabella();
    scegli("amministratore");
    invioNelNome();
    premi("CancelButton");
    script.expectMessage(kOccorre);
    premi("cmdUpdate");
    EXPECT_EQ(tabella(), prima);
    EXPECT_EQ(caselle(), "022222222220");
}

TEST_F(LoginSalva, OfTwoAdministratorsOneMayBeUnticked) {
    esegui("update AbilitazioneAccessi set Administrator = 1 where NomeUtente = 'contabile'");
    apri();
    scegli("amministratore");
    invioNelNome();
    spazioSu("txtAdministrator");
    premi("cmdUpdate");
    EXPECT_EQ(flag("amministratore"), "011111111100");
}

TEST_F(LoginSalva, WithoutAnyAdministratorOnlyOneWhoIsTickedPasses) {
    senzaAmministratori();
    apri();
    const auto prima = tabella();
    scegli("contabile");
    invioNelNome();
    const support::StatementRecorder recorder;
    script.expectMessage(kOccorre);
    premi("cmdUpdate");
    EXPECT_EQ(recorder.texts(), Testi{kProvaAttesa}) << "the first test refuses";
    EXPECT_EQ(caselle(), "010110010000") << "no right is ticked";
    EXPECT_EQ(tabella(), prima);
    spazioSu("txtAdministrator");
    premi("cmdUpdate");
    EXPECT_EQ(flag("contabile"), "110110010000");
    attesaChiusa();
}

TEST_F(LoginSalva, ANewUserNeedsAnotherAdministratorToo) {
    senzaAmministratori();
    apri();
    nuovo("mario");
    script.expectMessage(kOccorre);
    premi("cmdUpdate");
    EXPECT_EQ(tabella().size(), 4U);
    spazioSu("txtAdministrator");
    premi("cmdUpdate");
    EXPECT_EQ(flag("mario"), "100000000001");
}

TEST_F(LoginSalva, TwoAdministratorsAtOnceMayLeaveTheCompanyWithoutOne) {
    esegui("update AbilitazioneAccessi set Administrator = 1 where NomeUtente = 'contabile'");
    apri();
    scegli("amministratore");
    invioNelNome();
    spazioSu("txtAdministrator");
    {
        const support::SomebodyElse altro([this](const std::string& testo) {
            if (testo.starts_with(kSelezioneAttesa)) { // behind both tests
                esegui("update AbilitazioneAccessi set Administrator = 0 where NomeUtente = 'contabile'");
            }
        });
        premi("cmdUpdate");
    }
    EXPECT_EQ(valore("select count(*) from AbilitazioneAccessi where Administrator = 1"), "0");
    attesaChiusa();
}

// Who else wrote the row meanwhile is written over.
TEST_F(LoginSalva, WhatAnotherAdministratorStoredIsWrittenOver) {
    apri();
    scegli("contabile");
    esegui("update AbilitazioneAccessi set A_Cancella = 1, PaswUtente = 'nuova' where NomeUtente = 'contabile'");
    premi("cmdUpdate");
    EXPECT_EQ(flag("contabile"), "010110010000");
    EXPECT_EQ(tabella()[1][2], "nuova");
}

TEST_F(LoginSalva, AUserThatAnotherDeletedIsNotAddedAgain) {
    apri();
    scegli("contabile");
    esegui("delete from AbilitazioneAccessi where NomeUtente = 'contabile'");
    script.expectMessage(kSenzaRiga);
    premi("cmdUpdate");
    EXPECT_EQ(tabella().size(), 3U);
    EXPECT_EQ(nome(), "contabile");
    EXPECT_EQ(elenco().size(), 4U) << "the list isn't read again";
}

TEST_F(LoginSalva, ARowThatAnotherHoldsIsToldAndStoredByASecondSave) {
    apri();
    scegli("contabile");
    nuovo("ragioniere");
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset rs;
    rs.Open("select * from AbilitazioneAccessi where idautonumber = 2", altrui, ado::CursorType::Keyset,
            ado::LockType::Pessimistic);
    rs["A_Iva"] = 0;
    script.expectMessage("Lock request time out period exceeded.");
    premi("cmdUpdate");
    EXPECT_EQ(nome(), "ragioniere");
    EXPECT_TRUE(aperta());
    rs.CancelUpdate();
    rs.Close();
    premi("cmdUpdate");
    EXPECT_EQ(tabella()[1][1], "ragioniere");
}

} // namespace
} // namespace vabo
