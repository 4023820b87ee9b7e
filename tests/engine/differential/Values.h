#pragma once

// Values of which both rows and literals are drawn, few enough for them to meet.

#include <string>
#include <string_view>

namespace engine::differential {

inline constexpr std::string_view kIntegers[] = {"0", "1", "2", "3", "5", "12", "100"};
inline constexpr std::string_view kDecimals[] = {"0.5", "1.5", "2.250", "12.00", "0.125", "1.0", "3.75", "100.001"};
inline constexpr std::string_view kFloats[] = {"1e0", "25e-1", "1.25e1", "5e-1", "2e0", "125e-3", "1e-1"};
/// At the end of a type, or next to what a double tells apart.
inline constexpr std::string_view kWideIntegers[] = {"2147483647", "9007199254740993", "9007199254740992",
                                                     "9223372036854775807", "4000000000"};
inline constexpr std::string_view kWideDecimals[] = {"9223372036.8547", "12345678901.2345", "0.1", "123456789012.0"};
inline constexpr std::string_view kWideFloats[] = {"9007199254740992e0", "1e300", "123456789012345e-3", "3e-300"};
inline constexpr std::string_view kNumberTexts[] = {"1", " 2", "12 ", "-3", "007", "5", "0"};
inline constexpr std::string_view kDates[] = {
    "20040307", "2004-03-07", "20040307 10:30", "19991231 23:59:59.997", "20040229", "20050101 00:00:00.003"};
/// Of six characters at most, all of them characters of the code page.
inline constexpr std::string_view kTexts[] = {"",     " ",    "Roma",   "roma",  "ROMA ", "Róma", "róma", "Cafè",
                                              "CAFÈ", "cafe", "d'asti", "dasti", "co-op", "coop", "ß",    "ss",
                                              "a_b",  "a%b",  "12",     "1.5",   "z",     "Zàra", "é",    "E"};
inline constexpr std::string_view kPatterns[] = {"ro%", "%a",    "[a-d]%", "_o%", "%[^a]", "12",    "%'%", "caf_",
                                                 "% ",  "%[_]b", "",       "%",   "c%e",   "[^r]%", "s%",  "Roma "};

inline std::string quoted(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        result += c == '\'' ? "''" : std::string(1, c);
    }
    return result + "'";
}

} // namespace engine::differential
