// The form of states: its two dates.

#include "geography/StatiFixture.h"

namespace vabo {
namespace {

class StatiDate : public StatiForm {};

TEST_F(StatiDate, AGoodDateGetsItsSlashesWhenItIsLeft) {
    apri();
    for (const char* campo : {"DataIstituzioneStato", "DataSoppressioneStato"}) {
        vaiA(campo);
        gui.type("010203");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(campo), "01/02/2003");
    }
    EXPECT_EQ(fuoco(), "IsoValuta");
}

TEST_F(StatiDate, AWrongFoundingDateKeepsTheFocusWithItsTextSelected) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
        vaiA("DataIstituzioneStato");
        gui.type("32/01/2003");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "DataIstituzioneStato");
        EXPECT_EQ(testo("DataIstituzioneStato"), "32/01/2003") << "as it was typed";
        EXPECT_EQ(pagina.control<controls::TextBox>("DataIstituzioneStato").selectedText(), "32/01/2003");
    }
    gui.type("310103");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(fuoco(), "DataSoppressioneStato");
}

TEST_F(StatiDate, AWrongFoundingDateKeepsTheFocusFromTheMouseToo) {
    apri();
    vaiA("DataIstituzioneStato");
    gui.type("x");
    gui.click("stati", "DescStato");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
    gui.click("stati", "IsoValuta");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
    EXPECT_EQ(testo("DataIstituzioneStato"), "x");
}

TEST_F(StatiDate, AWrongDateOfEndGoesOnToTheCurrency) {
    apri();
    const support::StatementRecorder recorder;
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
        ripartiDa("DataSoppressioneStato");
        gui.type("32/01/2003");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "IsoValuta");
        EXPECT_EQ(testo("DataSoppressioneStato"), "32/01/2003");
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(StatiDate, TheDateOfEndLeadsToTheCurrencyWhereverItIsLeftTo) {
    apri();
    for (const char* campo : {"DescStato", "DataIstituzioneStato", "Command1"}) {
        ripartiDa("DataSoppressioneStato");
        pagina.control("IsoValuta").setEnabled(false);
        vaiA(campo);
        EXPECT_EQ(fuoco(), "IsoValuta") << campo;
        EXPECT_TRUE(pagina.control("IsoValuta").isEnabled());
    }
}

TEST_F(StatiDate, EmptyDatesAreLeftInPeace) {
    apri();
    for (const char* vuota : {"", " ", "0", "00/00"}) {
        ripartiDa("DataIstituzioneStato");
        pagina.control<controls::TextBox>("DataIstituzioneStato").setText(vuota);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fuoco(), "DataSoppressioneStato") << vuota;
        EXPECT_EQ(testo("DataIstituzioneStato"), vuota);
    }
}

TEST_F(StatiDate, FourDigitsOfADatePassAndAreNotStored) {
    apri();
    scrivi({"Prova", "Seleziona", "0102", "0102", "EUR"});
    EXPECT_EQ(stato("Prova"), (Riga{"Prova", kNulla, kNulla, "EUR", "Seleziona"}));
}

TEST_F(StatiDate, AWrongDateOfEndIsSkippedByTheSave) {
    apri();
    scegli("Cecoslovacchia");
    scrivi({"Cecoslovacchia", "Seleziona", "28101918", "32/01/2003", "CSK"});
    EXPECT_EQ(stato("Cecoslovacchia")[2], "1992-12-31 00:00:00.000");
}

TEST_F(StatiDate, ADateOnceStoredIsNotTakenAwayByEmptyingItsField) {
    apri();
    scegli("Cecoslovacchia");
    for (const char* campo : {"DataIstituzioneStato", "DataSoppressioneStato"}) {
        pagina.control<controls::TextBox>(campo).setText("");
    }
    vaiA("IsoValuta");
    invio();
    EXPECT_EQ(stato("Cecoslovacchia")[1], "1918-10-28 00:00:00.000");
    EXPECT_EQ(stato("Cecoslovacchia")[2], "1992-12-31 00:00:00.000");
}

} // namespace
} // namespace vabo
