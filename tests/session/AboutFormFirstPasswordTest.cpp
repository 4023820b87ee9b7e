// What happens when other fields are changed while a user sets a first password.

#include "session/FormFixture.h"
#include "support/Attacks.h"
#include "support/HeardBoxes.h"

#include <QLineEdit>

namespace {

using namespace vabo;
using support::kCompany;

/// Whether both values are inside the quotes of the statement and contain nothing that could end a quote.
bool isHarmless(const std::string& statement) {
    const std::string begin = "select * from AbilitazioneAccessi where  NomeUtente = '";
    const std::string between = "' and  PaswUtente = '";
    if (!statement.starts_with(begin) || !statement.ends_with('\'')) {
        return false;
    }
    std::string values = statement.substr(begin.size(), statement.size() - begin.size() - 1);
    if (const auto place = values.find(between); place != std::string::npos) {
        values.replace(place, between.size(), "_");
    }
    return values.find_first_of(" ,/\\'&@\"-+!=?^$#()[]*") == std::string::npos;
}

class AboutFormFirstPassword : public FormTest {
protected:
    AboutFormFirstPassword() {
        before = users();
        show();
    }
    void show() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    Rows users() const { return workstation.rows(kCompany, "select * from AbilitazioneAccessi order by idautonumber"); }
    std::string passwordOf(const std::string& user) const {
        return workstation.value(kCompany,
                                 "select PaswUtente from AbilitazioneAccessi where NomeUtente = '" + user + "'");
    }
    std::string number() const {
        return workstation.value(kCompany,
                                 "select idautonumber from AbilitazioneAccessi where NomeUtente = 'nuovo_utente'");
    }
    /// Pastes a text; the field cuts it at its length.
    void paste(const char* name, const std::string& text) {
        auto& field = gui.find<QLineEdit>("About", name);
        field.clear();
        field.insert(QString::fromStdString(text));
    }
    void enter(const char* field, const std::string& text) {
        gui.find("About", field).setFocus();
        paste(field, text);
        gui.press(Qt::Key_Return);
    }
    /// Goes to the first entry of the new user's password. After two entries that differ the form is there already.
    void begin() {
        TentativiLogin = 0;
        if (!gui.find("About", "txtPassword1").isVisible()) {
            enter("txtUserName", "nuovo_utente");
            enter("txtPassword", "");
        }
        ASSERT_EQ(gui.focus(), "About.txtPassword1");
    }
    void expectNobodyIn(const std::string& attack) {
        ASSERT_EQ(gui.visibleForms(), "About") << testing::PrintToString(attack.substr(0, 60));
        ASSERT_EQ(users(), before) << testing::PrintToString(attack.substr(0, 60));
    }
    void expectInAsTheNewUser(const std::string& password) {
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_EQ(DirittiUtente, (Diritti{.A_Inserisci = kVero}));
        EXPECT_EQ(passwordOf("nuovo_utente"), password);
        workstation.run(kCompany, "update AbilitazioneAccessi set PaswUtente = null where NomeUtente = 'nuovo_utente'");
        EXPECT_EQ(users(), before) << "no other row";
    }
    /// Expects that no statement contains the text as typed.
    static void expectHarmless(const support::StatementRecorder& recorder) {
        for (const std::string& text : recorder.holding("AbilitazioneAccessi")) {
            EXPECT_TRUE(isHarmless(text)) << text;
        }
    }

    support::HeardBoxes boxes;
    Rows before;
};

TEST_F(AboutFormFirstPassword, ANameChangedBehindItsEnterIsNormalisedAtTheEmptyPassword) {
    const support::StatementRecorder recorder;
    for (const std::string& attack : support::attacks()) {
        TentativiLogin = 0;
        enter("txtUserName", "nuovo_utente");
        paste("txtUserName", attack);
        enter("txtPassword", "");
        expectNobodyIn(attack);
    }
    expectHarmless(recorder);
}

TEST_F(AboutFormFirstPassword, ANameChangedAtEachStepIsNormalisedWhereTheTwoEntriesDiffer) {
    const support::StatementRecorder recorder;
    for (const std::string& attack : support::attacks()) {
        begin();
        paste("txtUserName", attack);
        enter("txtPassword1", "sole");
        paste("txtUserName", attack);
        enter("txtPassword", "luna");
        expectNobodyIn(attack);
        EXPECT_EQ(gui.text("About", "PswLabels_0"), "Password :");
    }
    expectHarmless(recorder);
}

TEST_F(AboutFormFirstPassword, AnAttackAsEitherEntryIsNoStatement) {
    const support::StatementRecorder recorder;
    for (const std::string& attack : support::attacks()) {
        begin();
        enter("txtPassword1", attack);
        enter("txtPassword", "luna");
        expectNobodyIn(attack);
        begin();
        enter("txtPassword1", "sole");
        enter("txtPassword", attack);
        expectNobodyIn(attack);
    }
    expectHarmless(recorder);
}

TEST_F(AboutFormFirstPassword, ANameChangedAtEachStepNeitherGetsThePasswordNorTheRights) {
    std::vector<std::string> attacks = {"x' or Administrator=1 --", "amministratore", "contabile"};
    for (const std::string& attack : support::attacks()) {
        if (attack.size() <= 25 && attack.find('\'') != std::string::npos) {
            attacks.push_back(attack); // not cut by the field
        }
    }
    ASSERT_GT(attacks.size(), 20U);
    for (const std::string& attack : attacks) {
        begin();
        paste("txtUserName", attack);
        enter("txtPassword1", "sole");
        paste("txtUserName", attack);
        const support::StatementRecorder recorder;
        enter("txtPassword", "sole");
        expectInAsTheNewUser("sole");
        EXPECT_EQ(recorder.holding("AbilitazioneAccessi"),
                  (std::vector<std::string>{
                      "update AbilitazioneAccessi set PaswUtente = 'sole' where idautonumber =  " + number(),
                      "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, "
                      "A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita "
                      "from  AbilitazioneAccessi where  NomeUtente = 'nuovo_utente' and  PaswUtente = 'sole'"}))
            << testing::PrintToString(attack.substr(0, 60));
        gui.forms().unload("Avvio_Azienda");
        show();
    }
}

TEST_F(AboutFormFirstPassword, GoesToTheUserWhoBeganThoughAnotherIsConfirmedMeanwhile) {
    for (const char* other : {"amministratore", "contabile", "nessuno"}) {
        begin();
        enter("txtPassword1", "sole");
        enter("txtUserName", other);
        EXPECT_EQ(gui.focus(), "About.txtPassword");
        enter("txtPassword", "sole");
        expectInAsTheNewUser("sole");
        gui.forms().unload("Avvio_Azienda");
        show();
    }
}

TEST_F(AboutFormFirstPassword, AnotherUserWithoutOneGetsTheOneThatIsTypedForThatUser) {
    workstation.run(kCompany, "update AbilitazioneAccessi set PaswUtente = null where NomeUtente = 'contabile'");
    begin();
    enter("txtPassword1", "sole");
    paste("txtUserName", "contabile");
    enter("txtPassword", "luna");
    EXPECT_EQ(gui.focus(), "About.txtPassword1") << "the two differ: the name in the field begins anew";
    enter("txtPassword1", "luna");
    enter("txtPassword", "luna");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(passwordOf("contabile"), "luna");
    EXPECT_EQ(passwordOf("nuovo_utente"), "NULL");
    EXPECT_EQ(DirittiUtente.A_Iva, kVero);
}

} // namespace
