#include "platform/DataSourceValues.h"

#include "ado/Text.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace platform::odbcfile {

namespace {

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

} // namespace

bool isPlainName(const std::string& name) {
    return !name.empty() && ado::trimmed(name, " ") == name && std::ranges::none_of(name, isControl);
}

DataSourceValues storable(const DataSourceValues& values) {
    DataSourceValues stored = values;
    for (auto& [key, value] : stored) {
        std::ranges::replace_if(value, isControl, ' ');
        value = ado::trimmed(std::string(value), " ");
        if (key.size() + value.size() + std::string_view("=\n").size() > kLongestLine) {
            throw std::runtime_error("The value of " + key + " is too long for a data source.");
        }
    }
    return stored;
}

} // namespace platform::odbcfile
