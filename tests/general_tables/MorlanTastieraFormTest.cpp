#include "MorlanFixture.h"

namespace vabo {
namespace {

/// From the company console to the rows of the tables with the keyboard alone.
class MorlanTastiera : public MorlanForm {
protected:
    MorlanTastiera() {
        NomeTerminale = support::kTerminalName;
        app::registerForms(gui.forms());
        gui.forms().show("Avvio_Azienda");
        gui.waitForFront("Avvio_Azienda");
        DirittiUtente.A_Personale = kVero;
    }
    /// Presses a key until that control has the focus.
    void vaiA(const std::string& nome, Qt::Key tasto = Qt::Key_Tab) {
        constexpr int kPiuDelleFermate = 60;
        for (int i = 0; i < kPiuDelleFermate && fuoco() != nome; ++i) {
            gui.press(tasto);
        }
        ASSERT_EQ(fuoco(), nome);
    }
    /// Goes from anywhere on the form to the tab bar and along it to that tab.
    void vaiAllaScheda(int numero) {
        vaiA("qt_tabwidget_tabbar");
        auto& schede = controllo<QTabWidget>("SSTab1");
        while (schede.currentIndex() != numero) {
            gui.press(schede.currentIndex() < numero ? Qt::Key_Right : Qt::Key_Left);
        }
    }
    /// Types into the picker and picks the first account that is found.
    void cercaEPrendi(const std::string& nome, const std::string& lettere) {
        ASSERT_EQ(fuoco(), nome);
        gui.type(lettere);
        QAbstractItemView* trovati = combo(nome).completer()->popup();
        support::Gui::waitFor("the search", [&] { return trovati->isVisible(); });
        QTest::keyClick(trovati, Qt::Key_Down);
        QTest::keyClick(trovati, Qt::Key_Return);
        tornaDavanti();
    }
};

TEST_F(MorlanTastiera, FromTheCompanyConsoleToTheRowsOfTheTables) {
    vaiA("cmdClose");
    gui.press(Qt::Key_Return);
    gui.waitForFront("Avvio_Morlan");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");

    vaiA("Check7");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 5"), "-1");

    vaiAllaScheda(1);
    vaiA("DataGrid2");
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Down);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("Descrizione"), "Cassa della sede centrale");
    cercaEPrendi("DCBItem1", "esercizi precedenti");
    EXPECT_EQ(conto("TabellaContiUtili", "ID", 3), (Riga{"1052", "19"}));
    EXPECT_EQ(fuoco(), "DataGrid2");

    vaiAllaScheda(2);
    vaiA("DataGrid4");
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 1), (Riga{"0", "0"}));
    vaiA("Command18");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("Label14"), "Tabella Conti Buste paga");

    vaiAllaScheda(3);
    vaiA("Check12");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 9"), "1");

    vaiAllaScheda(4);
    vaiA("DataGrid11");
    gui.press(Qt::Key_Return);
    cercaEPrendi("DCBItems3", "fatture da ricevere");
    EXPECT_EQ(riga("select idconto, idProgetto from ivaTabellaContiUtili where ID = 1"), (Riga{"1077", "10000001"}));
    vaiA("DCBitem5");
    gui.press(Qt::Key_Delete);
    cercaEPrendi("DCBitem5", "nibile 10");
    EXPECT_EQ(valore("select idTipo from IvaAliquotaStandard"), "3");

    vaiAllaScheda(5);
    vaiA("DataGridPersonale");
    gui.press(Qt::Key_Return);
    cercaEPrendi("DCBitems4", "esercizi precedenti");
    EXPECT_EQ(conto("bustetabellacontiutili", "Id", 1), (Riga{"1052", "19"}));

    vaiA("Command13");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(MorlanTastiera, ThePickersOfInvoicesAndPayrollAreAStopOnlyWhileARowIsChosen) {
    vaiA("cmdClose");
    gui.press(Qt::Key_Return);
    gui.waitForFront("Avvio_Morlan");
    vaiAllaScheda(4);
    vaiA("DataGrid11");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "DCBitem5");
    vaiA("DataGrid11", Qt::Key_Backtab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "DCBItems3");
    vaiA("DataGrid11", Qt::Key_Backtab);
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "DCBItems3");
}

TEST_F(MorlanTastiera, AnOrdinaryUserMeetsTwoRefusalsAndNothingElse) {
    DirittiUtente = {};
    vaiA("cmdClose");
    gui.press(Qt::Key_Return);
    gui.waitForFront("Avvio_Morlan");
    const std::string rifiuto = "Utente non abilitato!\nContattare l'amministratore di sistema";
    script.expectMessage(rifiuto);
    vaiA("Command31");
    gui.press(Qt::Key_Return);
    script.expectMessage(rifiuto);
    vaiAllaScheda(5);
    vaiA("DataGridPersonale");
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(script.allShown());

    vaiAllaScheda(3);
    for (const char* nome : {"Check1", "Check6", "Check9", "Check12"}) {
        const int prima = casella(nome);
        vaiA(nome);
        gui.press(Qt::Key_Space);
        EXPECT_EQ(casella(nome), 1 - prima) << nome;
    }
    vaiAllaScheda(1);
    vaiA("DataGrid2");
    gui.press(Qt::Key_Return);
    cercaEPrendi("DCBItem1", "esercizi precedenti");
    EXPECT_EQ(conto("TabellaContiUtili", "ID", 1), (Riga{"1052", "19"}));
}

} // namespace
} // namespace vabo
