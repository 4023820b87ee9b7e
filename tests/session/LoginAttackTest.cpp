#include "ado/Error.h"
#include "rights/AbilitazioneUtente.h"
#include "session/ApriAzienda.h"
#include "session/RegoleLogin.h"
#include "session/SessionFixture.h"
#include "support/Attacks.h"
#include "support/TestedDriver.h"

#include <optional>

namespace {

using namespace vabo;
using support::kCompany;

class LoginAttack : public SessionTest {
protected:
    LoginAttack() {
        double id = idOf(kCompany);
        ApriAzienda(id);
        before = users();
        tablesBefore = tables();
    }
    Rows users() const { return workstation.rows(kCompany, "select * from AbilitazioneAccessi order by idautonumber"); }
    std::string tables() const { return workstation.value(kCompany, "select count(*) from sysobjects"); }

    /// The result of the login with these two fields; nothing where the database refused the statement.
    std::optional<EsitoLogin> outcome(const std::string& user, const std::string& password) {
        double newUser = 0;
        try {
            return ControllaLogin(Normalizzato(user), Normalizzato(password), newUser);
        } catch (const ado::Error&) {
            return std::nullopt;
        }
    }
    void expectOutside(const std::string& user, const std::string& password) {
        const auto got = outcome(user, password);
        EXPECT_TRUE(!got || *got == EsitoLogin::Rifiutato)
            << "user " << testing::PrintToString(user.substr(0, 80)) << ", password "
            << testing::PrintToString(password.substr(0, 80));
    }
    void expectNothingDamaged() const {
        EXPECT_EQ(users(), before);
        EXPECT_EQ(tables(), tablesBefore);
        EXPECT_EQ(DirittiUtente, Diritti{});
    }

    Rows before;
    std::string tablesBefore;
};

TEST_F(LoginAttack, ThereAreEnoughOfThem) {
    EXPECT_GE(support::attacks().size(), 200U);
}

TEST_F(LoginAttack, NoneGetsInByTheName) {
    for (const std::string& attack : support::attacks()) {
        expectOutside(attack, "primaver");
        expectOutside(attack, "");
    }
    expectNothingDamaged();
}

TEST_F(LoginAttack, NoneGetsInByThePassword) {
    for (const std::string& attack : support::attacks()) {
        expectOutside("amministratore", attack);
    }
    expectNothingDamaged();
}

TEST_F(LoginAttack, NoneGetsInByBothFields) {
    for (const std::string& attack : support::attacks()) {
        expectOutside(attack, attack);
    }
    expectNothingDamaged();
}

TEST_F(LoginAttack, NoneLoadsRights) {
    for (const std::string& attack : support::attacks()) {
        const std::string text = Normalizzato(attack);
        if (!support::capabilities().nulInTexts && text.find('\0') != std::string::npos) {
            EXPECT_THROW(CaricaAbilitazione("amministratore", text), ado::Error);
            continue;
        }
        script.expectMessage("Utente non abilitato! ");
        TentativiLogin = 0;
        try {
            CaricaAbilitazione("amministratore", text);
        } catch (const ado::Error& error) {
            ADD_FAILURE() << error.description() << " for " << testing::PrintToString(text.substr(0, 80));
        }
    }
    expectNothingDamaged();
}

TEST_F(LoginAttack, AsAFirstPasswordItTouchesNoOtherRow) {
    const std::string others = "select * from AbilitazioneAccessi where NomeUtente <> 'nuovo_utente'";
    const Rows untouched = workstation.rows(kCompany, others);
    const double number = std::stod(
        workstation.value(kCompany, "select idautonumber from AbilitazioneAccessi where NomeUtente = 'nuovo_utente'"));
    for (const std::string& attack : support::attacks()) {
        double user = number;
        try {
            SalvaPrimaPassword(user, Normalizzato(attack));
        } catch (const ado::Error&) {
            EXPECT_EQ(user, number);
        }
    }
    EXPECT_EQ(workstation.rows(kCompany, others), untouched);
    EXPECT_EQ(tables(), tablesBefore);
}

} // namespace
