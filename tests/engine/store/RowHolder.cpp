// engine_row_holder <database file>: holds row 1 of table "t" of that database, says so, and waits.

#include "engine/store/RowLocks.h"

#include <iostream>
#include <string>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: engine_row_holder <database file>\n";
        return 2;
    }
    engine::RowLocks locks(arguments[1]);
    std::cout << (locks.acquire("t", 1) ? "held" : "refused") << std::endl;
    std::string line;
    std::getline(std::cin, line);
    return 0;
}
