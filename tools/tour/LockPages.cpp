#include "ado/Connection.h"
#include "controls/ItemCombo.h"
#include "controls/ProgressBar.h"
#include "tour/Tour.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPushButton>
#include <QTabWidget>

namespace tour {

namespace {

constexpr const char* kConsole = "Avvio_Morlan";

/// A form of the locks, and what its pictures are called.
struct Page {
    const char* form;
    const char* command; ///< of the console
    const char* field;   ///< of the date
    std::string name;
    bool asks; ///< ahead of its run
};

/// The first row of the list of that text, by the keys of a user.
void pick(Tour& tour, const Page& page, const char* row) {
    auto& list = dynamic_cast<controls::ItemCombo&>(tour.control(page.form, "Combo1"));
    Tour::press(list, Qt::Key_Down);
    tour.take(page.name + "-elenco", *list.view()->window());
    const int wanted = list.findText(QString::fromUtf8(row), Qt::MatchStartsWith);
    if (wanted < 0) {
        throw std::runtime_error(std::string("No row ") + row + " in the list of " + page.form);
    }
    list.view()->setCurrentIndex(list.model()->index(wanted, 0));
    Tour::press(*list.view(), Qt::Key_Return);
}

/// Yes to the question that comes next.
void agree(Tour& tour, const Page& page) {
    const auto answer = [&tour, name = page.name + "-domanda"] {
        if (auto* shown = QApplication::activeModalWidget()) {
            tour.take(name, *shown);
            shown->findChild<QPushButton*>(QStringLiteral("Sì"))->click();
        }
    };
    QMetaObject::invokeMethod(qApp, answer, Qt::QueuedConnection);
}

/// Runs the lock; its picture is taken with half of its rows done.
void run(Tour& tour, const Page& page) {
    bool taken = false;
    ado::setStatementRecorder([&](const std::string& /*text*/) {
        auto& bar = dynamic_cast<controls::ProgressBar&>(tour.control(page.form, "ProgressBar1"));
        if (!taken && bar.isVisible() && bar.Value() > bar.Max() / 2 && bar.Value() < bar.Max()) {
            taken = true;
            tour.take(page.name + "-corsa", page.form);
        }
    });
    if (page.asks) {
        agree(tour, page);
    }
    Tour::press(tour.control(page.form, "Command1"), Qt::Key_Space);
    ado::setStatementRecorder({});
    if (!taken) {
        throw std::runtime_error(page.name + ": the bar was never seen on its way");
    }
}

void walkLock(Tour& tour, const Page& page, const char* row) {
    Tour::press(tour.control(kConsole, page.command), Qt::Key_Space);
    tour.take(page.name, page.form);
    pick(tour, page, row);
    tour.take(page.name + "-scelta", page.form);
    Tour::press(tour.control(page.form, page.field), Qt::Key_Return);
    run(tour, page);
    Tour::press(tour.control(page.form, "Command4"), Qt::Key_Space);
}

} // namespace

void locks(Tour& tour) {
    constexpr int kSettings = 3;
    Tour::press(tour.control("Avvio_Azienda", "cmdClose"), Qt::Key_Space);
    dynamic_cast<QTabWidget&>(tour.control(kConsole, "SSTab1")).setCurrentIndex(kSettings);
    Tour::settle();
    walkLock(tour, {"Scegli_progetto_4", "Command4", "iddateend", "19-blocco-progetto", false}, "Scuole Nairobi");
    walkLock(tour, {"Scegli_sede_Pd", "Command6", "DataInizio", "20-blocco-sede", true}, "Nairobi");
    tour.forms().unload(kConsole);
    Tour::settle();
}

} // namespace tour
