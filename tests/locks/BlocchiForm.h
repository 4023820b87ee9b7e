#pragma once

#include "app/Forms.h"
#include "controls/ItemCombo.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "locks/LibroAperto.h"
#include "session/TreatForms.h"
#include "support/FormPage.h"
#include "support/SomebodyElse.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <functional>
#include <utility>

namespace vabo {

/// One of the two locks over the first sample company, opened from a bare form that stands for the console.
class BlocchiForm : public LibroAperto {
protected:
    BlocchiForm(const char* form, const char* campo) : form(form), campo(campo), pagina(gui, form) {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Morlan", [] { return std::make_unique<controls::Form>("Avvio_Morlan"); });
        AzzeraPilaForm();
        ApriForm("Avvio_Morlan", true);
    }
    void apri() {
        ApriDa("Avvio_Morlan", form);
        gui.waitForFront(form);
    }

    controls::ItemCombo& elenco() const { return pagina.control<controls::ItemCombo>("Combo1"); }
    controls::ProgressBar& barra() const { return pagina.control<controls::ProgressBar>("ProgressBar1"); }
    controls::TextBox& data() const { return pagina.control<controls::TextBox>(campo); }
    std::string testo() const { return data().Text(); }
    bool tuttoScelto() const { return data().selectedText() == data().text(); }
    std::string fuoco() const { return pagina.focus(); }
    std::vector<std::string> voci() const {
        std::vector<std::string> tutte;
        for (int i = 0; i < elenco().count(); ++i) {
            tutte.push_back(elenco().itemText(i).toStdString());
        }
        return tutte;
    }
    /// Takes the item of that number with the keys, as a user does.
    void prendi(int numero) {
        elenco().setFocus();
        QTest::keyClick(&elenco(), Qt::Key_Down);
        support::Gui::waitFor("the list", [this] { return elenco().view()->isVisible(); });
        const int riga = elenco().findData(numero);
        ASSERT_GE(riga, 0) << numero;
        QTest::keyClick(elenco().view(), Qt::Key_Home);
        for (int i = 0; i < riga; ++i) {
            QTest::keyClick(elenco().view(), Qt::Key_Down);
        }
        QTest::keyClick(elenco().view(), Qt::Key_Return);
        pagina.comeToFront();
    }
    void digita(const std::string& testo) {
        data().setFocus();
        data().selectAll();
        if (testo.empty()) {
            gui.press(Qt::Key_Delete);
        } else {
            gui.type(testo);
        }
    }
    void premi(const char* comando) { gui.click(form, comando); }
    /// What an impatient user does while a lock runs: clicks both buttons, closes the window, turns to the list.
    void insisti() {
        for (const char* nome : {"Command1", "Command4"}) {
            QWidget& comando = pagina.control(nome);
            for (const QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QCoreApplication::postEvent(
                    &comando,
                    new QMouseEvent(tipo, comando.rect().center(), QCursor::pos(), Qt::LeftButton,
                                    tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
            }
        }
        gui.form(form).close();
        QCoreApplication::postEvent(&elenco(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
    }
    /// As at its opening.
    void aspettaVuota() const {
        EXPECT_EQ(elenco().ListIndex(), -1);
        EXPECT_EQ(elenco().Text(), "Seleziona");
        EXPECT_EQ(testo(), "");
        EXPECT_FALSE(barra().isVisible());
        EXPECT_TRUE(gui.form(form).isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        for (int posto = 1; posto <= RecordsetCondivisi::kNumero; ++posto) {
            EXPECT_FALSE(RsCondivisi(posto).IsOpen()) << posto;
        }
    }

    const char* form;
    const char* campo;
    mutable support::Gui gui;
    support::FormPage pagina;
};

/// How often something is drawn; told at each time.
class Disegni : public QObject {
public:
    explicit Disegni(QWidget& widget, std::function<void(int)> ogniVolta = {}) : ogniVolta_(std::move(ogniVolta)) {
        widget.installEventFilter(this);
    }
    int volte = 0;

private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++volte;
            if (ogniVolta_) {
                ogniVolta_(volte);
            }
        }
        return false;
    }
    std::function<void(int)> ogniVolta_;
};

} // namespace vabo
