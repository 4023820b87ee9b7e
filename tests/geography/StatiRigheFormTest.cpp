// The form of states: what a row of the grid brings into the fields.

#include "geography/StatiFixture.h"

namespace vabo {
namespace {

class StatiRighe : public StatiForm {};

/// A null in one column, and what the fields show that showed Cecoslovacchia before.
struct Nullo {
    const char* colonna;
    Riga campi;
};

TEST_F(StatiRighe, ARowOfTheGridGoesIntoTheFields) {
    apri();
    scegli("Cecoslovacchia");
    EXPECT_EQ(campi(), (Riga{"Cecoslovacchia", "Europa orientale", "28/10/1918", "31/12/1992", "CSK"}));
    EXPECT_EQ(fuoco(), "DescStato");
}

TEST_F(StatiRighe, TheArrowsAndTheMouseChooseARowToo) {
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    EXPECT_EQ(testo("DescStato"), "Albania");
    EXPECT_EQ(fuoco(), "DescStato");
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    const QRect cella = griglia.visualRect(griglia.model()->index(3, 1));
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, Qt::NoModifier, cella.center());
    EXPECT_EQ(testo("DescStato"), "Andorra");
    EXPECT_EQ(fuoco(), "DescStato");
}

TEST_F(StatiRighe, ADateWithATimeIsShownWithIt) {
    esegui("update stati set DataIstituzioneStato = '19631212 10:30' where DescStato = 'Kenya'");
    apri();
    scegli("Kenya");
    EXPECT_EQ(testo("DataIstituzioneStato"), "12/12/1963 10:30:00");
}

TEST_F(StatiRighe, ANullNameOrAreaLeavesWhatStoodThereAndTheOthersAreEmptied) {
    const Nullo casi[] = {
        {"DescStato", {"Cecoslovacchia", "Africa orientale", "12/12/1963", "01/01/2000", "KES"}},
        {"DataIstituzioneStato", {"Kenya", "Africa orientale", "", "01/01/2000", "KES"}},
        {"DataSoppressioneStato", {"Kenya", "Africa orientale", "12/12/1963", "", "KES"}},
        {"IsoValuta", {"Kenya", "Africa orientale", "12/12/1963", "01/01/2000", ""}},
        {"Area", {"Kenya", "Europa orientale", "12/12/1963", "01/01/2000", "KES"}},
        {"Sigla", {"Kenya", "Africa orientale", "12/12/1963", "01/01/2000", "KES"}},
        {"Sigla3", {"Kenya", "Africa orientale", "12/12/1963", "01/01/2000", "KES"}},
        {"CodiceNumerico", {"Kenya", "Africa orientale", "12/12/1963", "01/01/2000", "KES"}},
    };
    const std::string id = valore("select IdStato from stati where DescStato = 'Kenya'");
    for (const Nullo& caso : casi) {
        SCOPED_TRACE(caso.colonna);
        esegui("update stati set DescStato = 'Kenya', DataIstituzioneStato = '19631212', DataSoppressioneStato = "
               "'20000101', IsoValuta = 'KES', Area = 'Africa orientale' where IdStato = " +
               id);
        esegui(std::string("update stati set ") + caso.colonna + " = null where IdStato = " + id);
        apri();
        scegli("Cecoslovacchia");
        const std::string nome = std::string(caso.colonna) == "DescStato" ? "" : "Kenya";
        scegli(nome);
        EXPECT_EQ(campi(), caso.campi);
        gui.forms().unload("stati");
        support::Gui::handleEvents();
    }
}

TEST_F(StatiRighe, CurrenciesAndAreasOfZerosCountAsNothing) {
    esegui("update stati set IsoValuta = '000', Area = '0' where DescStato = 'Kenya'");
    apri();
    scegli("Cecoslovacchia");
    scegli("Kenya");
    EXPECT_EQ(testo("IsoValuta"), "");
    EXPECT_EQ(area(), "Europa orientale");
}

TEST_F(StatiRighe, ARowWithoutAKeyIsNotShown) {
    esegui("drop table stati create table stati (IdStato int null, DescStato nvarchar(100) null, DataIstituzioneStato "
           "datetime null, DataSoppressioneStato datetime null, IsoValuta nvarchar(3) null, Sigla int null, Sigla3 int "
           "null, CodiceNumerico int null, Area nvarchar(50) null)");
    esegui("insert into stati (IdStato, DescStato) values (1, 'A'), (0, 'B'), (null, 'C')");
    apri();
    scegli("A");
    for (const char* nome : {"B", "C"}) {
        scegli(nome);
        EXPECT_EQ(testo("DescStato"), "A");
        EXPECT_EQ(fuoco(), "DescStato");
    }
}

} // namespace
} // namespace vabo
