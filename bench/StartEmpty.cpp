// A minimal Qt program: one window with two fields. It prints the time since its parent's call.

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc < 2) {
        return 2;
    }
    const long long called = std::atoll(argv[1]);
    QApplication application(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLineEdit);
    layout->addWidget(new QLineEdit);
    window.show();
    QCoreApplication::processEvents();
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("shown %lld\n", std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - called);
    return 0;
}
