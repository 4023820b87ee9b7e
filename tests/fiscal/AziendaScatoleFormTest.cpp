// The form of the company's data with the program's own boxes, which take the keyboard and the mouse's release.

#include "fiscal/AziendaForm.h"
#include "support/RealBoxes.h"

namespace vabo {
namespace {

using support::RealBoxes;

class AziendaScatole : public AziendaForm {
protected:
    void scriviCodice(const std::string& codice) {
        apri();
        scrivi("codice_fiscale", codice);
    }
    /// A key in the form, up to the answer of its box.
    void premiTasto(Qt::Key tasto) {
        const QPointer<QWidget> form = pagina.control("codice_fiscale").window();
        gui.press(tasto);
        RealBoxes::settle(form);
    }
    void clicca(RealBoxes& scatole, const std::string& nome) const { scatole.click(pagina.control(nome)); }
};

TEST_F(AziendaScatole, AWrongNumberAsFiscalCodeIsToldOnceAndNotCopied) {
    scriviCodice("97088120016");
    metti("p_iva", "");
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
        const RealBoxes scatole;
        premiTasto(tasto);
        EXPECT_EQ(scatole.texts, Testi{kErrato});
        EXPECT_EQ(fuoco(), "codice_fiscale");
        EXPECT_EQ(scelto("codice_fiscale"), "97088120016");
        EXPECT_EQ(testo("p_iva"), "");
    }
}

TEST_F(AziendaScatole, AWrongFiscalCodeKeepsTheFocusFromTheMouse) {
    scriviCodice("rssmra85t10a562t");
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        for (const char* altrove : {"p_iva", "Banca", "DataCombo1", "Check1"}) {
            scatole.answered = risposta;
            scatole.texts.clear();
            clicca(scatole, altrove);
            EXPECT_EQ(scatole.texts, Testi{kErrato}) << altrove;
            EXPECT_EQ(fuoco(), "codice_fiscale") << altrove;
            EXPECT_EQ(scelto("codice_fiscale"), "RSSMRA85T10A562T") << altrove;
        }
    }
}

TEST_F(AziendaScatole, AWrongVatNumberIsToldOnceAndTheFocusMovesOn) {
    apri();
    const auto lascia = [this](const std::function<void(RealBoxes&)>& come, const char* successivo) {
        scrivi("p_iva", "08765120013");
        RealBoxes scatole;
        come(scatole);
        EXPECT_EQ(scatole.texts, Testi{kErrato});
        EXPECT_EQ(fuoco(), successivo);
        EXPECT_EQ(scelto(successivo), testo(successivo));
    };
    lascia([this](RealBoxes&) { premiTasto(Qt::Key_Return); }, "telefonoufficio");
    lascia([this](RealBoxes&) { premiTasto(Qt::Key_Tab); }, "telefonoufficio");
    lascia([this](RealBoxes& scatole) { clicca(scatole, "Banca"); }, "Banca");
}

TEST_F(AziendaScatole, ThroughTheBoxOfAWrongCodeTheButtonsWorkByMouse) {
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        scatole.answered = risposta;
        scatole.texts.clear();
        scriviCodice("SBAGLIATO");
        clicca(scatole, "Command4");
        EXPECT_EQ(scatole.texts, Testi{kErrato});
        EXPECT_FALSE(aperta());
        EXPECT_EQ(colonna("Codicefiscale"), "97088120015");
    }
    scatole.texts.clear();
    scriviCodice("SBAGLIATO");
    clicca(scatole, "cmdCancel");
    EXPECT_EQ(scatole.texts, Testi{kErrato});
    EXPECT_FALSE(aperta());
    EXPECT_EQ(colonna("Codicefiscale"), "SBAGLIATO");
}

TEST_F(AziendaScatole, ThroughTheBoxOfAWrongCodeTheButtonsWorkByTheirMnemonics) {
    RealBoxes scatole;
    scriviCodice("SBAGLIATO");
    QTest::keyClick(gui.form("frmDatiAzienda").windowHandle(), Qt::Key_S, Qt::AltModifier);
    support::Gui::waitFor("the form below", [this] { return gui.visibleForms() == "Avvio_Azienda"; });
    EXPECT_EQ(scatole.texts, Testi{kErrato});
    EXPECT_EQ(colonna("Codicefiscale"), "SBAGLIATO");
}

TEST_F(AziendaScatole, ABankCodeThatIsNoNumberIsToldOnceAndKeepsTheFocus) {
    apri();
    for (const char* campo : {"Abi", "Cab"}) {
        scrivi(campo, "x");
        const RealBoxes scatole;
        premiTasto(Qt::Key_Return);
        EXPECT_EQ(scatole.texts, Testi{"Inserire un valore numerico"});
        EXPECT_EQ(fuoco(), campo);
    }
}

TEST_F(AziendaScatole, ATownThatIsMissingIsToldAndTheFormCloses) {
    esegui("update DatiAzienda set città = null");
    const Riga prima = tutto();
    apri();
    metti("Banca", "Altra");
    RealBoxes scatole;
    const support::StatementRecorder recorder;
    clicca(scatole, "cmdCancel");
    EXPECT_EQ(recorder.texts(), Testi{}) << "the form is gone before the town has the focus";
    EXPECT_EQ(scatole.texts, Testi{"Attenzione nome città non inserito."});
    EXPECT_FALSE(aperta());
    EXPECT_EQ(tutto(), prima);
}

} // namespace
} // namespace vabo
