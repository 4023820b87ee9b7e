// What the console remembers between rows, tabs and stores.

#include "MorlanFixture.h"
#include "support/SomebodyElse.h"

namespace vabo {
namespace {

class MorlanStato : public MorlanForm {
protected:
    MorlanStato() { apri(); }
    std::string voce(const std::string& id) const {
        return valore("select NomeConto + ' ' + Contoreport from conti where IdConto = " + id);
    }
    Riga busta(int id) const { return conto("bustetabellacontiutili", "Id", id); }
    void invioIn(const char* selettore) {
        combo(selettore).setFocus();
        gui.press(Qt::Key_Return);
    }
    bool fermata(const std::string& nome) const { return (combo(nome).focusPolicy() & Qt::TabFocus) != 0; }
    /// Whether somebody else can take that row.
    bool libera(const std::string& testo) const {
        const auto altro = posto.engineSession(support::kCompany);
        try {
            const auto presa = altro->hold(testo);
            return true;
        } catch (const engine::Error&) {
            return false;
        }
    }
};

TEST_F(MorlanStato, ARowChosenOnAnotherTabIsStoredInThePayrollWithoutItsRight) {
    DirittiUtente.A_Personale = kFalso;
    const Riga utile = conto("TabellaContiUtili", "ID", 4);
    scheda(1);
    scegli("DataGrid2", "4");
    scheda(5);
    prendi("DCBitems4", voce("1052"));
    EXPECT_EQ(busta(4), (Riga{"1052", "19"}));
    EXPECT_EQ(conto("TabellaContiUtili", "ID", 4), utile);
    scheda(2);
    scegli("DataGrid4", "5");
    scheda(5);
    prendi("DCBitems4", voce("1052"));
    EXPECT_EQ(busta(5), (Riga{"1052", "19"}));
}

TEST_F(MorlanStato, ARowStaysChosenBehindItsStore) {
    scheda(1);
    scegli("DataGrid2", "4");
    gui.press(Qt::Key_Return);
    ASSERT_FALSE(visibile("Frame6"));
    scheda(5);
    prendi("DCBitems4", voce("1052"));
    EXPECT_EQ(busta(4), (Riga{"1052", "19"}));
    scheda(2);
    scegli("DataGrid4", "5");
    gui.press(Qt::Key_Return);
    ASSERT_FALSE(visibile("Frame2"));
    scheda(5);
    prendi("DCBitems4", voce("1040"));
    EXPECT_EQ(busta(5), (Riga{"1040", "17"}));
    EXPECT_EQ(busta(4), (Riga{"1052", "19"}));
}

TEST_F(MorlanStato, InvoicesAndPayrollShareTheirAccount) {
    scheda(4);
    scegli("DataGrid11", "3");
    scheda(5);
    scegli("DataGridPersonale", "12");
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(busta(12), (Riga{"1086", "26"}));
}

TEST_F(MorlanStato, TheAccountStaysBehindAStoreOfTheOtherTablesAndOfThePayroll) {
    scheda(2);
    scegli("DataGrid4", "2");
    prendi("DCBitem2", voce("1052"));
    scegli("DataGrid4", "9");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(conto("tipoanagrafica", "IdTipoAnagrafica", 9), (Riga{"1052", "19"}));
    scheda(5);
    scegli("DataGridPersonale", "3");
    gui.press(Qt::Key_Return);
    scegli("DataGridPersonale", "12");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(busta(12), (Riga{"1080", "26"}));
}

TEST_F(MorlanStato, EachOpeningBeginsWithTheFirstTableAndNothingChosen) {
    scheda(2);
    gui.click("Avvio_Morlan", "Command18");
    gui.click("Avvio_Morlan", "Command18");
    scegli("DataGrid4", "2");
    scheda(4);
    scegli("DataGrid11", "3");
    riapri();
    EXPECT_EQ(testo("Label14"), "Tabella Conti Anagrafiche");
    EXPECT_EQ(testo("Command18"), "Tabella Conti Buste paga");
    EXPECT_EQ(testo("Controllo"), "0");
    EXPECT_EQ(righe("DataGrid4"), 10);
    EXPECT_FALSE(visibile("Frame2"));
    const auto fatture = posto.rows(support::kCompany, "select * from ivaTabellaContiUtili order by ID");
    const support::StatementRecorder recorder;
    for (const auto& [numero, selettore] : {std::pair{2, "DCBitem2"}, {4, "DCBItems3"}, {5, "DCBitems4"}}) {
        scheda(numero);
        combo(selettore).setFocus();
        gui.press(Qt::Key_Return);
    }
    EXPECT_EQ(recorder.texts().size(), 1U) << "only the grid of the invoices is read again";
    EXPECT_EQ(posto.rows(support::kCompany, "select * from ivaTabellaContiUtili order by ID"), fatture);
}

TEST_F(MorlanStato, EachPickerSelectsItsTextWhenTheFocusComes) {
    const char* const casi[][3] = {{"DataGrid2", "DCBItem1", "4"},
                                   {"DataGrid4", "DCBitem2", "2"},
                                   {"DataGrid11", "DCBItems3", "3"},
                                   {"DataGridPersonale", "DCBitems4", "3"}};
    const int schede[] = {1, 2, 4, 5};
    for (int i = 0; i < 4; ++i) {
        const auto& [griglia, selettore, riga] = casi[i];
        SCOPED_TRACE(selettore);
        scheda(schede[i]);
        scegli(griglia, riga);
        ASSERT_EQ(fuoco(), selettore);
        EXPECT_FALSE(combo(selettore).Text().empty());
        EXPECT_EQ(combo(selettore).lineEdit()->selectedText().toStdString(), combo(selettore).Text());
    }
}

TEST_F(MorlanStato, APayrollStoreThatFailsLooksLikeOneThatWentWell) {
    scheda(5);
    scegli("DataGridPersonale", "3");
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto presa = altro->hold("select * from bustetabellacontiutili where Id = 3");
        prendi("DCBitems4", voce("1052"));
    }
    EXPECT_EQ(busta(3), (Riga{"1080", "26"}));
    EXPECT_TRUE(script.shown().empty());
    EXPECT_EQ(combo("DCBitems4").Text(), "Seleziona");
    EXPECT_FALSE(fermata("DCBitems4"));
    EXPECT_TRUE(gui.form("Avvio_Morlan").isEnabled());
}

/// A store that holds its row while the account's group is read on a connection of its own.
struct Tenuta {
    int scheda;
    const char* griglia;
    const char* selettore;
    const char* riga;
};

TEST_F(MorlanStato, ARowIsHeldFromItsAssignmentToTheEndOfItsStore) {
    const Tenuta casi[] = {{1, "DataGrid2", "DCBItem1", "select * from TabellaContiUtili where ID = 4"},
                           {2, "DataGrid4", "DCBitem2", "select * from tipoanagrafica where IdTipoAnagrafica = 4"},
                           {5, "DataGridPersonale", "DCBitems4", "select * from bustetabellacontiutili where Id = 4"}};
    for (const Tenuta& caso : casi) {
        SCOPED_TRACE(caso.griglia);
        scheda(caso.scheda);
        scegli(caso.griglia, "4");
        ASSERT_TRUE(libera(caso.riga));
        bool tenuta = false;
        {
            const support::SomebodyElse nelFrattempo([&](const std::string& testo) {
                tenuta = tenuta || (testo.starts_with("SELECT  IdGruppoVabo") && !libera(caso.riga));
            });
            gui.press(Qt::Key_Return);
        }
        EXPECT_TRUE(tenuta);
        EXPECT_TRUE(libera(caso.riga));
    }
}

} // namespace
} // namespace vabo
