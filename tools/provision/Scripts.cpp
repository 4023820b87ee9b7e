#include "provision/Scripts.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace provision {

std::string_view script(std::string_view name) {
    const auto& all = scripts();
    const auto found = std::ranges::find(all, name, &Script::name);
    if (found == all.end()) {
        throw std::out_of_range("no script " + std::string(name));
    }
    return found->text;
}

std::vector<std::string_view> batches(std::string_view script) {
    std::vector<std::string_view> found;
    const auto keep = [&found](std::string_view batch) {
        if (batch.find_first_not_of(" \r\n") != std::string_view::npos) {
            found.push_back(batch);
        }
    };
    std::size_t begin = 0;
    std::size_t line = 0;
    while (line < script.size()) {
        const std::size_t end = std::min(script.find('\n', line), script.size() - 1) + 1;
        std::string_view words = script.substr(line, end - line);
        words = words.substr(0, words.find_last_not_of(" \r\n") + 1);
        if (words == "GO") {
            keep(script.substr(begin, line - begin));
            begin = end;
        }
        line = end;
    }
    keep(script.substr(begin));
    return found;
}

} // namespace provision
