// orphan <file>: starts itself once more as its helper, which holds the first byte of the file, says "held" and waits.

#include "os/FileLock.h"
#include "os/Paths.h"
#include "support/Processes.h"

#include <QCoreApplication>

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::string file = arguments.at(1).toStdString();
    std::string line;
    if (arguments.size() > 2) {
        os::FileLock lock(os::pathOf(file));
        std::cout << (lock.tryExclusive(0) ? "held" : "refused") << std::endl;
        std::getline(std::cin, line);
        return 0;
    }
    support::HelperProcess helper("support_orphan", {file, "helper"});
    std::cout << helper.readLine().value_or("nothing") << std::endl;
    std::getline(std::cin, line);
    return 0;
}
