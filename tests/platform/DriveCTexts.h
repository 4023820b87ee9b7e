#pragma once

#include "platform/DriveC.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace platform {

class DriveCTexts : public testing::Test {
protected:
    std::string read(const std::string& bytes) const {
        std::ofstream(folder.path() / "x.txt", std::ios::binary) << bytes;
        return drive.firstLine("C:\\x.txt");
    }
    std::string written(const std::string& line) const {
        drive.writeLine("C:\\x.txt", line);
        std::ifstream file(folder.path() / "x.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const support::TemporaryFolder folder;
    const DriveC drive{folder.path()};
};

} // namespace platform
