#include "MorlanFixture.h"
#include "general_tables/TestiAttesi.h"

namespace vabo {
namespace {

/// Tabs 4 and 5: the accounts of invoices and of pay slips.
class MorlanFatture : public MorlanForm {
protected:
    MorlanFatture() {
        apri();
        scheda(4);
    }
    std::string voce(const std::string& id) const {
        return valore("select NomeConto + ' ' + Contoreport from conti where IdConto = " + id);
    }
    std::string nome(const std::string& id) const {
        return valore("select NomeConto from conti where IdConto = " + id);
    }
    Riga fattura(int id) const {
        return riga("select idconto, idconto1, idProgetto from ivaTabellaContiUtili where ID = " + std::to_string(id));
    }
    Riga busta(int id) const { return conto("bustetabellacontiutili", "Id", id); }
    bool fermata(const std::string& nome) const { return (combo(nome).focusPolicy() & Qt::TabFocus) != 0; }
};

TEST_F(MorlanFatture, EnterOnARowShowsItsAccountAndOpensThePickerToTheTab) {
    EXPECT_FALSE(fermata("DCBItems3"));
    scegli("DataGrid11", "3");
    EXPECT_EQ(combo("DCBItems3").Text(), nome("1086"));
    EXPECT_EQ(fuoco(), "DCBItems3");
    EXPECT_TRUE(fermata("DCBItems3"));
}

TEST_F(MorlanFatture, APickSendsAccountProjectAndGroup) {
    scegli("DataGrid11", "3");
    const support::StatementRecorder recorder;
    prendi("DCBItems3", voce("1077"));
    EXPECT_TRUE(recorder.sentInOrder({"update ivaTabellaContiUtili set idconto=1077 where id=3",
                                      "update ivaTabellaContiUtili set idProgetto = 10000001  where id=3",
                                      "update ivaTabellaContiUtili set idconto1=25 where id=3", kTestoContiIva}));
    EXPECT_EQ(fattura(3), (Riga{"1077", "25", "10000001"}));
    EXPECT_EQ(combo("DCBItems3").Text(), "Seleziona");
    EXPECT_FALSE(fermata("DCBItems3"));
    EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
    EXPECT_EQ(rigaCorrente("DataGrid11"), "4") << "one row below";
    EXPECT_EQ(cella("DataGrid11", 2, 2), nome("1077"));
    EXPECT_EQ(fuoco(), "DataGrid11");
}

TEST_F(MorlanFatture, EnterSendsAccountGroupAndProject) {
    scegli("DataGrid11", "3");
    const support::StatementRecorder recorder;
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(recorder.sentInOrder({"update ivaTabellaContiUtili set idconto=1086 where id=3",
                                      "update ivaTabellaContiUtili set idconto1=26 where id=3",
                                      "update ivaTabellaContiUtili set idProgetto = 10000001  where id=3"}));
}

TEST_F(MorlanFatture, DeleteAndEnterTakeTheAccountAway) {
    scegli("DataGrid11", "3");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fattura(3), (Riga{"0", "0", "10000001"}));
}

TEST_F(MorlanFatture, ARowWithoutAccountShowsNoneAndStoresNoneWhereNoneWasChosen) {
    scegli("DataGrid11", "10");
    EXPECT_EQ(combo("DCBItems3").Text(), "Seleziona");
    EXPECT_EQ(fuoco(), "DCBItems3");
    EXPECT_TRUE(fermata("DCBItems3"));
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fattura(10), (Riga{"0", "0", "10000001"}));
}

TEST_F(MorlanFatture, ARowWithoutAccountLeavesThePickerAndTheAccountAsTheyWere) {
    scegli("DataGrid11", "3");
    scegli("DataGrid11", "10");
    EXPECT_EQ(combo("DCBItems3").Text(), nome("1086"));
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fattura(10), (Riga{"1086", "26", "10000001"}));
    EXPECT_EQ(fattura(3), (Riga{"1086", "26", "10000001"}));
}

TEST_F(MorlanFatture, OnlyANameGreaterThanZeroIsOne) {
    const std::pair<const char*, bool> casi[] = {{"", false},   {"0", false}, {"0,00", false},
                                                 {"-5", false}, {"7", true},  {"-5 voci", true}};
    for (const auto& [chiamato, mostrato] : casi) {
        SCOPED_TRACE(chiamato);
        esegui(std::string("update conti set NomeConto = '") + chiamato + "' where IdConto in (1080, 1086)");
        esegui("update ivaTabellaContiUtili set idconto = 1086 where ID = 3");
        riapri();
        scheda(4);
        scegli("DataGrid11", "3");
        EXPECT_EQ(combo("DCBItems3").Text(), mostrato ? chiamato : "Seleziona");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fattura(3), (mostrato ? Riga{"1086", "26", "10000001"} : Riga{"0", "0", "10000001"}));
        scheda(5);
        scegli("DataGridPersonale", "3");
        EXPECT_EQ(combo("DCBitems4").Text(), mostrato ? chiamato : "Seleziona");
    }
}

TEST_F(MorlanFatture, WithoutARowAPickSendsNothingAndReadsTheGridAgain) {
    const support::StatementRecorder recorder;
    prendi("DCBItems3", voce("1077"));
    EXPECT_EQ(recorder.texts(), std::vector<std::string>{kTestoContiIva});
    EXPECT_EQ(combo("DCBItems3").Text(), "Seleziona");
}

TEST_F(MorlanFatture, TheRowIsForgottenAfterItsStore) {
    scegli("DataGrid11", "3");
    prendi("DCBItems3", voce("1077"));
    prendi("DCBItems3", voce("1075"));
    EXPECT_EQ(fattura(3), (Riga{"1077", "25", "10000001"}));
    EXPECT_EQ(fattura(4), (Riga{"1075", "25", "10000001"}));
    EXPECT_EQ(fattura(1), (Riga{"1139", "37", "10000001"}));
    scegli("DataGrid11", "10");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fattura(10), (Riga{"0", "0", "10000001"})) << "and so is the account";
}

TEST_F(MorlanFatture, WhileAStoreRunsTheFormTakesNoInput) {
    scegli("DataGrid11", "3");
    bool accesa = true;
    ado::setStatementRecorder([&](const std::string& /*testo*/) { accesa = gui.form("Avvio_Morlan").isEnabled(); });
    gui.press(Qt::Key_Return);
    ado::setStatementRecorder({});
    EXPECT_FALSE(accesa);
    EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
}

TEST_F(MorlanFatture, AnErrorIsToldAndTheFormTakesInputAgain) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1077");
    scegli("DataGrid11", "3");
    script.expectMessage("Invalid use of Null");
    prendi("DCBItems3", voce("1077"));
    EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
    EXPECT_EQ(fuoco(), "DCBItems3");
    EXPECT_EQ(fattura(3), (Riga{"1077", "26", "10000001"})) << "what was sent before the error stays";
}

TEST_F(MorlanFatture, WithAnEmptyGridADoubleClickTellsTheError) {
    esegui("delete from ivaTabellaContiUtili");
    riapri();
    scheda(4);
    script.expectMessage(ado::Error(ado::kNoCurrentRecord).description());
    QTest::mouseDClick(griglia("DataGrid11").viewport(), Qt::LeftButton, {}, {20, 20});
}

TEST_F(MorlanFatture, WithAnEmptyGridOfThePayrollADoubleClickTellsTheErrorBehindTheRight) {
    esegui("delete from bustetabellacontiutili");
    riapri();
    scheda(5);
    const auto doppioClick = [this] {
        QTest::mouseDClick(griglia("DataGridPersonale").viewport(), Qt::LeftButton, {}, {20, 20});
    };
    script.expectMessage(ado::Error(ado::kNoCurrentRecord).description());
    doppioClick();
    EXPECT_TRUE(script.allShown());
    EXPECT_FALSE(fermata("DCBitems4"));
    DirittiUtente.A_Personale = kFalso;
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    doppioClick();
}

TEST_F(MorlanFatture, ThePayrollAsksForItsRight) {
    DirittiUtente.A_Personale = kFalso;
    scheda(5);
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    scegli("DataGridPersonale", "3");
    EXPECT_FALSE(fermata("DCBitems4"));
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
    EXPECT_EQ(fuoco(), "DataGridPersonale");
}

TEST_F(MorlanFatture, APickOfThePayrollStoresAndLeavesTheGridAsItWas) {
    scheda(5);
    const std::string prima = cella("DataGridPersonale", 2, 2);
    scegli("DataGridPersonale", "3");
    EXPECT_EQ(combo("DCBitems4").Text(), nome("1080"));
    EXPECT_TRUE(fermata("DCBitems4"));
    EXPECT_EQ(fuoco(), "DCBitems4");
    const support::StatementRecorder recorder;
    prendi("DCBitems4", voce("1052"));
    EXPECT_EQ(busta(3), (Riga{"1052", "19"}));
    EXPECT_EQ(recorder.count("Select * from BusteTabellaContiUtili  where id = 3"), 1);
    EXPECT_EQ(recorder.count(kTestoContiPersonale), 0);
    EXPECT_EQ(cella("DataGridPersonale", 2, 2), prima);
    EXPECT_EQ(rigaCorrente("DataGridPersonale"), "3");
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
    EXPECT_FALSE(fermata("DCBitems4"));
    riapri();
    EXPECT_EQ(cella("DataGridPersonale", 2, 2), nome("1052"));
}

TEST_F(MorlanFatture, TheSameTableByWayOfTheThirdTabShowsTheChangeAtOnce) {
    scheda(2);
    gui.click("Avvio_Morlan", "Command18");
    scegli("DataGrid4", "3");
    prendi("DCBitem2", voce("1052"));
    bool visto = false;
    for (int r = 0; r < righe("DataGrid4"); ++r) {
        visto = visto || (cella("DataGrid4", r, 0) == "3" && cella("DataGrid4", r, 3) == nome("1052"));
    }
    EXPECT_TRUE(visto);
}

TEST_F(MorlanFatture, EnterInThePayrollStoresTheRowsOwnAccount) {
    esegui("update bustetabellacontiutili set idconto1 = 999 where Id = 3");
    scheda(5);
    scegli("DataGridPersonale", "3");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(busta(3), (Riga{"1080", "26"}));
    combo("DCBitems4").setFocus();
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(busta(3), (Riga{"0", "0"})) << "the row stays chosen";
}

TEST_F(MorlanFatture, ThePayrollStoresNothingWithoutARow) {
    scheda(5);
    const support::StatementRecorder recorder;
    prendi("DCBitems4", voce("1052"));
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(MorlanFatture, ANullGroupPassesInSilenceInThePayroll) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1052");
    scheda(5);
    scegli("DataGridPersonale", "3");
    prendi("DCBitems4", voce("1052"));
    EXPECT_EQ(busta(3), (Riga{"1052", "26"}));
}

TEST_F(MorlanFatture, EscLeavesTheChosenRowWithoutStoring) {
    const Riga fatturaPrima = fattura(3);
    const Riga bustaPrima = busta(3);
    scegli("DataGrid11", "3");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Escape);
    EXPECT_EQ(combo("DCBItems3").Text(), "Seleziona");
    EXPECT_FALSE(fermata("DCBItems3"));
    EXPECT_EQ(fuoco(), "DataGrid11");
    scheda(5);
    scegli("DataGridPersonale", "3");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Escape);
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
    EXPECT_FALSE(fermata("DCBitems4"));
    EXPECT_EQ(fuoco(), "DataGridPersonale");
    combo("DCBitems4").setFocus();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fattura(3), fatturaPrima);
    EXPECT_EQ(busta(3), bustaPrima);
}

TEST_F(MorlanFatture, AfterTheLastRowTheGridStaysThere) {
    scegli("DataGrid11", "10");
    prendi("DCBItems3", voce("1077"));
    EXPECT_EQ(rigaCorrente("DataGrid11"), "10");
}

TEST_F(MorlanFatture, OneEnterTakesWhatTheSearchHasFoundAndStoresIt) {
    scegli("DataGrid11", "3");
    QTest::keyClick(&cerca("DCBItems3", "fatture da ricevere"), Qt::Key_Return);
    tornaDavanti();
    EXPECT_EQ(fattura(3), (Riga{"1077", "25", "10000001"}));
    scheda(5);
    scegli("DataGridPersonale", "3");
    QTest::keyClick(&cerca("DCBitems4", "esercizi precedenti"), Qt::Key_Return);
    tornaDavanti();
    EXPECT_EQ(busta(3), (Riga{"1052", "19"}));
}

TEST_F(MorlanFatture, TheListOfInvoicesHoldsDebtsAndCreditsAlone) {
    const auto offerti = posto.rows(support::kCompany, kElencoContiFatture);
    ASSERT_EQ(combo("DCBItems3").count(), static_cast<int>(offerti.size()));
    for (std::size_t i = 0; i < offerti.size(); ++i) {
        EXPECT_EQ(combo("DCBItems3").itemText(static_cast<int>(i)).toStdString(), offerti[i][1]);
    }
}

} // namespace
} // namespace vabo
