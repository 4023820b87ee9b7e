// Writes two long lines alternately to one file, until it is killed: line_writer <root> <path>

#include "platform/DriveC.h"

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    const platform::DriveC drive(argv[1]);
    const std::string lines[] = {std::string(200'000, 'a'), std::string(300'000, 'b')};
    for (long round = 0;; ++round) {
        drive.writeLine(argv[2], lines[round % 2]);
        if (round == 3) {
            std::cout << "running" << std::endl;
        }
    }
}
