#pragma once

#include "app/Forms.h"
#include "controls/CheckBox.h"
#include "controls/DataCombo.h"
#include "controls/DataGrid.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "session/TreatForms.h"
#include "support/FormPage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace vabo {

/// The general tables console with the first sample company. The form below it on the stack is an empty one.
class MorlanForm : public AziendaAperta {
protected:
    MorlanForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        CimaForm = 1;
    }
    void apri() { pagina.show(); }
    void riapri() {
        gui.forms().unload("Avvio_Morlan");
        support::Gui::handleEvents();
        CimaForm = 1;
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        apri();
    }

    template<typename Control>
    Control& controllo(const std::string& nome) const {
        return pagina.control<Control>(nome);
    }
    controls::DataGrid& griglia(const std::string& nome) const { return pagina.grid(nome); }
    controls::DataCombo& combo(const std::string& nome) const { return pagina.combo(nome); }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    bool visibile(const std::string& nome) const { return pagina.isShown(nome); }
    void scheda(int numero) const { pagina.turnTo("SSTab1", numero); }
    int casella(const std::string& nome) const { return pagina.box(nome); }
    std::string spuntate() const { return pagina.tickedBoxes(); }
    std::string fuoco() const { return pagina.focus(); }
    std::string cella(const std::string& nome, int riga, int colonna) const { return pagina.cell(nome, riga, colonna); }
    int righe(const std::string& nome) const { return pagina.rows(nome); }
    std::string rigaCorrente(const std::string& nome) const { return pagina.currentRow(nome); }
    bool inVista(const std::string& nome) const { return pagina.currentRowIsInSight(nome); }
    void scegli(const std::string& nome, const std::string& id) const { pagina.choose(nome, id); }
    void prendi(const std::string& nome, const std::string& conto) const { pagina.pick(nome, conto); }
    void digita(const std::string& nome, const std::string& lettere) const { pagina.typeWithoutPick(nome, lettere); }
    QAbstractItemView& cerca(const std::string& nome, const std::string& lettere) const {
        return pagina.search(nome, lettere);
    }
    void tornaDavanti() const { pagina.comeToFront(); }
    /// The two columns with a row's account and its group.
    Riga conto(const std::string& tabella, const std::string& chiave, int id) const {
        return riga("select idconto, idconto1 from " + tabella + " where " + chiave + " = " + std::to_string(id));
    }

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina{gui, "Avvio_Morlan"};
};

} // namespace vabo
