#pragma once

#include "app/Forms.h"
#include "controls/CheckBox.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "session/TreatForms.h"
#include "support/Gui.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace vabo {

/// The general tables console over the first sample company. What it comes back to is a bare form.
class MorlanForm : public AziendaAperta {
protected:
    MorlanForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        CimaForm = 1;
    }
    void apri() {
        gui.forms().show("Avvio_Morlan");
        gui.waitForFront("Avvio_Morlan");
    }
    void riapri() {
        gui.forms().unload("Avvio_Morlan");
        support::Gui::handleEvents();
        CimaForm = 1;
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        apri();
    }

    template<typename Control>
    Control& controllo(const std::string& nome) const {
        return gui.find<Control>("Avvio_Morlan", nome);
    }
    std::string testo(const std::string& nome) const { return gui.text("Avvio_Morlan", nome); }
    bool visibile(const std::string& nome) const {
        QWidget& widget = gui.find("Avvio_Morlan", nome);
        return widget.isVisibleTo(widget.parentWidget());
    }
    void scheda(int numero) {
        controllo<QTabWidget>("SSTab1").setCurrentIndex(numero);
        support::Gui::handleEvents();
    }
    int casella(const std::string& nome) const { return controllo<controls::CheckBox>(nome).Value(); }
    /// The boxes that are ticked, one blank between them.
    std::string spuntate() const {
        std::string nomi;
        for (const auto* box : gui.form("Avvio_Morlan").findChildren<controls::CheckBox*>())
            if (box->Value() != 0)
                nomi += (nomi.empty() ? "" : " ") + box->objectName().toStdString();
        return nomi;
    }

    controls::DataGrid& griglia(const std::string& nome) const { return controllo<controls::DataGrid>(nome); }
    controls::DataCombo& combo(const std::string& nome) const { return controllo<controls::DataCombo>(nome); }
    std::string cella(const std::string& nome, int riga, int colonna) const {
        return griglia(nome).model()->index(riga, colonna).data().toString().toStdString();
    }
    int righe(const std::string& nome) const { return griglia(nome).model()->rowCount(); }
    /// The row of the grid whose first column holds that id, chosen with Enter.
    void scegli(const std::string& nome, const std::string& id) {
        griglia(nome).setFocus();
        for (int riga = 0; riga < righe(nome); ++riga) {
            if (cella(nome, riga, 0) == id) {
                griglia(nome).selectRow(riga);
                gui.press(Qt::Key_Return);
                return;
            }
        }
        ADD_FAILURE() << nome << " has no row " << id;
    }
    /// Key of the row on which the grid stands, empty where it stands on none.
    std::string rigaCorrente(const std::string& nome) const {
        const QModelIndex indice = griglia(nome).currentIndex();
        return indice.isValid() ? cella(nome, indice.row(), 0) : std::string();
    }
    void prendi(const std::string& nome, const std::string& conto) {
        gui.pick("Avvio_Morlan", nome, conto);
        tornaDavanti();
    }
    /// Types into a picker and leaves the list of what was found.
    void digita(const std::string& nome, const std::string& lettere) {
        gui.type(lettere);
        combo(nome).completer()->popup()->hide();
        tornaDavanti();
    }
    /// The platform without a screen doesn't give the front back to the form when a list closes.
    void tornaDavanti() {
        gui.form("Avvio_Morlan").activateWindow();
        gui.waitForFront("Avvio_Morlan");
    }
    /// Types into a picker; what was found stays open.
    QAbstractItemView& cerca(const std::string& nome, const std::string& lettere) {
        gui.type(lettere);
        QAbstractItemView* trovati = combo(nome).completer()->popup();
        support::Gui::waitFor("the search", [trovati] { return trovati->isVisible(); });
        return *trovati;
    }
    bool inVista(const std::string& nome) const {
        const controls::DataGrid& vista = griglia(nome);
        return vista.viewport()->rect().contains(vista.visualRect(vista.currentIndex()));
    }
    std::string fuoco() const {
        const std::string dove = gui.focus();
        return dove.substr(dove.find('.') + 1);
    }
    /// Both columns that point a row to its account.
    Riga conto(const std::string& tabella, const std::string& chiave, int id) const {
        return riga("select idconto, idconto1 from " + tabella + " where " + chiave + " = " + std::to_string(id));
    }

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
};

} // namespace vabo
