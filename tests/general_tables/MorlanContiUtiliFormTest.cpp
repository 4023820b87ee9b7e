#include "MorlanFixture.h"
#include "general_tables/TestiAttesi.h"

namespace vabo {
namespace {

class MorlanContiUtili : public MorlanForm {
protected:
    MorlanContiUtili() {
        apri();
        scheda(1);
    }
    Riga conto(int id) const { return MorlanForm::conto("TabellaContiUtili", "ID", id); }
    /// The text of an account in the picker's list.
    std::string voce(const std::string& id) const {
        return valore("select NomeConto + ' ' + Contoreport from conti where IdConto = " + id);
    }
    bool offerto(const std::string& id) const {
        return combo("DCBItem1").findText(QString::fromStdString(voce(id)), Qt::MatchExactly) >= 0;
    }
};

TEST_F(MorlanContiUtili, EnterOnARowShowsItAndGoesToThePicker) {
    EXPECT_FALSE(visibile("Frame6"));
    scegli("DataGrid2", "4");
    EXPECT_TRUE(visibile("Frame6"));
    EXPECT_EQ(testo("Descrizione"), "Banca della sede centrale");
    EXPECT_EQ(combo("DCBItem1").Text(), valore("select NomeConto from conti where IdConto = 1150"))
        << "without the code that the list adds";
    EXPECT_EQ(fuoco(), "DCBItem1");
    EXPECT_EQ(combo("DCBItem1").lineEdit()->selectedText().toStdString(), combo("DCBItem1").Text());
}

TEST_F(MorlanContiUtili, ADoubleClickIsTheSame) {
    const QModelIndex indice = griglia("DataGrid2").model()->index(2, 1);
    const QPoint punto = griglia("DataGrid2").visualRect(indice).center();
    QTest::mouseClick(griglia("DataGrid2").viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(griglia("DataGrid2").viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(testo("Descrizione"), "Cassa della sede centrale");
}

TEST_F(MorlanContiUtili, APickStoresTheAccountWithItsGroupAndStandsOneRowBelow) {
    scegli("DataGrid2", "4");
    const support::StatementRecorder recorder;
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(4), (Riga{"1052", "19"}));
    EXPECT_EQ(recorder.count("Select * from tabellacontiutili where id = 4"), 1);
    EXPECT_EQ(recorder.count(kTestoContiUtili), 1) << "the grid is read again";
    EXPECT_EQ(recorder.count(kElencoContiUtili), 0) << "the list isn't";
    EXPECT_FALSE(visibile("Frame6"));
    EXPECT_EQ(combo("DCBItem1").Text(), "Seleziona");
    EXPECT_TRUE(gui.find("Avvio_Morlan", "Command8").isEnabled());
    EXPECT_EQ(rigaCorrente("DataGrid2"), "5");
    EXPECT_EQ(cella("DataGrid2", 3, 2), valore("select NomeConto from conti where IdConto = 1052"));
    EXPECT_EQ(fuoco(), "DataGrid2");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(MorlanContiUtili, AfterTheLastRowTheGridStaysThere) {
    scegli("DataGrid2", "32");
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(32), (Riga{"1052", "19"}));
    EXPECT_EQ(rigaCorrente("DataGrid2"), "32");
    EXPECT_TRUE(inVista("DataGrid2"));
    EXPECT_TRUE(controllo<controls::DataControl>("tabella_conti_utili").Recordset().EOF())
        << "the move ran past the end";
    EXPECT_EQ(fuoco(), "DataGrid2");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(combo("DCBItem1").Text(), valore("select NomeConto from conti where IdConto = 1052"));
}

TEST_F(MorlanContiUtili, TheChosenRowStaysInSightWhenItsFrameOpens) {
    auto& vista = griglia("DataGrid2");
    int ultima = 0;
    for (int riga = 0; riga < righe("DataGrid2"); ++riga) {
        if (vista.viewport()->rect().contains(vista.visualRect(vista.model()->index(riga, 1)))) {
            ultima = riga;
        }
    }
    const int prima = vista.viewport()->height();
    scegli("DataGrid2", cella("DataGrid2", ultima, 0));
    support::Gui::handleEvents();
    ASSERT_LT(vista.viewport()->height(), prima) << "the frame takes room from the grid";
    EXPECT_EQ(rigaCorrente("DataGrid2"), cella("DataGrid2", ultima, 0));
    EXPECT_TRUE(inVista("DataGrid2"));
}

TEST_F(MorlanContiUtili, AHeldEnterOnTheGridChoosesOneRowAndStoresNothing) {
    griglia("DataGrid2").setFocus();
    griglia("DataGrid2").selectRow(3);
    const support::StatementRecorder recorder;
    QTest::keyPress(&griglia("DataGrid2"), Qt::Key_Return);
    for (int i = 0; i < 10; ++i) {
        QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(QApplication::focusWidget(), &ripetuto);
    }
    EXPECT_EQ(fuoco(), "DCBItem1");
    EXPECT_TRUE(recorder.holding("tabellacontiutili where id").empty());
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Return);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(recorder.count("Select * from tabellacontiutili where id = 4"), 1);
}

TEST_F(MorlanContiUtili, WhileAStoreRunsItsButtonIsOffUnderTheHourglass) {
    scegli("DataGrid2", "4");
    bool acceso = true;
    bool clessidra = false;
    ado::setStatementRecorder([&](const std::string& /*testo*/) {
        acceso = gui.find("Avvio_Morlan", "Command8").isEnabled();
        clessidra = QGuiApplication::overrideCursor() != nullptr;
    });
    gui.press(Qt::Key_Return);
    ado::setStatementRecorder({});
    EXPECT_FALSE(acceso);
    EXPECT_TRUE(clessidra);
    EXPECT_TRUE(gui.find("Avvio_Morlan", "Command8").isEnabled());
}

TEST_F(MorlanContiUtili, EnterStoresTheAccountThatTheRowHas) {
    esegui("update TabellaContiUtili set idconto1 = 999 where ID = 4");
    scegli("DataGrid2", "4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(4), (Riga{"1150", "39"})) << "the group is copied again";
    EXPECT_FALSE(visibile("Frame6"));
}

TEST_F(MorlanContiUtili, TheButtonStoresToo) {
    esegui("update TabellaContiUtili set idconto1 = 999 where ID = 4");
    scegli("DataGrid2", "4");
    gui.click("Avvio_Morlan", "Command8");
    EXPECT_EQ(conto(4), (Riga{"1150", "39"}));
}

TEST_F(MorlanContiUtili, DeleteAndEnterTakeTheAccountAway) {
    scegli("DataGrid2", "4");
    gui.press(Qt::Key_Delete);
    EXPECT_EQ(combo("DCBItem1").Text(), "");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(4), (Riga{"0", "0"}));
}

TEST_F(MorlanContiUtili, DeleteWithShiftTakesNothingAway) {
    scegli("DataGrid2", "4");
    QTest::keyClick(&combo("DCBItem1"), Qt::Key_Delete, Qt::ShiftModifier);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(4), (Riga{"1150", "39"}));
}

TEST_F(MorlanContiUtili, ARowThatSpeaksOfEconomyTakesEconomicAccountsAlone) {
    const Riga prima = conto(8);
    scegli("DataGrid2", "8");
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(8), prima);
    EXPECT_TRUE(visibile("Frame6")) << "refused in silence, the row stays open";
    EXPECT_EQ(fuoco(), "DCBItem1");
    prendi("DCBItem1", voce("1040"));
    EXPECT_EQ(conto(8), (Riga{"1040", "17"}));
}

TEST_F(MorlanContiUtili, TheSecondRowIsExempt) {
    ASSERT_EQ(valore("select Description from TabellaContiUtili where ID = 2"), "Conto economico di riepilogo");
    scegli("DataGrid2", "2");
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(2), (Riga{"1052", "19"}));
}

TEST_F(MorlanContiUtili, NoAccountIsRefusedWhereEconomyIsSpokenOfAndStoredElsewhere) {
    const Riga prima = conto(8);
    scegli("DataGrid2", "8");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(8), prima);
    EXPECT_TRUE(visibile("Frame6"));
    scegli("DataGrid2", "3");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(3), (Riga{"0", "0"}));
}

TEST_F(MorlanContiUtili, ARefusedClickOfTheButtonGoesBackToThePicker) {
    esegui("update conti set idmastro = 2 where IdConto = 1038");
    const Riga prima = conto(8);
    scegli("DataGrid2", "8");
    auto& bottone = gui.find("Avvio_Morlan", "Command8");
    bottone.setFocus();
    gui.click("Avvio_Morlan", "Command8");
    EXPECT_EQ(fuoco(), "DCBItem1");
    EXPECT_TRUE(visibile("Frame6"));
    EXPECT_EQ(conto(8), prima);
}

TEST_F(MorlanContiUtili, ARowWithoutAccountKeepsTheOneChosenBefore) {
    esegui("update TabellaContiUtili set IdConto = null where ID = 3");
    scegli("DataGrid2", "4");
    scegli("DataGrid2", "32");
    EXPECT_EQ(combo("DCBItem1").Text(), valore("select NomeConto from conti where IdConto = 1150"));
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(32), (Riga{"1150", "39"}));
    scegli("DataGrid2", "16");
    EXPECT_EQ(combo("DCBItem1").Text(), "") << "after a store there is none";
    scegli("DataGrid2", "3");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto(3), (Riga{"0", "0"}));
}

TEST_F(MorlanContiUtili, WithoutARowNothingIsStored) {
    const support::StatementRecorder recorder;
    combo("DCBItem1").setText("nulla");
    QTest::keyClick(&combo("DCBItem1"), Qt::Key_Return);
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(MorlanContiUtili, TheListStaysAsItWasAtTheOpening) {
    EXPECT_FALSE(offerto("1075")) << "it stands in tipoanagrafica";
    EXPECT_TRUE(offerto("1052"));
    esegui("update tipoanagrafica set idconto = 1052 where IdTipoAnagrafica = 9");
    scegli("DataGrid2", "3");
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(3), (Riga{"1052", "19"}));
    EXPECT_TRUE(offerto("1052"));
    riapri();
    EXPECT_FALSE(offerto("1052"));
}

TEST_F(MorlanContiUtili, AStoreThatFailsLooksLikeOneThatWentWell) {
    scegli("DataGrid2", "4");
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto presa = altro->hold("select * from TabellaContiUtili where ID = 4");
        prendi("DCBItem1", voce("1052"));
    }
    EXPECT_EQ(conto(4), (Riga{"1150", "39"}));
    EXPECT_FALSE(visibile("Frame6"));
    EXPECT_TRUE(script.shown().empty());
    scegli("DataGrid2", "4");
    prendi("DCBItem1", voce("1052"));
    EXPECT_EQ(conto(4), (Riga{"1052", "19"})) << "the next one finds its recordset closed";
}

TEST_F(MorlanContiUtili, AGridWithoutRowsTellsTheErrorOfItsFirstColumn) {
    esegui("delete from TabellaContiUtili");
    riapri();
    scheda(1);
    script.expectMessage(ado::Error(ado::kNoCurrentRecord).description());
    QTest::mouseDClick(griglia("DataGrid2").viewport(), Qt::LeftButton, {}, {20, 20});
    EXPECT_FALSE(visibile("Frame6"));
}

} // namespace
} // namespace vabo
