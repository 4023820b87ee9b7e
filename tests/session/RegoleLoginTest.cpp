#include "session/RegoleLogin.h"

#include "ado/Error.h"
#include "rights/AbilitazioneUtente.h"
#include "session/ApriAzienda.h"
#include "session/SessionFixture.h"
#include "support/RecordedForms.h"

#include <ostream>

namespace vabo {
void PrintTo(EsitoLogin outcome, std::ostream* out) {
    *out << static_cast<int>(outcome);
}
} // namespace vabo

namespace {

using namespace vabo;
using support::kCompany;

class RegoleLogin : public SessionTest {
protected:
    RegoleLogin() {
        double id = idOf(kCompany);
        ApriAzienda(id);
    }
    std::string passwordOf(const std::string& user) const {
        return workstation.value(kCompany,
                                 "select PaswUtente from AbilitazioneAccessi where NomeUtente = '" + user + "'");
    }
    double numberOf(const std::string& user) const {
        return std::stod(workstation.value(
            kCompany, "select idautonumber from AbilitazioneAccessi where NomeUtente = '" + user + "'"));
    }
    EsitoLogin check(const std::string& user, const std::string& password) {
        return ControllaLogin(user, password, newUser);
    }
    support::RecordedForms forms;
    double newUser = 0;
};

TEST_F(RegoleLogin, NamesAndPasswordsAreCleanedAndLowered) {
    EXPECT_EQ(Normalizzato("Due Parole"), "due_parole");
    EXPECT_EQ(Normalizzato("PRIMAVERA"), "primavera");
    EXPECT_EQ(Normalizzato("È-VERO!"), "è_vero_");
    EXPECT_EQ(Normalizzato("o'brien"), "o_brien");
    EXPECT_EQ(Normalizzato(""), "");
}

TEST_F(RegoleLogin, SendsTheCheckLetterForLetter) {
    const support::StatementRecorder recorder;
    check("contabile", "estate24");
    check("contabile", "");
    EXPECT_EQ(recorder.texts(),
              (std::vector<std::string>{
                  "select * from AbilitazioneAccessi where  NomeUtente = 'contabile' and  PaswUtente = 'estate24'",
                  "select * from AbilitazioneAccessi where  NomeUtente = 'contabile'"}));
    EXPECT_EQ(Sql, recorder.texts().back());
}

TEST_F(RegoleLogin, TellsTheFourOutcomes) {
    EXPECT_EQ(check("contabile", "estate24"), EsitoLogin::Riconosciuto);
    EXPECT_EQ(check("contabile", "estate25"), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("contabile", ""), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("nessuno", "estate24"), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("nessuno", ""), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("", ""), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("disabilitato", "autunno"), EsitoLogin::Disabilitato);
    EXPECT_EQ(check("disabilitato", "primavera"), EsitoLogin::Rifiutato);
    EXPECT_EQ(newUser, 0);
    EXPECT_EQ(check("nuovo_utente", ""), EsitoLogin::PrimaPassword);
    EXPECT_EQ(newUser, numberOf("nuovo_utente"));
    EXPECT_EQ(check("nuovo_utente", "qualcosa"), EsitoLogin::Rifiutato);
}

TEST_F(RegoleLogin, LeavesNoRecordsetOpen) {
    for (const char* password : {"estate24", "x", ""}) {
        check("contabile", password);
        EXPECT_FALSE(RsCondivisi(2).IsOpen());
    }
}

TEST_F(RegoleLogin, APasswordStoredWithCapitalsOrBlanksIsRefusedThoughTheServerFindsTheRow) {
    workstation.run(kCompany, "update AbilitazioneAccessi set PaswUtente = 'Estate24' where NomeUtente = 'contabile'");
    EXPECT_EQ(check("contabile", "estate24"), EsitoLogin::Rifiutato);
    workstation.run(kCompany, "update AbilitazioneAccessi set PaswUtente = 'estate24 ' where NomeUtente = 'contabile'");
    EXPECT_EQ(check("contabile", "estate24"), EsitoLogin::Rifiutato);
}

TEST_F(RegoleLogin, APasswordOfZerosCountsAsNone) {
    EXPECT_EQ(check("contabile", "0"), EsitoLogin::Rifiutato);
    EXPECT_EQ(check("nuovo_utente", "00"), EsitoLogin::PrimaPassword);
    workstation.run(kCompany, "update AbilitazioneAccessi set PaswUtente = '0' where NomeUtente = 'contabile'");
    EXPECT_EQ(check("contabile", ""), EsitoLogin::PrimaPassword);
}

TEST_F(RegoleLogin, AnErrorOfTheDatabaseRises) {
    workstation.run(kCompany, "DROP TABLE AbilitazioneAccessi");
    EXPECT_THROW(check("contabile", "estate24"), ado::Error);
    DbAzienda.Close();
    EXPECT_THROW(check("contabile", "estate24"), ado::Error);
}

TEST_F(RegoleLogin, WhoComesInHasItsRightsItsNameAndNoAttempts) {
    TentativiLogin = 2;
    EntraUtente("contabile", "estate24");
    EXPECT_EQ(TentativiLogin, 0);
    EXPECT_EQ(NomeUtenteLogin, "contabile");
    EXPECT_EQ(DirittiUtente.A_Iva, kVero);
    EXPECT_EQ(DirittiUtente.Administrator, kFalso);
}

TEST_F(RegoleLogin, AFirstPasswordIsStoredAndItsUserHasItsRights) {
    double number = numberOf("nuovo_utente");
    TentativiLogin = 2;
    EntraConPrimaPassword(number, "nuovo_utente", "inverno");
    EXPECT_EQ(number, 0);
    EXPECT_EQ(passwordOf("nuovo_utente"), "inverno");
    EXPECT_EQ(DirittiUtente.A_Inserisci, kVero);
    EXPECT_EQ(NomeTerminale, "POSTO-7") << "the machine's own name";
    EXPECT_EQ(TentativiLogin, 2);
    EXPECT_EQ(NomeUtenteLogin, "");
}

TEST_F(RegoleLogin, AFirstPasswordTakesBackTheSharedRecordsetsThoughItsUserIsRefused) {
    double number = numberOf("nuovo_utente");
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    script.expectMessage("Utente non abilitato! ");
    EntraConPrimaPassword(number, "0", "inverno"); // "0" counts as an empty name
    EXPECT_EQ(passwordOf("nuovo_utente"), "inverno");
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
}

TEST_F(RegoleLogin, SavingAFirstPasswordTouchesOneRow) {
    double number = numberOf("nuovo_utente");
    const support::StatementRecorder recorder;
    SalvaPrimaPassword(number, "INVERNO");
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"update AbilitazioneAccessi set PaswUtente = 'inverno' where idautonumber =  " +
                                       textOf(numberOf("nuovo_utente"))});
    EXPECT_EQ(Sql, recorder.texts().front());
    EXPECT_EQ(number, 0);
    EXPECT_EQ(passwordOf("nuovo_utente"), "inverno");
    EXPECT_EQ(passwordOf("contabile"), "estate24");
}

TEST_F(RegoleLogin, WithoutANumberNothingIsSaved) {
    double nobody = 0;
    const support::StatementRecorder recorder;
    SalvaPrimaPassword(nobody, "inverno");
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(RegoleLogin, APasswordThatCannotBeStoredRaisesAndKeepsTheNumber) {
    double number = numberOf("nuovo_utente");
    EXPECT_THROW(SalvaPrimaPassword(number, "molto più di dodici caratteri"), ado::Error);
    EXPECT_EQ(number, numberOf("nuovo_utente"));
    EXPECT_EQ(passwordOf("nuovo_utente"), "NULL");
}

TEST_F(RegoleLogin, TheFourthFailureSaysThatItIsOver) {
    for (int attempt = 1; attempt <= 3; ++attempt) {
        script.expectMessage("User not allowed! ");
        EXPECT_FALSE(ContaTentativo());
        EXPECT_EQ(TentativiLogin, attempt);
    }
    script.expectMessage("User not allowed! ");
    script.expectMessage("It is no more possible to try! ");
    EXPECT_TRUE(ContaTentativo());
}

TEST_F(RegoleLogin, EveryFailureBehindTheFourthSaysSoToo) {
    TentativiLogin = 4;
    script.expectMessage("User not allowed! ");
    script.expectMessage("It is no more possible to try! ");
    EXPECT_TRUE(ContaTentativo());
    EXPECT_EQ(TentativiLogin, 5);
}

TEST_F(RegoleLogin, ACountedFailureClosesTheSharedRecordsets) {
    RsCondivisi(4).Open("select * from Sede", DbAzienda);
    script.expectMessage("User not allowed! ");
    ContaTentativo();
    EXPECT_FALSE(RsCondivisi(4).IsOpen());
}

TEST_F(RegoleLogin, WithUsersTheLoginStartsWithoutAttempts) {
    TentativiLogin = 3;
    EXPECT_FALSE(LoginSenzaUtenti());
    EXPECT_EQ(TentativiLogin, 0);
    EXPECT_EQ(DirittiUtente, Diritti{});
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(RegoleLogin, WithoutUsersTheLoginGivesElevenRights) {
    workstation.run(kCompany, "delete from AbilitazioneAccessi");
    EXPECT_TRUE(LoginSenzaUtenti());
    EXPECT_EQ(DirittiUtente, kDirittiLoginSenzaUtenti);
    EXPECT_EQ(DirittiUtente.A_Progetta, kVero);
    EXPECT_EQ(DirittiUtente.Disabilita, kFalso);
}

TEST_F(RegoleLogin, ATableOfUsersThatCannotBeReadCountsAsEmpty) {
    DbAzienda.Close();
    EXPECT_TRUE(LoginSenzaUtenti());
    EXPECT_EQ(DirittiUtente, kDirittiLoginSenzaUtenti);
}

TEST_F(RegoleLogin, TheCompanysTextTellsWhetherTheServerIsThere) {
    EXPECT_TRUE(ServerRisponde());
    EXPECT_EQ(ServerMancante, kFalso);
    for (const std::string& text :
         {std::string(), std::string("garbage"), std::string("Server=127.0.0.1,9;"), server + "DATABase=x;"}) {
        StringaAzienda = text;
        ServerMancante = kFalso;
        EXPECT_FALSE(ServerRisponde()) << text;
        EXPECT_EQ(ServerMancante, kVero) << text;
    }
    StringaAzienda = StringaAziendaCopia;
    EXPECT_TRUE(ServerRisponde());
    EXPECT_EQ(ServerMancante, kFalso);
}

TEST_F(RegoleLogin, TheLoginTakesUpTheTerminalsCompanyWithTheRightsOfNobody) {
    control("update link_programmaTerminale set ultimo = " + textOf(idOf(support::kOtherCompany)));
    IdAziendaLavoro = IdAziendaScelta = 0;
    PreparaLogin();
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
    EXPECT_EQ(DirittiUtente.Disabilita, kVero);
    EXPECT_EQ(DirittiUtente.Administrator, kFalso);
    EXPECT_EQ(NomeTerminale, "POSTO_7");
    EXPECT_EQ(IdAziendaScelta, idOf(support::kOtherCompany));
    EXPECT_EQ(NomeDatabase, "VaBoDatiPonte");
}

TEST_F(RegoleLogin, TheLoginForgetsTheChoiceOfTheRunAndTakesTheTerminals) {
    IdAziendaScelta = idOf(kCompany);
    IdAziendaLavoro = 0;
    control("update link_programmaTerminale set ultimo = " + textOf(idOf(support::kOtherCompany)));
    PreparaLogin();
    EXPECT_EQ(IdAziendaScelta, idOf(support::kOtherCompany));
    EXPECT_EQ(NomeDatabase, support::kOtherCompany);
}

TEST_F(RegoleLogin, AMissingLocalPointerFileIsWrittenUnderTheInstancesName) {
    removeFile("C:\\vabo\\IndirizzoServerLocal.txt");
    PreparaLogin();
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"),
              "Driver=SQL Server;Server=" + workstation.serverName() + ";ID utente=;Password=;\r\n");
}

TEST_F(RegoleLogin, AMissingLocalPointerFileIsWrittenUnderTheMachinesNameOnACleanWorkstation) {
    removeFile("C:\\vabo\\IndirizzoServerLocal.txt");
    removeFile("C:\\vabo\\NomeServerLocal.txt");
    const std::string local = *workstation.fileText("C:\\vabo\\Leggi_ServerLocal.txt");
    PreparaLogin();
    // the machine's name is not yet cleaned at this point
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"),
              "Driver=SQL Server;Server=POSTO-7;ID utente=;Password=;\r\n");
    EXPECT_NE(workstation.fileText("C:\\vabo\\Leggi_ServerLocal.txt"), local);
}

TEST_F(RegoleLogin, APresentLocalPointerFileIsLeftAlone) {
    workstation.putFile("C:\\vabo\\IndirizzoServerLocal.txt", "mine");
    PreparaLogin();
    EXPECT_EQ(workstation.fileText("C:\\vabo\\IndirizzoServerLocal.txt"), "mine");
}

TEST_F(RegoleLogin, TheDataFolderAndTheBranchAreRead) {
    workstation.putFile("C:\\vabo\\IndirizzoVabodati.txt", "D:\\dati\\VaBoDati\r\nx\r\n");
    DbAzienda.Close();
    ApriDatiLogin();
    EXPECT_TRUE(DbAzienda.IsOpen());
    EXPECT_EQ(IndirizzoVabodati, "D:\\dati\\VaBoDati");
    EXPECT_EQ(IndirizzoVabodatiCopia, "D:\\dati\\VaBoDati");
    EXPECT_EQ(IdSede, 1);
}

TEST_F(RegoleLogin, AMissingDataFolderFileIsSkipped) {
    removeFile("C:\\vabo\\IndirizzoVabodati.txt");
    IndirizzoVabodati = "prima";
    ApriDatiLogin();
    EXPECT_EQ(IndirizzoVabodatiCopia, "prima");
    EXPECT_EQ(IdSede, 1);
}

} // namespace
