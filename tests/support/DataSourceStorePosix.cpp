#include "support/DataSourceStore.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace support {

void useDataSourceFile(const std::filesystem::path& file) {
    ::setenv("ODBCINI", file.c_str(), 1);
}

std::filesystem::path dataSourceFileInUse() {
    return std::getenv("ODBCINI");
}

std::string dataSourceText(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void putDataSources(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

} // namespace support
