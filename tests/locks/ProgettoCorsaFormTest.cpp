// The run of the project's lock from its form.

#include "locks/ProgettoForm.h"

#include <QElapsedTimer>
#include <QMetaObject>
#include <QThread>

#include <gmock/gmock.h>

#include <cmath>

namespace vabo {
namespace {

using libro::alle;
using libro::Libro;

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

TEST_F(ProjectForm, TheBarIsDrawnAndEventsAreHandledSomeTwentyTimesASecondWhileTheRowsRun) {
    Libro righe;
    for (int id = 1; id <= 40; ++id) {
        righe.push_back({.id = id, .numero = id, .seziva = 1});
    }
    metti(righe);
    apri();
    prendi(kProgetto);
    Disegni disegni(barra());
    int primo = 0, ultimo = 0, sguardi = 0;
    bool atteso = false; // an event lies there
    QElapsedTimer tempo;
    const support::SomebodyElse lento([&](const std::string& inviata) {
        if (inviata.starts_with("update partitadoppia set definito = -1,")) {
            if (primo == 0) {
                primo = disegni.volte;
                tempo.start();
            }
            ultimo = disegni.volte;
            if (!atteso) {
                atteso = true;
                QMetaObject::invokeMethod(
                    &barra(),
                    [&] {
                        atteso = false;
                        ++sguardi;
                    },
                    Qt::QueuedConnection);
            }
            QThread::msleep(5);
        }
    });
    premi("Command1");
    EXPECT_GE(primo, 3) << "the passes ahead of the rows";
    EXPECT_GE(ultimo - primo, 3) << "in a fifth of a second";
    constexpr int kMillisecondi = 50, kCambiDiPasso = 2;
    EXPECT_GE(sguardi, 3);
    EXPECT_LE(sguardi, tempo.elapsed() / kMillisecondi + kCambiDiPasso);
}

TEST_F(ProjectForm, WhatTheUserDoesDuringARunIsDropped) {
    metti({{.id = 1, .seziva = 1}, {.id = 2, .numero = 2, .seziva = 1}});
    apri();
    prendi(kProgetto);
    int corse = 0;
    {
        const support::SomebodyElse impaziente([&](const std::string& inviata) {
            corse += inviata.starts_with("update progetti") ? 1 : 0;
            insisti();
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

TEST_F(ProjectForm, ACounterTableWithoutARowReopensNothingAndTheOtherPassesRun) {
    metti({{.id = 1, .transazione = alle("2024-05-02"), .report = {}, .definito = -1},
           {.id = 2, .numero = 2, .transazione = alle("2024-05-02"), .report = alle("2024-03-31")}});
    esegui("delete from contatorepd");
    apri();
    prendi(kProgetto);
    digita("30/04/2024");
    const support::StatementRecorder recorder;
    premi("Command1");
    EXPECT_TRUE(recorder.holding("set definito =0").empty());
    EXPECT_EQ(dataDelProgetto(), alle("2024-04-30"));
    EXPECT_EQ(lettura("select definito from partitadoppia order by idautonumber"),
              (std::vector<std::string>{"-1", "-1"}));
    aspettaVuota();
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

} // namespace
} // namespace vabo
