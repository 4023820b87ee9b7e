#pragma once

#include "app/Forms.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "support/FormPage.h"

#include <QApplication>
#include <QTest>

namespace vabo {

/// The form of states over the first sample company. What it comes back to is a bare form.
class StatiForm : public AziendaAperta {
protected:
    StatiForm() {
        ado::setToday(ado::Date::of(2026, 6, 30));
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }
    ~StatiForm() override { ado::setToday({}); }

    void apri() {
        PilaForm = {"Avvio_Azienda", "stati"};
        CimaForm = 1;
        pagina.show();
    }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    std::string area() const { return pagina.combo("DataCombo1").Text(); }
    std::string fuoco() const { return pagina.focus(); }
    /// Name, area, both dates and currency, as they stand on the screen.
    Riga campi() const {
        return {testo("DescStato"), area(), testo("DataIstituzioneStato"), testo("DataSoppressioneStato"),
                testo("IsoValuta")};
    }
    void vaiA(const std::string& nome) const {
        pagina.control(nome).setFocus();
        support::Gui::handleEvents();
    }
    /// By the name, from wherever the focus is: leaving the currency or the date of end leads elsewhere.
    void ripartiDa(const std::string& nome) const {
        for (const char* tappa : {"DescStato", "DescStato", nome.c_str()}) {
            vaiA(tappa);
        }
    }
    /// Enter, to the search of areas where it is open.
    void invio() const {
        QWidget* trovati = QApplication::activePopupWidget();
        if (trovati != nullptr) {
            QTest::keyClick(trovati, Qt::Key_Return);
        }
        pagina.comeToFront();
        if (trovati == nullptr) {
            gui.press(Qt::Key_Return);
        }
    }
    /// From the name on, as the keyboard enters a state, up to the Enter that leaves the currency.
    void scrivi(const Riga& valori) const {
        vaiA("DescStato");
        for (const std::string& valore : valori) {
            gui.type(valore);
            invio();
        }
    }
    /// With the keyboard, from whatever row the grid stands on.
    void scegli(const std::string& nome) const {
        controls::DataGrid& griglia = pagina.grid("DataGrid1");
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            if (pagina.cell("DataGrid1", riga, 1) == nome) {
                vaiA("DataGrid1");
                griglia.selectRow(riga);
                gui.press(Qt::Key_Space);
                return;
            }
        }
        ADD_FAILURE() << "no row " << nome;
    }
    /// With the mouse.
    void clicca(const std::string& nome) const {
        controls::DataGrid& griglia = pagina.grid("DataGrid1");
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            if (pagina.cell("DataGrid1", riga, 1) == nome) {
                const QModelIndex cella = griglia.model()->index(riga, 1);
                griglia.scrollTo(cella);
                QTest::mouseClick(griglia.viewport(), Qt::LeftButton, Qt::NoModifier,
                                  griglia.visualRect(cella).center());
                return;
            }
        }
        ADD_FAILURE() << "no row " << nome;
    }
    /// The name in the row on which the grid stands.
    std::string corrente() const {
        const QModelIndex qui = pagina.grid("DataGrid1").currentIndex();
        return qui.isValid() ? pagina.cell("DataGrid1", qui.row(), 1) : std::string();
    }

    /// Name, both dates, currency and area, as they stand in the table.
    Riga stato(const std::string& nome) const {
        return riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta, Area from stati where "
                    "DescStato = '" +
                    nome + "'");
    }
    int quanti(const std::string& tabella) const { return std::stoi(valore("select count(*) from " + tabella)); }

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina{gui, "stati"};
};

inline const Riga kCampiVuoti = {"Seleziona", "Seleziona", "", "", ""};

} // namespace vabo
