// The form of municipalities: what a row of the grid brings into the fields.

#include "geography/ComuniFixture.h"

#include <QLineEdit>

namespace vabo {
namespace {

class ComuniRighe : public ComuniForm {};

TEST_F(ComuniRighe, ARowOfTheGridGoesIntoTheFields) {
    apri();
    scegli("Bologna");
    EXPECT_EQ(campi(), (Riga{"Bologna", "BO", "40121", "Italia"}));
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniRighe, TheArrowsAndTheMouseChooseARowToo) {
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    EXPECT_EQ(testo("DES_COMUNE"), "Agrigento");
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    clicca("Ancona");
    EXPECT_EQ(campi(), (Riga{"Ancona", "AN", "60121", "Italia"}));
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniRighe, APostalCodeThatLostItsZerosIsShownWithFiveDigits) {
    apri();
    scegli("Roma");
    EXPECT_EQ(testo("COD_CAP"), "00100");
    scegli("Cagliari");
    EXPECT_EQ(testo("COD_CAP"), "09121");
    const std::pair<const char*, const char*> casi[] = {{"", "00000"},    {"1", "00001"},    {"12", "00012"},
                                                        {"123", "00123"}, {"1234", "01234"}, {"12345", "12345"},
                                                        {" ", "0000 "},   {"abc", "00abc"}};
    for (const auto& [tenuto, mostrato] : casi) {
        esegui(std::string("update Comuni set COD_CAP = '") + tenuto + "' where DES_COMUNE = 'Roma'");
        gui.forms().unload("frmComuni");
        support::Gui::handleEvents();
        apri();
        scegli("Roma");
        EXPECT_EQ(testo("COD_CAP"), mostrato) << tenuto;
    }
}

/// A null in one column of Roma, and what the fields show that showed Bologna before.
struct Nullo {
    const char* colonna;
    const char* cerca; ///< the name in the grid
    Riga campi;
};

TEST_F(ComuniRighe, ANullNameIsEmptyAndOtherNullsLeaveWhatStoodThere) {
    const Nullo casi[] = {{"DES_COMUNE", "", {"", "RM", "00100", "Kenya"}},
                          {"DES_PROVIN", "Roma", {"Roma", "BO", "00100", "Kenya"}},
                          {"COD_CAP", "Roma", {"Roma", "RM", "40121", "Kenya"}},
                          {"IdStato", "Roma", {"Roma", "RM", "00100", "Italia"}}};
    const std::string id = valore("select idautonumber from Comuni where DES_COMUNE = 'Roma'");
    for (const Nullo& caso : casi) {
        SCOPED_TRACE(caso.colonna);
        esegui("update Comuni set DES_COMUNE = 'Roma', DES_PROVIN = 'RM', COD_CAP = '100', IdStato = " +
               idStato("Kenya") + " where idautonumber = " + id);
        esegui(std::string("update Comuni set ") + caso.colonna + " = null where idautonumber = " + id);
        apri();
        scegli("Bologna");
        scegli(caso.cerca);
        EXPECT_EQ(campi(), caso.campi);
        gui.forms().unload("frmComuni");
        support::Gui::handleEvents();
    }
}

TEST_F(ComuniRighe, AStateWithoutANameLeavesTheNameThatStoodThereAndIsStored) {
    esegui("insert into stati (IsoValuta) values ('AAA')");
    const std::string senzaNome = valore("select IdStato from stati where DescStato is null");
    esegui("update Comuni set IdStato = " + senzaNome + " where DES_COMUNE = 'Roma'");
    apri();
    scegli("Nairobi");
    scegli("Roma");
    EXPECT_EQ(combo(), "Kenya");
    scrivi({"Roma", "RM", "00100", ""});
    EXPECT_EQ(comune("Roma")[3], senzaNome);
}

TEST_F(ComuniRighe, ARowWithoutAStateIsStoredWithTheFirstOneWhateverTheFieldShows) {
    apri();
    scegli("Nairobi");
    scegli("Campione d'Italia");
    EXPECT_EQ(campi(), (Riga{"Campione d'Italia", "CO", "22061", "Kenya"}));
    vaiA("DataCombo1");
    invio();
    EXPECT_EQ(comune("Campione d''Italia"), (Riga{"Campione d'Italia", "CO", "22061", "1"}));
    EXPECT_EQ(pagina.cell("DataGrid1", rigaDi("Campione d'Italia"), 5), "Italia");
}

// The name doesn't change by that, so that the pick alone tells it.
TEST_F(ComuniRighe, TheStateThatTheFieldStillShowsCanBePickedForARowWithoutOne) {
    apri();
    scegli("Nairobi");
    scegli("Campione d'Italia");
    vaiA("DataCombo1");
    pagina.pick("DataCombo1", "Kenya");
    EXPECT_EQ(comune("Campione d''Italia")[3], idStato("Kenya"));
}

TEST_F(ComuniRighe, AStateThatIsNotThereIsNone) {
    esegui("update Comuni set IdStato = 9999 where DES_COMUNE = 'Roma'");
    apri();
    scegli("Roma");
    vaiA("DataCombo1");
    invio();
    EXPECT_EQ(comune("Roma")[3], "1");
}

// The name of the state is looked for in the list of states, which doesn't tell two of one name apart.
TEST_F(ComuniRighe, OfTwoStatesOfOneNameTheFirstOneIsStored) {
    esegui("insert into stati (DescStato) values ('Italia')");
    const std::string seconda = valore("select max(IdStato) from stati");
    esegui("update Comuni set IdStato = " + seconda + " where DES_COMUNE = 'Roma'");
    apri();
    scegli("Nairobi");
    scegli("Roma");
    vaiA("DataCombo1");
    invio();
    EXPECT_EQ(comune("Roma")[3], "1");
}

TEST_F(ComuniRighe, ARowWithoutAKeyKeepsKeyAndNameOfTheOneBefore) {
    esegui("drop table Comuni create table Comuni (idautonumber int null, DES_COMUNE nvarchar(100) null, DES_PROVIN "
           "nvarchar(2) null, COD_CAP nvarchar(5) null, IdStato int null)");
    esegui("insert into Comuni values (7, 'Aosta', 'AO', '11100', 1), (null, 'Bari', 'BA', '70121', 1)");
    apri();
    scegli("Aosta");
    scegli("Bari");
    EXPECT_EQ(campi(), (Riga{"Aosta", "BA", "70121", "Italia"}));
    const support::StatementRecorder recorder;
    vaiA("DataCombo1");
    invio();
    EXPECT_EQ(recorder.texts().front(), "select * from  comuni where idautonumber=7");
}

TEST_F(ComuniRighe, AListWithoutRowsChoosesNothing) {
    esegui("delete from Comuni");
    apri();
    vaiA("DataGrid1");
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Space}) {
        gui.press(tasto);
        EXPECT_EQ(campi(), kComuneVuoto);
    }
    scrivi({"Palestrina", "RM", "00036", "Italia"});
    EXPECT_EQ(quanti("Comuni"), 1);
}

} // namespace
} // namespace vabo
