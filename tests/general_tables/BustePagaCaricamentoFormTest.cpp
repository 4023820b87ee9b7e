// The form of the accounts of pay slips: what it shows when it is loaded, and how it is opened and closed.

#include "BustePagaFixture.h"
#include "MorlanFixture.h"

#include <QLabel>

namespace vabo {
namespace {

class BustePagaCaricamento : public BustePagaForm {
protected:
    Riga voci(int indice) const {
        const controls::DataCombo& lista = pagina.combo(combo(indice));
        Riga testi;
        for (int i = 0; i < lista.count(); ++i) {
            testi.push_back(lista.itemText(i).toStdString());
        }
        return testi;
    }
    Riga offerti(int mastro) const {
        Riga testi;
        for (const Riga& una : posto.rows(
                 support::kCompany,
                 "select Contoreport + ' ' + NomeConto from conti where IDProgetto = 10000001 and right(idchiave, "
                 "2) <> '.0' and IdConto not in (select idconto from tipoanagrafica where idconto is not null) "
                 "and idmastro = " +
                     std::to_string(mastro) + " order by Contoreport + ' ' + NomeConto")) {
            testi.push_back(una.front());
        }
        return testi;
    }
};

TEST_F(BustePagaCaricamento, SendsItsStatementsInTheirOrderAndNoOther) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(
        recorder.texts(),
        (Riga{kElencoDebiti, kElencoDebiti, kElencoDebiti, kElencoDebiti, kElencoDebiti, kElencoOneri, kElencoOneri,
              kElencoOneri, kElencoDebiti, kElencoTipi, " select nomeconto from conti Where idconto = 1080",
              " select nomeconto from conti Where idconto = 1082", " select nomeconto from conti Where idconto = 1083",
              " select nomeconto from conti Where idconto = 1089", " select nomeconto from conti Where idconto = 1091",
              " select nomeconto from conti Where idconto = 1185", " select nomeconto from conti Where idconto = 1187",
              " select nomeconto from conti Where idconto = 1189",
              " select nomeconto from conti Where idconto = 1084"}));
}

TEST_F(BustePagaCaricamento, ShowsTheFirstTypeWithTheNamesOfItsAccountsWithoutTheirCodes) {
    apri();
    EXPECT_EQ(pagina.text("Titolo"), "Dipendenti");
    EXPECT_EQ(conti(),
              (Riga{"Erario c/ritenute Irpef dipendenti", "Irpef regionale", "Irpef comunale", "Debiti v/Inps",
                    "Debiti v/Inail", "C/Inps - oneri", "C/Inail - oneri", "C/Irap - oneri", "Debiti v/Irap"}));
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "4");
    EXPECT_EQ(pagina.focus(), "DataGrid1");
}

TEST_F(BustePagaCaricamento, GivesTheWindowTheProgramsTitleAndVersion) {
    apri();
    EXPECT_EQ(gui.form(kForm).windowTitle(), "Tlv - Aldane Works Software Solutions - Ver.Nr. 1.2.3");
}

TEST_F(BustePagaCaricamento, EveryCaptionIsAsItsUsersKnowIt) {
    apri();
    EXPECT_EQ(pagina.text("titoloForm"), "Trattamenti Fiscali Buste Paga");
    EXPECT_EQ(pagina.text("Label1"), "Tipo");
    EXPECT_EQ(pagina.control("Titolo").accessibleName(), "Tipo");
    const char* const didascalie[] = {"Irpef C/ritenute", "Irpef Regionale",    "Irpef Comunale",
                                      "Debiti v/Inps",    "Debiti V/inail",     "C/Inps - Oneri",
                                      "C/Inail - Oneri",  "Altri F.di - Oneri", "Debiti V/Altri F.di"};
    for (int i = 0; i < kSelettori; ++i) {
        const std::string etichetta = "Label11_" + std::to_string(i);
        EXPECT_EQ(pagina.text(etichetta), didascalie[i]);
        EXPECT_EQ(pagina.control<QLabel>(etichetta).buddy(), &pagina.control(combo(i)));
        EXPECT_EQ(pagina.control(combo(i)).accessibleName(), didascalie[i]);
    }
    EXPECT_EQ(gui.mnemonics(kForm), "CS");
}

TEST_F(BustePagaCaricamento, OffersDebtsToSixPickersAndChargesToThree) {
    apri();
    const Riga debiti = offerti(2);
    const Riga oneri = offerti(4);
    ASSERT_GT(debiti.size(), 20U);
    ASSERT_GT(oneri.size(), 20U);
    for (int i = 0; i < kSelettori; ++i) {
        EXPECT_EQ(voci(i), i >= 5 && i <= 7 ? oneri : debiti) << i;
    }
}

TEST_F(BustePagaCaricamento, LeavesOutHeadingsOtherProjectsAndAccountsOfTypes) {
    apri();
    const auto offerto = [this](int indice, const char* testo) {
        return pagina.combo(combo(indice)).findText(QString::fromUtf8(testo)) >= 0;
    };
    EXPECT_TRUE(offerto(3, "203.03.0001 Debiti v/Inps"));
    EXPECT_FALSE(offerto(3, "203.03.0 Debiti previdenziali")) << "a heading";
    EXPECT_FALSE(offerto(3, "203.04.0001 Dipendenti c/retribuzioni")) << "the account of a type";
    esegui("update tipoanagrafica set idconto = 1089 where IdTipoAnagrafica = 9 update conti set IDProgetto = 10000002 "
           "where IdConto = 1091 update conti set idchiave = '203.03.0009.0' where IdConto = 1092");
    riapri();
    EXPECT_FALSE(offerto(3, "203.03.0001 Debiti v/Inps"));
    EXPECT_FALSE(offerto(3, "203.03.0003 Debiti v/Inail"));
    EXPECT_FALSE(offerto(3, "203.03.0004 Debiti v/altri fondi"));
    EXPECT_EQ(conto(3), "Debiti v/Inps") << "what isn't on offer is shown all the same";
}

TEST_F(BustePagaCaricamento, TheGridShowsTypeAndAccountAndTakesNoText) {
    apri();
    controls::DataGrid& griglia = pagina.grid("DataGrid1");
    ASSERT_EQ(griglia.ColumnCount(), 15);
    std::vector<std::pair<std::string, int>> viste;
    for (int i = 0; i < griglia.ColumnCount(); ++i) {
        const auto colonna = griglia.Columns(i);
        EXPECT_TRUE(colonna.Locked()) << i;
        if (colonna.Visible()) {
            viste.emplace_back(colonna.Caption(), colonna.Width());
        }
    }
    EXPECT_EQ(viste, (std::vector<std::pair<std::string, int>>{{"TipoAnagrafe", 2500}, {"NomeConto", 6500}}));
    Riga tipi;
    for (int i = 0; i < pagina.rows("DataGrid1"); ++i) {
        tipi.push_back(pagina.cell("DataGrid1", i, 0) + " " + pagina.cell("DataGrid1", i, 1));
    }
    EXPECT_EQ(tipi, (Riga{"4 Dipendenti", "5 Collaboratori", "6 Cooperanti", "9 Professionisti"}))
        << "a type without a row of accounts isn't shown";
    EXPECT_EQ(pagina.cell("DataGrid1", 1, 2), "Erario c/ritenute Irpef autonomi");
}

TEST_F(BustePagaCaricamento, TheColumnsFillTheGrid) {
    apri();
    const controls::DataGrid& griglia = pagina.grid("DataGrid1");
    constexpr int kSommaDelleLarghezze = 600;
    ASSERT_GT(griglia.viewport()->width(), kSommaDelleLarghezze);
    EXPECT_NEAR(griglia.columnWidth(1) + griglia.columnWidth(2), griglia.viewport()->width(), 2);
}

TEST_F(BustePagaCaricamento, WithoutTypesTheFormIsEmptyAndNeitherReadsNorStores) {
    esegui("delete from tipoanagrafica");
    const auto prima = tutte();
    apri();
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_EQ(pagina.text("Titolo"), "");
    EXPECT_EQ(conti(), Riga(kSelettori));
    prendi(7, 1180);
    const support::StatementRecorder recorder;
    QTest::mouseDClick(pagina.grid("DataGrid1").viewport(), Qt::LeftButton);
    salva();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(tutte(), prima);
}

TEST_F(BustePagaCaricamento, AListThatCannotBeReadIsToldAndEndsTheLoad) {
    esegui("drop table tipoanagrafica");
    script.expectMessage("Invalid object name 'tipoanagrafica'.");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(), Riga{kElencoDebiti});
    EXPECT_TRUE(gui.isVisible(kForm));
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    salva();
    EXPECT_EQ(recorder.texts().size(), 1U) << "no row was read";
    script.expectMessage("Object variable or With block variable not set");
    QTest::mouseDClick(pagina.grid("DataGrid1").viewport(), Qt::LeftButton);
    EXPECT_TRUE(script.allShown());
}

TEST_F(BustePagaCaricamento, AGridThatCannotBeReadIsToldAndTheListsStay) {
    esegui("drop table TipoAnagraficaCPartite");
    script.expectMessage("Invalid object name 'TipoAnagraficaCPartite'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
    EXPECT_GT(pagina.combo(combo(8)).count(), 20);
    EXPECT_EQ(conti(), Riga(kSelettori));
}

TEST_F(BustePagaCaricamento, ItFillsTheScreenAndThenTakesTheUsersSize) {
    apri();
    const QSize scelta(gui.form(kForm).minimumSizeHint().width() + 9, 640);
    gui.form(kForm).resize(scelta);
    riapri();
    EXPECT_EQ(gui.form(kForm).size(), scelta);
}

TEST_F(BustePagaCaricamento, ClosingForgetsRowAndPicksAndGivesTheFormBelowBack) {
    apri();
    prendi(7, 1180);
    gui.click(kForm, "Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded(kForm));
    EXPECT_EQ(CimaForm, 1);
    EXPECT_EQ(PilaForm, (Riga{"Avvio_Azienda", "Avvio_Morlan"}));
    apri();
    salva();
    EXPECT_EQ(valore("select IdCAltriFondiE from TipoAnagraficaCPartite where id = 4"), "0");
}

class BustePagaDallaConsole : public MorlanForm {};

TEST_F(BustePagaDallaConsole, TheButtonOfTheSettingsOpensItAndTheSettingsComeBack) {
    apri();
    scheda(5);
    EXPECT_EQ(testo("Command5"), "Tabelle Buste Paga");
    gui.click("Avvio_Morlan", "Command5");
    gui.waitForFront("TabelleBustePaga");
    EXPECT_EQ(gui.visibleForms(), "TabelleBustePaga");
    EXPECT_EQ(PilaForm, (Riga{"Avvio_Azienda", "Avvio_Morlan", "TabelleBustePaga"}));
    gui.form("TabelleBustePaga").close();
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded("TabelleBustePaga"));
    EXPECT_EQ(PilaForm, (Riga{"Avvio_Azienda", "Avvio_Morlan"}));
}

} // namespace
} // namespace vabo
