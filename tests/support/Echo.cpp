// Prints its arguments, then every line that it reads; "exit" ends it with code 3.

#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::cout << argv[i] << std::endl;
    }
    if (const char* value = std::getenv("SUPPORT_ECHO")) {
        std::cout << value << std::endl;
    }
    for (std::string line; std::getline(std::cin, line);) {
        if (line == "exit") {
            return 3;
        }
        std::cout << line << std::endl;
    }
    return 0;
}
