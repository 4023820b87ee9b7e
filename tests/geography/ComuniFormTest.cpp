// The form of municipalities: how it opens, its one-shot timer, what it shows, its commands.

#include "controls/DataControl.h"
#include "controls/Timer.h"
#include "geography/ComuniFixture.h"
#include "session/TreatForms.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

namespace vabo {
namespace {

TEST_F(ComuniForm, ItIsOpenedByTheNameInTheTableOfForms) {
    gui.forms().show("Avvio_Azienda");
    AzzeraPilaForm();
    EXPECT_TRUE(ApriForm("frmcomuni", true));
    EXPECT_TRUE(gui.isVisible("frmComuni"));
    EXPECT_TRUE(FormInCima("frmcomuni"));
}

TEST_F(ComuniForm, UnderItsOwnNameTheCallEndsAtTheConsole) {
    PilaForm = {"Avvio_Azienda", "frmDatiAzienda"};
    CimaForm = 1;
    EXPECT_TRUE(ApriForm("frmComuni", true));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_FALSE(gui.forms().isLoaded("frmComuni"));
    EXPECT_EQ(PilaForm, Testi{"Avvio_Azienda"});
}

TEST_F(ComuniForm, ReadsTheStatesThreeTimesAndTheListOnce) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), (Testi{kElencoStati, kElencoComuni, kElencoStati, kElencoStati}));
    const auto& elenco = pagina.control<controls::DataControl>("elenco");
    EXPECT_EQ(elenco.ConnectionString, StringaAzienda);
    EXPECT_EQ(elenco.RecordSource, kElencoComuni);
    const auto& stati = pagina.control<controls::DataControl>("r_stati");
    EXPECT_EQ(stati.ConnectionString, StringaAzienda);
    EXPECT_EQ(stati.RecordSource, kElencoStati);
}

TEST_F(ComuniForm, ItsTimerRunsOnceUnderTheHourglassAndStaysOff) {
    std::vector<Qt::CursorShape> puntatori;
    Testi inviate;
    const support::SomebodyElse altro([&](const std::string& testo) {
        inviate.push_back(testo);
        puntatori.push_back(QGuiApplication::overrideCursor() != nullptr ? QGuiApplication::overrideCursor()->shape()
                                                                         : Qt::ArrowCursor);
    });
    GrigliaForm::apri();
    auto& timer = pagina.control<controls::Timer>("Timer1");
    EXPECT_EQ(timer.Interval(), 1);
    support::Gui::waitFor("the timer", [&] { return !timer.isOn(); });
    EXPECT_EQ(combo(), "Seleziona");
    EXPECT_EQ(puntatori, (std::vector{Qt::ArrowCursor, Qt::ArrowCursor, Qt::WaitCursor, Qt::WaitCursor}));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    constexpr int kVieneAncora = 50;
    QTest::qWait(kVieneAncora);
    EXPECT_EQ(inviate.size(), 4U);
}

TEST_F(ComuniForm, ATimerThatStrikesWhileTheFormTakesNoEventsIsNotLost) {
    constexpr int kPiuDelTimer = 30;
    gui.forms().show("frmComuni");
    gui.form("frmComuni").setEnabled(false);
    QTest::qWait(kPiuDelTimer);
    EXPECT_EQ(combo(), "") << "while it is disabled";
    {
        QDialog box;
        box.setModal(true);
        box.show();
        gui.form("frmComuni").setEnabled(true);
        QTest::qWait(kPiuDelTimer);
        EXPECT_EQ(combo(), "") << "while a box is open";
    }
    support::Gui::waitFor("the states", [this] { return combo() == "Seleziona"; });
}

TEST_F(ComuniForm, ItsTextsStandLetterForLetter) {
    apri();
    EXPECT_EQ(gui.form("frmComuni").windowTitle().toStdString(), "Tlv - Aldane Works Software Solutions");
    const std::pair<const char*, const char*> etichette[] = {
        {"DES_COMUNE", "Comune"}, {"DES_PROVIN", "Provincia"}, {"COD_CAP", "CAP"}, {"DataCombo1", "Stato"}};
    for (const auto& [campo, testo] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), testo);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
        EXPECT_FALSE(pagina.control(campo).accessibleName().isEmpty()) << campo;
    }
    EXPECT_EQ(testo("titolo"), "Elenco Comuni");
    EXPECT_EQ(testo("istruzioni"), "Un clic, Spazio o Invio su una riga la porta nei campi. La riga si registra quando "
                                   "si lascia Stato. Un doppio clic o Ctrl+Invio su Stato apre gli stati.");
    EXPECT_EQ(gui.mnemonics("frmComuni"), "CN");
}

TEST_F(ComuniForm, StartsWithEmptyFieldsAndTheFocusOnTheName) {
    GrigliaForm::apri();
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    EXPECT_EQ(testo("DES_COMUNE") + testo("DES_PROVIN") + testo("COD_CAP"), "");
    apri();
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(corrente(), "Campione d'Italia") << "without a state it stands ahead of all";
    EXPECT_GT(pagina.combo("DataCombo1").count(), 200);
}

TEST_F(ComuniForm, LaysItsGridAgainAfterEachReading) {
    const std::vector<Colonna> colonne = {{"idautonumber", 0}, {"Comune", 5000}, {"Provincia", 700},
                                          {"CAP", 900},        {"IdStato", 0},   {"Stato", 2000}};
    apri();
    verificaColonne(colonne);
    scrivi({"Palestrina", "RM", "00036", "Italia"}); // behind a save
    verificaColonne(colonne);
    script.expectMessage(kComuneDoppio);
    scrivi({"Aosta", "AO", "11100", "Italia"}); // behind a duplicate
    verificaColonne(colonne);
}

TEST_F(ComuniForm, TheColumnsFillTheGrid) {
    apri();
    const controls::DataGrid& griglia = pagina.grid("DataGrid1");
    EXPECT_NEAR(griglia.horizontalHeader()->length(), griglia.viewport()->width(), 4) << "each is cut to whole pixels";
}

TEST_F(ComuniForm, TheGridIsInTheOrderOfStatesAndNames) {
    apri();
    const auto attese = posto.rows(support::kCompany, "SELECT DES_COMUNE FROM Comuni LEFT JOIN stati ON "
                                                      "Comuni.IdStato = stati.IdStato order by DescStato, DES_COMUNE");
    ASSERT_EQ(pagina.rows("DataGrid1"), static_cast<int>(attese.size()));
    for (int i = 0; i < pagina.rows("DataGrid1"); ++i) {
        EXPECT_EQ(pagina.cell("DataGrid1", i, 1), attese[static_cast<std::size_t>(i)][0]);
    }
    EXPECT_EQ(pagina.cell("DataGrid1", rigaDi("Nairobi"), 5), "Kenya");
    EXPECT_EQ(pagina.cell("DataGrid1", rigaDi("Campione d'Italia"), 5), "");
}

TEST_F(ComuniForm, AStateWithoutANameIsTakenAtTheStart) {
    esegui("insert into stati (DescStato) values ('')");
    GrigliaForm::apri();
    auto& timer = pagina.control<controls::Timer>("Timer1");
    support::Gui::waitFor("the timer", [&] { return !timer.isOn(); });
    EXPECT_EQ(combo(), "");
    EXPECT_GT(pagina.combo("DataCombo1").count(), 200) << "no filter is left";
    scrivi({"Palestrina", "RM", "00036", ""});
    EXPECT_EQ(comune("Palestrina")[3], idStato(""));
}

TEST_F(ComuniForm, AClickOnAStateOfTheListStoresTheMunicipality) {
    apri();
    scrivi({"Palestrina", "RM", "00036"});
    pagina.pickByMouse("DataCombo1", "Kenya");
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    EXPECT_EQ(comune("Palestrina"), (Riga{"Palestrina", "RM", "00036", idStato("Kenya")}));
}

TEST_F(ComuniForm, AStateWithoutAKeyInTheListIsToldAndStoresNothing) {
    esegui("drop table stati create table stati (IdStato int null, DescStato nvarchar(100) null)");
    esegui("insert into stati values (1, 'Italia'), (null, 'Senza')");
    apri();
    scrivi({"Palestrina", "RM", "00036"});
    script.expectMessage("Type mismatch");
    pagina.pick("DataCombo1", "Senza");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(fuoco(), "DataCombo1");
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Palestrina'"), 0);
    pagina.pick("DataCombo1", "Italia");
    EXPECT_EQ(comune("Palestrina")[3], "1");
}

TEST_F(ComuniForm, StatesThatCannotBeReadAreToldByTheLoadAndByTheTimer) {
    esegui("drop table stati");
    script.expectMessage("Invalid object name 'stati'.");
    script.expectMessage("Object variable or With block variable not set");
    GrigliaForm::apri();
    support::Gui::waitFor("the boxes", [this] { return script.allShown(); });
    EXPECT_TRUE(gui.isVisible("frmComuni"));
    EXPECT_EQ(pagina.rows("DataGrid1"), 0) << "the error ended the load";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    gui.click("frmComuni", "Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(ComuniForm, AListThatCannotBeReadIsToldAndTheStatesAreRead) {
    esegui("drop table Comuni");
    script.expectMessage("Invalid object name 'Comuni'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_GT(pagina.combo("DataCombo1").count(), 200);
}

TEST_F(ComuniForm, NewEmptiesTheFieldsForAnotherMunicipality) {
    apri();
    scegli("Aosta");
    gui.click("frmComuni", "Command1");
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    const int prima = quanti("Comuni");
    scrivi({"Palestrina", "RM", "00036", "Italia"});
    EXPECT_EQ(quanti("Comuni"), prima + 1);
    EXPECT_EQ(comune("Aosta")[2], "11100");
}

TEST_F(ComuniForm, CloseStepsBackAndSendsNothing) {
    apri();
    RsCondivisi(1).Open("select * from progetti", DbAzienda);
    const support::StatementRecorder recorder;
    gui.click("frmComuni", "Command4");
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_TRUE(RsCondivisi(1).IsOpen());
    EXPECT_FALSE(gui.forms().isLoaded("frmComuni"));
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(CimaForm, 0);
    RsCondivisi(1).Close();
}

TEST_F(ComuniForm, TheWindowsOwnCloseStepsBackWithoutASave) {
    apri();
    scrivi({"Palestrina", "RM", "00036"});
    ASSERT_EQ(fuoco(), "DataCombo1");
    const support::StatementRecorder recorder;
    gui.form("frmComuni").close();
    support::Gui::handleEvents();
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(ComuniForm, ItFitsANarrowScreen) {
    apri();
    EXPECT_LE(gui.form("frmComuni").minimumSizeHint().width(), 960);
}

} // namespace
} // namespace vabo
