// What the form of the company's data stores, and what it refuses.

#include "fiscal/AziendaForm.h"

#include <QApplication>
#include <QClipboard>

namespace vabo {
namespace {

constexpr const char* kSenzaNome = "Attenzione nome società non inserito.";
constexpr const char* kSenzaCitta = "Attenzione nome città non inserito.";
constexpr const char* kNonCiSta = "Multiple-step operation generated errors. Check each status value.";

/// The names of the controls that get the focus while this object lives.
struct Fuochi {
    Fuochi() {
        QObject::connect(qApp, &QApplication::focusChanged, &ascolto, [this](const QWidget*, const QWidget* ora) {
            if (ora != nullptr) {
                nomi.push_back(ora->objectName().toStdString());
            }
        });
    }
    QObject ascolto;
    Testi nomi;
};

TEST_F(AziendaForm, TheCompanyIsEnteredAndStoredByKeyboardAlone) {
    esegui("delete from DatiAzienda");
    apri();
    const auto invio = [this](const std::string& scritto) {
        gui.type(scritto);
        gui.press(Qt::Key_Return);
    };
    const auto cerca = [this](const std::string& combo, const std::string& lettere) {
        QTest::keyClick(&pagina.search(combo, lettere), Qt::Key_Return);
        pagina.comeToFront();
    };
    invio("Società");
    invio("Via Nuova 1");
    cerca("DataCombo1", "cagliari");
    invio("09131");
    gui.press(Qt::Key_Tab);
    cerca("DCPagamento1", "assegno a 30");
    cerca("DCPagamento2", "contanti a  d");
    invio("97088120015");
    EXPECT_EQ(scelto("p_iva"), "97088120015");
    gui.press(Qt::Key_Return);
    for (const char* scritto : {"070 1", "070 2", "a@b.example", "b.example", "09991", "01000", "Y", "CC1",
                                "Banca nuova", "IT27", "BICBIC"}) {
        invio(scritto);
    }
    EXPECT_EQ(fuoco(), "Intestatario");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "Check1");
    QTest::keyClick(gui.form("frmDatiAzienda").windowHandle(), Qt::Key_S, Qt::AltModifier);
    support::Gui::waitFor("the form below", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
    EXPECT_EQ(colonne("Nome, Via, città, cap, IdStato, IdIncasso, IDPagamento"),
              (Riga{"Società", "Via Nuova 1", "Cagliari (CA)", "09131", "1", "9", "1"}));
    EXPECT_EQ(colonne("Codicefiscale, PartitaIva, telefonoufficio, numerofax, indirizzopostaelettronica, sito"),
              (Riga{"97088120015", "97088120015", "070 1", "070 2", "a@b.example", "b.example"}));
    EXPECT_EQ(colonne("Abi, Cab, Cin, ccorrente, Banca, IBAN, BIC, Intestatario, idtipoazienda, ModuloFattura"),
              (Riga{"09991", "01000", "Y", "CC1", "Banca nuova", "IT27", "BICBIC", "Società", "0", "0"}));
}

TEST_F(AziendaForm, SavedUntouchedTheRowStaysAsItWas) {
    const Riga prima = tutto();
    apri();
    salva();
    EXPECT_EQ(tutto(), prima);
    EXPECT_FALSE(aperta());
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(AziendaForm, WithoutANameNothingIsStoredAndTheFormCloses) {
    const Riga prima = tutto();
    for (const char* vuoto : {"", " ", "0"}) {
        apri();
        metti("nomesocietà", vuoto);
        metti("Banca", "Altra");
        vaiA("cmdCancel");
        const support::StatementRecorder recorder;
        const Fuochi fuochi;
        script.expectMessage(kSenzaNome, platform::Icon::Stop);
        salva();
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(recorder.texts(), Testi{});
        ASSERT_FALSE(fuochi.nomi.empty());
        EXPECT_EQ(fuochi.nomi.front(), "nomesocietà");
        EXPECT_FALSE(aperta());
        EXPECT_EQ(tutto(), prima);
    }
}

TEST_F(AziendaForm, WithoutATownNothingIsStoredAndTheFormCloses) {
    for (const char* vuoto : {"null", "''", "' '", "'0'", "'Seleziona'"}) {
        esegui(std::string("update DatiAzienda set città = ") + vuoto);
        const Riga prima = tutto();
        apri();
        metti("Banca", "Altra");
        const support::StatementRecorder recorder;
        script.expectMessage(kSenzaCitta, platform::Icon::Stop);
        salva();
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(recorder.texts(), Testi{kComuni}) << "read again, as the town gets the focus";
        EXPECT_FALSE(aperta());
        EXPECT_EQ(tutto(), prima);
    }
}

TEST_F(AziendaForm, WithoutANameTheTownIsNotAskedFor) {
    esegui("update DatiAzienda set Nome = null, città = null");
    apri();
    script.expectMessage(kSenzaNome);
    salva();
    EXPECT_TRUE(script.allShown());
}

TEST_F(AziendaForm, TheProvinceGrowsInTheTownUntilTheTownIsPickedAgain) {
    const auto salvaCon = [this](const std::string& provincia) {
        apri();
        metti("statooprovincia", provincia);
        salva();
        return colonna("città");
    };
    EXPECT_EQ(salvaCon("TO"), "Torino (TO)");
    EXPECT_EQ(salvaCon(""), "Torino (TO)") << "no column has the province";
    EXPECT_EQ(salvaCon("TO"), "Torino (TO) (TO)");
    apri();
    EXPECT_EQ(testi({"DataCombo1", "statooprovincia"}), (Riga{"Torino (TO) (TO)", ""}));
    pagina.pick("DataCombo1", "Torino");
    salva();
    EXPECT_EQ(colonna("città"), "Torino (TO)");
}

TEST_F(AziendaForm, ATownThatIsNotListedIsNotWritten) {
    esegui("update DatiAzienda set città = 'Torino (TO)'");
    apri();
    metti("statooprovincia", "MI");
    esegui("update DatiAzienda set città = 'Milano'");
    salva();
    EXPECT_EQ(colonna("città"), "Milano (MI)") << "the one that is stored by then gets the province";
}

TEST_F(AziendaForm, WhatIsClearedIsKeptOrEmptiedByItsField) {
    const std::pair<const char*, const char*> tenuti[] = {{"Indirizzo", "Via"},
                                                          {"cap", "cap"},
                                                          {"telefonoufficio", "telefonoufficio"},
                                                          {"numerofax", "numerofax"},
                                                          {"indirizzopostaelettronica", "indirizzopostaelettronica"},
                                                          {"Web", "sito"},
                                                          {"codice_fiscale", "Codicefiscale"},
                                                          {"p_iva", "PartitaIva"},
                                                          {"Cab", "Cab"}};
    const std::pair<const char*, const char*> vuotati[] = {{"Abi", "Abi"},
                                                           {"Cin", "Cin"},
                                                           {"IBAN", "IBAN"},
                                                           {"BIC", "BIC"},
                                                           {"C_Corrente", "ccorrente"},
                                                           {"Intestatario", "Intestatario"},
                                                           {"Banca", "Banca"}};
    for (const auto& [campo, nome] : tenuti) {
        const std::string prima = colonna(nome);
        apri();
        vaiA(campo);
        gui.press(Qt::Key_Delete);
        ASSERT_EQ(testo(campo), "");
        salva();
        EXPECT_EQ(colonna(nome), prima) << campo;
    }
    for (const auto& [campo, nome] : vuotati) {
        ASSERT_NE(colonna(nome), "");
        apri();
        vaiA(campo);
        gui.press(Qt::Key_Delete);
        salva();
        EXPECT_EQ(colonna(nome), "") << campo;
    }
}

TEST_F(AziendaForm, EachFieldIsStoredInItsColumnAndNoOther) {
    const std::pair<const char*, const char*> campi[] = {{"nomesocietà", "Nome"},
                                                         {"Indirizzo", "Via"},
                                                         {"cap", "cap"},
                                                         {"telefonoufficio", "telefonoufficio"},
                                                         {"numerofax", "numerofax"},
                                                         {"indirizzopostaelettronica", "indirizzopostaelettronica"},
                                                         {"Web", "sito"},
                                                         {"codice_fiscale", "Codicefiscale"},
                                                         {"p_iva", "PartitaIva"},
                                                         {"Cab", "Cab"},
                                                         {"Abi", "Abi"},
                                                         {"Cin", "Cin"},
                                                         {"IBAN", "IBAN"},
                                                         {"BIC", "BIC"},
                                                         {"C_Corrente", "ccorrente"},
                                                         {"Intestatario", "Intestatario"},
                                                         {"Banca", "Banca"}};
    for (const auto& [campo, nome] : campi) {
        for (const std::string scritto : {"';", "--", "\"x", "\x01\x02", "é漢", "7"}) {
            const Riga prima = tutto();
            const std::string vecchio = colonna(nome);
            apri();
            metti(campo, scritto);
            salva();
            EXPECT_EQ(colonna(nome), scritto) << campo;
            esegui(std::string("update DatiAzienda set ") + nome + " = '" +
                   QString::fromStdString(vecchio).replace("'", "''").toStdString() + "'");
            EXPECT_EQ(tutto(), prima) << campo << " and nothing else";
        }
        apri();
        metti(campo, std::string(4'000, 'x'));
        script.expectMessage(kNonCiSta);
        const Riga prima = tutto();
        salva();
        EXPECT_TRUE(script.allShown());
        EXPECT_TRUE(aperta()) << "what was typed stays";
        EXPECT_EQ(testo(campo), std::string(4'000, 'x'));
        EXPECT_EQ(tutto(), prima);
        chiudi();
    }
}

TEST_F(AziendaForm, AProvinceOfAnyTextIsPartOfTheTownAndNoStatement) {
    for (const std::string scritto : {"'; delete from DatiAzienda --", "\"/*", "\x01"}) {
        esegui("update DatiAzienda set città = 'Torino'");
        apri();
        metti("statooprovincia", scritto);
        salva();
        EXPECT_EQ(colonna("città"), "Torino (" + scritto + ")");
    }
    apri();
    metti("statooprovincia", std::string(4'000, '\''));
    script.expectMessage(kNonCiSta);
    salva();
    EXPECT_TRUE(aperta());
}

TEST_F(AziendaForm, WhatIsTypedIntoACombosListAndNotPickedIsTakenBack) {
    const Riga prima = tutto();
    apri();
    for (const char* combo : {"DataCombo1", "DataCombo2", "DCPagamento1", "DCPagamento2"}) {
        const std::string stava = testo(combo);
        for (const std::string& incollato : {std::string("'; drop table stati --"), std::string(4'000, 'x')}) {
            vaiA(combo);
            QGuiApplication::clipboard()->setText(QString::fromStdString(incollato));
            gui.press(Qt::Key_V, Qt::ControlModifier);
            pagina.typeWithoutPick(combo, "'");
            EXPECT_EQ(testo(combo), incollato + "'");
            vaiA("Banca");
            EXPECT_EQ(testo(combo), stava);
        }
    }
    metti("statooprovincia", "");
    salva();
    EXPECT_EQ(tutto(), prima);
}

TEST_F(AziendaForm, WrongCodesDoNotStopTheSave) {
    apri();
    metti("codice_fiscale", "SBAGLIATO");
    scrivi("p_iva", "123");
    script.expectMessage(kErrato);
    salva();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(colonne("Codicefiscale, PartitaIva"), (Riga{"SBAGLIATO", "123"}));
    apri();
    scrivi("codice_fiscale", "sbagliata");
    script.expectMessage(kErrato);
    salva();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(colonna("Codicefiscale"), "SBAGLIATA");
    EXPECT_FALSE(aperta());
}

TEST_F(AziendaForm, TheTickAndTheContactAreNotStored) {
    const Riga prima = tutto();
    apri();
    vaiA("Check1");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(pagina.box("Check1"), 0);
    scrivi("idContatto", "Rossi");
    salva();
    EXPECT_EQ(tutto(), prima);
}

TEST_F(AziendaForm, ClosedByItsWindowNothingIsStored) {
    const Riga prima = tutto();
    apri();
    metti("Banca", "Altra");
    gui.form("frmDatiAzienda").close();
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(tutto(), prima);
}

} // namespace
} // namespace vabo
