#include "app/monkey/Story.h"

#include "app/monkey/Process.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace monkey::story {

namespace {

constexpr std::size_t kSteps = 300;
using Line = std::array<char, 220>;

std::array<Line, kSteps> lines;
std::size_t told = 0; // in all
Line headline{};

void put(Line& line, std::string_view text) {
    const std::size_t length = std::min(text.size(), line.size() - 1);
    std::memcpy(line.data(), text.data(), length);
    line[length] = '\0';
}

template<typename Visit>
void visitLines(Visit&& visit) {
    visit(headline.data());
    for (std::size_t step = told - std::min(told, kSteps); step < told; ++step) {
        visit(lines[step % kSteps].data());
    }
}

} // namespace

void printAtDeath(const std::string& text) {
    put(headline, text);
    callAtDeath(print);
}

void tell(const QString& step) {
    put(lines[told % kSteps], step.toStdString());
    ++told;
}

void begin() {
    told = 0;
}

std::string text() {
    std::string all;
    visitLines([&all](const char* line) { (all += line) += '\n'; });
    return all;
}

void print() {
    visitLines([](const char* line) {
        writeRaw(line);
        writeRaw("\n");
    });
}

} // namespace monkey::story
