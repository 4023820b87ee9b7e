#pragma once

#include "RegistraFixture.h"
#include "session/FormFixture.h"
#include "session/TreatForms.h"

#include <QComboBox>
#include <QLineEdit>

namespace vabo {

inline constexpr const char* kForm = "FormRegistraAziendeNeiDns";

/// The form with the first sample company. The form below it on the stack is an empty one, unless a test adds the
/// console.
class RegistraForm : public ConFonti<FormTest> {
protected:
    RegistraForm() {
        NomeTerminale = support::kTerminalName;
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
        AzzeraPilaForm();
    }
    void apri() {
        ApriForm(kForm, true);
        gui.waitForFront(kForm);
        fonti.forget();
    }
    QLineEdit& campo(const std::string& nome) const { return gui.find<QLineEdit>(kForm, nome); }
    QComboBox& elenco(const std::string& nome) const { return gui.find<QComboBox>(kForm, nome); }
    std::string testo(const std::string& nome) const {
        const auto* combo = dynamic_cast<QComboBox*>(&gui.find(kForm, nome));
        return combo != nullptr ? combo->currentText().toStdString() : gui.text(kForm, nome);
    }
    std::string fuoco() const {
        const std::string tutto = gui.focus();
        const std::string prima = std::string(kForm) + ".";
        return tutto.rfind(prima, 0) == 0 ? tutto.substr(prima.size()) : tutto;
    }
    bool abilitato(const std::string& nome) const { return gui.find(kForm, nome).isEnabled(); }
    void vaiA(const std::string& nome) {
        gui.find(kForm, nome).setFocus();
        ASSERT_EQ(fuoco(), nome);
    }
    void premi(const std::string& nome, Qt::Key tasto = Qt::Key_Return) {
        vaiA(nome);
        gui.press(tasto);
    }
    void metti(const std::string& nome, const std::string& testo) {
        campo(nome).setText(QString::fromStdString(testo));
    }
    std::string indirizzo() const { return *workstation.fileText("C:\\vabo\\IndirizzoServer.txt"); }
    std::string nomeServer() const { return *workstation.fileText("C:\\vabo\\NomeServer.txt"); }
    /// Expects form and workstation as they were.
    void aspettaNienteDiFatto() {
        EXPECT_EQ(gui.visibleForms(), kForm);
        EXPECT_EQ(indirizzo(), server + "\r\n");
        EXPECT_EQ(nomeServer(), campi().Server + "\r\n");
        EXPECT_TRUE(fonti.calls().empty());
    }
    void aspettaConsole() {
        support::Gui::handleEvents();
        EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
        EXPECT_FALSE(gui.forms().isLoaded(kForm));
        EXPECT_EQ(PilaForm, std::vector<std::string>{"Avvio_Azienda"});
    }
};

} // namespace vabo
