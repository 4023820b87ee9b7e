#include "MorlanFixture.h"

#include <array>

namespace vabo {
namespace {

/// The console after a load that ended before its last step. Data controls that the load didn't reach have neither
/// connection text nor source, so that their refresh fails; a store shows only that error.
class MorlanCaricamento : public MorlanForm {
protected:
    static constexpr const char* kSenzaSorgente = "Server does not exist or access denied.";
    static constexpr const char* kSenzaColonne = "Subscript out of range";

    /// The box of the budget items is ticked, which ends the reading of the options at its row with an error.
    void apriFinoAlBudget() {
        esegui("update TabellaUilityConti set Lunghezza = -1 where id = 5");
        apri();
    }
    /// The second list can't be read: the load ends before all options and grids.
    void apriFinoAgliElenchi() {
        esegui("drop table tabellacontiutili");
        script.expectMessage("Invalid object name 'tabellacontiutili'.");
        apri();
    }
    void doppioClick(int numero, const char* griglia) {
        scheda(numero);
        QTest::mouseDClick(MorlanForm::griglia(griglia).viewport(), Qt::LeftButton, {}, {20, 20});
    }
    std::vector<Riga> fatture() const {
        return posto.rows(support::kCompany, "select * from ivaTabellaContiUtili order by ID");
    }
};

TEST_F(MorlanCaricamento, EnterInThePickerOfInvoicesTellsThatItsGridHasNoSource) {
    apriFinoAlBudget();
    const auto prima = fatture();
    scheda(4);
    combo("DCBItems3").setFocus();
    script.expectMessage(kSenzaSorgente);
    const support::StatementRecorder recorder;
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(recorder.texts().empty()) << "no row was chosen, and nothing could be read";
    EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
    EXPECT_EQ(fuoco(), "DCBItems3");
    EXPECT_EQ(combo("DCBItems3").Text(), "Seleziona");
    EXPECT_EQ(righe("DataGrid11"), 0);
    EXPECT_EQ(fatture(), prima);
}

TEST_F(MorlanCaricamento, APickTellsItTooAndForgetsItsAccount) {
    apriFinoAlBudget();
    const auto prima = fatture();
    scheda(4);
    const std::string voce = valore("select NomeConto + ' ' + Contoreport from conti where IdConto = 1077");
    script.expectMessage(kSenzaSorgente);
    prendi("DCBItems3", voce);
    EXPECT_EQ(combo("DCBItems3").Text(), voce) << "the steps behind the refresh don't run";
    EXPECT_EQ(fatture(), prima);
    scheda(5);
    scegli("DataGridPersonale", "12");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("bustetabellacontiutili", "Id", 12), (Riga{"0", "0"}));
}

TEST_F(MorlanCaricamento, TheFirstOpeningOfANewDatabaseIsSuchALoad) {
    esegui("delete from TabellaUilityConti");
    apri();
    scheda(4);
    combo("DCBItems3").setFocus();
    script.expectMessage(kSenzaSorgente);
    gui.press(Qt::Key_Return);
    riapri();
    scheda(4);
    combo("DCBItems3").setFocus();
    gui.press(Qt::Key_Return);
    EXPECT_EQ(righe("DataGrid11"), 10) << "read again without a word";
}

TEST_F(MorlanCaricamento, ADoubleClickOnAGridWithoutColumnsTellsThatThereIsNoFirstOne) {
    apriFinoAgliElenchi();
    const std::pair<int, const char*> griglie[] = {
        {1, "DataGrid2"}, {2, "DataGrid4"}, {4, "DataGrid11"}, {5, "DataGridPersonale"}};
    for (const auto& [numero, nome] : griglie) {
        SCOPED_TRACE(nome);
        ASSERT_EQ(griglia(nome).ColumnCount(), 0);
        script.expectMessage(kSenzaColonne);
        doppioClick(numero, nome);
        EXPECT_TRUE(script.allShown());
    }
    EXPECT_FALSE(visibile("Frame6"));
    EXPECT_FALSE(visibile("Frame2"));
}

TEST_F(MorlanCaricamento, TheTabsThatTheLoadReachedWorkAsEver) {
    apriFinoAlBudget();
    scheda(1);
    scegli("DataGrid2", "4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(rigaCorrente("DataGrid2"), "5");
    scheda(2);
    scegli("DataGrid4", "2");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(rigaCorrente("DataGrid4"), "3");
    scheda(5);
    scegli("DataGridPersonale", "3");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
}

TEST_F(MorlanCaricamento, ATurnGivesTheThirdTabItsSourceWhateverTheLoadReached) {
    esegui("update datiGenerali set Contatore = null where Descrizione = 'Sede Amministrativa'");
    apri();
    EXPECT_EQ(righe("DataGrid2"), 0);
    scheda(2);
    EXPECT_EQ(griglia("DataGrid4").ColumnCount(), 0);
    gui.click("Avvio_Morlan", "Command18");
    EXPECT_EQ(righe("DataGrid4"), 12);
    EXPECT_EQ(testo("Label14"), "Tabella Conti Buste paga");
    scegli("DataGrid4", "2");
    EXPECT_TRUE(visibile("Frame2"));
}

TEST_F(MorlanCaricamento, EnterInThePickersWithoutAListStoresNothing) {
    apriFinoAgliElenchi();
    scheda(5);
    combo("DCBitems4").setFocus();
    const support::StatementRecorder recorder;
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(recorder.texts().empty());
    scheda(4);
    combo("DCBItems3").setFocus();
    script.expectMessage(kSenzaSorgente);
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(MorlanCaricamento, AListThatCannotBeReadIsToldAndLeavesTheSwitchesUnread) {
    esegui("drop table tipoanagrafica");
    script.expectMessage("Invalid object name 'tipoanagrafica'.");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_TRUE(gui.isVisible("Avvio_Morlan"));
    EXPECT_EQ(spuntate(), "Check10") << "only what stands ahead of the lists";
    EXPECT_EQ(righe("DataGrid2"), 0);
    EXPECT_TRUE(recorder.holding("datiGenerali").empty());
}

TEST_F(MorlanCaricamento, AfterTheFirstTwoListsFailuresAreSilent) {
    esegui("drop table TabellaContiUtiliTransfersHq");
    esegui("drop table IvaTrattamento");
    apri();
    EXPECT_EQ(combo("DCBitems4").count(), 0) << "its list leaves out what stands in the table";
    EXPECT_EQ(combo("DCBitem5").count(), 0);
    EXPECT_GT(combo("DCBItems3").count(), 0);
    EXPECT_EQ(righe("DataGrid11"), 10);
    EXPECT_EQ(testo("Aliquota"), "20,00");
}

TEST_F(MorlanCaricamento, NeitherCombosListIsThereWhereTheSecondCannotBeRead) {
    apriFinoAgliElenchi();
    EXPECT_EQ(combo("DCBItem1").count(), 0) << "both are read before one is filled";
    EXPECT_EQ(combo("DCBitem2").count(), 0);
}

TEST_F(MorlanCaricamento, WithoutTheListOfInvoicesAllTheRestIsRead) {
    esegui("drop table conti");
    esegui("create table conti (IdConto int, NomeConto nvarchar(50), Contoreport nvarchar(50), IDProgetto int, "
           "idmastro int, IdGruppoVabo int)");
    apri();
    EXPECT_EQ(combo("DCBItems3").count(), 0);
    EXPECT_EQ(combo("DCBitem5").count(), 10);
    EXPECT_EQ(spuntate(), "Check1 Check2 Check5 Check10");
    EXPECT_EQ(righe("DataGrid2"), 32);
    EXPECT_EQ(righe("DataGrid11"), 10);
    EXPECT_EQ(righe("DataGridPersonale"), 12);
}

TEST_F(MorlanCaricamento, WithoutTheTableOfPaySlipsAllTheRestIsRead) {
    esegui("drop table bustetabellacontiutili");
    apri();
    EXPECT_EQ(righe("DataGridPersonale"), 0);
    EXPECT_EQ(combo("DCBitem5").count(), 10);
    EXPECT_EQ(testo("Aliquota"), "22,00");
    EXPECT_EQ(spuntate(), "Check1 Check2 Check5 Check10");
    EXPECT_EQ(righe("DataGrid2"), 32);
    EXPECT_EQ(righe("DataGrid11"), 10);
}

/// A grid of the options' reading that can't be read, and what is on the screen all the same.
struct Griglie {
    const char* comando;
    const char* spuntate;
    std::array<int, 3> righe; ///< of DataGrid2, DataGrid4 and DataGrid11
};

TEST_F(MorlanCaricamento, AGridThatCannotBeReadEndsTheReadingOfTheOptionsInSilence) {
    const Griglie casi[] = {
        {"drop table ivaTabellaContiUtili", "Check1 Check2 Check5 Check6 Check9 Check10", {32, 10, 0}},
        {"drop table TabellaContiUtili create table TabellaContiUtili (ID int, Description nvarchar(50), IdConto int)",
         "Check6 Check9 Check10",
         {0, 10, 0}},
        {"drop table gruppivabo", "Check6 Check9 Check10", {0, 0, 0}},
    };
    esegui("update datiGenerali set Contatore = -1 where Descrizione = 'Sede Amministrativa'");
    esegui("update TabellaUilityConti set Lunghezza = -1 where id = 7");
    apri();
    for (const Griglie& caso : casi) {
        SCOPED_TRACE(caso.comando);
        esegui(caso.comando);
        riapri();
        EXPECT_EQ(spuntate(), caso.spuntate);
        EXPECT_EQ((std::array<int, 3>{righe("DataGrid2"), righe("DataGrid4"), righe("DataGrid11")}), caso.righe);
    }
}

} // namespace
} // namespace vabo
