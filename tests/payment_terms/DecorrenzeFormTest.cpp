// The form of the commencement rules.

#include "CondizioniForm.h"
#include "session/LinguaClient.h"
#include "session/TreatForms.h"

namespace vabo {
namespace {

constexpr const char* kElenco =
    " select IDDecorrenza, Descrizione, GiornoScadenza, GiornoScadenza1, GiornoScadenza2, GiornoScadenza3, Mese1, "
    "Mese2, Mese3 from  CondizioniPagamentoDecorrenza order by descrizione";

const Qt::Key kFine[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab};

TEST_F(FormDecorrenze, ItIsOpenedByItsNameAndClosesToTheFormBelow) {
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm(kDecorrenze, true));
    EXPECT_TRUE(FormInCima(kDecorrenze));
    gui.click(kDecorrenze, "Chiudi");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(FormDecorrenze, ReadsOneListAtItsLoadAlone) {
    LeggiLinguaClient("");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts().front(), kElenco);
    EXPECT_EQ(recorder.count(kElenco), 1);
    const auto& dati = pagina.control<controls::DataControl>("Decorrenza");
    EXPECT_EQ(dati.ConnectionString, StringaAzienda);
    gui.forms().show("Avvio_Azienda");
    gui.waitForFront("Avvio_Azienda");
    pagina.comeToFront();
    EXPECT_EQ(recorder.count(kElenco), 1) << "nor when it comes to the front again";
}

TEST_F(FormDecorrenze, StartsEmptyWithTheFocusOnTheFirstDay) {
    apri();
    EXPECT_EQ(campi(), kRegolaVuota);
    EXPECT_EQ(fuoco(), "GiornoScadenza");
    EXPECT_EQ(gui.mnemonics(kDecorrenze), "C");
    EXPECT_LE(gui.form(kDecorrenze).minimumSizeHint().width(), 960);
}

TEST_F(FormDecorrenze, WithoutTheTableTheErrorIsToldAndTheFormStands) {
    esegui("drop table CondizioniPagamentoDecorrenza");
    script.expectMessage("Invalid object name 'CondizioniPagamentoDecorrenza'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(gui.visibleForms(), kDecorrenze);
    gui.click(kDecorrenze, "Chiudi");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

/// What a column of the grid has.
struct Colonna {
    const char* titolo;
    int twips; ///< 0 where it is hidden
};

TEST_F(FormDecorrenze, LaysItsGridAgainAfterEachReading) {
    const Colonna colonne[] = {{"IDDecorrenza", 0},       {"Scadenze", 5000},        {"GiornoScadenza", 1000},
                               {"GiornoScadenza1", 1000}, {"GiornoScadenza2", 1000}, {"GG", 1000},
                               {"Escluso", 600},          {"Escluso", 600},          {"Escluso", 600}};
    const auto verifica = [&] {
        ASSERT_EQ(griglia().ColumnCount(), 9);
        for (int i = 0; i < 9; ++i) {
            EXPECT_TRUE(griglia().Columns(i).Locked()) << i;
            EXPECT_EQ(griglia().Columns(i).Caption(), colonne[i].titolo);
            EXPECT_EQ(griglia().Columns(i).Visible(), colonne[i].twips != 0) << i;
            EXPECT_EQ(griglia().Columns(i).Width(), colonne[i].twips) << i;
        }
    };
    apri();
    verifica();
    scegli(1);
    vaiA("Descrizione");
    invio();
    verifica();
}

TEST_F(FormDecorrenze, EnterAndTabGoAlongTheFieldsAndStoreAtTheEnd) {
    apri();
    for (const Qt::Key tasto : kFine) {
        SCOPED_TRACE(static_cast<int>(tasto));
        vaiA("GiornoScadenza");
        for (const char* nome : kCampi) {
            EXPECT_EQ(fuoco(), nome);
            gui.press(tasto);
        }
        EXPECT_EQ(fuoco(), "GiornoScadenza");
    }
    EXPECT_EQ(quanti("CondizioniPagamentoDecorrenza"), 8) << "without a name nothing is stored";
}

TEST_F(FormDecorrenze, EachFieldSelectsItsWholeText) {
    apri();
    scegli(3);
    campo("GiornoScadenza3").setText("123456");
    for (const char* nome : kCampi) {
        vaiA("Chiudi");
        vaiA(nome);
        EXPECT_EQ(campo(nome).selectedText().toStdString(), testo(nome)) << nome;
    }
    EXPECT_NE(testo("Descrizione"), "");
}

TEST_F(FormDecorrenze, AClickOrSpaceOnARowShowsItAndGoesToTheFirstDay) {
    apri();
    for (const bool conIlMouse : {false, true}) {
        conIlMouse ? clicca(6) : scegli(6);
        EXPECT_EQ(campi(), (Riga{"5", "15", "25", "", "8", "", "", "Sc.il 5 - 15 - 25 del mese escluso Agosto"}));
        EXPECT_EQ(fuoco(), "GiornoScadenza");
        EXPECT_EQ(campo("GiornoScadenza").selectedText(), "5");
        conIlMouse ? clicca(8) : scegli(8);
        EXPECT_EQ(campi(), (Riga{"31", "", "", "", "7", "8", "12", "Fine mese escluso Luglio  Agosto  Dicembre"}));
    }
    vaiA("DataGrid1");
    gui.press(Qt::Key_Up);
    EXPECT_EQ(fuoco(), "DataGrid1") << "an arrow alone shows nothing";
    EXPECT_EQ(testo("Mese3"), "12");
}

TEST_F(FormDecorrenze, ARuleWithoutAFirstDayShowsNoDays) {
    esegui("update CondizioniPagamentoDecorrenza set GiornoScadenza = 0, GiornoScadenza1 = 15, Mese1 = 0, Mese2 = 3 "
           "where IDDecorrenza = 5");
    apri();
    scegli(5);
    EXPECT_EQ(campi(), (Riga{"", "", "", "", "", "", "", "Sc.il 10 - 25 del mese"}));
}

TEST_F(FormDecorrenze, ANullLeavesItsFieldAsItWas) {
    const char* colonne[] = {"GiornoScadenza", "GiornoScadenza1", "GiornoScadenza2", "GiornoScadenza3",
                             "Mese1",          "Mese2",           "Mese3",           "Descrizione"};
    for (std::size_t i = 0; i < 8; ++i) {
        SCOPED_TRACE(colonne[i]);
        esegui("drop table CondizioniPagamentoDecorrenza");
        esegui("create table CondizioniPagamentoDecorrenza (IDDecorrenza int null, Descrizione nvarchar(255) null, "
               "GiornoScadenza int null, GiornoScadenza1 int null, GiornoScadenza2 int null, GiornoScadenza3 int null, "
               "Mese1 int null, Mese2 int null, Mese3 int null)");
        esegui("insert into CondizioniPagamentoDecorrenza values (1, 'Uno', 1, 1, 1, 1, 1, 1, 1), (2, 'Due', 2, 2, 2, "
               "2, 2, 2, 2)");
        esegui(std::string("update CondizioniPagamentoDecorrenza set ") + colonne[i] +
               " = null where IDDecorrenza = 2");
        apri();
        scegli(1);
        scegli(2);
        Riga attesi = {"2", "2", "2", "2", "2", "2", "2", "Due"};
        attesi[i] = i == 7 ? "Uno" : "1";
        EXPECT_EQ(campi(), attesi);
        gui.click(kDecorrenze, "Chiudi");
    }
}

TEST_F(FormDecorrenze, ARuleWithoutAKeyIsShownUnderTheKeyOfTheOneBefore) {
    esegui("drop table CondizioniPagamentoDecorrenza");
    esegui("create table CondizioniPagamentoDecorrenza (IDDecorrenza int null, Descrizione nvarchar(255) null, "
           "GiornoScadenza int null, GiornoScadenza1 int null, GiornoScadenza2 int null, GiornoScadenza3 int null, "
           "Mese1 int null, Mese2 int null, Mese3 int null)");
    esegui("insert into CondizioniPagamentoDecorrenza values (1, 'Uno', 1, 1, 1, 1, 1, 1, 1), (null, 'Due', 2, 2, 2, "
           "2, 2, 2, 2)");
    apri();
    scegli(1);
    griglia().selectRow(pagina.cell("DataGrid1", 0, 1) == "Due" ? 0 : 1);
    vaiA("DataGrid1");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(campi()[7], "Due");
    const support::StatementRecorder recorder;
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamentoDecorrenza WHERE  iddecorrenza = 1");
}

TEST_F(FormDecorrenze, AGridWithoutRowsShowsNothing) {
    esegui("delete from CondizioniPagamentoDecorrenza");
    apri();
    campo("Mese1").setText("8");
    QTest::mouseClick(griglia().viewport(), Qt::LeftButton);
    support::Gui::handleEvents();
    EXPECT_EQ(campi(), (Riga{"", "", "", "", "8", "", "", ""}));
    EXPECT_EQ(fuoco(), "DataGrid1");
}

TEST_F(FormDecorrenze, ARuleIsShownByEnterToo) {
    apri();
    for (const int chiave : {5, 2}) {
        vaiA("DataGrid1");
        griglia().selectRow(rigaDi(chiave));
        gui.press(chiave == 5 ? Qt::Key_Return : Qt::Key_Enter);
        EXPECT_EQ(testo("Descrizione"), regola("IDDecorrenza = " + std::to_string(chiave))[0]);
        EXPECT_EQ(fuoco(), "GiornoScadenza");
    }
}

TEST_F(FormDecorrenze, AClickBesideTheRowsLeavesAHalfTypedRule) {
    apri();
    ASSERT_GE(righe(), 1);
    vaiA("GiornoScadenza");
    gui.type("7");
    const Riga prima = campi();
    QTest::mouseClick(griglia().viewport(), Qt::LeftButton, {}, QPoint(20, griglia().viewport()->height() - 4));
    support::Gui::handleEvents();
    EXPECT_EQ(campi(), prima);
    clicca(5);
    EXPECT_EQ(testo("Descrizione"), regola("IDDecorrenza = 5")[0]);
}

} // namespace
} // namespace vabo
