// Two mnemonics pressed one right after the other: the second one's click comes when the first one's command runs.

#include "controls/QtDialogs.h"
#include "locks/BlocchiForm.h"
#include "support/SomebodyElse.h"

#include <QDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace vabo {
namespace {

using libro::Libro;

class MnemonicsOfTheProject : public BlocchiForm {
protected:
    MnemonicsOfTheProject() : BlocchiForm("Scegli_progetto_4", "iddateend") {}
};

TEST_F(MnemonicsOfTheProject, AMnemonicPressedJustAheadOfTheRunDoesNotCloseTheFormUnderIt) {
    Libro righe;
    for (int id = 1; id <= 40; ++id) {
        righe.push_back({.id = id, .numero = id, .report = {}, .seziva = 1});
    }
    metti(righe);
    apri();
    prendi(kProgetto);
    digita("31/03/2024");
    int corse = 0;
    {
        const support::SomebodyElse lento([&](const std::string& inviata) {
            corse += inviata.starts_with("update progetti") ? 1 : 0;
            if (inviata.starts_with("update partitadoppia set definito = -1,")) {
                QThread::msleep(8);
            }
        });
        gui.press(Qt::Key_A, Qt::AltModifier);
        gui.press(Qt::Key_C, Qt::AltModifier);
        support::Gui::waitFor("the run", [&] { return corse > 0; });
    }
    EXPECT_EQ(gui.visibleForms(), form);
    EXPECT_EQ(valore("select count(*) from partitadoppia where definito = -1"), "40");
    aspettaVuota();
}

class MnemonicsOfTheBranch : public BlocchiForm {
protected:
    MnemonicsOfTheBranch() : BlocchiForm("Scegli_sede_Pd", "DataInizio") {
        platform::setDialogs(std::make_unique<controls::QtDialogs>());
    }
    ~MnemonicsOfTheBranch() override { platform::setDialogs(nullptr); }
};

TEST_F(MnemonicsOfTheBranch, AMnemonicPressedJustAheadOfTheQuestionDoesNotCloseTheFormUnderIt) {
    apri();
    prendi(kSede);
    int sguardi = 0;
    bool risposto = false;
    QTimer utente;
    QObject::connect(&utente, &QTimer::timeout, &utente, [&] {
        constexpr int kOltreIlClic = 6;
        const QWidget* domanda = QApplication::activeModalWidget();
        if (domanda != nullptr && ++sguardi >= kOltreIlClic) {
            EXPECT_EQ(gui.visibleForms(), form);
            risposto = true;
            domanda->findChildren<QPushButton*>().last()->click();
        }
    });
    utente.start(50);
    gui.press(Qt::Key_B, Qt::AltModifier);
    gui.press(Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the answer", [&] { return risposto; });
    EXPECT_EQ(gui.visibleForms(), form);
    EXPECT_EQ(testo(), "31/03/2024");
}

} // namespace
} // namespace vabo
