#pragma once

#include "CondizioniAperte.h"
#include "app/Forms.h"
#include "controls/DataControl.h"
#include "controls/TextBox.h"
#include "support/FormPage.h"
#include "support/SomebodyElse.h"

#include <QTest>

namespace vabo {

inline constexpr const char* kCondizioni = "CondizioniPagamento";
inline constexpr const char* kDecorrenze = "CondizioniPagamentoDecorrenza";

/// One of the two forms over the first sample company. What it comes back to is a bare form.
class FormAperto : public CondizioniAperte {
protected:
    explicit FormAperto(const char* form) : form(form), pagina(gui, form) {
        NomeTerminale = support::kTerminalName;
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }

    void apri() {
        PilaForm = {"Avvio_Azienda", form};
        CimaForm = 1;
        pagina.show();
        support::Gui::handleEvents(); // the form becomes active once more where the one below was in front meanwhile
    }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    std::string fuoco() const { return pagina.focus(); }
    controls::TextBox& campo(const std::string& nome) const { return pagina.control<controls::TextBox>(nome); }
    controls::DataGrid& griglia() const { return pagina.grid("DataGrid1"); }
    int righe() const { return pagina.rows("DataGrid1"); }

    void vaiA(const std::string& nome) const {
        pagina.control(nome).setFocus();
        support::Gui::handleEvents();
    }
    void scrivi(const std::string& nome, const std::string& valore) const {
        vaiA(nome);
        campo(nome).setText(valore);
    }
    void invio() const { gui.press(Qt::Key_Return); }
    /// With the keyboard: the row with that key, from wherever the grid stands.
    void scegli(int chiave) const {
        griglia().selectRow(rigaDi(chiave));
        vaiA("DataGrid1");
        gui.press(Qt::Key_Space);
    }
    /// With the mouse.
    void clicca(int chiave) const {
        const QModelIndex cella = griglia().model()->index(rigaDi(chiave), 1);
        griglia().scrollTo(cella);
        QTest::mouseClick(griglia().viewport(), Qt::LeftButton, {}, griglia().visualRect(cella).center());
        support::Gui::handleEvents();
    }
    int rigaDi(int chiave) const {
        for (int riga = 0; riga < righe(); ++riga) {
            if (pagina.cell("DataGrid1", riga, 0) == std::to_string(chiave)) {
                return riga;
            }
        }
        throw std::runtime_error("no row " + std::to_string(chiave));
    }

    const char* form;
    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina;
};

/// The form of the payment terms.
class FormCondizioni : public FormAperto {
protected:
    FormCondizioni() : FormAperto(kCondizioni) {}

    /// The names of the twelve fields.
    static std::string scadenza(int numero) { return "Scadenza" + std::to_string(numero); }
    /// The twelve fields in a row, each behind a bar.
    std::string scadenze() const {
        std::string testi;
        for (int i = 1; i <= 12; ++i) {
            testi += "|" + testo(scadenza(i));
        }
        return testi;
    }
    /// Those that are filled must stand ahead of those that aren't.
    std::string filtrate() const {
        QString testi = QString::fromStdString(scadenze());
        while (testi.endsWith('|')) {
            testi.chop(1);
        }
        return testi.toStdString();
    }
    std::string decorrenza() const { return pagina.combo("IDDecorrenza").Text(); }
    std::string tipo() const { return pagina.combo("IdTipoRimessa").Text(); }
    /// Rule, advance, instalments, kind, number of instalments and name, as they stand on the screen.
    Riga campi() const {
        return {decorrenza(), testo("RataAnticipo"), filtrate(), tipo(), testo("NRrate"), testo("Descrizione")};
    }
    /// As a user enters a term, up to the name, which has the focus then.
    void componi(const std::string& regola, const std::string& anticipo, const Riga& scadenze,
                 const std::string& tipo) const {
        pagina.pick("IDDecorrenza", regola);
        gui.type(anticipo);
        invio();
        for (const std::string& giorni : scadenze) {
            gui.type(giorni);
            invio();
        }
        if (scadenze.size() < 12) {
            invio();
        }
        pagina.pick("IdTipoRimessa", tipo);
    }
};

/// The form of the commencement rules.
class FormDecorrenze : public FormAperto {
protected:
    FormDecorrenze() : FormAperto(kDecorrenze) {}

    static constexpr const char* kCampi[] = {"GiornoScadenza", "GiornoScadenza1", "GiornoScadenza2", "GiornoScadenza3",
                                             "Mese1",          "Mese2",           "Mese3",           "Descrizione"};
    /// Four days, three months and the name, as they stand on the screen.
    Riga campi() const {
        Riga testi;
        for (const char* nome : kCampi) {
            testi.push_back(testo(nome));
        }
        return testi;
    }
    /// As a user enters a rule, up to the name, which has the focus then.
    void componi(const Riga& giorniEMesi) const {
        vaiA("GiornoScadenza");
        for (const std::string& valore : giorniEMesi) {
            gui.type(valore);
            invio();
        }
    }
};

inline const Riga kVuota = {"Seleziona", "0,00", "", "Seleziona", "", ""};
inline const Riga kRegolaVuota = {"", "", "", "", "", "", "", ""};

} // namespace vabo
