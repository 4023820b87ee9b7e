#include "peer/CodePage.h"

#include "peer/Bytes.h"

#include <algorithm>
#include <iterator>

namespace peer {

namespace {

/// The characters of the bytes 0x80 to 0x9F; 0: none.
constexpr char16_t kUpper[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                 0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr char16_t kFirstUpper = 0x80;

} // namespace

std::string toCodePage(std::string_view text) {
    std::string out;
    for (const char16_t c : toUtf16(text)) {
        const auto* upper = std::find(std::begin(kUpper), std::end(kUpper), c);
        if (c < kFirstUpper || (c >= 0xA0 && c < 0x100)) {
            out += static_cast<char>(c);
        } else {
            out += upper == std::end(kUpper) ? '?' : static_cast<char>(kFirstUpper + (upper - std::begin(kUpper)));
        }
    }
    return out;
}

std::string fromCodePage(std::string_view bytes) {
    std::u16string wide;
    for (const char byte : bytes) {
        const char16_t c = static_cast<unsigned char>(byte);
        const bool upper = c >= kFirstUpper && c < kFirstUpper + std::size(kUpper);
        wide += upper && kUpper[c - kFirstUpper] != 0 ? kUpper[c - kFirstUpper] : c;
    }
    return toUtf8(wide);
}

} // namespace peer
