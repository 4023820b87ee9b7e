// The form of states: dates, the save on leaving the currency, duplicates, areas.

#include "StatiFixture.h"
#include "ZonaAttesa.h"

#include <QPushButton>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

constexpr const char* kNulla = "NULL";
constexpr const char* kDoppio = "Stato con questo nome già inserito";
constexpr const char* kFiltro = "Arguments are of the wrong type, are out of acceptable range, or are in conflict with "
                                "one another.";

const Riga kKosovo = {"Repubblica del Kosovo", "Balcani", "170208", "", "EUR"};

class StatiSalva : public StatiForm {};

TEST_F(StatiSalva, AGoodDateGetsItsSlashesWhenItIsLeft) {
    apri();
    for (const char* campo : {"DataIstituzioneStato", "DataSoppressioneStato"}) {
        vaiA(campo);
        gui.type("010203");
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(campo), "01/02/2003");
    }
    EXPECT_EQ(fuoco(), "IsoValuta");
}

TEST_F(StatiSalva, AWrongFoundingDateKeepsTheFocusWithItsTextSelected) {
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

TEST_F(StatiSalva, AWrongFoundingDateKeepsTheFocusFromTheMouseToo) {
    apri();
    vaiA("DataIstituzioneStato");
    gui.type("x");
    gui.click("stati", "DescStato");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
    gui.click("stati", "IsoValuta");
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
    EXPECT_EQ(testo("DataIstituzioneStato"), "x");
}

TEST_F(StatiSalva, AWrongDateOfEndGoesOnToTheCurrency) {
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

TEST_F(StatiSalva, TheDateOfEndLeadsToTheCurrencyWhereverItIsLeftTo) {
    apri();
    for (const char* campo : {"DescStato", "DataIstituzioneStato", "Command1"}) {
        ripartiDa("DataSoppressioneStato");
        pagina.control("IsoValuta").setEnabled(false);
        vaiA(campo);
        EXPECT_EQ(fuoco(), "IsoValuta") << campo;
        EXPECT_TRUE(pagina.control("IsoValuta").isEnabled());
    }
}

TEST_F(StatiSalva, EmptyDatesAreLeftInPeace) {
    apri();
    for (const char* vuota : {"", " ", "0", "00/00"}) {
        ripartiDa("DataIstituzioneStato");
        pagina.control<controls::TextBox>("DataIstituzioneStato").setText(vuota);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(fuoco(), "DataSoppressioneStato") << vuota;
        EXPECT_EQ(testo("DataIstituzioneStato"), vuota);
    }
}

TEST_F(StatiSalva, LeavingTheCurrencyStoresANewState) {
    apri();
    const support::StatementRecorder recorder;
    scrivi(kKosovo);
    EXPECT_EQ(
        recorder.texts(),
        (Testi{"select * from stati",
               std::string("INSERT INTO [stati] ([DescStato], [DataIstituzioneStato], [IsoValuta], [Area]) VALUES ") +
                   "(N'Repubblica del Kosovo', CONVERT(DATETIME, '2008-02-17 00:00:00.000', 121), N'EUR', N'Balcani')",
               "select * from Zonegeografiche where descrizione ='Balcani'", NuovaZona(),
               "Select * from ZoneGeografiche ", "SELECT * from stati order by DescStato"}));
    EXPECT_EQ(stato("Repubblica del Kosovo"),
              (Riga{"Repubblica del Kosovo", "2008-02-17 00:00:00.000", kNulla, "EUR", "Balcani"}));
    EXPECT_EQ(campi(), kCampiVuoti);
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(pagina.control<controls::TextBox>("DescStato").selectedText(), "Seleziona");
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(StatiSalva, ASaveReleasesEverySharedRecordsetAndTheLocalConnection) {
    constexpr int kAltrui = 20; // one that the form has no use for
    apri();
    RsCondivisi(kAltrui).Open("select * from progetti", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    scrivi(kKosovo);
    EXPECT_FALSE(RsCondivisi(kAltrui).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(StatiSalva, ATypedAreaStandsInTheListFromThenOn) {
    apri();
    const int prima = pagina.combo("DataCombo1").count();
    EXPECT_LT(pagina.combo("DataCombo1").findText("Balcani"), 0);
    scrivi(kKosovo);
    EXPECT_EQ(pagina.combo("DataCombo1").count(), prima + 1);
    pagina.pick("DataCombo1", "Balcani");
    EXPECT_EQ(area(), "Balcani");
}

TEST_F(StatiSalva, ATypedAreaMayBeTheBeginningOfAnother) {
    apri();
    scrivi({"A", "Europa mer", "", "", ""});
    EXPECT_EQ(stato("A").back(), "Europa mer");
    EXPECT_EQ(quanti("ZoneGeografiche where Descrizione = 'Europa mer'"), 1);
}

TEST_F(StatiSalva, AfterANewStateTheGridShowsAllAndStandsAheadOfItsFirstRow) {
    apri();
    scrivi(kKosovo); // a duplicate isn't looked for yet
    const int tutti = pagina.rows("DataGrid1");
    scrivi({"Repubblica del Somaliland", "Seleziona", "", "", ""});
    EXPECT_EQ(pagina.rows("DataGrid1"), tutti + 1);
    EXPECT_EQ(corrente(), "");
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    EXPECT_EQ(testo("DescStato"), "Afghanistan");
}

TEST_F(StatiSalva, AChosenStateIsChangedAndTheGridStaysAtItsPlace) {
    apri();
    scegli("Kenya");
    const int prima = quanti("stati");
    const std::string id = valore("select IdStato from stati where DescStato = 'Kenya'");
    const int riga = pagina.grid("DataGrid1").currentIndex().row();
    const support::StatementRecorder recorder;
    scrivi({"Kenya", "Africa orientale", "12121963", "", "KSH"});
    EXPECT_EQ(recorder.texts().front(), "select * from stati where idstato = " + id);
    EXPECT_EQ(stato("Kenya"), (Riga{"Kenya", "1963-12-12 00:00:00.000", kNulla, "KSH", "Africa orientale"}));
    EXPECT_EQ(quanti("stati"), prima);
    EXPECT_EQ(pagina.grid("DataGrid1").currentIndex().row(), riga);
    EXPECT_EQ(corrente(), "Kenya");
    EXPECT_TRUE(pagina.currentRowIsInSight("DataGrid1"));
    EXPECT_EQ(campi(), kCampiVuoti);
}

TEST_F(StatiSalva, AStateWhoseNameMovesItLeavesTheGridAtItsPlace) {
    apri();
    scegli("Kenya");
    const int riga = pagina.grid("DataGrid1").currentIndex().row();
    scrivi({"Aaa", "Africa orientale", "", "", "KES"});
    EXPECT_EQ(pagina.grid("DataGrid1").currentIndex().row(), riga);
    EXPECT_NE(corrente(), "Aaa");
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 1), "Aaa");
}

TEST_F(StatiSalva, ANameThatIsMissingStoresNothingInSilence) {
    apri();
    const support::StatementRecorder recorder;
    for (const char* nome : {"Seleziona", "seleziona", "SELEZIONA", " ", "0"}) {
        scrivi({nome, "Balcani", "010203", "", "EUR"});
        EXPECT_EQ(campi(), kCampiVuoti) << nome;
        EXPECT_EQ(fuoco(), "DescStato");
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(StatiSalva, ADuplicateIsToldAndTheFieldsAreEmptied) {
    apri();
    gui.click("stati", "Command1");
    const int prima = quanti("stati");
    script.expectMessage(kDoppio);
    const support::StatementRecorder recorder;
    scrivi({"KENYA", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{"SELECT * from stati order by DescStato"});
    EXPECT_EQ(campi(), kCampiVuoti);
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(quanti("stati"), prima);
    EXPECT_EQ(pagina.rows("DataGrid1"), prima) << "no filter is left";
    script.expectMessage(kDoppio);
    scrivi({"Kenya", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown()) << "the next state is still a new one";
}

TEST_F(StatiSalva, AfterASaveTheNextStateIsNew) {
    apri();
    scegli("Kenya");
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    script.expectMessage(kDoppio);
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(quanti("stati where DescStato = 'Kenya'"), 1);
}

TEST_F(StatiSalva, RenamingAStateToAnothersNamePasses) {
    apri();
    scegli("Kenya");
    scrivi({"Italia", "Seleziona", "", "", "KES"});
    EXPECT_EQ(quanti("stati where DescStato = 'Italia'"), 2);
}

// Nothing has been chosen, stored or asked for by then.
TEST_F(StatiSalva, TheFirstStateTypedBehindTheOpeningIsNotLookedFor) {
    apri();
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    EXPECT_EQ(quanti("stati where DescStato = 'Kenya'"), 2);
}

TEST_F(StatiSalva, ANameThatSomebodyElseAddedMeanwhileIsNotSeen) {
    apri();
    gui.click("stati", "Command1");
    esegui("insert into stati (DescStato) values ('Repubblica del Kosovo')");
    scrivi(kKosovo);
    EXPECT_EQ(quanti("stati where DescStato = 'Repubblica del Kosovo'"), 2);
}

TEST_F(StatiSalva, AnApostropheInANewNameIsRefusedByTheFilterAndTheFieldsStay) {
    apri();
    gui.click("stati", "Command1");
    script.expectMessage(kFiltro);
    const support::StatementRecorder recorder;
    scrivi({"Paese dell'Est", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(campi(), (Riga{"Paese dell'Est", "Balcani", "01/02/2003", "", "EUR"}));
    EXPECT_EQ(fuoco(), "DescStato");
    scrivi({"Paese di Est", "Balcani", "010203", "", "EUR"});
    EXPECT_EQ(stato("Paese di Est")[4], "Balcani") << "a name without it goes through";
}

TEST_F(StatiSalva, AnApostropheInAChosenStatesNamePasses) {
    apri();
    scegli("Kenya");
    scrivi({"Paese dell'Est", "Seleziona", "", "", "KES"});
    EXPECT_EQ(stato("Paese dell''Est").front(), "Paese dell'Est");
}

TEST_F(StatiSalva, ADoubledApostropheIsOneToTheFilterAndTwoToTheTable) {
    apri();
    gui.click("stati", "Command1");
    scrivi({"Paese dell''Est", "Seleziona", "", "", "KES"});
    EXPECT_EQ(stato("Paese dell''''Est").front(), "Paese dell''Est");
}

TEST_F(StatiSalva, ANameThatWidensTheFilterFindsOthers) {
    apri();
    gui.click("stati", "Command1");
    script.expectMessage(kDoppio);
    scrivi({"x' or descstato='Kenya", "Seleziona", "", "", ""});
    EXPECT_TRUE(script.allShown());
}

// Typed or pasted into one field of a new state; the others are sound.
TEST_F(StatiSalva, WhateverIsTypedLeavesTheFormInOrder) {
    const std::string lungo(4'000, 'x');
    const Testi testi = {"\"", ";", "a;b", "--", "/* x", "*/", "\x01\x1b\x7f", "a\tb", "città ’ß€", lungo};
    apri();
    gui.click("stati", "Command1");
    for (const std::string& ostile : testi) {
        for (const char* campo : {"DescStato", "DataIstituzioneStato", "DataSoppressioneStato", "IsoValuta"}) {
            SCOPED_TRACE(ostile.substr(0, 20) + " in " + campo);
            const int prima = quanti("stati");
            pagina.control<controls::TextBox>("DescStato").setText("Prova");
            pagina.control<controls::TextBox>(campo).setText(ostile);
            const bool breve = ostile.size() <= 3;
            vaiA("IsoValuta");
            vaiA("DescStato");
            EXPECT_EQ(quanti("stati"), prima + 1);
            const Riga riga = this->riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta "
                                         "from stati where IdStato = (select max(IdStato) from stati)");
            const std::string nome = campo == std::string("DescStato") ? ostile : "Prova";
            EXPECT_EQ(riga[0], nome == lungo ? kNulla : nome);
            EXPECT_EQ(riga[1], kNulla);
            EXPECT_EQ(riga[2], kNulla);
            EXPECT_EQ(riga[3], campo != std::string("IsoValuta") ? "" : breve ? ostile : kNulla);
            EXPECT_EQ(campi(), kCampiVuoti);
            esegui("delete from stati where IdStato = (select max(IdStato) from stati)");
            gui.click("stati", "Command4");
            apri();
            gui.click("stati", "Command1");
        }
    }
}

TEST_F(StatiSalva, FourDigitsOfADatePassAndAreNotStored) {
    apri();
    scrivi({"Prova", "Seleziona", "0102", "0102", "EUR"});
    EXPECT_EQ(stato("Prova"), (Riga{"Prova", kNulla, kNulla, "EUR", "Seleziona"}));
}

TEST_F(StatiSalva, AWrongDateOfEndIsSkippedByTheSave) {
    apri();
    scegli("Cecoslovacchia");
    scrivi({"Cecoslovacchia", "Seleziona", "28101918", "32/01/2003", "CSK"});
    EXPECT_EQ(stato("Cecoslovacchia")[2], "1992-12-31 00:00:00.000");
}

TEST_F(StatiSalva, ADateOnceStoredIsNotTakenAwayByEmptyingItsField) {
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

TEST_F(StatiSalva, AnotherRowChosenFromTheCurrencyIsShownBehindTheSave) {
    apri();
    scegli("Kenya");
    vaiA("IsoValuta");
    gui.type("KSH");
    clicca("Italia");
    EXPECT_EQ(stato("Kenya")[3], "KSH");
    EXPECT_EQ(testo("DescStato"), "Italia");
    EXPECT_EQ(fuoco(), "DescStato");
}

// The date of end leads to the currency, which the row just chosen leaves again: that row is stored as it is.
TEST_F(StatiSalva, ARowChosenFromTheDateOfEndIsStoredAsItIsAndTheFieldsAreEmptied) {
    apri();
    scegli("Cecoslovacchia");
    const Riga prima = stato("Kenya");
    vaiA("DataSoppressioneStato");
    gui.type("x");
    clicca("Kenya");
    EXPECT_EQ(stato("Kenya"), prima);
    EXPECT_EQ(campi(), kCampiVuoti);
}

TEST_F(StatiSalva, TheCommandsStoreWhatTheCurrencyIsLeftWith) {
    apri();
    for (const auto& [nome, premi] : std::initializer_list<std::pair<const char*, std::function<void()>>>{
             {"Uno", [this] { gui.click("stati", "Command1"); }},
             {"Due",
              [this] {
                  gui.press(Qt::Key_N, Qt::AltModifier);
                  const auto& comando = pagina.control<QPushButton>("Command1");
                  support::Gui::waitFor("the command", [&] { return !comando.isDown(); });
              }},
             {"Tre", [this] { gui.click("stati", "Command4"); }},
             {"Quattro", [this] {
                  gui.press(Qt::Key_C, Qt::AltModifier);
                  support::Gui::waitFor("the end", [this] { return !gui.isVisible("stati"); });
              }}}) {
        if (!gui.isVisible("stati")) {
            apri();
        }
        scrivi({nome, "Seleziona", "", ""});
        gui.type("EUR");
        ASSERT_EQ(fuoco(), "IsoValuta");
        premi();
        EXPECT_EQ(quanti(std::string("stati where DescStato = '") + nome + "'"), 1) << nome;
    }
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(StatiSalva, AStateThatIsGoneIsToldAndTheFieldsStay) {
    apri();
    scegli("Kenya");
    esegui("delete from stati where DescStato = 'Kenya'");
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    vaiA("IsoValuta");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("DescStato"), "Kenya");
    EXPECT_EQ(quanti("stati where DescStato = 'Kenya'"), 0);
}

TEST_F(StatiSalva, ATableThatIsGoneIsToldAndTheFieldsStay) {
    apri();
    esegui("drop table stati");
    script.expectMessage("Invalid object name 'stati'.");
    scrivi({"Prova", "Seleziona", "", "", "EUR"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("DescStato"), "Prova");
    EXPECT_TRUE(gui.isVisible("stati"));
}

TEST_F(StatiSalva, AListOfAreasThatIsGoneIsSkipped) {
    apri();
    esegui("drop table ZoneGeografiche");
    scrivi(kKosovo);
    EXPECT_EQ(stato("Repubblica del Kosovo")[4], "Balcani");
    EXPECT_EQ(pagina.combo("DataCombo1").count(), 0);
    EXPECT_EQ(campi(), kCampiVuoti);
}

} // namespace
} // namespace vabo
