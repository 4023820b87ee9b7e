#include "app/monkey/Texts.h"

#include <array>

namespace monkey {

namespace {

// What somebody could mean.
constexpr std::array kPlain = {u"amministratore", u"primavera", u"1",           u"0",
                               u"12,5",           u"-3",        u"1.000.000",   u"31/12/2024",
                               u"29/02/2023",     u"1/2",       u"010203",      u"IT",
                               u"ITALIA",         u"00100",     u"12345678903", u"RSSMRA80A01H501U",
                               u"Roma",           u"a",         u"C:\\vabo",    u"POSTO_7\\sqlexpress",
                               u"VaBoDatiAurora"};

// What nobody should.
constexpr std::array kNasty = {u"'",
                               u"''",
                               u"\"",
                               u";",
                               u"--",
                               u"/*",
                               u"*/",
                               u"' or 1=1 --",
                               u"'; delete from stati --",
                               u"x' + char(39) + 'y",
                               u"]",
                               u"[a-z]%_",
                               u"{fn now()}",
                               u"\t",
                               u"\r\n",
                               u"a\nb",
                               u"\x1b[31m",
                               u"\x7f\x01\x02",
                               u"&file",
                               u"<b>grassetto</b>",
                               u"%s%n%1",
                               u"\u200b\ufeff",
                               u"e\u0301\u0327",
                               u"שלום",
                               u"\u202eالعربية\u202c",
                               u"ＡＢＣ１２３",
                               u"\U0001F600\U0001F468\u200D\U0001F469",
                               u"\U00020000",
                               u"ſ İ ı ß",
                               u"1e999",
                               u"99999999999999999999",
                               u"NaN",
                               u"31/12/99999",
                               u"..\\..\\etc"};

QString longText(Dice& dice) {
    constexpr int kLongest = 4000;
    const QString piece = QString::fromUtf16(dice.oneOf(kNasty));
    return piece.repeated(dice.between(1, kLongest) / static_cast<int>(piece.size()) + 1);
}

/// Halves of surrogate pairs, characters that don't exist, and letters of anywhere. Few enough that what the toolkit
/// keeps of each letter's picture stops growing.
constexpr std::array<char16_t, 32> kStrange = {0x0001, 0x0008, 0x000b, 0x001f, 0x007f, 0x0085, 0x00a0, 0x00ad,
                                               0x0130, 0x0301, 0x0378, 0x05d0, 0x0627, 0x0e01, 0x0fff, 0x1100,
                                               0x200d, 0x2028, 0x202e, 0x2066, 0x3042, 0x4e2d, 0xac00, 0xd800,
                                               0xdbff, 0xdc00, 0xdfff, 0xe000, 0xfeff, 0xfffd, 0xfffe, 0xffff};

QString noise(Dice& dice) {
    QString text;
    for (int length = dice.between(1, 12); length > 0; --length) {
        text += QChar(dice.oneOf(kStrange));
    }
    return text;
}

} // namespace

QString anyText(Dice& dice) {
    switch (dice.below(20)) {
    case 0:
        return longText(dice);
    case 1:
    case 2:
        return noise(dice);
    case 3:
        return QString::number(dice.below(1000));
    case 4:
        return QStringLiteral("%1/%2/%3")
            .arg(dice.between(1, 31))
            .arg(dice.between(1, 12))
            .arg(dice.between(1990, 2030));
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
        return QString::fromUtf16(dice.oneOf(kPlain));
    case 10:
        return QString::fromUtf16(dice.oneOf(kPlain)) + QString::fromUtf16(dice.oneOf(kNasty));
    default:
        return QString::fromUtf16(dice.oneOf(kNasty));
    }
}

} // namespace monkey
