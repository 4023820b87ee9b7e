#include "MorlanFixture.h"
#include "general_tables/TrattamentoIva.h"

#include <QStyle>
#include <QStyleOptionFrame>

namespace vabo {
namespace {

class MorlanIva : public MorlanForm {
protected:
    void apriScheda() {
        apri();
        scheda(4);
    }
    std::vector<std::string> campi() const {
        return {combo("DCBitem5").Text(), testo("Aliquota"), testo("Detrazione"), testo("Sigla")};
    }
    std::vector<Riga> standard() const {
        return posto.rows(support::kCompany, "select idTipo, Aliquota, Sigla, Detrazione from IvaAliquotaStandard");
    }
};

using Campi = std::vector<std::string>;

TEST_F(MorlanIva, ShowsTheStandardTreatment) {
    esegui("update IvaAliquotaStandard set idTipo = 6");
    apriScheda();
    EXPECT_EQ(campi(), (Campi{"Imponibile 22% detraibile 50%", "22,00", "50,00", "22D"}));
}

TEST_F(MorlanIva, WithoutARowItShowsTheSecondTreatmentAndAddsNothing) {
    esegui("delete from IvaAliquotaStandard");
    apriScheda();
    EXPECT_EQ(campi(), (Campi{"Imponibile 22%", "22,00", "100,00", "22"}));
    EXPECT_TRUE(standard().empty());
}

TEST_F(MorlanIva, ATreatmentThatIsNotThereLeavesTheDesignedValues) {
    esegui("update IvaAliquotaStandard set idTipo = 99");
    apriScheda();
    EXPECT_EQ(campi(), (Campi{"", "20,00", "100,00", ""}));
    EXPECT_TRUE(script.shown().empty());
}

TEST_F(MorlanIva, ARateOfZeroAtTheOpeningLeavesItsBoxAlone) {
    esegui("update IvaAliquotaStandard set idTipo = 9");
    apriScheda();
    EXPECT_EQ(campi(), (Campi{"Esente art. 10", "20,00", "100,00", "ES10"}));
}

TEST_F(MorlanIva, APickIsTheStandardAtOnce) {
    apriScheda();
    prendi("DCBitem5", "Imponibile 10%");
    EXPECT_EQ(campi(), (Campi{"Imponibile 10%", "10,00", "100,00", "10"}));
    EXPECT_EQ(standard(), (std::vector<Riga>{{"3", "10,00", "10", "100,00"}}));
}

TEST_F(MorlanIva, TheSecondTreatmentIsTheLowestThatCanBePicked) {
    esegui("update IvaAliquotaStandard set idTipo = 3");
    apriScheda();
    prendi("DCBitem5", "Imponibile 22%");
    EXPECT_EQ(standard(), (std::vector<Riga>{{"2", "22,00", "22", "100,00"}}));
}

TEST_F(MorlanIva, TheFirstPickMakesTheRow) {
    esegui("delete from IvaAliquotaStandard");
    apriScheda();
    prendi("DCBitem5", "Imponibile 4%");
    prendi("DCBitem5", "Imponibile 5%");
    EXPECT_EQ(standard(), (std::vector<Riga>{{"4", "5,00", "05", "100,00"}}));
}

TEST_F(MorlanIva, ATreatmentOfRateZeroStopsAheadOfTheStore) {
    apriScheda();
    const auto prima = standard();
    script.expectMessage("Type mismatch");
    prendi("DCBitem5", "Esente art. 10");
    EXPECT_EQ(standard(), prima);
    EXPECT_EQ(combo("DCBitem5").Text(), "Esente art. 10");
    EXPECT_EQ(testo("Aliquota"), "22,00");
}

TEST_F(MorlanIva, AShareOfZeroStopsAheadOfTheStoreToo) {
    apriScheda();
    const auto prima = standard();
    script.expectMessage("Type mismatch");
    prendi("DCBitem5", "Imponibile 22% indetraibile");
    EXPECT_EQ(standard(), prima);
}

TEST_F(MorlanIva, AStandardThatSomebodyElseHoldsIsToldAndTheNextPickStoresIt) {
    apriScheda();
    const auto prima = standard();
    {
        const auto altro = posto.engineSession(support::kCompany);
        const auto presa = altro->hold("select * from IvaAliquotaStandard");
        script.expectMessage("Lock request time out period exceeded.");
        prendi("DCBitem5", "Imponibile 10%");
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(standard(), prima);
        EXPECT_EQ(campi(), (Campi{"Imponibile 22%", "22,00", "100,00", "22"})) << "as it is stored";
    }
    prendi("DCBitem5", "Imponibile 10%");
    EXPECT_EQ(standard(), (std::vector<Riga>{{"3", "10,00", "10", "100,00"}}));
}

TEST_F(MorlanIva, ABoundTextBelowTwoGoesBackToTheStoredOne) {
    esegui("update IvaAliquotaStandard set idTipo = 3, Aliquota = 'vecchia'");
    apriScheda();
    auto& sorgente = controllo<controls::DataControl>("BItems5");
    sorgente.RecordSource = "SELECT IdAutoNumber, Descrizione From IvaTrattamento where idautonumber = 1";
    sorgente.Refresh();
    combo("DCBitem5").ReFill();
    prendi("DCBitem5", "Nessun trattamento");
    EXPECT_EQ(campi(), (Campi{"Imponibile 10%", "10,00", "100,00", "10"}));
    EXPECT_EQ(standard(), (std::vector<Riga>{{"3", "10,00", "10", "100,00"}}));
}

TEST_F(MorlanIva, FirstTreatmentAndThoseOfSalesAreNotOnOffer) {
    apriScheda();
    auto& lista = combo("DCBitem5");
    EXPECT_EQ(lista.count(), 10);
    EXPECT_LT(lista.findText("Nessun trattamento"), 0);
    EXPECT_LT(lista.findText("Iva vendite 22%"), 0);
}

TEST_F(MorlanIva, AnEditOfTheFieldsIsOverwrittenByTheNextPick) {
    apriScheda();
    const auto prima = standard();
    for (const char* nome : {"Aliquota", "Detrazione", "Sigla"}) {
        for (const char* nonsenso : {"abc", "'", "-1", "\x01", "99999999999999999999"}) {
            gui.typeInto("Avvio_Morlan", nome, nonsenso);
            gui.press(Qt::Key_Return);
        }
    }
    EXPECT_EQ(standard(), prima);
    prendi("DCBitem5", "Imponibile 10%");
    EXPECT_EQ(campi(), (Campi{"Imponibile 10%", "10,00", "100,00", "10"}));
}

TEST_F(MorlanIva, ATypedTreatmentThatIsNotPickedGoesBack) {
    apriScheda();
    const auto prima = standard();
    const std::string mostrato = combo("DCBitem5").Text();
    combo("DCBitem5").setFocus();
    digita("DCBitem5", "Imponibile 10%");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(combo("DCBitem5").Text(), mostrato);
    EXPECT_EQ(standard(), prima);
}

TEST_F(MorlanIva, ItsFieldsShowWholeNumbersInANarrowWindow) {
    apriScheda();
    for (const int larghezza : {900, 930, 960}) {
        gui.form("Avvio_Morlan").resize(larghezza, 700);
        support::Gui::handleEvents();
        EXPECT_LE(gui.form("Avvio_Morlan").width(), larghezza);
        for (const char* nome : {"Aliquota", "Detrazione", "Sigla"}) {
            auto& campo = controllo<controls::TextBox>(nome);
            QStyleOptionFrame aspetto;
            aspetto.initFrom(&campo);
            aspetto.lineWidth = campo.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &aspetto, &campo);
            constexpr int kBordiDelTesto = 4;
            const int posto = campo.style()->subElementRect(QStyle::SE_LineEditContents, &aspetto, &campo).width();
            EXPECT_GE(posto - kBordiDelTesto, campo.fontMetrics().horizontalAdvance("100,00")) << nome << larghezza;
        }
    }
}

TEST_F(MorlanIva, AClickOnTheTextIsNoPick) {
    apriScheda();
    const support::StatementRecorder recorder;
    QTest::mouseClick(combo("DCBitem5").lineEdit(), Qt::LeftButton);
    EXPECT_TRUE(recorder.texts().empty());
}

} // namespace
} // namespace vabo
