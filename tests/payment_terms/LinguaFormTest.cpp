// The captions of both forms in the client's language.

#include "CondizioniForm.h"
#include "controls/ItemCombo.h"
#include "session/LinguaClient.h"

namespace vabo {
namespace {

/// What a label or a heading reads in Italian, English, Spanish, Portuguese and French.
struct Didascalia {
    const char* dove;
    const char* testi[5];
};

/// The place of a code in those.
constexpr std::pair<const char*, int> kLingue[] = {{"IT", 0}, {"EN", 1}, {"ES", 2}, {"PO", 3},
                                                   {"FR", 4}, {"en", 0}, {"Fr", 0}};

constexpr Didascalia kEtichetteCondizioni[] = {
    {"Label21",
     {"Condizioni di pagamento", "Terms of payment", "Condiciones de pago", "Termos de pagamento",
      "Conditions de paiement"}},
    {"DataGrid1Didascalia",
     {"Condizioni di pagamento", "Terms of payment", "Condiciones de pago", "Termos de pagamento",
      "Conditions de paiement"}},
    {"DescrizioneEtichetta", {"Descrizione:", "Description:", "Descripción:", "Descrição:", "Description:"}},
    {"Etichetta43", {"Tipo rimessa", "Kind of Payment", "Tipo de pago", "Tipo pagamento", "Type paiement"}},
    {"IDDecorrenzaEtichetta",
     {"Decorrenza - Dbl Click per modificare", "Commencement - Dbl Click to change",
      "Comienzo - DBL Haga clic para cambiar", "Início - DBL Clique para editar", "Début - DBL Cliquez pour modifier"}},
    {"Label1", {"Rata Anticipata", "Advanced Installment", "Cuota Avanzada", "Rata precoce", "Rata précoce"}},
    {"NRrateEtichetta", {"Numero rate", "Total Payments", "Pagos totales", "Total pagamentos", "Total des paiements"}},
    {"Scadenza1Etichetta", {"Scadenze", "Dead-dates", "Fechas límite", "Expiraçãos", "Délais"}}};

constexpr Didascalia kEtichetteDecorrenze[] = {
    {"DescrizioneEtichetta", {"Descrizione:", "Description:", "Descripción:", "Descrição:", "Description:"}},
    {"Etichetta4", {"Giorno Scadenza:", "Exp. Date:", "Fecha caducidad:", "Dia Prazo:", "Jour Date limite:"}},
    {"Label1", {"Mesi esclusi", "Months excluded", "Meses excluidos", "Meses excluídos", "Mois exclus"}},
    {"Label21",
     {"Decorrenze Condizioni di pagamento", "Occurrences Payment Terms", "Citas Condiciones de pago",
      "Ocorrências condições de pagamento", "Occurrences conditions de paiement"}}};

constexpr const char* kScadenze[] = {"Scadenze", "Dead-dates", "Fechas límite", "Expiraçãos", "Délais"};
constexpr const char* kTipo[] = {"Tipo Pagamento", "Payment Kind", "Tipo de Pago", "Tipo de pagamento",
                                 "Type de paiement"};
constexpr const char* kEscluso[] = {"Escluso", "Excluding", "Excluyendo", "Excluindo", "Exclusion"};

TEST_F(FormCondizioni, ItsCaptionsAreThoseOfTheLanguage) {
    for (const auto& [codice, posto] : kLingue) {
        SCOPED_TRACE(codice);
        LeggiLinguaClient(codice);
        apri();
        for (const Didascalia& didascalia : kEtichetteCondizioni) {
            EXPECT_EQ(testo(didascalia.dove), didascalia.testi[posto]);
        }
        for (const bool dopoUnSalvataggio : {false, true}) {
            EXPECT_EQ(griglia().Columns(4).Caption(), kScadenze[posto]) << dopoUnSalvataggio;
            EXPECT_EQ(griglia().Columns(18).Caption(), kTipo[posto]) << dopoUnSalvataggio;
            scegli(3);
            vaiA("Descrizione");
            invio();
        }
        EXPECT_EQ(gui.form(kCondizioni).windowTitle(), "Condizioni di pagamento") << "in Italian always";
        EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboLingua").Text(), codice);
        gui.click(kCondizioni, "Chiudi");
    }
}

TEST_F(FormDecorrenze, ItsCaptionsAreThoseOfTheLanguage) {
    for (const auto& [codice, posto] : kLingue) {
        SCOPED_TRACE(codice);
        LeggiLinguaClient(codice);
        apri();
        for (const Didascalia& didascalia : kEtichetteDecorrenze) {
            EXPECT_EQ(testo(didascalia.dove), didascalia.testi[posto]);
        }
        for (const bool dopoUnSalvataggio : {false, true}) {
            EXPECT_EQ(griglia().Columns(1).Caption(), kScadenze[posto]) << dopoUnSalvataggio;
            EXPECT_EQ(griglia().Columns(5).Caption(), "GG");
            for (const int mese : {6, 7, 8}) {
                EXPECT_EQ(griglia().Columns(mese).Caption(), kEscluso[posto]) << dopoUnSalvataggio;
            }
            scegli(1);
            vaiA("Descrizione");
            invio();
        }
        EXPECT_EQ(gui.form(kDecorrenze).windowTitle(), "Decorrenze Condizioni di pagamento");
        EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboLingua").Text(), codice);
        gui.click(kDecorrenze, "Chiudi");
    }
}

TEST_F(FormCondizioni, ItsControlsAreNamedInTheLanguageForAssistiveTools) {
    LeggiLinguaClient("ES");
    apri();
    const std::pair<const char*, const char*> nomi[] = {{"IDDecorrenza", "Comienzo - DBL Haga clic para cambiar"},
                                                        {"RataAnticipo", "Cuota Avanzada"},
                                                        {"Scadenza1", "Fechas límite 1"},
                                                        {"Scadenza12", "Fechas límite 12"},
                                                        {"IdTipoRimessa", "Tipo de pago"},
                                                        {"NRrate", "Pagos totales"},
                                                        {"Descrizione", "Descripción"},
                                                        {"DataGrid1", "Condiciones de pago"}};
    for (const auto& [campo, nome] : nomi) {
        EXPECT_EQ(pagina.control(campo).accessibleName().toStdString(), nome);
    }
}

TEST_F(FormDecorrenze, ItsControlsAreNamedInTheLanguageForAssistiveTools) {
    LeggiLinguaClient("FR");
    apri();
    const std::pair<const char*, const char*> nomi[] = {{"GiornoScadenza", "Jour Date limite 1"},
                                                        {"GiornoScadenza3", "Jour Date limite 4"},
                                                        {"Mese1", "Mois exclus 1"},
                                                        {"Mese3", "Mois exclus 3"},
                                                        {"Descrizione", "Description"},
                                                        {"DataGrid1", "Decorrenze"}};
    for (const auto& [campo, nome] : nomi) {
        EXPECT_EQ(pagina.control(campo).accessibleName().toStdString(), nome);
    }
}

TEST_F(FormCondizioni, ALanguageChangedMeanwhileIsReadWhenTheFormComesBack) {
    apri();
    vaiA("IDDecorrenza");
    gui.press(Qt::Key_Return, Qt::ControlModifier);
    support::Gui::handleEvents();
    LeggiLinguaClient("EN");
    gui.click(kDecorrenze, "Chiudi");
    EXPECT_EQ(testo("Label21"), "Terms of payment");
    EXPECT_EQ(griglia().Columns(18).Caption(), "Payment Kind");
}

TEST_F(FormCondizioni, AFormThatIsNotOnTopKeepsItsCaptions) {
    LeggiLinguaClient("EN");
    PilaForm = {"Avvio_Azienda", kCondizioni, "Login"};
    CimaForm = 2;
    pagina.show();
    EXPECT_EQ(testo("Label21"), "Condizioni di pagamento");
    EXPECT_EQ(griglia().Columns(4).Caption(), "Scadenze");
    EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboLingua").Text(), "EN");
}

TEST_F(FormCondizioni, WithoutALocalInstanceTheCaptionsAreItalian) {
    LeggiLinguaClient("EN");
    posto.putFile("C:\\vabo\\Leggi_ServerLocal.txt", "Driver=SQL Server;Server=127.0.0.1,9;\r\n");
    apri();
    EXPECT_EQ(testo("Label21"), "Condizioni di pagamento");
    EXPECT_EQ(righe(), 14);
}

TEST_F(FormCondizioni, AStoredLanguageThatCannotBeReadIsItalian) {
    LeggiLinguaClient("EN");
    posto.run(support::kTemporaryDatabase, "drop table LinguaClient");
    posto.run(support::kTemporaryDatabase, "create table LinguaClient (id int null)");
    for (const char* riga : {"", "insert into LinguaClient (id) values (1)"}) {
        if (*riga != '\0') {
            posto.run(support::kTemporaryDatabase, riga);
        }
        apri();
        EXPECT_EQ(testo("Label21"), "Condizioni di pagamento");
        EXPECT_EQ(pagina.control<controls::ItemCombo>("ComboLingua").Text(), "IT");
        EXPECT_EQ(LinguaCorrente, "IT");
        EXPECT_EQ(righe(), 14);
        gui.click(kCondizioni, "Chiudi");
    }
}

// Nobody sees the combo; a pick in it can come from code alone.
template<typename Form>
class ComboDelleLingue : public Form {};
using Forme = testing::Types<FormCondizioni, FormDecorrenze>;

class NomiDelleForme {
public:
    template<typename Form>
    static std::string GetName(int /*posto*/) {
        return std::is_same_v<Form, FormCondizioni> ? kCondizioni : kDecorrenze;
    }
};
TYPED_TEST_SUITE(ComboDelleLingue, Forme, NomiDelleForme);

TYPED_TEST(ComboDelleLingue, IsHiddenAndAPickInItChangesNothing) {
    LeggiLinguaClient("FR");
    this->apri();
    auto& combo = this->pagina.template control<controls::ItemCombo>("ComboLingua");
    EXPECT_FALSE(combo.isVisible());
    ASSERT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.itemText(0), "EN");
    EXPECT_EQ(combo.itemText(1), "ES");
    EXPECT_EQ(combo.itemText(2), "IT");
    combo.show();
    combo.setCurrentIndex(0);
    emit combo.activated(0);
    EXPECT_FALSE(combo.isVisible());
    EXPECT_EQ(LeggiLinguaClient(""), "FR");
    EXPECT_NE(this->testo("Label21").find("paiement"), std::string::npos);
    combo.show();
    this->gui.forms().show("Avvio_Azienda");
    this->gui.waitForFront("Avvio_Azienda");
    this->pagina.comeToFront();
    EXPECT_FALSE(combo.isVisible()) << "hidden again when the form comes to the front";
}

} // namespace
} // namespace vabo
