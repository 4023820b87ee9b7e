// Prints what the program knows of the machine that it runs on.

#include "ado/Conversions.h"
#include "ado/Drivers.h"
#include "platform/Workstation.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const platform::Workstation& workstation = platform::workstation();
    const ado::RegionalSettings& settings = ado::regionalSettings();
    std::cout << "drive " << workstation.driveC.root().string() << '\n'
              << "machine " << workstation.machineName << '\n'
              << "program " << workstation.programName << '\n'
              << "product " << workstation.productName << '\n'
              << "version " << workstation.versionMajor << '.' << workstation.versionMinor << '.'
              << workstation.versionRevision << '\n'
              << "number " << settings.decimalSeparator << settings.thousandsSeparator << '\n'
              << "instance " << ado::instanceFolder("POSTO\\sqlexpress").string() << '\n';
    return 0;
}
