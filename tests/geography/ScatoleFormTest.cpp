// The forms of states and municipalities with the program's own boxes, which take the keyboard and the mouse's release.

#include "geography/ComuniFixture.h"
#include "geography/StatiFixture.h"
#include "support/RealBoxes.h"

namespace vabo {
namespace {

using support::RealBoxes;

class ComuniScatole : public ComuniForm {
protected:
    /// With a new municipality of that name entered, up to its state.
    void entra(const std::string& nome) {
        apri();
        scrivi({"Palestrina", "RM", "00036", "Italia"});
        gui.click("frmComuni", "Command1");
        scrivi({nome, "RM", "00036"});
        ASSERT_EQ(fuoco(), "DataCombo1");
    }
    void clicca(RealBoxes& scatole, const std::string& nome) const { scatole.click(pagina.control(nome)); }
};

TEST_F(ComuniScatole, ADuplicateIsToldOnceByEnter) {
    entra("Aosta");
    const RealBoxes scatole;
    gui.press(Qt::Key_Return);
    RealBoxes::settle(&gui.form("frmComuni"));
    EXPECT_EQ(scatole.texts, Testi{kComuneDoppio});
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniScatole, ADuplicateIsToldOnceByTheMouse) {
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        entra("Aosta");
        scatole.answered = risposta;
        scatole.texts.clear();
        clicca(scatole, "DES_PROVIN");
        EXPECT_EQ(scatole.texts, Testi{kComuneDoppio});
        EXPECT_EQ(campi(), kComuneVuoto);
        EXPECT_EQ(fuoco(), "DES_PROVIN");
    }
}

TEST_F(ComuniScatole, ThroughTheBoxOfADuplicateTheCommandsWorkByMouse) {
    entra("Aosta");
    RealBoxes scatole;
    clicca(scatole, "Command1");
    EXPECT_EQ(scatole.texts, Testi{kComuneDoppio});
    EXPECT_EQ(fuoco(), "DES_COMUNE") << "where the command leads";
    scrivi({"Aosta", "RM", "00036"});
    clicca(scatole, "Command4");
    EXPECT_EQ(scatole.texts, (Testi{kComuneDoppio, kComuneDoppio}));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(ComuniScatole, ARefusedNameIsToldOnceAndTheFieldsStay) {
    entra("Sant'Angelo");
    const Riga scritti = {"Sant'Angelo", "RM", "00036", "Seleziona"};
    RealBoxes scatole;
    gui.press(Qt::Key_Return);
    RealBoxes::settle(&gui.form("frmComuni"));
    EXPECT_EQ(scatole.texts, Testi{kFiltroRifiutato});
    EXPECT_EQ(campi(), scritti);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    vaiA("DataCombo1");
    clicca(scatole, "COD_CAP");
    EXPECT_EQ(scatole.texts, (Testi{kFiltroRifiutato, kFiltroRifiutato}));
    EXPECT_EQ(campi(), scritti);
    EXPECT_EQ(fuoco(), "COD_CAP");
    EXPECT_EQ(scelto("COD_CAP"), "00036");
}

TEST_F(ComuniScatole, ThroughTheBoxOfARefusedNameTheFormIsClosedByMouse) {
    entra("Sant'Angelo");
    RealBoxes scatole;
    clicca(scatole, "Command4");
    EXPECT_EQ(scatole.texts, Testi{kFiltroRifiutato});
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

class StatiScatole : public StatiForm {
protected:
    /// With a new state of that name entered, up to its currency.
    void entra(const std::string& nome) {
        apri();
        gui.click("stati", "Command1");
        scrivi({nome, "Europa", "", ""});
        ASSERT_EQ(fuoco(), "IsoValuta");
    }
};

TEST_F(StatiScatole, ADuplicateIsToldOnce) {
    RealBoxes scatole;
    for (const RealBoxes::Answer risposta : {RealBoxes::Answer::ByKey, RealBoxes::Answer::ByMouse}) {
        entra("Francia");
        scatole.answered = risposta;
        scatole.texts.clear();
        gui.press(Qt::Key_Return);
        RealBoxes::settle(&gui.form("stati"));
        EXPECT_EQ(scatole.texts, Testi{kStatoDoppio});
        EXPECT_EQ(campi(), kStatoVuoto);
        EXPECT_EQ(fuoco(), "DescStato");
    }
}

TEST_F(StatiScatole, ThroughTheBoxOfADuplicateTheCommandsWorkByMouse) {
    entra("Francia");
    RealBoxes scatole;
    scatole.click(pagina.control("Command1"));
    EXPECT_EQ(scatole.texts, Testi{kStatoDoppio});
    EXPECT_EQ(fuoco(), "DescStato");
    scrivi({"Francia", "Europa", "", ""});
    scatole.click(pagina.control("Command4"));
    EXPECT_EQ(scatole.texts, (Testi{kStatoDoppio, kStatoDoppio}));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(StatiScatole, ARefusedNameIsToldOnceAndTheFieldsStay) {
    entra("Costa d'Oro");
    RealBoxes scatole;
    scatole.click(pagina.control("DescStato"));
    EXPECT_EQ(scatole.texts, Testi{kFiltroRifiutato});
    EXPECT_EQ(testo("DescStato"), "Costa d'Oro");
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(scelto("DescStato"), "Costa d'Oro");
}

} // namespace
} // namespace vabo
