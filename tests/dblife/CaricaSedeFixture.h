#pragma once

#include "app/Forms.h"
#include "controls/DataControl.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "session/PuntatoriCartella.h"
#include "support/FormPage.h"

#include <QTest>

namespace vabo {

/// The form of the headquarters with the first sample company, which has seven branches with a state and one without.
/// The form below it on the stack is an empty one.
class CaricaSedeForm : public AziendaAperta {
protected:
    static constexpr const char* kForm = "caricasedecentrale";
    static constexpr const char* kAnnuncio = "Selezionare la cartella VABO sul Server";
    static constexpr const char* kBrowser = "Seleziona la cartella VABO sul Server";
    static constexpr const char* kMancante = "Selezionare la directory di lavoro!";

    CaricaSedeForm() {
        app::registerForms(gui.forms());
        gui.forms().add("Avvio_Azienda", [] { return std::make_unique<controls::Form>("Avvio_Azienda"); });
    }
    void apri() {
        PilaForm = {"Avvio_Azienda", kForm};
        CimaForm = 1;
        pagina.show();
    }
    std::string testo(const std::string& nome) const { return pagina.text(nome); }
    std::string stato() const { return pagina.combo("DCStato").Text(); }
    std::string fuoco() const { return pagina.focus(); }
    /// Town, address, province, postal code, state, telephone, fax, e-mail and notes, as they stand on the screen.
    Riga campi() const {
        return {testo("città"),           testo("Indirizzo"), testo("statooprovincia"),           testo("cap"), stato(),
                testo("telefonoufficio"), testo("numerofax"), testo("indirizzopostaelettronica"), testo("Note")};
    }
    /// The row of that branch, by keyboard.
    void scegli(const std::string& sede) const {
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            if (pagina.cell("DataGrid1", riga, 0) == sede) {
                pagina.control("DataGrid1").setFocus();
                pagina.grid("DataGrid1").selectRow(riga);
                gui.press(Qt::Key_Space);
                return;
            }
        }
        ADD_FAILURE() << "no row " << sede;
    }
    void attendiScelta(const std::string& cartella, bool si) {
        script.expectMessage(kAnnuncio, platform::Icon::None);
        script.expectFolder(kBrowser, cartella);
        script.expectConfirm(cartella, si);
    }
    void applica() const { gui.click(kForm, "Command1"); }

    std::vector<Riga> sedi() const {
        return posto.rows(support::kCompany,
                          "select idsede, città, Indirizzo, statooprovincia, cap, IdStato, telefonoufficio, numerofax, "
                          "indirizzopostaelettronica, Note from sedecentrale order by IdAutonumber");
    }
    Riga cartelle() const {
        return {valore("select Directoryfile from DirectoryHQ"), valore("select Directoryfile from Directorybackup")};
    }
    static Riga cartelleDi(const std::string& cartella) { return {cartella + "\\VaboDatiHQ", cartella + "\\Backup"}; }
    std::string numeroDelloStato(int sede) const {
        return valore("select IdStato from ElencoSedi where IdSede = " + std::to_string(sede));
    }

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina{gui, kForm};
};

} // namespace vabo
