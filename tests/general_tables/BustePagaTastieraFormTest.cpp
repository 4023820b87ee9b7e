// The form of the accounts of pay slips by keyboard alone, and what typed texts do there.

#include "BustePagaFixture.h"
#include "MorlanFixture.h"
#include "support/Attacks.h"

#include <QCompleter>

namespace vabo {
namespace {

/// From the tab of the settings to the form and back.
class BustePagaTastiera : public MorlanForm {
protected:
    BustePagaTastiera() {
        apri();
        scheda(5);
        QTest::keyClick(gui.form("Avvio_Morlan").windowHandle(), Qt::Key_B, Qt::AltModifier);
        support::Gui::waitFor("the form", [this] { return gui.isVisible("TabelleBustePaga"); });
        gui.waitForFront("TabelleBustePaga");
    }
    /// Types into the picker that has the focus and picks the first account found.
    void cercaEPrendi(int indice, const std::string& lettere) const {
        const std::string nome = "DCBItem_" + std::to_string(indice);
        ASSERT_EQ(pagaForm.focus(), nome);
        QAbstractItemView& trovati = pagaForm.search(nome, lettere);
        QTest::keyClick(&trovati, Qt::Key_Down);
        QTest::keyClick(&trovati, Qt::Key_Return);
        pagaForm.comeToFront();
    }

    support::FormPage pagaForm{gui, "TabelleBustePaga"};
};

TEST_F(BustePagaTastiera, ARowIsChosenItsAccountsArePickedAndStoredAndTheFormIsClosed) {
    ASSERT_EQ(pagaForm.focus(), "DataGrid1");
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(pagaForm.text("Titolo"), "Collaboratori");
    gui.press(Qt::Key_Tab);
    const char* const lettere[] = {"partner",    "finanziatori", "sostitutiva",   "gestione separata", "altri fondi",
                                   "cooperanti", "quota tfr",    "collaboratori", "irpef comunale"};
    for (int i = 0; i < 9; ++i) {
        cercaEPrendi(i, lettere[i]);
    }
    EXPECT_EQ(pagaForm.focus(), "DCBItem_8");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(pagaForm.focus(), "Command9");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(riga("select IdIrpef, IdIrpefReg, IdIrpefCom, IdInpsP, IdInailP, IdCInpsE, IdCInailE, IdCAltriFondiE, "
                   "IdAltriFondiP, IdCIrapE from TipoAnagraficaCPartite where id = 5"),
              (Riga{"1099", "1100", "1087", "1090", "1092", "1180", "1183", "1182", "1083", "0"}));
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(pagaForm.focus(), "Command4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(BustePagaTastiera, TabGoesAlongTheFieldsAndRoundTheForm) {
    const char* const fermate[] = {"DCBItem_0", "DCBItem_1", "DCBItem_2", "DCBItem_3", "DCBItem_4",
                                   "DCBItem_5", "DCBItem_6", "DCBItem_7", "DCBItem_8", "Command9",
                                   "Command4",  "Titolo",    "DataGrid1"};
    for (const char* fermata : fermate) {
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(pagaForm.focus(), fermata);
    }
    gui.press(Qt::Key_Backtab);
    EXPECT_EQ(pagaForm.focus(), "Titolo");
}

TEST_F(BustePagaTastiera, EachCommandHasItsMnemonic) {
    QTest::keyClick(gui.form("TabelleBustePaga").windowHandle(), Qt::Key_S, Qt::AltModifier);
    support::Gui::waitFor("the save",
                          [this] { return valore("select IdCIrapE from TipoAnagraficaCPartite where id = 4") == "0"; });
    QTest::keyClick(gui.form("TabelleBustePaga").windowHandle(), Qt::Key_C, Qt::AltModifier);
    support::Gui::waitFor("the settings", [this] { return gui.visibleForms() == "Avvio_Morlan"; });
}

TEST_F(BustePagaTastiera, NeitherEnterNorDeleteNorEscPicksOrStores) {
    gui.press(Qt::Key_Tab);
    const support::StatementRecorder recorder;
    const std::string prima = pagaForm.combo("DCBItem_0").Text();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape}) {
        gui.press(tasto);
        EXPECT_EQ(pagaForm.focus(), "DCBItem_0");
    }
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(pagaForm.combo("DCBItem_0").Text(), prima);
    EXPECT_TRUE(recorder.texts().empty());
}

class BustePagaAttacchi : public BustePagaForm {
protected:
    std::vector<std::string> salvando() {
        const support::StatementRecorder recorder;
        salva();
        return recorder.texts();
    }
    void incolla(int indice, const std::string& testo) const {
        QLineEdit& campo = *pagina.combo(combo(indice)).lineEdit();
        campo.setFocus();
        campo.clear();
        campo.insert(QString::fromStdString(testo));
    }
};

TEST_F(BustePagaAttacchi, TextsLeftInThePickersGoAwayAndASaveSendsWhatItSendsWithoutThem) {
    constexpr std::size_t kPasso = 12;
    apri();
    salva(); // so that the row has the same values each time after
    const auto attese = salvando();
    const auto prima = tutte();
    const auto mostrati = conti();
    const auto accounts = posto.rows(support::kCompany, "select * from conti order by IdConto");
    ASSERT_FALSE(attese.empty());
    std::vector<std::string> attacchi = {std::string(4000, '\''), "1'; delete from conti --",
                                         std::string("a\0b\x01\x1b", 5)};
    const std::vector<std::string> tutti = support::attacks();
    for (std::size_t i = 0; i < tutti.size(); i += kPasso) {
        attacchi.push_back(tutti[i]);
    }
    for (const std::string& attacco : attacchi) {
        SCOPED_TRACE(testing::PrintToString(attacco.substr(0, 60)));
        for (int i = 0; i < kSelettori; ++i) {
            incolla(i, attacco);
        }
        EXPECT_EQ(salvando(), attese);
        EXPECT_EQ(conti(), mostrati);
        EXPECT_EQ(tutte(), prima);
    }
    EXPECT_EQ(posto.rows(support::kCompany, "select * from conti order by IdConto"), accounts);
}

TEST_F(BustePagaAttacchi, TypedKeysSearchAndEscBringsTheAccountBack) {
    apri();
    const auto mostrati = conti();
    for (const char* digitati : {"'", "';--", "%", "_", "[", "1080", "\x01\x7f", "Irpef comunale\t"}) {
        for (const int i : {0, 7}) {
            pagina.combo(combo(i)).setFocus();
            const support::StatementRecorder recorder;
            pagina.typeWithoutPick(combo(i), digitati);
            pagina.combo(combo(i)).setFocus();
            gui.press(Qt::Key_Escape);
            EXPECT_EQ(conti(), mostrati) << digitati;
            EXPECT_TRUE(recorder.texts().empty());
        }
    }
}

TEST_F(BustePagaAttacchi, TheTypeTakesNoText) {
    apri();
    pagina.control("Titolo").setFocus();
    gui.type("'; drop table conti --");
    EXPECT_EQ(pagina.text("Titolo"), "Dipendenti");
}

TEST_F(BustePagaAttacchi, NamesAreShownAsTheyAre) {
    const std::string nome = R"(<b>D'Ascanio</b> & "figli"; -- %)";
    esegui("update conti set NomeConto = '<b>D''Ascanio</b> & \"figli\"; -- %' where IdConto in (1080, 1099) update "
           "tipoanagrafica set TipoAnagrafe = '<b>D''Ascanio</b> & \"figli\"; -- %' where IdTipoAnagrafica = 4");
    apri();
    EXPECT_EQ(pagina.text("Titolo"), nome);
    EXPECT_EQ(conto(0), nome);
    prendi(1, 1099);
    EXPECT_EQ(conto(1), "203.05.0001 " + nome);
    salva();
    EXPECT_EQ(valore("select IdIrpefReg from TipoAnagraficaCPartite where id = 4"), "1099");
}

} // namespace
} // namespace vabo
