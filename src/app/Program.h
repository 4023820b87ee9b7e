#pragma once

#include "controls/FormRegistry.h"
#include "controls/Style.h"

#include <QApplication>
#include <QTranslator>

namespace app {

/// Sets up everything that the first form needs: application, look, language, workstation, message boxes and the table
/// of forms. The tour and the benchmarks use it too.
class Program {
public:
    /// argc and argv must outlive the object.
    Program(int& argc, char** argv, controls::style::Scheme scheme = controls::style::Scheme::System);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    controls::FormRegistry& forms() { return forms_; }
    /// Shows the start form and runs the event loop until the process ends.
    int run();

private:
    QApplication application_;
    QTranslator italian_;
    controls::FormRegistry forms_;
};

} // namespace app
