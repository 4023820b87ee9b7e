#include "app/monkey/Application.h"

#include "platform/Process.h"
#include "support/GuiTests.h"

#include <utility>

namespace monkey {

namespace {
bool ended = false;
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const platform::ProcessEnded&) {
        ended = true;
        return true;
    }
}

bool Application::takeEnd() {
    return std::exchange(ended, false);
}

} // namespace monkey

int main(int argc, char** argv) {
    return support::runGuiTests<monkey::Application>(argc, argv);
}
