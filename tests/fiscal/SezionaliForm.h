#pragma once

#include "app/Forms.h"
#include "controls/DataControl.h"
#include "controls/ItemCombo.h"
#include "controls/TextBox.h"
#include "fiscal/SezionaliAperti.h"
#include "support/FormPage.h"

#include <QAbstractItemView>
#include <QTest>

namespace vabo {

/// The form of the VAT sections with the first sample company. The form below it on the stack is an empty one.
class SezionaliForm : public SezionaliAperti {
protected:
    SezionaliForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }

    void apri() {
        PilaForm = {"Avvio_Azienda", "I_Iva_sezionali"};
        CimaForm = 1;
        pagina.show();
    }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    std::string fuoco() const { return pagina.focus(); }
    /// Description, area and number, as they stand on the screen.
    Riga campi() const { return {testo("Descrizione"), testo("AreaAttività"), testo("NSezionale")}; }
    std::string liquidazione() const { return pagina.control<controls::ItemCombo>("Combo2").Text(); }
    controls::DataGrid& griglia() const { return pagina.grid("DataGrid1"); }
    int righe() const { return pagina.rows("DataGrid1"); }
    /// The key in the row on which the grid is.
    std::string corrente() const { return pagina.currentRow("DataGrid1"); }

    void vaiA(const std::string& nome) const {
        pagina.control(nome).setFocus();
        support::Gui::handleEvents();
    }
    void premi(const std::string& bottone) const { gui.click("I_Iva_sezionali", bottone); }
    /// Description, area and number by keyboard; the last field isn't ended.
    void scrivi(const std::string& descrizione, const std::string& area, const std::string& numero) const {
        vaiA("Descrizione");
        gui.type(descrizione);
        gui.press(Qt::Key_Return);
        gui.type(area);
        gui.press(Qt::Key_Return);
        gui.type(numero);
    }
    /// The row of that key, by keyboard.
    void scegli(const std::string& chiave) const {
        for (int riga = 0; riga < righe(); ++riga) {
            if (pagina.cell("DataGrid1", riga, 0) == chiave) {
                vaiA("DataGrid1");
                griglia().selectRow(riga);
                gui.press(Qt::Key_Space);
                return;
            }
        }
        ADD_FAILURE() << "no row " << chiave;
    }
    /// By keyboard.
    void scegliLiquidazione(int posto) const {
        auto& combo = pagina.control<controls::ItemCombo>("Combo2");
        vaiA("Combo2");
        QTest::keyClick(&combo, Qt::Key_Down);
        support::Gui::waitFor("the list", [&] { return combo.view()->isVisible(); });
        QTest::keyClick(combo.view(), Qt::Key_Home);
        for (int i = 0; i < posto; ++i) {
            QTest::keyClick(combo.view(), Qt::Key_Down);
        }
        QTest::keyClick(combo.view(), Qt::Key_Return);
        support::Gui::handleEvents();
    }

    mutable support::Gui gui;
    support::FormPage pagina{gui, "I_Iva_sezionali"};
};

} // namespace vabo
