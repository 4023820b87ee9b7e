#pragma once

#include <unicode/ucol.h>

#include <memory>
#include <string>

namespace engine {

inline int sign(int value) {
    return value < 0 ? -1 : value > 0 ? 1 : 0;
}

inline int compareLetters(const std::string& left, const std::string& right) {
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<UCollator, decltype(&ucol_close)> collator = [] {
        UErrorCode opening = U_ZERO_ERROR;
        UCollator* opened = ucol_open("en", &opening);
        ucol_setStrength(opened, UCOL_SECONDARY);
        return std::unique_ptr<UCollator, decltype(&ucol_close)>(opened, &ucol_close);
    }();
    return ucol_strcollUTF8(collator.get(), left.data(), static_cast<int32_t>(left.size()), right.data(),
                            static_cast<int32_t>(right.size()), &status);
}

/// Takes the apostrophes and hyphens out of a text, each as its place and itself.
inline std::string takeMarks(std::string& text) {
    std::string marks;
    for (std::size_t found = text.find_first_of("'-"); found != std::string::npos; found = text.find_first_of("'-")) {
        marks += std::to_string(1'000'000 + found) + text[found];
        text.erase(found, 1);
    }
    return marks;
}

/// What the library alone answers, without the ranks of ASCII.
inline int compareByLibrary(std::string left, std::string right) {
    const auto trim = [](std::string& text) { text.erase(text.find_last_not_of(' ') + 1); };
    trim(left);
    trim(right);
    const std::string marksOfLeft = takeMarks(left);
    const std::string marksOfRight = takeMarks(right);
    trim(left);
    trim(right);
    const int order = compareLetters(left, right);
    return order != 0 ? order : sign(marksOfLeft.compare(marksOfRight));
}

} // namespace engine
