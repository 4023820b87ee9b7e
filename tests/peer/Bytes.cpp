#include "peer/Bytes.h"

#include <algorithm>

namespace peer {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUtf16(std::u16string& out, char32_t c) {
    if (c < 0x10000) {
        out.push_back(static_cast<char16_t>(c));
        return;
    }
    c -= 0x10000;
    out.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
    out.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | c >> 6));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | c >> 12));
        out.push_back(static_cast<char>(0x80 | (c >> 6 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | c >> 18));
        out.push_back(static_cast<char>(0x80 | (c >> 12 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c >> 6 & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

} // namespace

std::u16string toUtf16(std::string_view text) {
    std::u16string out;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<std::uint8_t>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
        char32_t c = length == 1 ? lead : lead & (0xFF >> (length + 1));
        bool whole = length != 0 && i + length <= text.size() && lead < 0xF5;
        for (std::size_t k = 1; whole && k < length; ++k) {
            const auto next = static_cast<std::uint8_t>(text[i + k]);
            whole = (next & 0xC0) == 0x80;
            c = c << 6 | (next & 0x3F);
        }
        appendUtf16(out, whole ? c : kReplacement);
        i += whole ? length : 1;
    }
    return out;
}

std::string toUtf8(std::u16string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        const bool high = c >= 0xD800 && c < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
        } else if (c >= 0xD800 && c < 0xE000) {
            c = kReplacement;
        }
        appendUtf8(out, c);
    }
    return out;
}

std::string ByteReader::ucs2(std::size_t characters) {
    if (characters > left() / 2) {
        throw ProtocolError("text ends early");
    }
    std::u16string text(characters, u'\0');
    std::generate(text.begin(), text.end(), [this] { return static_cast<char16_t>(u16()); });
    return toUtf8(text);
}

ByteWriter& ByteWriter::ucs2(std::string_view text) {
    for (const char16_t c : toUtf16(text)) {
        u16(c);
    }
    return *this;
}

ByteWriter& ByteWriter::shortText(std::string_view text) {
    const std::u16string wide = toUtf16(text).substr(0, 255);
    u8(static_cast<std::uint8_t>(wide.size()));
    for (const char16_t c : wide) {
        u16(c);
    }
    return *this;
}

ByteWriter& ByteWriter::longText(std::string_view text) {
    const std::u16string wide = toUtf16(text).substr(0, 4000);
    u16(static_cast<std::uint16_t>(wide.size()));
    for (const char16_t c : wide) {
        u16(c);
    }
    return *this;
}

} // namespace peer
