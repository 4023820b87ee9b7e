#include "rights/AbilitazioneUtente.h"
#include "session/FormFixture.h"
#include "support/Attacks.h"
#include "support/HeardBoxes.h"

#include <QApplication>
#include <QLineEdit>

namespace {

using namespace vabo;

/// The login form, where any boxes may come.
class AboutFormAttack : public FormTest {
protected:
    AboutFormAttack() {
        before = users();
        show();
    }
    void show() {
        gui.forms().show("About");
        gui.waitForFront("About");
    }
    Rows users() const {
        return workstation.rows(support::kCompany, "select * from AbilitazioneAccessi order by idautonumber");
    }
    /// Types the text as far as the field's length, and pastes the rest.
    void put(const std::string& text) {
        constexpr std::size_t kTyped = 60;
        gui.type(text.substr(0, kTyped));
        if (auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget()); field != nullptr) {
            field->insert(QString::fromStdString(text.substr(std::min(text.size(), kTyped))));
        }
        gui.press(Qt::Key_Return);
    }
    void attack(const std::string& user, const std::string& password) {
        TentativiLogin = 0;
        gui.find<QLineEdit>("About", "txtUserName").setFocus();
        put(user);
        if (gui.focus() == "About.txtPassword") {
            put(password);
        }
        EXPECT_EQ(gui.visibleForms(), "About")
            << testing::PrintToString(user.substr(0, 60)) << " / " << testing::PrintToString(password.substr(0, 60));
    }

    support::HeardBoxes boxes;
    Rows before;
};

TEST_F(AboutFormAttack, NoneGetsInByTheName) {
    for (const std::string& text : support::attacks()) {
        attack(text, "primaver");
    }
    EXPECT_EQ(users(), before);
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
}

TEST_F(AboutFormAttack, NoneGetsInByThePassword) {
    for (const std::string& text : support::attacks()) {
        attack("amministratore", text);
    }
    EXPECT_EQ(users(), before);
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
}

TEST_F(AboutFormAttack, NoneGetsInByBothFields) {
    for (const std::string& text : support::attacks()) {
        attack(text, text);
    }
    EXPECT_EQ(users(), before);
    EXPECT_EQ(DirittiUtente, kDirittiPrimaDelLogin);
}

} // namespace
