#include "locks/BlocchiForm.h"
#include "support/DialogScript.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QThread>

#include <gmock/gmock.h>

#include <cmath>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;

/// A day that the sample's dates have nothing to do with, so that a year filled up shows.
constexpr int kAnno = 2026;

class ProjectForm : public BlocchiForm {
protected:
    ProjectForm() : BlocchiForm("Scegli_progetto_4", "iddateend") { ado::setToday(ado::Date::of(kAnno, 5, 5)); }
    std::string dataDelProgetto() const {
        return valore("select iddate from progetti where ID = " + std::to_string(kProgetto));
    }
    support::DialogScript script; ///< the form has no box of its own
};

TEST_F(ProjectForm, HasItsTitleAndItsControls) {
    apri();
    EXPECT_EQ(gui.form(form).windowTitle(), "Aggiorna Data Definitiva Progetto");
    EXPECT_EQ(pagina.text("Label2"), "Data Definitiva");
    EXPECT_EQ(gui.mnemonics(form), "AC");
    EXPECT_EQ(elenco().accessibleName(), "Progetto");
    EXPECT_EQ(data().accessibleName(), "Data Definitiva");
    EXPECT_EQ(barra().accessibleName(), "Avanzamento");
    EXPECT_EQ(fuoco(), "Combo1");
    aspettaVuota();
}

TEST_F(ProjectForm, ListsTheProjectsByTheirShortTitle) {
    esegui("update progetti set titolobreve = null where ID = 10000005");
    const support::StatementRecorder recorder;
    apri();
    EXPECT_EQ(recorder.texts(),
              std::vector<std::string>{"Select id,titolobreve,IdDate from progetti  order by  titolobreve"});
    const auto tutte = voci();
    ASSERT_EQ(tutte.size(), 13U);
    EXPECT_EQ(tutte[0], "   -   10000005") << "without a title";
    EXPECT_EQ(tutte[1], "Acqua Kitui   -   10000002");
    EXPECT_EQ(tutte[12], "Tessitrici Altopiano   -   10000006");
    EXPECT_EQ(elenco().itemData(1), 10000002);
}

TEST_F(ProjectForm, AProjectPickedShowsItsDateReadyToBeTypedOver) {
    apri();
    esegui("update progetti set iddate = '2024-07-09 10:30' where ID = 10000003"); // since the list was read
    prendi(kProgetto);
    EXPECT_EQ(IdProgettoScelto, kProgetto);
    EXPECT_EQ(testo(), "09/07/2024");
    EXPECT_EQ(fuoco(), "iddateend");
    EXPECT_TRUE(tuttoScelto());
    prendi(10000001);
    EXPECT_EQ(testo(), "") << "a project without a date yet";
    EXPECT_EQ(fuoco(), "iddateend");
}

TEST_F(ProjectForm, AProjectThatIsGoneMeanwhileIsTold) {
    apri();
    esegui("delete from progetti where ID = 10000003");
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    prendi(kProgetto);
    EXPECT_TRUE(gui.isVisible(form));
}

TEST_F(ProjectForm, EnterAndTabLeadFromTheProjectToTheDate) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        elenco().setFocus();
        gui.press(tasto, tasto == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        EXPECT_EQ(fuoco(), "iddateend");
    }
}

TEST_F(ProjectForm, AGoodDateIsWrittenOutAndLeadsToTheRun) {
    apri();
    const std::pair<const char*, const char*> date[] = {{"010203", "01/02/2003"},
                                                        {"31122024", "31/12/2024"},
                                                        {"01024", "01/02/2024"},
                                                        {"12/12/2020", "12/12/2020"},
                                                        {"0102", "0102"}};
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        for (const auto& [digitata, scritta] : date) {
            digita(digitata);
            gui.press(tasto);
            EXPECT_EQ(testo(), scritta);
            EXPECT_EQ(fuoco(), "Command1") << digitata;
        }
    }
}

TEST_F(ProjectForm, ABadDateIsSelectedAndKeepsTheFocus) {
    apri();
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Tab}) {
        for (const char* digitata : {"32012024", "01132024", "31/04/2024", "1/2/2020", "aabb"}) {
            digita(digitata);
            EXPECT_FALSE(tuttoScelto());
            gui.press(tasto);
            EXPECT_EQ(testo(), digitata) << "as typed";
            EXPECT_EQ(fuoco(), "iddateend");
            EXPECT_TRUE(tuttoScelto()) << digitata;
        }
    }
}

TEST_F(ProjectForm, NothingComesOfAnEmptyDate) {
    apri();
    for (const char* digitata : {"", "/", "0", "00", "000"}) {
        digita(digitata);
        gui.press(Qt::Key_Return);
        EXPECT_EQ(testo(), digitata);
        EXPECT_EQ(fuoco(), "iddateend");
        EXPECT_TRUE(data().selectedText().isEmpty()) << digitata;
    }
}

TEST_F(ProjectForm, WithoutAProjectOrADateTheRunDoesNothing) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .definito = -1}});
    apri();
    const auto prima = letto();
    digita("31/03/2024");
    const support::StatementRecorder recorder;
    premi("Command1");
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(testo(), "31/03/2024");
    prendi(kProgetto);
    for (const char* niente : {"", " ", "00", "0,00", "00/00/0000"}) {
        digita(niente);
        const support::StatementRecorder silenzio;
        premi("Command1");
        EXPECT_TRUE(silenzio.texts().empty()) << niente;
        EXPECT_EQ(IdProgettoScelto, kProgetto);
    }
    EXPECT_EQ(letto(), prima);
}

TEST_F(ProjectForm, ARunLocksAsksAndTellsNothingAndEmptiesTheForm) {
    const Libro righe = {{.id = 1, .transazione = alle("2024-05-02"), .report = alle("2024-03-31")},
                         {.id = 2, .numero = 2, .transazione = alle("2024-05-02"), .report = {}, .seziva = 1},
                         {.id = 3, .numero = 3, .transazione = alle("2024-05-02"), .report = {}, .definito = -1}};
    metti(righe);
    apri();
    prendi(kProgetto);
    digita("30/04/2024");
    gui.press(Qt::Key_Return);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(letto(),
              testi(dopoIlProgetto(righe, kProgetto, alle("2024-04-30"), alle(kBilancio), contiDelCampione())));
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    aspettaVuota();
    EXPECT_EQ(IdProgettoScelto, 0);
    EXPECT_EQ(fuoco(), "Combo1");
    prendi(kProgetto);
    EXPECT_EQ(testo(), "30/04/2024") << "the next run";
}

/// The bar's value, and whether the form is shut, at each statement.
TEST_F(ProjectForm, TheBarTellsThePassesAndThenTheRows) {
    metti({{.id = 1, .numero = 1, .seziva = 1},
           {.id = 2, .numero = 2, .seziva = 1},
           {.id = 3, .numero = 3, .seziva = 1},
           {.id = 4, .numero = 4, .transazione = alle("2024-03-31"), .report = alle("2024-03-31"), .conto = 1060}});
    apri();
    prendi(kProgetto);
    std::vector<double> passate, righe;
    const support::SomebodyElse chiunque([&](const std::string& inviata) {
        EXPECT_TRUE(barra().isVisible());
        EXPECT_FALSE(gui.form(form).isEnabled());
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        if (inviata.starts_with("update partitadoppia set definito = -1,")) {
            righe.push_back(barra().Value());
        } else if (inviata.starts_with("update") || inviata.starts_with("select * from partitadoppia")) {
            passate.push_back(std::round(barra().Value() * 100) / 100);
        }
    });
    premi("Command1");
    EXPECT_THAT(passate, testing::ElementsAre(25, 33.33, 50, 100, 0)) << "behind its last row the bar begins again";
    EXPECT_THAT(righe, testing::ElementsAre(0, 25, 50, 75, 0));
    EXPECT_FALSE(barra().isVisible());
}

TEST_F(ProjectForm, TheBarIsDrawnAgainAndAgainWhileTheRowsRun) {
    Libro righe;
    for (int id = 1; id <= 40; ++id) {
        righe.push_back({.id = id, .numero = id, .seziva = 1});
    }
    metti(righe);
    apri();
    prendi(kProgetto);
    Disegni disegni(barra());
    int alPrimo = 0, all_ultimo = 0;
    const support::SomebodyElse lento([&](const std::string& inviata) {
        if (inviata.starts_with("update partitadoppia set definito = -1,")) {
            alPrimo = alPrimo == 0 ? disegni.volte : alPrimo;
            all_ultimo = disegni.volte;
            QThread::msleep(5);
        }
    });
    premi("Command1");
    EXPECT_GE(alPrimo, 3) << "the passes ahead of the rows";
    EXPECT_GE(all_ultimo - alPrimo, 3) << "in a fifth of a second";
}

TEST_F(ProjectForm, WhatTheUserDoesDuringARunIsDropped) {
    metti({{.id = 1, .seziva = 1}, {.id = 2, .numero = 2, .seziva = 1}});
    apri();
    prendi(kProgetto);
    int corse = 0;
    {
        const support::SomebodyElse impaziente([&](const std::string& inviata) {
            corse += inviata.starts_with("update progetti") ? 1 : 0;
            for (const char* nome : {"Command1", "Command4"}) {
                QWidget& comando = gui.find(form, nome);
                for (const QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                    QCoreApplication::postEvent(
                        &comando, new QMouseEvent(tipo, comando.rect().center(), QCursor::pos(), Qt::LeftButton,
                                                  tipo == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                                  Qt::NoModifier));
                }
            }
            gui.form(form).close();
            QCoreApplication::postEvent(&elenco(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier));
        });
        premi("Command1");
    }
    support::Gui::handleEvents();
    EXPECT_EQ(corse, 1);
    EXPECT_EQ(gui.visibleForms(), form);
    EXPECT_FALSE(elenco().view()->isVisible());
    aspettaVuota();
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(ProjectForm, ARunWithoutALedgerSaysNothingAndLeavesTheFormReady) {
    apri();
    prendi(kProgetto);
    scrivi("drop table partitadoppia");
    digita("30/04/2024");
    premi("Command1");
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    aspettaVuota();
}

TEST_F(ProjectForm, ClosesBackToWhatOpenedItAndForgetsItsProject) {
    apri();
    prendi(kProgetto);
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
    EXPECT_FALSE(gui.forms().isLoaded(form));
    EXPECT_EQ(PilaForm, (std::vector<std::string>{"Avvio_Azienda", "Avvio_Morlan"}));
    apri();
    const support::StatementRecorder recorder;
    digita("31/03/2024");
    premi("Command1");
    EXPECT_TRUE(recorder.texts().empty()) << "none is chosen in the new list";
    gui.form(form).close();
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan") << "by the window too";
}

TEST_F(ProjectForm, WithoutItsTableItIsToldAndTheListIsEmpty) {
    scrivi("drop table progetti");
    script.expectMessage("Invalid object name 'progetti'.");
    apri();
    EXPECT_EQ(elenco().count(), 0);
    EXPECT_EQ(elenco().Text(), "Seleziona");
    premi("Command1");
    premi("Command4");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

TEST_F(ProjectForm, TheKeyboardAloneDoesItAll) {
    metti({{.id = 1, .transazione = alle("2023-05-02"), .report = alle("2023-05-02")}});
    apri();
    gui.press(Qt::Key_Down);
    QTest::keyClick(elenco().view(), 's');
    QTest::keyClick(elenco().view(), 'c');
    QTest::keyClick(elenco().view(), Qt::Key_Return);
    pagina.comeToFront();
    ASSERT_EQ(elenco().Text(), "Scuole Nairobi   -   10000003");
    gui.type("300424");
    gui.press(Qt::Key_Tab);
    gui.press(Qt::Key_Return);
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    EXPECT_EQ(valore("select definito from partitadoppia"), "-1");
    EXPECT_EQ(fuoco(), "Combo1");
    gui.press(Qt::Key_Backtab);
    EXPECT_EQ(fuoco(), "Command4");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(gui.visibleForms(), "Avvio_Morlan");
}

} // namespace
} // namespace vabo
