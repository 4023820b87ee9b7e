#pragma once

#include "app/Forms.h"
#include "controls/TextBox.h"
#include "general_tables/AziendaAperta.h"
#include "support/FormPage.h"

#include <QTest>

#include <array>

namespace vabo {

using Testi = std::vector<std::string>;

inline constexpr const char* kElencoAtteso =
    "Select  idautonumber, NomeUtente, PaswUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, "
    "A_Personale, A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita from  "
    "AbilitazioneAccessi order by Administrator, NomeUtente";
inline constexpr const char* kSelezioneAttesa =
    "Select  idautonumber, NomeUtente, Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, A_Personale, "
    "A_ArchivioStoria, A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita from  AbilitazioneAccessi";
inline constexpr const char* kProvaAttesa = "select Administrator from  AbilitazioneAccessi where  administrator  = 1";
inline constexpr const char* kOccorre = "Occorre inserire almeno un amministratore di sistema! Operazione annullata";
inline constexpr const char* kNonDisponi = "Non disponi dei diritti di amministratore, operazione non consentita";
inline constexpr const char* kSenzaRiga =
    "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record.";

/// In the order of the columns.
inline constexpr std::array kCaselle = {
    "txtAdministrator", "txtA_Inserisci",       "txtA_Cancella",       "txtA_Iva",
    "txtA_Bilancio",    "txtA_Personale",       "txtA_ArchivioStoria", "txtA_PFinanza",
    "txtA_Synchro",     "txtA_EmettiPagamenti", "txtA_Progetta",       "txtDisabilita"};

/// The form of the users with the first sample company: an administrator (key 1), an accountant (2), a new user
/// without a password (3) and a disabled one (4). The forms around it are empty ones.
class UtentiForm : public AziendaAperta {
protected:
    UtentiForm() {
        app::registerForms(gui.forms());
        for (const char* nome : {"Avvio_Azienda", "About"}) {
            gui.forms().add(nome, [nome] { return std::make_unique<controls::Form>(nome); });
        }
    }

    void apri() {
        PilaForm = {"Avvio_Azienda", "Login"};
        CimaForm = 1;
        pagina.show();
    }
    std::string nome() const { return pagina.text("txtNomeUtente"); }
    std::string fuoco() const { return pagina.focus(); }
    /// The values of the twelve boxes in the order of the columns, a digit each.
    std::string caselle() const {
        std::string cifre;
        for (const char* casella : kCaselle) {
            cifre += std::to_string(pagina.box(casella));
        }
        return cifre;
    }
    bool abilitato(const char* controllo) const { return pagina.control(controllo).isEnabled(); }
    /// Whether boxes and buttons are all enabled; fails where some are and some aren't.
    bool aperta() const {
        const bool prima = abilitato(kCaselle.front());
        for (const char* casella : kCaselle) {
            EXPECT_EQ(abilitato(casella), prima) << casella;
        }
        EXPECT_EQ(abilitato("Command1"), prima);
        EXPECT_EQ(abilitato("CancelButton"), prima);
        return prima;
    }
    bool salvaSiVede() const { return pagina.isShown("cmdUpdate") && abilitato("cmdUpdate"); }

    void vaiA(const char* controllo) const {
        pagina.control(controllo).setFocus();
        support::Gui::handleEvents();
    }
    void premi(const char* bottone) const { gui.click("Login", bottone); }
    void invioNelNome() const {
        vaiA("txtNomeUtente");
        gui.press(Qt::Key_Return);
    }
    void spazioSu(const char* controllo) const {
        vaiA(controllo);
        gui.press(Qt::Key_Space);
    }
    /// From an empty name on, up to its Enter.
    void nuovo(const std::string& testo) const {
        vaiA("txtNomeUtente");
        gui.type(testo);
        gui.press(Qt::Key_Return);
    }
    /// Goes to the row of that name and picks it.
    void scegli(const std::string& utente) const {
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            if (pagina.cell("DataGrid1", riga, 1) == utente) {
                vaiA("DataGrid1");
                pagina.grid("DataGrid1").selectRow(riga);
                gui.press(Qt::Key_Space);
                return;
            }
        }
        ADD_FAILURE() << "no row " << utente;
    }
    /// The names in the order of the list.
    Riga elenco() const {
        Riga nomi;
        for (int riga = 0; riga < pagina.rows("DataGrid1"); ++riga) {
            nomi.push_back(pagina.cell("DataGrid1", riga, 1));
        }
        return nomi;
    }

    /// The twelve flags of a user as they are stored, a digit each.
    std::string flag(const std::string& utente) const {
        std::string cifre;
        for (const std::string& valore :
             riga("select Administrator, A_Inserisci, A_Cancella, A_Iva, A_Bilancio, A_Personale, A_ArchivioStoria, "
                  "A_PFinanza, A_Synchro, A_EmettiPagamenti, A_Progetta, Disabilita from AbilitazioneAccessi where "
                  "NomeUtente = '" +
                  utente + "'")) {
            cifre += valore;
        }
        return cifre;
    }
    std::vector<Riga> tabella() const {
        return posto.rows(support::kCompany, "select * from AbilitazioneAccessi order by idautonumber");
    }
    void senzaAmministratori() const { esegui("update AbilitazioneAccessi set Administrator = 0"); }

    support::DialogScript script; ///< no box but those that the test expects
    mutable support::Gui gui;
    support::FormPage pagina{gui, "Login"};
};

} // namespace vabo
