#pragma once

#include "app/Forms.h"
#include "controls/ItemCombo.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "support/FormPage.h"

#include <QLineEdit>
#include <QTest>

#include <utility>

namespace vabo {

using Testi = std::vector<std::string>;

inline constexpr const char* kErrato = "Codice fiscale formalmente ERRATO";
inline constexpr const char* kComuni = "SELECT * from comuni order by des_comune";

/// The form of the company's data with the first sample company. The form below it on the stack is an empty one.
class AziendaForm : public AziendaAperta {
protected:
    AziendaForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }

    void apri() {
        PilaForm = {"Avvio_Azienda", "frmDatiAzienda"};
        CimaForm = 1;
        pagina.show();
    }
    void chiudi() {
        gui.forms().unload("frmDatiAzienda");
        support::Gui::handleEvents();
    }
    bool aperta() const { return gui.forms().isLoaded("frmDatiAzienda"); }

    /// What stands in a field or a combo.
    std::string testo(const std::string& nome) const {
        const auto* combo = dynamic_cast<controls::DataCombo*>(&pagina.control(nome));
        return combo == nullptr ? pagina.text(nome) : combo->Text();
    }
    Riga testi(const Testi& nomi) const {
        Riga riga;
        for (const std::string& nome : nomi) {
            riga.push_back(testo(nome));
        }
        return riga;
    }
    std::string fuoco() const { return pagina.focus(); }
    std::string scelto(const std::string& nome) const {
        const auto* combo = dynamic_cast<controls::DataCombo*>(&pagina.control(nome));
        return (combo == nullptr ? pagina.control<QLineEdit>(nome) : *combo->lineEdit()).selectedText().toStdString();
    }
    void metti(const std::string& nome, const std::string& testo) const {
        pagina.control<controls::TextBox>(nome).setText(testo);
    }
    void vaiA(const std::string& nome) const {
        pagina.control(nome).setFocus();
        support::Gui::handleEvents();
    }
    /// By keyboard, over what stands there.
    void scrivi(const std::string& nome, const std::string& testo) const {
        vaiA(nome);
        gui.type(testo);
    }
    void premi(const std::string& bottone) const { gui.click("frmDatiAzienda", bottone); }
    void salva() const { premi("cmdCancel"); }

    /// Columns of the company's row.
    Riga colonne(const std::string& nomi) const { return riga("select " + nomi + " from DatiAzienda"); }
    std::string colonna(const std::string& nome) const { return valore("select " + nome + " from DatiAzienda"); }
    Riga tutto() const { return colonne("*"); }

    mutable support::Gui gui;
    support::FormPage pagina{gui, "frmDatiAzienda"};
    support::DialogScript script; ///< no box but those that the test expects
};

} // namespace vabo
