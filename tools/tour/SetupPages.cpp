#include "tour/Tour.h"

#include <QApplication>
#include <QDialog>
#include <QTreeWidget>

namespace tour {

namespace {

/// What comes while a command runs: the box that announces the browser, the browser, where a folder is picked, and the
/// box that shows it, which is cancelled.
class Boxes : public QObject {
public:
    Boxes(Tour& tour, std::string name) : tour_(tour), name_(std::move(name)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && qobject_cast<QDialog*>(watched) != nullptr) {
            Tour::onceWaiting(*this, [this] { answer(); });
        }
        return false;
    }

private:
    void answer() {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        static constexpr const char* kSuffixes[] = {"-avviso", "-cartella", "-conferma"};
        Tour::settle();
        tour_.take(name_ + kSuffixes[shown_++ % std::size(kSuffixes)], *box);
        if (auto* folders = box->findChild<QTreeWidget*>()) {
            Tour::press(*folders, Qt::Key_Down);
            box->accept();
        } else {
            box->reject();
        }
    }

    Tour& tour_;
    std::string name_;
    std::size_t shown_ = 0;
};

} // namespace

// The server's folder comes last, since its form leaves the program without the company's lists.
void setup(Tour& tour) {
    const char* const branch = "caricasedecentrale";
    tour.show(branch);
    tour.take("50-sede-centrale", branch);
    Tour::press(tour.control(branch, "DataGrid1"), Qt::Key_Down);
    tour.take("50-sede-centrale-scelta", branch);
    tour.forms().unload(branch);
    Tour::settle();

    const char* const server = "IndirizzoVaboSuServer";
    tour.show(server);
    tour.take("51-indirizzo-server", server);
    {
        const Boxes boxes(tour, "51-indirizzo-server");
        Tour::press(tour.control(server, "Command1"), Qt::Key_Space);
    }
    tour.forms().unload(server);
    Tour::settle();
}

} // namespace tour
