// The main of every test executable with windows.

#include "support/GuiTests.h"

int main(int argc, char** argv) {
    return support::runGuiTests<QApplication>(argc, argv);
}
