// Starts the program, closes its first form as a user does, and tells whether the program still runs a while later.

#include "app/Program.h"
#include "controls/Form.h"

#include <QTimer>

#include <cstdlib>
#include <iostream>

namespace {

controls::Form* visibleForm() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* form = qobject_cast<controls::Form*>(window); form != nullptr && form->isVisible()) {
            return form;
        }
    }
    return nullptr;
}

} // namespace

int main(int argc, char** argv) {
    constexpr int kEach = 20;
    constexpr int kAWhile = 500;
    app::Program program(argc, argv);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        controls::Form* form = visibleForm();
        if (form == nullptr || form->Name() != "About") {
            return;
        }
        look.stop();
        form->close();
        std::cout << (visibleForm() == nullptr ? "closed" : "still open") << std::endl;
        QTimer::singleShot(kAWhile, [&program] {
            std::cout << (program.forms().isLoaded("Avvio") ? "running with the start form" : "running") << std::endl;
            std::_Exit(0);
        });
    });
    look.start(kEach);
    program.run();
    std::cout << "ended" << std::endl;
}
