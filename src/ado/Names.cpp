#include "ado/Names.h"

#include "ado/Text.h"

#include <QString>

#include <algorithm>

namespace ado {

namespace {

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

QString unicode(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

bool sameName(std::string_view left, std::string_view right) {
    if (std::ranges::all_of(left, isAscii) && std::ranges::all_of(right, isAscii)) {
        return std::ranges::equal(left, right, {}, lower, lower);
    }
    return unicode(left).compare(unicode(right), Qt::CaseInsensitive) == 0;
}

} // namespace ado
