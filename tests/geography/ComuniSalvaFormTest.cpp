// The form of municipalities: the save on leaving the state.

#include "geography/ComuniFixture.h"

#include <QLineEdit>
#include <QPushButton>

namespace vabo {
namespace {

const Riga kPalestrina = {"Palestrina", "RM", "00036", "Italia"};
const Riga kRigaDiPalestrina = {"Palestrina", "RM", "00036", "1"};

class ComuniSalva : public ComuniForm {};

TEST_F(ComuniSalva, LeavingTheStateStoresANewMunicipality) {
    apri();
    const support::StatementRecorder recorder;
    scrivi(kPalestrina);
    ASSERT_EQ(recorder.texts().size(), 4U);
    EXPECT_EQ(recorder.texts()[0], "select * from comuni");
    EXPECT_EQ(conNomeDellaTabella(recorder.texts()[1]),
              "INSERT INTO [Comuni] ([DES_COMUNE], [DES_PROVIN], [COD_CAP], [IdStato]) VALUES (N'Palestrina', N'RM', "
              "N'00036', 1)");
    EXPECT_EQ(recorder.texts()[2], kElencoComuni);
    EXPECT_EQ(recorder.texts()[3], kElencoComuniRiletto);
    EXPECT_EQ(comune("Palestrina"), kRigaDiPalestrina);
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    EXPECT_NO_THROW(rigaDi("Palestrina"));
}

TEST_F(ComuniSalva, AChosenMunicipalityIsChangedInItsRow) {
    apri();
    scegli("Aosta");
    const int prima = quanti("Comuni");
    const std::string id = valore("select idautonumber from Comuni where DES_COMUNE = 'Aosta'");
    const support::StatementRecorder recorder;
    scrivi({"Aoste", "VA", "11101", "Kenya"});
    EXPECT_EQ(recorder.texts().front(), "select * from  comuni where idautonumber=" + id);
    EXPECT_EQ(comune("Aoste"), (Riga{"Aoste", "VA", "11101", idStato("Kenya")}));
    EXPECT_EQ(quanti("Comuni"), prima);
    EXPECT_EQ(campi(), kComuneVuoto);
    EXPECT_EQ(pagina.cell("DataGrid1", rigaDi("Aoste"), 5), "Kenya");
}

TEST_F(ComuniSalva, ItRunsUnderTheHourglass) {
    apri();
    scrivi({"Palestrina", "RM", "00036"});
    std::vector<Qt::CursorShape> puntatori;
    {
        const support::SomebodyElse altro([&](const std::string& /*testo*/) {
            ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
            puntatori.push_back(QGuiApplication::overrideCursor()->shape());
        });
        campo("Italia");
    }
    EXPECT_EQ(puntatori, std::vector(4, Qt::WaitCursor));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ComuniSalva, ASaveReleasesEverySharedRecordsetAndTheLocalConnection) {
    constexpr int kAltrui = 20; // one that the form has no use for
    apri();
    RsCondivisi(kAltrui).Open("select * from progetti", DbAzienda);
    DbLocale = std::make_unique<ado::Connection>();
    scrivi(kPalestrina);
    EXPECT_FALSE(RsCondivisi(kAltrui).IsOpen());
    EXPECT_FALSE(RsCondivisi(1).IsOpen());
    EXPECT_EQ(DbLocale, nullptr);
}

TEST_F(ComuniSalva, WithoutAStateNothingIsStoredInSilenceAndTheFieldsStay) {
    apri();
    const support::StatementRecorder recorder;
    scrivi({"Palestrina", "RM", "00036", ""});
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(campi(), (Riga{"Palestrina", "RM", "00036", "Seleziona"}));
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniSalva, TheNextMunicipalityGetsTheSameStateThoughItsNameIsGone) {
    apri();
    scrivi({"Mombasa", "KE", "80100", "Kenya"});
    scrivi({"Kisumu", "KE", "40100", ""});
    EXPECT_EQ(comune("Kisumu")[3], idStato("Kenya"));
    gui.click("frmComuni", "Command1");
    scrivi({"Eldoret", "KE", "30100", ""});
    EXPECT_EQ(comune("Eldoret")[3], idStato("Kenya")) << "behind the command, too";
}

TEST_F(ComuniSalva, AClickInTheListOfStatesStoresTheRow) {
    apri();
    scrivi({"Mombasa", "KE", "80100"});
    pagina.pick("DataCombo1", "Kenya");
    EXPECT_EQ(comune("Mombasa")[3], idStato("Kenya"));
    EXPECT_EQ(fuoco(), "DES_COMUNE");
    EXPECT_EQ(campi(), kComuneVuoto) << "the state picked doesn't come back";
}

TEST_F(ComuniSalva, AClickElsewhereOnTheStateStaysThere) {
    apri();
    metti("COD_CAP", "00036");
    QTest::mouseClick(pagina.combo("DataCombo1").lineEdit(), Qt::LeftButton);
    EXPECT_EQ(fuoco(), "DataCombo1");
}

TEST_F(ComuniSalva, OfTwoStatesOfOneNameTheOneThatIsPickedIsStored) {
    esegui("insert into stati (DescStato) values ('Kenya')");
    const std::string seconda = valore("select max(IdStato) from stati");
    apri();
    scrivi({"Mombasa", "KE", "80100"});
    controls::DataCombo& stati = pagina.combo("DataCombo1");
    QTest::keyClick(&stati, Qt::Key_Down);
    support::Gui::waitFor("the list", [&] { return stati.view()->isVisible(); });
    stati.view()->setCurrentIndex(stati.model()->index(stati.findText("Kenya") + 1, 0));
    QTest::keyClick(stati.view(), Qt::Key_Return);
    pagina.comeToFront();
    EXPECT_EQ(comune("Mombasa")[3], seconda);
}

// "Niger" is also the beginning of another, so that the search highlights none of the two.
TEST_F(ComuniSalva, AStateTypedInFullIsTaken) {
    apri();
    scrivi({"Niamey", "NE", "8000", "Niger"});
    EXPECT_EQ(comune("Niamey")[3], idStato("Niger"));
    scrivi({"Zinder", "ZR", "9000", "nIGER"});
    EXPECT_EQ(comune("Zinder")[3], idStato("Niger")) << "in whichever case";
    scrivi({"Lagos", "LA", "100", "Nigeri"});
    EXPECT_EQ(comune("Lagos")[3], idStato("Nigeria")) << "the only one that is found";
    scrivi({"Maradi", "MA", "1", "Niger"});
    EXPECT_EQ(comune("Maradi")[3], idStato("Niger"));
}

TEST_F(ComuniSalva, AStateTypedInFullIsTakenAlsoWhereTheMouseLeavesIt) {
    apri();
    scrivi({"Niamey", "NE", "8000"});
    pagina.typeWithoutPick("DataCombo1", "Niger");
    gui.click("frmComuni", "DES_PROVIN");
    EXPECT_EQ(comune("Niamey")[3], idStato("Niger"));
}

TEST_F(ComuniSalva, AStateThatIsNotPickedGivesWayToTheOneChosen) {
    apri();
    scegli("Nairobi");
    scrivi({"Nairobi", "NB", "00100", "Nige"});
    EXPECT_EQ(comune("Nairobi")[3], idStato("Kenya")) << "as the field showed it then";
    scrivi({"Mombasa", "KE", "80100", "nessuno stato"});
    EXPECT_EQ(comune("Mombasa")[3], idStato("Kenya"));
}

TEST_F(ComuniSalva, AProvinceIsCutToTwoLettersAndAPostalCodeToFiveDigits) {
    apri();
    scrivi({"Palestrina", "ROM", "000369", "Italia"});
    EXPECT_EQ(comune("Palestrina"), (Riga{"Palestrina", "RO", "00036", "1"}));
}

TEST_F(ComuniSalva, AfterASaveTheListShowsAllFromItsFirstRow) {
    apri();
    gui.click("frmComuni", "Command1");
    scrivi(kPalestrina);
    EXPECT_EQ(pagina.rows("DataGrid1"), quanti("Comuni"));
    EXPECT_EQ(corrente(), "Campione d'Italia");
}

TEST_F(ComuniSalva, AnotherRowChosenFromTheStateIsShownBehindTheSave) {
    apri();
    scegli("Aosta");
    vaiA("DES_PROVIN");
    gui.type("VA");
    vaiA("DataCombo1");
    clicca("Ancona");
    EXPECT_EQ(comune("Aosta")[1], "VA");
    EXPECT_EQ(campi(), (Riga{"Ancona", "AN", "60121", "Italia"}));
    EXPECT_EQ(fuoco(), "DES_COMUNE");
}

TEST_F(ComuniSalva, TheRowUnderTheMouseIsShownThoughTheSaveReadsTheListAgain) {
    apri();
    const std::string ultimo = pagina.cell("DataGrid1", pagina.rows("DataGrid1") - 1, 1);
    scrivi({"Palestrina", "RM", "00036", "Italia"}); // the list is sorted: it stands among the others
    const std::string sotto = pagina.cell("DataGrid1", rigaDi("Palestrina") + 1, 1);
    esegui("delete from Comuni where DES_COMUNE = 'Palestrina'");
    gui.forms().unload("frmComuni");
    support::Gui::handleEvents();
    for (const std::string& altro : {ultimo, sotto}) {
        apri();
        scrivi({"Palestrina", "RM", "00036"});
        pagina.typeWithoutPick("DataCombo1", "Italia");
        clicca(altro);
        EXPECT_EQ(comune("Palestrina")[0], "Palestrina") << "stored by the press";
        EXPECT_EQ(testo("DES_COMUNE"), altro);
        EXPECT_EQ(corrente(), altro);
        EXPECT_EQ(fuoco(), "DES_COMUNE");
        esegui("delete from Comuni where DES_COMUNE = 'Palestrina'");
        gui.forms().unload("frmComuni");
        support::Gui::handleEvents();
    }
}

TEST_F(ComuniSalva, TheCommandsStoreWhatTheStateIsLeftWith) {
    apri();
    scrivi(kPalestrina);
    for (const auto& [nome, premi] : std::initializer_list<std::pair<const char*, std::function<void()>>>{
             {"Uno", [this] { gui.click("frmComuni", "Command1"); }},
             {"Due",
              [this] {
                  gui.press(Qt::Key_N, Qt::AltModifier);
                  const auto& comando = pagina.control<QPushButton>("Command1");
                  support::Gui::waitFor("the command", [&] { return !comando.isDown(); });
              }},
             {"Tre", [this] { gui.click("frmComuni", "Command4"); }}}) {
        scrivi({nome, "RM", "00036"});
        ASSERT_EQ(fuoco(), "DataCombo1");
        premi();
        EXPECT_EQ(comune(nome), (Riga{nome, "RM", "00036", "1"}));
    }
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(ComuniSalva, AMunicipalityThatIsGoneIsToldAndTheFieldsStay) {
    apri();
    scegli("Aosta");
    esegui("delete from Comuni where DES_COMUNE = 'Aosta'");
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    vaiA("DataCombo1");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("DES_COMUNE"), "Aosta");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(quanti("Comuni where DES_COMUNE = 'Aosta'"), 0);
}

TEST_F(ComuniSalva, ATableThatIsGoneIsToldAndTheFieldsStay) {
    apri();
    esegui("drop table Comuni");
    script.expectMessage("Invalid object name 'comuni'.");
    scrivi(kPalestrina);
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), kPalestrina);
}

TEST_F(ComuniSalva, AListThatCannotBeReadBehindASaveIsSkipped) {
    apri();
    scrivi({"Palestrina", "RM", "00036"});
    {
        const support::SomebodyElse altro([this](const std::string& testo) {
            if (testo.starts_with("INSERT")) {
                esegui("drop table stati");
            }
        });
        campo("Italia");
    }
    EXPECT_EQ(comune("Palestrina"), kRigaDiPalestrina);
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(campi(), kComuneVuoto);
}

} // namespace
} // namespace vabo
