// From the company console to the payment terms and their rules and back, by keyboard.

#include "controls/DataControl.h"
#include "session/FormFixture.h"
#include "support/FormPage.h"

#include <QLineEdit>
#include <QTest>

namespace vabo {
namespace {

constexpr const char* kConsole = "Avvio_Azienda";
constexpr const char* kAzienda = "frmDatiAzienda";
constexpr const char* kCondizioni = "CondizioniPagamento";
constexpr const char* kDecorrenze = "CondizioniPagamentoDecorrenza";

class DallaConsole : public FormTest {
protected:
    DallaConsole() { NomeTerminale = support::kTerminalName; }

    void inFronte(const std::string& form) const {
        gui.waitForFront(form);
        EXPECT_EQ(gui.visibleForms(), form);
    }
    void apriAzienda() {
        gui.forms().show(kConsole);
        gui.waitForFront(kConsole);
        tabFinoA("Avvio_Azienda.Command1");
        gui.press(Qt::Key_Return);
        inFronte(kAzienda);
    }
    void tabFinoA(const std::string& meta) {
        for (int i = 0; i < 30 && gui.focus() != meta; ++i) {
            gui.press(Qt::Key_Tab);
        }
        ASSERT_EQ(gui.focus(), meta);
    }
    void ctrlInvio() { gui.press(Qt::Key_Return, Qt::ControlModifier); }
    void alt(const char* form, Qt::Key lettera, const char* poi) const {
        QTest::keyClick(gui.form(form).windowHandle(), lettera, Qt::AltModifier);
        support::Gui::waitFor(poi, [this, poi] { return gui.visibleForms() == poi; });
        gui.waitForFront(poi);
    }
    void cerca(const char* form, const char* combo, const char* lettere) {
        const support::FormPage pagina(gui, form);
        QTest::keyClick(&pagina.search(combo, lettere), Qt::Key_Return); // takes the only one found
        pagina.comeToFront();
    }
    std::string testo(const char* combo) const { return gui.find<controls::DataCombo>(kAzienda, combo).Text(); }
    std::string valore(const std::string& sql) const { return workstation.value(support::kCompany, sql); }
    void esegui(const std::string& sql) const { workstation.run(support::kCompany, sql); }
};

TEST_F(DallaConsole, ATermWithARuleOfItsOwnIsMadeAndChosenByKeyboardAlone) {
    apriAzienda();
    tabFinoA("frmDatiAzienda.DCPagamento1");
    ctrlInvio();
    inFronte(kCondizioni);
    ASSERT_EQ(gui.focus(), "CondizioniPagamento.IDDecorrenza");
    ctrlInvio();
    inFronte(kDecorrenze);
    gui.type("17");
    tabFinoA("CondizioniPagamentoDecorrenza.Descrizione");
    gui.type("Diciassette");
    gui.press(Qt::Key_Return);
    alt(kDecorrenze, Qt::Key_C, kCondizioni);
    cerca(kCondizioni, "IDDecorrenza", "diciass");
    gui.press(Qt::Key_Return);
    gui.type("45");
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Return);
    cerca(kCondizioni, "IdTipoRimessa", "assegno");
    gui.press(Qt::Key_Return);
    alt(kCondizioni, Qt::Key_C, kAzienda);
    EXPECT_EQ(gui.focus(), "frmDatiAzienda.DCPagamento1");
    cerca(kAzienda, "DCPagamento1", "diciass");
    EXPECT_EQ(testo("DCPagamento1"), "Assegno a 45 Diciassette");
    alt(kAzienda, Qt::Key_S, kConsole);
    EXPECT_EQ(valore("select IdIncasso from DatiAzienda"), valore("select max(IDPagamento) from CondizioniPagamento"));
    EXPECT_EQ(PilaForm, std::vector<std::string>{kConsole});
}

TEST_F(DallaConsole, WhatWasChangedAmongTheTermsIsSeenOnTheWayBackAndTheFieldsStay) {
    esegui("update DatiAzienda set IDPagamento = 3, IdIncasso = 9");
    for (const char* combo : {"DCPagamento1", "DCPagamento2"}) {
        esegui("update CondizioniPagamento set Descrizione = 'Prima' where IDPagamento in (3, 9)");
        apriAzienda();
        gui.find<QLineEdit>(kAzienda, "Web").setText("non registrato");
        tabFinoA(std::string("frmDatiAzienda.") + combo);
        EXPECT_EQ(testo("DCPagamento1"), "Prima");
        ctrlInvio();
        inFronte(kCondizioni);
        esegui("update CondizioniPagamento set Descrizione = 'Terza' where IDPagamento = 3");
        esegui("update CondizioniPagamento set Descrizione = 'Nona' where IDPagamento = 9");
        alt(kCondizioni, Qt::Key_C, kAzienda);
        EXPECT_EQ(testo("DCPagamento1"), "Nona");
        EXPECT_EQ(testo("DCPagamento2"), "Terza");
        EXPECT_GE(gui.find<controls::DataCombo>(kAzienda, "DCPagamento1").findText("Terza"), 0);
        EXPECT_GE(gui.find<controls::DataCombo>(kAzienda, "DCPagamento2").findText("Nona"), 0);
        EXPECT_EQ(gui.text(kAzienda, "Web"), "non registrato");
        alt(kAzienda, Qt::Key_C, kConsole);
    }
}

TEST_F(DallaConsole, TheTermsAreReadAgainOnlyOnTheWayBackFromThem) {
    apriAzienda();
    tabFinoA("frmDatiAzienda.DCPagamento2");
    ctrlInvio();
    inFronte(kCondizioni);
    const std::string elenco = gui.find<controls::DataControl>(kAzienda, "CondiPagamento").RecordSource;
    const support::StatementRecorder recorder;
    alt(kCondizioni, Qt::Key_C, kAzienda);
    EXPECT_EQ(recorder.count(elenco), 1);
    for (const char* form : {kConsole, kAzienda}) {
        gui.forms().show(form);
        gui.waitForFront(form);
    }
    EXPECT_EQ(recorder.count(elenco), 1);
}

TEST_F(DallaConsole, TermsThatCannotBeReadOnTheWayBackAreSkipped) {
    apriAzienda();
    tabFinoA("frmDatiAzienda.DCPagamento1");
    ctrlInvio();
    inFronte(kCondizioni);
    esegui("drop table CondizioniPagamento");
    alt(kCondizioni, Qt::Key_C, kAzienda);
    EXPECT_EQ(gui.find<controls::DataCombo>(kAzienda, "DCPagamento1").count(), 0);
}

TEST_F(DallaConsole, ADoubleClickOnEitherOpensTheTermsAndTheScreenSaysSo) {
    for (const char* combo : {"DCPagamento1", "DCPagamento2"}) {
        apriAzienda();
        auto* campo = gui.find<controls::DataCombo>(kAzienda, combo).lineEdit();
        QTest::mouseDClick(campo, Qt::LeftButton);
        support::Gui::handleEvents();
        inFronte(kCondizioni);
        alt(kCondizioni, Qt::Key_C, kAzienda);
        EXPECT_EQ(gui.text(kAzienda, "istruzioni"), "Doppio clic o Ctrl+Invio apre le condizioni di pagamento.");
        alt(kAzienda, Qt::Key_C, kConsole);
    }
}

} // namespace
} // namespace vabo
