// The form of states: the save on leaving the currency.

#include "geography/StatiFixture.h"
#include "geography/ZonaAttesa.h"

#include <QPushButton>

namespace vabo {
namespace {

class StatiSalva : public StatiForm {};

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
    EXPECT_EQ(campi(), kStatoVuoto);
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
    EXPECT_EQ(campi(), kStatoVuoto);
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
    EXPECT_EQ(campi(), kStatoVuoto);
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
    EXPECT_EQ(campi(), kStatoVuoto);
}

} // namespace
} // namespace vabo
