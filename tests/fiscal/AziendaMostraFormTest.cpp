// The form of the company's data: what it reads and shows.

#include "controls/DataControl.h"
#include "fiscal/AziendaForm.h"
#include "session/TreatForms.h"

#include <QLabel>

namespace vabo {
namespace {

constexpr const char* kAzienda = "select * from DatiAzienda Order by ID";
constexpr const char* kCondizioni =
    "SELECT CondizioniPagamento.IDPagamento, CondizioniPagamento.Descrizione FROM (CondizioniPagamentoDecorrenza INNER "
    "JOIN CondizioniPagamento ON CondizioniPagamentoDecorrenza.IDDecorrenza = CondizioniPagamento.IDDecorrenza) INNER "
    "JOIN CondizioniPagamentoTipoIncasso ON CondizioniPagamento.IdTipoRimessa = "
    "CondizioniPagamentoTipoIncasso.IdTipoRimessa";
constexpr const char* kStati = "SELECT * FROM stati order by descstato";

/// A text column, and the field or combo that shows it.
struct Colonna {
    const char* nome;
    const char* campo;
};
constexpr Colonna kTesti[] = {{"Nome", "nomesocietà"},
                              {"Via", "Indirizzo"},
                              {"città", "DataCombo1"},
                              {"cap", "cap"},
                              {"Codicefiscale", "codice_fiscale"},
                              {"telefonoufficio", "telefonoufficio"},
                              {"numerofax", "numerofax"},
                              {"indirizzopostaelettronica", "indirizzopostaelettronica"},
                              {"sito", "Web"},
                              {"PartitaIva", "p_iva"},
                              {"Abi", "Abi"},
                              {"Cab", "Cab"},
                              {"ccorrente", "C_Corrente"},
                              {"Cin", "Cin"},
                              {"IBAN", "IBAN"},
                              {"BIC", "BIC"},
                              {"Intestatario", "Intestatario"},
                              {"Banca", "Banca"}};

TEST_F(AziendaForm, ItIsOpenedByItsNameAndClosesToTheFormBelowWithoutASave) {
    const Riga prima = tutto();
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm("frmDatiAzienda", true));
    EXPECT_TRUE(FormInCima("frmDatiAzienda"));
    metti("nomesocietà", "Altra");
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
    EXPECT_FALSE(aperta());
    EXPECT_EQ(tutto(), prima);
}

TEST_F(AziendaForm, ReadsItsListsAndTheRowsOfItsKeys) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{kAzienda, kCondizioni, kComuni, kStati,
                                       " select Descrizione from CondizioniPagamento Where IDPagamento = 4",
                                       " select Descrizione from CondizioniPagamento Where IDPagamento = 2",
                                       "Select * from stati where idstato=1"}));
    const std::pair<const char*, const char*> elenchi[] = {
        {"elenco", kAzienda}, {"CondiPagamento", kCondizioni}, {"comuni", kComuni}};
    for (const auto& [nome, sorgente] : elenchi) {
        const auto& elenco = pagina.control<controls::DataControl>(nome);
        EXPECT_EQ(elenco.ConnectionString, StringaAzienda);
        EXPECT_EQ(elenco.RecordSource, sorgente);
    }
}

TEST_F(AziendaForm, ItsTextsStandLetterForLetter) {
    apri();
    EXPECT_EQ(gui.form("frmDatiAzienda").windowTitle(), "Dati Generali Azienda");
    const std::pair<const char*, const char*> etichette[] = {{"nomesocietà", "Nome società"},
                                                             {"Indirizzo", "Indirizzo"},
                                                             {"DataCombo1", "Città"},
                                                             {"cap", "CAP"},
                                                             {"statooprovincia", "Prov"},
                                                             {"DataCombo2", "Stato"},
                                                             {"DCPagamento1", "Modalità Incasso"},
                                                             {"DCPagamento2", "Modalità Pagamento"},
                                                             {"codice_fiscale", "Codice fiscale"},
                                                             {"p_iva", "Partita IVA"},
                                                             {"telefonoufficio", "Tel. Ufficio"},
                                                             {"numerofax", "Numero fax"},
                                                             {"indirizzopostaelettronica", "Ind. E_Mail"},
                                                             {"Web", "Web"},
                                                             {"Abi", "ABI"},
                                                             {"Cab", "CAB"},
                                                             {"Cin", "CIN"},
                                                             {"C_Corrente", "C/Corrente"},
                                                             {"Banca", "Banca"},
                                                             {"IBAN", "IBAN"},
                                                             {"BIC", "BIC"},
                                                             {"Intestatario", "Intestatario C/C"},
                                                             {"ComboFattura", "Tipo Fattura"},
                                                             {"idContatto", "Contatto"}};
    for (const auto& [campo, scritta] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), scritta);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
        EXPECT_EQ(pagina.control(campo).accessibleName().toStdString(), scritta);
        EXPECT_TRUE(pagina.isShown(campo));
    }
    EXPECT_EQ(testo("Check1"), "Stampa Fattura su Modulo Intestato");
    EXPECT_EQ(gui.mnemonics("frmDatiAzienda"), "CS");
}

TEST_F(AziendaForm, ShowsTheCompanyOfTheSample) {
    apri();
    for (const auto& [colonna, campo] : kTesti) {
        EXPECT_EQ(testo(campo), this->colonna(colonna)) << campo;
        EXPECT_NE(testo(campo), "") << campo;
    }
    EXPECT_EQ(testi({"DataCombo2", "DCPagamento1", "DCPagamento2", "statooprovincia", "idContatto"}),
              (Riga{"Italia", "Rimessa diretta a 30 Data fattura", "Bonifico bancario a 30 Fine mese", "", ""}));
    EXPECT_EQ(pagina.box("Check1"), 1);
    EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboFattura").Text(), "Seleziona");
    EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboFattura").count(), 0);
    EXPECT_EQ(fuoco(), "nomesocietà");
    EXPECT_EQ(scelto("nomesocietà"), "Associazione Aurora");
}

TEST_F(AziendaForm, AnEmptyTableShowsEmptyFields) {
    esegui("delete from DatiAzienda");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{kAzienda, kCondizioni, kComuni, kStati}));
    for (const auto& [colonna, campo] : kTesti) {
        EXPECT_EQ(testo(campo), std::string(campo) == "DataCombo1" ? "Seleziona" : "") << campo;
    }
    EXPECT_EQ(testi({"DataCombo2", "DCPagamento1", "DCPagamento2", "statooprovincia", "idContatto"}),
              (Riga{"Seleziona", "", "", "", ""}));
    EXPECT_EQ(pagina.box("Check1"), 0);
}

TEST_F(AziendaForm, ANullLeavesItsFieldEmptyAndTheOthersAreShown) {
    for (const auto& [colonna, campo] : kTesti) {
        SCOPED_TRACE(colonna);
        esegui(std::string("update DatiAzienda set ") + colonna + " = null");
        apri();
        EXPECT_EQ(testo(campo), std::string(campo) == "DataCombo1" ? "Seleziona" : "");
        for (const auto& [altra, altro] : kTesti) {
            EXPECT_EQ(testo(altro).empty(), std::string(altro) == campo && std::string(altro) != "DataCombo1");
        }
        chiudi();
        esegui(std::string("update DatiAzienda set ") + colonna + " = '7'");
        apri();
        EXPECT_EQ(testo(campo), "7");
        chiudi();
    }
}

TEST_F(AziendaForm, NullKeysShowNothing) {
    esegui("update DatiAzienda set IdStato = null, IDPagamento = null, IdIncasso = null");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{kAzienda, kCondizioni, kComuni, kStati}));
    EXPECT_EQ(testi({"DataCombo2", "DCPagamento1", "DCPagamento2"}), (Riga{"Seleziona", "", ""}));
}

// A state of 0 is looked for, a term of 0 isn't.
TEST_F(AziendaForm, KeysOfNothingShowNothing) {
    for (const char* chiave : {"0", "999"}) {
        esegui(std::string("update DatiAzienda set IdStato = ") + chiave + ", IDPagamento = " + chiave +
               ", IdIncasso = " + chiave);
        const support::StatementRecorder recorder;
        apri();
        EXPECT_EQ(recorder.texts().back(), std::string("Select * from stati where idstato=") + chiave);
        EXPECT_EQ(recorder.texts().size(), std::string(chiave) == "0" ? 5U : 7U);
        EXPECT_EQ(testi({"DataCombo2", "DCPagamento1", "DCPagamento2"}), (Riga{"Seleziona", "", ""}));
        chiudi();
    }
}

TEST_F(AziendaForm, AStateWithoutANameShowsNone) {
    esegui("update stati set descstato = null where idstato = 1");
    apri();
    EXPECT_EQ(testo("DataCombo2"), "Seleziona");
}

TEST_F(AziendaForm, ATermThatIsNotListedIsShownAllTheSame) {
    esegui("update CondizioniPagamento set IDDecorrenza = 99 where IDPagamento = 4");
    apri();
    EXPECT_EQ(testo("DCPagamento2"), "Bonifico bancario a 30 Fine mese");
    EXPECT_EQ(pagina.combo("DCPagamento1").count(), 13);
    EXPECT_EQ(pagina.combo("DCPagamento2").count(), 13);
    EXPECT_EQ(pagina.combo("DCPagamento2").findText("Bonifico bancario a 30 Fine mese"), -1);
}

TEST_F(AziendaForm, TheTickFollowsItsColumn) {
    for (const int spunta : {0, 1}) {
        esegui("update DatiAzienda set ModuloFattura = " + std::to_string(spunta));
        apri();
        EXPECT_EQ(pagina.box("Check1"), spunta);
        chiudi();
    }
    esegui("drop table DatiAzienda create table DatiAzienda (ID int, ModuloFattura bit null)");
    esegui("insert into DatiAzienda (ID) values (1)");
    apri();
    EXPECT_EQ(pagina.box("Check1"), 0) << "null";
}

// A failing test counts as true: the keys are looked for, and the tick is set.
TEST_F(AziendaForm, MissingColumnsAreSkipped) {
    esegui("drop table DatiAzienda create table DatiAzienda (ID int, Nome nvarchar(50), Banca nvarchar(50))");
    esegui("insert into DatiAzienda values (1, 'Società', 'Banca')");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{kAzienda, kCondizioni, kComuni, kStati, "Select * from stati where idstato=0"}));
    EXPECT_EQ(testi({"nomesocietà", "Banca", "Indirizzo", "DataCombo1", "DataCombo2", "IBAN"}),
              (Riga{"Società", "Banca", "", "Seleziona", "Seleziona", ""}));
    EXPECT_EQ(pagina.box("Check1"), 1);
}

TEST_F(AziendaForm, MissingTablesAreSkippedAndTheRestIsShown) {
    for (const char* tabella : {"CondizioniPagamento", "comuni", "stati"}) {
        esegui(std::string("drop table ") + tabella);
        apri();
        EXPECT_EQ(testi({"nomesocietà", "DataCombo1", "Banca"}),
                  (Riga{"Associazione Aurora", "Torino", "Banca del Mattino"}));
        EXPECT_EQ(testo("DCPagamento1"), "");
        EXPECT_EQ(testo("DataCombo2"), std::string(tabella) == "stati" ? "Seleziona" : "Italia");
        chiudi();
    }
    esegui("drop table DatiAzienda");
    apri();
    EXPECT_EQ(testi({"nomesocietà", "DataCombo1", "Banca"}), (Riga{"", "Seleziona", ""}));
    EXPECT_EQ(pagina.box("Check1"), 1) << "whether there is a row can't be told, which counts as yes";
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(AziendaForm, OfSeveralRowsTheFirstIsShown) {
    esegui("insert into DatiAzienda (Nome) values ('Seconda')");
    apri();
    EXPECT_EQ(testo("nomesocietà"), "Associazione Aurora");
}

} // namespace
} // namespace vabo
