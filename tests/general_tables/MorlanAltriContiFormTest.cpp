#include "MorlanFixture.h"
#include "general_tables/TestiAttesi.h"

namespace vabo {
namespace {

class MorlanAltriConti : public MorlanForm {
protected:
    MorlanAltriConti() {
        apri();
        scheda(2);
    }
    void gira(int volte = 1) {
        for (int i = 0; i < volte; ++i) {
            gui.click("Avvio_Morlan", "Command18");
        }
    }
    std::string voce(const std::string& id) const {
        return valore("select NomeConto + ' ' + Contoreport from conti where IdConto = " + id);
    }
    std::string nome(const std::string& id) const {
        return valore("select NomeConto from conti where IdConto = " + id);
    }
    /// Label, caption of the button, number shown.
    std::vector<std::string> testata() const { return {testo("Label14"), testo("Command18"), testo("Controllo")}; }
};

using Testata = std::vector<std::string>;

TEST_F(MorlanAltriConti, TheButtonTurnsTheFourTablesWithTheirOddities) {
    EXPECT_EQ(testata(), (Testata{"Tabella Conti Anagrafiche", "Tabella Conti Buste paga", "0"}));
    EXPECT_EQ(righe("DataGrid4"), 10);
    gira();
    EXPECT_EQ(testata(), (Testata{"Tabella Conti Buste paga", "Tabella Conti Trasf. Fondi", "0"})) << "one turn late";
    EXPECT_EQ(righe("DataGrid4"), 12);
    gira();
    EXPECT_EQ(testata(), (Testata{"Tabella Gestione progetti", "Tabella Conti contributi", "2"}))
        << "not the label of a store";
    EXPECT_EQ(righe("DataGrid4"), 4);
    gira();
    EXPECT_EQ(testata(), (Testata{"Tabella Conti contributi", "Tabella Conti Anagrafiche", "3"}));
    EXPECT_EQ(righe("DataGrid4"), 6);
    gira();
    EXPECT_EQ(testata(), (Testata{"Tabella Conti Anagrafiche", "Tabella Conti Buste paga", "0"}));
    EXPECT_EQ(righe("DataGrid4"), 10);
}

TEST_F(MorlanAltriConti, EachTurnReadsItsTable) {
    for (const int tabella : {1, 2, 3, 0}) {
        const support::StatementRecorder recorder;
        gira();
        EXPECT_EQ(recorder.texts(), std::vector<std::string>{kTestiAltriConti.at(tabella)});
        EXPECT_FALSE(griglia("DataGrid4").Columns(0).Visible()) << "the layout is made anew";
    }
}

TEST_F(MorlanAltriConti, EnterOnARowShowsItsAccount) {
    scegli("DataGrid4", "2");
    EXPECT_TRUE(visibile("Frame2"));
    EXPECT_EQ(testo("tipoanagrafe"), "Fornitori estero");
    EXPECT_EQ(combo("DCBitem2").Text(), nome("1076"));
    EXPECT_EQ(fuoco(), "DCBitem2");
    EXPECT_FALSE(gui.find("Avvio_Morlan", "Command14").isEnabled());
}

TEST_F(MorlanAltriConti, ARowWithoutAccountShowsNoneAndKeepsTheOneBefore) {
    scegli("DataGrid4", "2");
    scegli("DataGrid4", "9");
    EXPECT_EQ(combo("DCBitem2").Text(), "Seleziona");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 9), (Riga{"1076", "25"}));
}

TEST_F(MorlanAltriConti, WithoutARowNothingIsStored) {
    const support::StatementRecorder recorder;
    QTest::keyClick(&combo("DCBitem2"), Qt::Key_Return);
    EXPECT_TRUE(recorder.texts().empty());
}

struct Caso {
    int tabella;
    const char* nome;
    const char* chiave;
    const char* istruzione;
    Testata testata; ///< after the store
};

TEST_F(MorlanAltriConti, APickStoresInTheTableShown) {
    const Caso casi[] = {
        {0,
         "tipoanagrafica",
         "IdTipoAnagrafica",
         "Select * from tipoanagrafica where idtipoanagrafica = 2",
         {"Tabella Conti Anagrafiche", "Tabella Conti Buste paga", "0"}},
        {1,
         "bustetabellacontiutili",
         "Id",
         "Select * from bustetabellacontiutili  where id = 2",
         {"Tabella Conti Buste paga", "Tabella Conti Trasf. Fondi", "1"}},
        {2,
         "tabellacontiutiliTransfersHQ",
         "Id",
         "Select * from tabellacontiutiliTransfersHQ  where id = 2",
         {"Tabella Conti Trasf. Fondi", "Tabella Conti contributi", "2"}},
        {3,
         "tabellacontiutilicontributi",
         "Id",
         "Select * from tabellacontiutilicontributi  where id = 4",
         {"Tabella Conti contributi", "Tabella Conti Anagrafiche", "3"}},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        const int id = caso.tabella == 3 ? 4 : 2;
        scegli("DataGrid4", std::to_string(id));
        const support::StatementRecorder recorder;
        prendi("DCBitem2", voce("1052"));
        EXPECT_EQ(conto(caso.nome, caso.chiave, id), (Riga{"1052", "19"}));
        EXPECT_EQ(recorder.count(caso.istruzione), 1);
        EXPECT_EQ(recorder.count(kTestiAltriConti.at(caso.tabella)), 1);
        EXPECT_EQ(recorder.count(kElencoAltriConti), 0);
        EXPECT_EQ(testata(), caso.testata);
        EXPECT_EQ(testo("tipoanagrafe"), "Doppio click sui dati per correggerli");
        EXPECT_EQ(combo("DCBitem2").Text(), "Seleziona");
        EXPECT_FALSE(visibile("Frame2"));
        EXPECT_FALSE(gui.find("Avvio_Morlan", "Command14").isEnabled());
        EXPECT_EQ(fuoco(), "DataGrid4");
        gira();
    }
}

TEST_F(MorlanAltriConti, TheGridStandsOneRowBelow) {
    scegli("DataGrid4", "2");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(rigaCorrente("DataGrid4"), "3");
    EXPECT_EQ(cella("DataGrid4", 1, 3), nome("1052"));
}

TEST_F(MorlanAltriConti, TheTestOfEconomicAccountsExemptsNoRow) {
    gira();
    const Riga prima = conto("bustetabellacontiutili", "Id", 1);
    scegli("DataGrid4", "1");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(conto("bustetabellacontiutili", "Id", 1), prima);
    EXPECT_TRUE(visibile("Frame2"));
    EXPECT_EQ(fuoco(), "DCBitem2");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("bustetabellacontiutili", "Id", 1), prima);
    esegui("update tipoanagrafica set TipoAnagrafe = 'Riepilogo ECONOmico' where IdTipoAnagrafica = 2");
    gira(3);
    scegli("DataGrid4", "2");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"1076", "25"}));
}

TEST_F(MorlanAltriConti, DeleteAndEnterTakeTheAccountAway) {
    scegli("DataGrid4", "2");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"0", "0"}));
}

TEST_F(MorlanAltriConti, EscLeavesTheFrameWithoutStoring) {
    scegli("DataGrid4", "2");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Escape);
    EXPECT_FALSE(visibile("Frame2"));
    EXPECT_EQ(fuoco(), "DataGrid4");
    EXPECT_EQ(combo("DCBitem2").Text(), "Seleziona");
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"1076", "25"}));
}

TEST_F(MorlanAltriConti, EscLeavesTheFrameFromAnywhereOnItsPage) {
    for (const char* dove : {"DataGrid4", "tipoanagrafe", "Controllo", "Command18"}) {
        SCOPED_TRACE(dove);
        scegli("DataGrid4", "2");
        gui.find("Avvio_Morlan", dove).setFocus();
        gui.press(Qt::Key_Escape);
        EXPECT_FALSE(visibile("Frame2"));
        EXPECT_EQ(fuoco(), "DataGrid4");
    }
}

TEST_F(MorlanAltriConti, AfterTheLastRowTheGridStaysThere) {
    scegli("DataGrid4", "10");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 10), (Riga{"1052", "19"}));
    EXPECT_EQ(rigaCorrente("DataGrid4"), "10");
}

TEST_F(MorlanAltriConti, OneEnterTakesWhatTheSearchHasFoundAndStoresIt) {
    scegli("DataGrid4", "2");
    QTest::keyClick(&cerca("DCBitem2", "esercizi precedenti"), Qt::Key_Return);
    tornaDavanti();
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"1052", "19"}));
}

TEST_F(MorlanAltriConti, AnAccountOfTheGeneralTableCannotBePicked) {
    const auto offerto = [this](const char* id) {
        return combo("DCBitem2").findText(QString::fromStdString(voce(id)), Qt::MatchExactly) >= 0;
    };
    EXPECT_FALSE(offerto("1051"));
    EXPECT_TRUE(offerto("1075"));
}

TEST_F(MorlanAltriConti, ARowThatHasGoneIsToldAndTheNextStoreGoesThrough) {
    scegli("DataGrid4", "2");
    esegui("delete from tipoanagrafica where IdTipoAnagrafica = 2");
    script.expectMessage(ado::Error(ado::kNoCurrentRecord).description());
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(visibile("Frame2"));
    scegli("DataGrid4", "1");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 1), (Riga{"1052", "19"}));
}

TEST_F(MorlanAltriConti, ANullGroupStopsTheStoreWithItsMessage) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1052");
    scegli("DataGrid4", "1");
    script.expectMessage("Invalid use of Null");
    prendi("DCBitem2", voce("1052"));
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 1), (Riga{"1075", "25"}));
}

TEST_F(MorlanAltriConti, APositionPastTheEndOfTheTableBringsTheSourceThatFails) {
    gira();
    // "Trattenute sindacali", the last by description, is row 12 of 12; the next table has fewer rows.
    scegli("DataGrid4", "4");
    griglia("DataGrid4").selectRow(righe("DataGrid4") - 1);
    scegli("DataGrid4", cella("DataGrid4", righe("DataGrid4") - 1, 0));
    esegui("insert into tabellacontiutiliTransfersHQ (Id, description) values (12, 'Riga dodici')");
    gira();
    ASSERT_TRUE(controllo<controls::DataControl>("tipo_anagrafica").Recordset().EOF());
    combo("DCBitem2").setFocus();
    script.expectMessage(
        "Unclosed quotation mark after the character string ' as dettagli FROM tabellacontiutiliTransfersHQ order by "
        "T.Description'.");
    gui.press(Qt::Key_Delete);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tabellacontiutiliTransfersHQ", "Id", 12), (Riga{"0", "0"})) << "what was stored stays";
    EXPECT_EQ(righe("DataGrid4"), 0);
    gira();
    EXPECT_EQ(righe("DataGrid4"), 6) << "the next table is read again";
}

TEST_F(MorlanAltriConti, WithAnEmptyGridADoubleClickTellsTheError) {
    const char* const tabelle[] = {"tipoanagrafica", "bustetabellacontiutili", "tabellacontiutiliTransfersHQ",
                                   "tabellacontiutilicontributi"};
    for (const char* tabella : tabelle) {
        esegui(std::string("delete from ") + tabella);
    }
    riapri();
    scheda(2);
    for (const char* tabella : tabelle) {
        SCOPED_TRACE(tabella);
        ASSERT_EQ(righe("DataGrid4"), 0);
        script.expectMessage(ado::Error(ado::kNoCurrentRecord).description());
        QTest::mouseDClick(griglia("DataGrid4").viewport(), Qt::LeftButton, {}, {20, 20});
        EXPECT_TRUE(script.allShown());
        EXPECT_FALSE(visibile("Frame2"));
        gira();
    }
}

TEST_F(MorlanAltriConti, TheRowChosenIsSharedWithTheOtherTabs) {
    scegli("DataGrid4", "2");
    scheda(1);
    scegli("DataGrid2", "4");
    scheda(2);
    combo("DCBitem2").setFocus();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 4), (Riga{"1076", "25"}));
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"1076", "25"}));
}

TEST_F(MorlanAltriConti, NonsenseInThePickerNeverCrashes) {
    for (const char* testo : {"'", "%", "1e308", "\x01", "🗝"}) {
        scegli("DataGrid4", "2");
        combo("DCBitem2").setText("");
        digita("DCBitem2", testo);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 2), (Riga{"1076", "25"})) << testo;
    }
}

} // namespace
} // namespace vabo
