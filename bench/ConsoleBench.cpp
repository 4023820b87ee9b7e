// Opening the general tables console of a company with 20 000 accounts, compared with the statements that it sends,
// each run once on an open connection. And typing one letter into a picker of that many accounts.

#include "Pairs.h"
#include "SampleDrive.h"
#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "app/Program.h"
#include "controls/DataCombo.h"
#include "kit/ErrorHandling.h"
#include "session/TreatForms.h"
#include "state/variabili.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr long kAccounts = 20'000;
constexpr const char* kForm = "Avvio_Morlan";

/// The program with its company taken up, with its own drive C.
class Console {
public:
    Console() {
        program_ = std::make_unique<app::Program>(argc_, argv_.data());
        program_->forms().show("Avvio");
        vabo::ApriForm("Avvio_Azienda", true);
        QCoreApplication::processEvents();
    }
    ~Console() {
        program_.reset();
        vabo::ChiudiRecordset();
        for (ado::Connection* connection : {&vabo::DbAzienda, &vabo::DbControllo, &vabo::DbTemp}) {
            if (connection->IsOpen()) {
                connection->Close();
            }
        }
    }
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    controls::Form& open() {
        if (!vabo::ApriForm(kForm, true)) {
            throw std::runtime_error("the console isn't there");
        }
        QCoreApplication::processEvents();
        return *program_->forms().loaded(kForm);
    }
    void close() {
        program_->forms().unload(kForm);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

private:
    bench::SampleDrive drive_{{.driveC = {}, .terminal = {}, .ledgerRows = 200, .accounts = kAccounts}};
    int argc_ = 1;
    std::string name_ = "vabo-bench-console";
    std::array<char*, 2> argv_{name_.data(), nullptr};
    std::unique_ptr<app::Program> program_;
};

/// Released at the end of main, since windows must be destroyed before the toolkit's static objects.
std::unique_ptr<Console>& held() {
    static std::unique_ptr<Console> console;
    return console;
}

Console& console() {
    if (!held()) {
        held() = std::make_unique<Console>();
    }
    return *held();
}

void sendBare(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        if (text.find_first_of("sS") != text.find_first_not_of(' ')) {
            vabo::DbAzienda.Execute(text);
            continue;
        }
        ado::Recordset rs;
        rs.Open(text, vabo::DbAzienda, ado::CursorType::Static);
        benchmark::DoNotOptimize(rs.RecordCount());
    }
}

void OpenTheConsole(benchmark::State& state) {
    Console& running = console();
    std::vector<std::string> texts;
    ado::setStatementRecorder([&](const std::string& text) { texts.push_back(text); });
    running.open();
    ado::setStatementRecorder({});
    running.close();
    for (auto _ : state) {
        const double ours = bench::seconds([&] { running.open(); });
        running.close();
        const double bare = bench::seconds([&] { sendBare(texts); });
        state.SetIterationTime(ours);
        state.counters["bare_ms"] = bare * 1e3;
        state.counters["ratio"] = ours / bare;
    }
}
BENCHMARK(OpenTheConsole)->Apply(bench::inPairs);

/// The picker of the invoices' accounts, on the current tab, since a hidden one gets no keys.
controls::DataCombo* pickerInFront() {
    auto* tabs = console().open().findChild<QWidget*>(QStringLiteral("SSTab1"));
    tabs->setProperty("currentIndex", 4);
    return dynamic_cast<controls::DataCombo*>(tabs->findChild<QWidget*>(QStringLiteral("DCBItems3")));
}

void TypeALetterIntoAPicker(benchmark::State& state) {
    controls::DataCombo* picker = pickerInFront();
    for (auto _ : state) {
        picker->setText("");
        state.SetIterationTime(bench::seconds([&] {
            QKeyEvent letter(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"));
            QApplication::sendEvent(picker, &letter);
            benchmark::DoNotOptimize(picker->completer()->completionCount());
        }));
        picker->completer()->popup()->hide();
    }
    console().close();
}
BENCHMARK(TypeALetterIntoAPicker)->Apply(bench::inPairs);

void OpenTheListOfAPicker(benchmark::State& state) {
    controls::DataCombo* picker = pickerInFront();
    for (auto _ : state) {
        state.SetIterationTime(bench::seconds([&] {
            QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            QApplication::sendEvent(picker, &arrow);
            QCoreApplication::processEvents();
        }));
        picker->hidePopup();
    }
    console().close();
}
BENCHMARK(OpenTheListOfAPicker)->Apply(bench::inPairs);

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    held().reset();
}
