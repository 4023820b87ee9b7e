#pragma once

#include "controls/FormRegistry.h"
#include "controls/Style.h"

#include <QApplication>
#include <QTranslator>

namespace app {

/// The program up to its first form: application, look, language, workstation, boxes and the table of forms. Tour and
/// benchmarks run the same one.
class Program {
public:
    /// argc and argv must outlive it.
    Program(int& argc, char** argv, controls::style::Scheme scheme = controls::style::Scheme::System);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    controls::FormRegistry& forms() { return forms_; }
    /// Shows the start form and serves until the process ends.
    int run();

private:
    QApplication application_;
    QTranslator italian_;
    controls::FormRegistry forms_;
};

} // namespace app
