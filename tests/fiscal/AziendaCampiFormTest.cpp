// The order of entry of the company's data, the payment terms, the numbers of the bank and the holder.

#include "fiscal/AziendaForm.h"

namespace vabo {
namespace {

constexpr Qt::Key kTasti[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab};
constexpr const char* kNumerico = "Inserire un valore numerico";
/// The order of entry; the last field has only Enter.
const Testi kOrdine = {"nomesocietà",
                       "Indirizzo",
                       "DataCombo1",
                       "cap",
                       "statooprovincia",
                       "DCPagamento1",
                       "DCPagamento2",
                       "codice_fiscale",
                       "p_iva",
                       "telefonoufficio",
                       "numerofax",
                       "indirizzopostaelettronica",
                       "Web",
                       "Abi",
                       "Cab",
                       "Cin",
                       "C_Corrente",
                       "Banca",
                       "IBAN",
                       "BIC",
                       "Intestatario"};

TEST_F(AziendaForm, EnterAndTabGoAlongTheFields) {
    apri();
    for (const Qt::Key tasto : kTasti) {
        vaiA("nomesocietà");
        for (const std::string& campo : kOrdine) {
            EXPECT_EQ(fuoco(), campo);
            EXPECT_EQ(scelto(campo), testo(campo)) << "the whole text of " << campo;
            gui.press(tasto);
        }
        EXPECT_EQ(fuoco(), "Check1");
    }
}

TEST_F(AziendaForm, EmptyFieldsAreLeftTooButForTheNameAndTheNumbersOfTheBank) {
    esegui("delete from DatiAzienda");
    apri();
    for (const char* vuoto : {"", " ", "0"}) {
        metti("nomesocietà", vuoto);
        for (const Qt::Key tasto : kTasti) {
            vaiA("nomesocietà");
            gui.press(tasto);
            EXPECT_EQ(fuoco(), "nomesocietà") << vuoto;
        }
    }
    const std::pair<const char*, const char*> passi[] = {{"Indirizzo", "DataCombo1"},
                                                         {"DataCombo1", "cap"},
                                                         {"cap", "statooprovincia"},
                                                         {"statooprovincia", "DCPagamento1"},
                                                         {"codice_fiscale", "p_iva"},
                                                         {"p_iva", "telefonoufficio"},
                                                         {"telefonoufficio", "numerofax"},
                                                         {"numerofax", "indirizzopostaelettronica"},
                                                         {"indirizzopostaelettronica", "Web"},
                                                         {"Web", "Abi"},
                                                         {"Cin", "C_Corrente"},
                                                         {"C_Corrente", "Banca"},
                                                         {"Banca", "IBAN"},
                                                         {"IBAN", "BIC"},
                                                         {"BIC", "Intestatario"}};
    for (const auto& [da, a] : passi) {
        for (const Qt::Key tasto : kTasti) {
            vaiA(da);
            gui.press(tasto);
            EXPECT_EQ(fuoco(), a);
        }
    }
}

TEST_F(AziendaForm, TabReachesWhatTheOrderOfEntryLeavesOut) {
    apri();
    vaiA("Check1");
    for (const char* campo : {"ComboFattura", "idContatto", "cmdCancel", "Command4", "nomesocietà"}) {
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(fuoco(), campo);
    }
    vaiA("DCPagamento1");
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "DataCombo2") << "the state, which comes with the town";
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "DCPagamento1");
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "statooprovincia");
}

const Testi kNonNumeri = {"", " ", "x", "1234A", "0x1", "1;2", "''", "--", "\x01", "1\x1b", std::string(4'000, 'x')};

TEST_F(AziendaForm, AbiAndCabAreLeftOnlyAsNumbers) {
    apri();
    const std::pair<const char*, const char*> campi[] = {{"Abi", "Cab"}, {"Cab", "Cin"}};
    for (const auto& [campo, prossimo] : campi) {
        for (const Qt::Key tasto : kTasti) {
            for (const std::string& nessuno : kNonNumeri) {
                metti(campo, nessuno);
                vaiA(campo);
                script.expectMessage(kNumerico, platform::Icon::None);
                gui.press(tasto);
                EXPECT_EQ(fuoco(), campo) << nessuno;
                EXPECT_EQ(testo(campo), nessuno);
                EXPECT_TRUE(script.allShown());
            }
            for (const char* numero : {"0", "1", "01234", "123456789012", "-1", "2,5", "1.000", "1e3", " 12 "}) {
                metti(campo, numero);
                vaiA(campo);
                gui.press(tasto);
                EXPECT_EQ(fuoco(), prossimo) << numero;
                EXPECT_EQ(testo(campo), numero);
            }
        }
        metti(campo, "x");
        vaiA(campo);
        vaiA("nomesocietà"); // the mouse leaves it without a test
        EXPECT_EQ(fuoco(), "nomesocietà");
        metti(campo, "1");
    }
}

TEST_F(AziendaForm, CinIbanAndBicGetNoTest) {
    apri();
    for (const char* campo : {"Cin", "IBAN", "BIC"}) {
        scrivi(campo, "'; --");
        gui.press(Qt::Key_Return);
        EXPECT_NE(fuoco(), campo);
        EXPECT_EQ(testo(campo), "'; --");
    }
}

TEST_F(AziendaForm, AnEmptyHolderBecomesTheCompanyAtEnterAlone) {
    apri();
    for (const char* vuoto : {"", " ", "0"}) {
        metti("Intestatario", vuoto);
        vaiA("Intestatario");
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(testo("Intestatario"), vuoto);
        EXPECT_EQ(fuoco(), "Check1");
        vaiA("Intestatario");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo("Intestatario"), "Associazione Aurora");
        EXPECT_EQ(fuoco(), "Check1");
    }
    scrivi("Intestatario", "Altri");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("Intestatario"), "Altri");
    metti("Intestatario", "");
    metti("nomesocietà", "");
    vaiA("Intestatario");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("Intestatario"), "");
    EXPECT_EQ(fuoco(), "Check1");
}

TEST_F(AziendaForm, WithoutATermTheEntryStaysUntilOneIsPicked) {
    esegui("update DatiAzienda set IDPagamento = null, IdIncasso = null");
    apri();
    const std::pair<const char*, const char*> campi[] = {{"DCPagamento1", "DCPagamento2"},
                                                         {"DCPagamento2", "codice_fiscale"}};
    for (const auto& [campo, prossimo] : campi) {
        for (const Qt::Key tasto : kTasti) {
            vaiA(campo);
            gui.press(tasto);
            EXPECT_EQ(fuoco(), campo);
        }
        pagina.pick(campo, "Contanti a  Data fattura");
        EXPECT_EQ(fuoco(), prossimo) << "a pick moves on";
        EXPECT_EQ(testo(campo), "Contanti a  Data fattura");
        for (const Qt::Key tasto : kTasti) {
            vaiA(campo);
            gui.press(tasto);
            EXPECT_EQ(fuoco(), prossimo);
        }
    }
    salva();
    EXPECT_EQ(colonne("IDPagamento, IdIncasso"), (Riga{"1", "1"}));
}

// The one above is how the company collects, the one below how it pays.
TEST_F(AziendaForm, EachTermIsStoredInItsOwnColumn) {
    apri();
    pagina.pick("DCPagamento1", "Contanti a  Data fattura");
    pagina.pick("DCPagamento2", "Rimessa diretta a 30-60-90 Fine mese");
    EXPECT_EQ(testi({"DCPagamento1", "DCPagamento2"}),
              (Riga{"Contanti a  Data fattura", "Rimessa diretta a 30-60-90 Fine mese"}));
    salva();
    EXPECT_EQ(colonne("IdIncasso, IDPagamento"), (Riga{"1", "3"}));
}

TEST_F(AziendaForm, ATermIsLookedUpWhenItsFieldIsEnteredAndWhenItIsLeftByAKey) {
    apri();
    const std::pair<const char*, const char*> campi[] = {{"DCPagamento1", "2"}, {"DCPagamento2", "4"}};
    for (const auto& [campo, chiave] : campi) {
        vaiA("nomesocietà");
        const std::string ricerca = std::string(" select Descrizione from CondizioniPagamento Where IDPagamento = ");
        esegui(std::string("update CondizioniPagamento set Descrizione = 'Entrata' where IDPagamento = ") + chiave);
        const support::StatementRecorder recorder;
        vaiA(campo);
        EXPECT_EQ(recorder.texts(), Testi{ricerca + chiave});
        EXPECT_EQ(testo(campo), "Entrata");
        EXPECT_EQ(scelto(campo), "Entrata");
        esegui(std::string("update CondizioniPagamento set Descrizione = 'Lasciata' where IDPagamento = ") + chiave);
        gui.press(Qt::Key_Return);
        ASSERT_GE(recorder.texts().size(), 2U);
        EXPECT_EQ(recorder.texts()[1], ricerca + chiave);
        EXPECT_EQ(testo(campo), "Lasciata");
    }
}

TEST_F(AziendaForm, ATermIsSearchedByKeyboard) {
    apri();
    for (const char* campo : {"DCPagamento1", "DCPagamento2"}) {
        vaiA(campo);
        QTest::keyClick(&pagina.search(campo, "assegno a 30"), Qt::Key_Return);
        pagina.comeToFront();
        EXPECT_EQ(testo(campo), "Assegno a 30-60-90-120-150-180 Data fattura");
        vaiA(campo);
        pagina.typeWithoutPick(campo, "non c'è");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(campo), "Assegno a 30-60-90-120-150-180 Data fattura") << "what wasn't picked is taken back";
    }
    salva();
    EXPECT_EQ(colonne("IdIncasso, IDPagamento"), (Riga{"9", "9"}));
}

TEST_F(AziendaForm, APickedStateIsStoredAndTheFocusStays) {
    apri();
    pagina.pick("DataCombo2", "Francia");
    EXPECT_EQ(fuoco(), "DataCombo2");
    EXPECT_EQ(testo("DataCombo2"), "Francia");
    salva();
    EXPECT_EQ(colonna("IdStato"), valore("select idstato from stati where descstato = 'Francia'"));
}

TEST_F(AziendaForm, ItFitsANarrowScreen) {
    apri();
    EXPECT_LE(gui.form("frmDatiAzienda").minimumSizeHint().width(), 960);
}

TEST_F(AziendaForm, AClickOnARowOfAListMovesOnAsEnterDoes) {
    apri();
    pagina.pickByMouse("DataCombo1", "Aosta");
    EXPECT_EQ(fuoco(), "cap");
    EXPECT_EQ(testi({"DataCombo1", "cap", "statooprovincia"}), (Riga{"Aosta", "11100", "AO"}));
    pagina.pickByMouse("DCPagamento1", "Bonifico bancario a 60 Fine mese");
    EXPECT_EQ(fuoco(), "DCPagamento2");
    pagina.pickByMouse("DCPagamento2", "Contanti a  Data fattura");
    EXPECT_EQ(fuoco(), "codice_fiscale");
    pagina.pickByMouse("DataCombo2", "Kenya");
    salva();
    EXPECT_EQ(colonne("IdIncasso, IDPagamento, IdStato"),
              (Riga{"5", "1", valore("select IdStato from stati where DescStato = 'Kenya'")}));
}

} // namespace
} // namespace vabo
