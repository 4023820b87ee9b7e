// The form of the VAT sections: what it shows, its order of entry, the row that is picked.

#include "fiscal/SezionaliForm.h"

#include "session/TreatForms.h"

#include <QGroupBox>
#include <QLabel>

namespace vabo {
namespace {

constexpr const char* kElenco =
    "select idautonumber,id,descrizione ,AreaAttivita, ultimadataacquistir As DataAcquistiDef, Ultimadatavenditer as "
    "DataVenditeDef,IvaSezionale.liquidazione from IvaSezionale   ORDER BY ivasezionale.id";

const Riga kVuoti = {"", "", ""};

TEST_F(SezionaliForm, ItIsOpenedByItsNameAndClosesToTheFormBelow) {
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm("I_Iva_sezionali", true));
    EXPECT_TRUE(FormInCima("I_Iva_sezionali"));
    premi("cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
}

TEST_F(SezionaliForm, AddsItsColumnsAndReadsOneList) {
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(),
              (Testi{"alter table Ivasezionale add    descrizione nvarchar(255) not null default 'Sezionale Iva' ",
                     "alter table Ivasezionale add    AreaAttivita nvarchar(255)  null  ", kElenco}));
    const auto& elenco = pagina.control<controls::DataControl>("IvaSezionale");
    EXPECT_EQ(elenco.ConnectionString, StringaAzienda);
    EXPECT_EQ(elenco.RecordSource, kElenco);
}

TEST_F(SezionaliForm, ItsTextsStandLetterForLetter) {
    apri();
    EXPECT_EQ(gui.form("I_Iva_sezionali").windowTitle(), "Gestione Sezionali Iva");
    EXPECT_EQ(pagina.control<QGroupBox>("cornice").title(), "Aggiungi Sezionale ");
    const std::pair<const char*, const char*> etichette[] = {{"Descrizione", "Sezionale Iva"},
                                                             {"AreaAttività", "Area di Attività"},
                                                             {"NSezionale", "Numero Sezionale"},
                                                             {"Combo2", "Liquidazione"}};
    for (const auto& [campo, scritta] : etichette) {
        const auto& etichetta = pagina.control<QLabel>(std::string("etichetta") + campo);
        EXPECT_EQ(etichetta.text().toStdString(), scritta);
        EXPECT_EQ(etichetta.buddy(), &pagina.control(campo));
        EXPECT_EQ(pagina.control(campo).accessibleName().toStdString(), scritta);
    }
    const std::pair<const char*, const char*> bottoni[] = {{"Command1", "Azzera Contatore Acquisti"},
                                                           {"Command2", "Azzera Contatori Vendite"},
                                                           {"Command3", "Elimina sezionale"},
                                                           {"Command4", "Azzera Contatori Registri"}};
    for (const auto& [bottone, scritta] : bottoni) {
        EXPECT_EQ(testo(bottone), scritta);
    }
    EXPECT_EQ(gui.mnemonics("I_Iva_sezionali"), "ACEQRV");
}

TEST_F(SezionaliForm, StartsEmptyWithTwoPeriodsOfWhichNoneIsChosen) {
    apri();
    EXPECT_EQ(campi(), kVuoti);
    EXPECT_EQ(fuoco(), "Descrizione");
    EXPECT_EQ(testo("didascalia"), "");
    auto& combo = pagina.control<controls::ItemCombo>("Combo2");
    EXPECT_EQ(combo.Text(), "Seleziona");
    EXPECT_EQ(combo.ListIndex(), -1);
    ASSERT_EQ(combo.count(), 2);
    const std::pair<const char*, int> periodi[] = {{"Mensile", 1}, {"Trimestrale", 3}};
    for (int i = 0; i < 2; ++i) {
        combo.setCurrentIndex(i);
        EXPECT_EQ(combo.Text(), periodi[i].first);
        EXPECT_EQ(combo.ItemData(), periodi[i].second);
    }
}

/// What a column of the grid has.
struct Colonna {
    const char* titolo;
    int twips; ///< 0 where it is hidden
    bool destra;
};

// The heading of the sales is above the purchases, and the other way round.
TEST_F(SezionaliForm, LaysItsGridAgainAfterEachReading) {
    const Colonna colonne[] = {
        {"idautonumber", 0, false},    {" Sez.\n Gest.Iva", 1000, false},   {"   descrizione \n    ", 2000, false},
        {"AreaAttivita", 2000, false}, {"    Data\nDef.Vend.", 1000, true}, {"    Data\nDef.Acq.", 1000, true},
        {"liquidazione", 700, false}};
    const auto verifica = [&] {
        ASSERT_EQ(griglia().ColumnCount(), 7);
        for (int i = 0; i < 7; ++i) {
            const auto colonna = griglia().Columns(i);
            EXPECT_TRUE(colonna.Locked()) << i;
            EXPECT_STRCASEEQ(colonna.Caption().c_str(), colonne[i].titolo);
            EXPECT_EQ(colonna.Visible(), colonne[i].twips > 0) << i;
            if (colonna.Visible()) {
                EXPECT_EQ(colonna.Width(), colonne[i].twips) << i;
                const int lato = griglia().model()->index(0, i).data(Qt::TextAlignmentRole).toInt();
                EXPECT_EQ((lato & Qt::AlignRight) != 0, colonne[i].destra) << i;
            }
        }
    };
    esegui("update IvaSezionale set UltimaDataAcquistir = '20240229' where idautonumber = 1");
    apri();
    verifica();
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 4), "29/02/2024") << "of the purchases";
    scrivi("Mostre", "Arte", "4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(righe(), 4);
    verifica();
    script.expectQuestion("Sei sicuro di voler cancellare ?", true);
    scegli("4");
    premi("Command3");
    EXPECT_EQ(righe(), 3);
    verifica();
}

TEST_F(SezionaliForm, WithoutTheTableTheErrorIsToldAndTheFormStands) {
    esegui("drop table IvaSezionale");
    script.expectMessage("Invalid object name 'IvaSezionale'.");
    apri();
    EXPECT_TRUE(script.allShown());
    EXPECT_TRUE(gui.isVisible("I_Iva_sezionali"));
    EXPECT_EQ(liquidazione(), "Seleziona");
    EXPECT_EQ(pagina.control<controls::ItemCombo>("Combo2").count(), 0) << "the error ended the load";
    premi("cmdClose");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(SezionaliForm, EnterAndTabLeaveAFieldOnlyWhereItIsFilled) {
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        SCOPED_TRACE(static_cast<int>(tasto));
        gui.forms().unload("I_Iva_sezionali");
        support::Gui::handleEvents();
        apri();
        for (const char* vuoto : {"", "0", " "}) {
            pagina.control<controls::TextBox>("Descrizione").setText(vuoto);
            vaiA("Descrizione");
            gui.press(tasto);
            EXPECT_EQ(fuoco(), "Descrizione") << vuoto;
            pagina.control<controls::TextBox>("AreaAttività").setText(vuoto);
            vaiA("AreaAttività");
            gui.press(tasto);
            EXPECT_EQ(fuoco(), "AreaAttività") << vuoto;
        }
        vaiA("Descrizione");
        gui.type("Mostre");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "AreaAttività");
        gui.type("Arte");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "NSezionale");
        gui.press(tasto);
        EXPECT_EQ(fuoco(), "NSezionale") << "nothing is stored without a number";
        EXPECT_EQ(campi(), (Riga{"Mostre", "Arte", ""}));
    }
    EXPECT_EQ(righe(), 3);
}

TEST_F(SezionaliForm, AFieldSelectsItsWholeTextWhenItGetsTheFocus) {
    apri();
    scegli("2");
    for (const char* campo : {"Descrizione", "AreaAttività", "NSezionale"}) {
        vaiA(campo);
        EXPECT_EQ(pagina.control<controls::TextBox>(campo).selectedText().toStdString(), testo(campo));
    }
}

TEST_F(SezionaliForm, APickedRowIsShownInTheFieldsWithItsPosition) {
    esegui("update IvaSezionale set AreaAttivita = '  Corsi  ', descrizione = ' Formazione ' where idautonumber = 2");
    apri();
    scegli("2");
    EXPECT_EQ(campi(), (Riga{" Formazione ", "Corsi", "2"}));
    EXPECT_EQ(testo("didascalia"), "Record: 2");
    EXPECT_EQ(fuoco(), "DataGrid1") << "the focus stays in the grid";
    gui.press(Qt::Key_Down);
    EXPECT_EQ(campi(), (Riga{"Affitto sale", "Immobili", "10"}));
    EXPECT_EQ(testo("didascalia"), "Record: 3");
}

TEST_F(SezionaliForm, AClickPicksARow) {
    apri();
    QTest::mouseClick(griglia().viewport(), Qt::LeftButton, {},
                      griglia().visualRect(griglia().model()->index(2, 1)).center());
    support::Gui::handleEvents();
    EXPECT_EQ(campi(), (Riga{"Affitto sale", "Immobili", "10"}));
    EXPECT_EQ(testo("didascalia"), "Record: 3");
}

TEST_F(SezionaliForm, WhatARowDoesNotHaveLeavesItsFieldAsItWas) {
    esegui("update IvaSezionale set AreaAttivita = null, descrizione = '', id = null where idautonumber = 3");
    apri();
    scegli("2");
    scegli("3");
    EXPECT_EQ(campi(), (Riga{"Formazione", "Corsi", "2"}));
    script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema");
    DirittiUtente.A_Cancella = kFalso;
    premi("Command3");
    DirittiUtente.A_Cancella = kVero;
    script.expectQuestion("Azzero i contatori del Sezionale 3\nSei sicuro", false);
    premi("Command1");
}

TEST_F(SezionaliForm, ARowWithoutAKeyIsNotPickedAndItsPositionIsShown) {
    esegui("drop table IvaSezionale");
    esegui(
        "create table IvaSezionale (idautonumber int null, id int null, descrizione nvarchar(255) null, AreaAttivita "
        "nvarchar(255) null, UltimaDataAcquistir datetime null, UltimaDatavenditer datetime null, Liquidazione int "
        "null)");
    esegui("insert into IvaSezionale (idautonumber, id, descrizione, AreaAttivita) values (7, 1, 'Scuola', 'Lezioni'), "
           "(null, 2, 'Mostre', 'Arte'), (0, 3, 'Negozio', 'Dischi'), (8, 4, null, 'Feste')");
    apri();
    const auto vaiAllaRiga = [this](int riga) {
        vaiA("DataGrid1");
        griglia().selectRow(riga);
        gui.press(Qt::Key_Space);
    };
    vaiAllaRiga(0);
    for (const int senzaChiave : {1, 2}) {
        SCOPED_TRACE(senzaChiave);
        vaiAllaRiga(senzaChiave);
        EXPECT_EQ(campi(), (Riga{"Scuola", "Lezioni", "1"}));
        EXPECT_EQ(testo("didascalia"), "Record: " + std::to_string(senzaChiave + 1));
        script.expectQuestion("Azzero i contatori del Sezionale 7\nSei sicuro", false);
        premi("Command1");
    }
    vaiAllaRiga(3);
    EXPECT_EQ(campi(), (Riga{"Scuola", "Feste", "4"})) << "a null description leaves the former one";
}

TEST_F(SezionaliForm, AKeyThatSelectsARowSaysSo) {
    apri();
    EXPECT_EQ(testo("istruzioni"), "Un clic, Spazio o Invio su una riga porta il sezionale nei campi.");
    vaiA("DataGrid1");
    griglia().selectRow(1);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(campi(), (Riga{"Formazione", "Corsi", "2"}));
}

TEST_F(SezionaliForm, BehindAQuickSaveTheKeyboardLeadsBackAndToTheCommands) {
    apri();
    scrivi("Mostre", "Arte", "4");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "NSezionale");
    gui.press(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "NSezionale") << "an empty number is stored by no Tab and left by none";
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "AreaAttività");
    vaiA("NSezionale");
    script.expectMessage("Inserire la descrizione");
    QTest::keyClick(gui.form("I_Iva_sezionali").windowHandle(), Qt::Key_A, Qt::AltModifier);
    support::Gui::waitFor("the box", [this] { return script.allShown(); });
    support::Gui::handleEvents();
    EXPECT_EQ(fuoco(), "Command5");
}

TEST_F(SezionaliForm, ItFitsANarrowScreen) {
    apri();
    EXPECT_LE(gui.form("I_Iva_sezionali").minimumSizeHint().width(), 960);
}

TEST_F(SezionaliForm, EveryControlIsReachedByTab) {
    apri();
    scrivi("Mostre", "Arte", "x");
    vaiA("Command5");
    for (const char* prossimo :
         {"Combo2", "Command1", "Command2", "Command4", "Command3", "DataGrid1", "cmdClose", "Descrizione"}) {
        gui.press(Qt::Key_Tab);
        EXPECT_EQ(fuoco(), prossimo);
    }
    gui.press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "cmdClose");
    vaiA("Command5");
    gui.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(fuoco(), "NSezionale");
}

} // namespace
} // namespace vabo
