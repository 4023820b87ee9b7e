#include "ado/Connection.h"
#include "controls/DataCombo.h"
#include "dblife/CollegaTabelleLinked.h"
#include "platform/Dialogs.h"
#include "tour/Tour.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QProgressBar>

namespace tour {

namespace {

/// The start form hides itself at its end, so its picture is taken when it sends a statement.
void start(Tour& tour) {
    bool taken = false;
    ado::setStatementRecorder([&](const std::string& /*text*/) {
        const controls::Form* form = tour.forms().loaded("Avvio");
        if (taken || form == nullptr || !form->isVisible()) {
            return;
        }
        taken = true;
        tour.take("01-avvio", "Avvio");
    });
    tour.show("Avvio");
    ado::setStatementRecorder({});
    if (!taken) {
        throw std::runtime_error("The start form never came to the screen");
    }
}

void login(Tour& tour) {
    tour.show("About");
    tour.take("02-login", "About");
    QWidget& name = tour.control("About", "txtUserName");
    Tour::type(name, "amministratore");
    Tour::press(name, Qt::Key_Return);
    Tour::type(tour.control("About", "txtPassword"), "primavera");
    tour.take("03-login-password", "About");
}

void box(Tour& tour) {
    Tour::onceWaiting(*qApp, [&tour] {
        if (auto* shown = QApplication::activeModalWidget()) {
            tour.take("04-messaggio", *shown);
            shown->close();
        }
    });
    platform::dialogs().message("Utente non abilitato! Contattare l'amministratore di sistema");
}

void console(Tour& tour) {
    Tour::press(tour.control("About", "txtPassword"), Qt::Key_Return);
    tour.take("05-console", "Avvio_Azienda");
    auto& list = dynamic_cast<controls::DataCombo&>(tour.control("Avvio_Azienda", "DataCombo1"));
    Tour::press(list, Qt::Key_Down);
    tour.take("06-console-elenco", *list.view()->window());
    list.hidePopup();
}

/// The form hides itself at the end of its run, so its picture is taken half-way.
void links(Tour& tour) {
    const char* const form = "FormRefreshLinks";
    tour.show(form);
    auto& bar = dynamic_cast<QProgressBar&>(tour.control(form, "ProgressBar1"));
    bool taken = false;
    QObject::connect(&bar, &QProgressBar::valueChanged, [&](int value) {
        if (!taken && value >= bar.maximum() / 2) {
            taken = true;
            tour.take("07-collegamenti", form);
        }
    });
    vabo::CollegaTabelle();
    Tour::settle();
    if (!taken) {
        throw std::runtime_error("The refresh of the links was never seen on its way");
    }
}

void dataSources(Tour& tour) {
    const char* const form = "FormRegistraAziendeNeiDns";
    tour.show(form);
    tour.take("17-registra-aziende", form);
    Tour::press(tour.control(form, "cboDSNList"), Qt::Key_Down);
    tour.take("18-registra-aziende-fonte", form);
    tour.forms().unload(form);
    Tour::settle();
}

} // namespace

void walk(Tour& tour) {
    for (const auto page : {start, login, box, console, links, generalTables, locks, vatSections, dataSources,
                            geography, paymentTerms, companyData, payroll, users, setup}) {
        page(tour);
    }
}

} // namespace tour
