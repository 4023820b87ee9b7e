#include "platform/RegionalSettings.h"

#include <algorithm>

namespace platform {

namespace {

/// A separator as one byte: Unicode's many kinds of blanks and apostrophes become the ASCII ones.
char separator(const QString& text, char otherwise) {
    if (text.isEmpty()) {
        return otherwise;
    }
    const QChar c = text.front();
    if (c.isSpace()) {
        return ' ';
    }
    if (c == QChar(u'\u2019')) {
        return '\'';
    }
    return c.unicode() < 0x80 ? c.toLatin1() : otherwise;
}

ado::RegionalSettings::DateOrder dateOrder(const QString& format) {
    using Order = ado::RegionalSettings::DateOrder;
    const auto day = format.indexOf('d');
    const auto month = format.indexOf('M');
    const auto year = format.indexOf('y');
    if (year < month) {
        return Order::YearMonthDay;
    }
    return month < day ? Order::MonthDayYear : Order::DayMonthYear;
}

char dateSeparator(const QString& format, char otherwise) {
    const auto* found = std::find_if(format.begin(), format.end(), [](QChar c) { return !c.isLetter(); });
    return found == format.end() ? otherwise : separator(QString(*found), otherwise);
}

} // namespace

QLocale localeOr(const QLocale& system) {
    return system.language() == QLocale::C ? QLocale(QLocale::Italian, QLocale::Italy) : system;
}

ado::RegionalSettings regionalSettingsOf(const QLocale& locale) {
    ado::RegionalSettings settings;
    settings.decimalSeparator = separator(locale.decimalPoint(), settings.decimalSeparator);
    settings.thousandsSeparator = separator(locale.groupSeparator(), settings.thousandsSeparator);
    settings.monetaryDecimalSeparator = settings.decimalSeparator;
    settings.monetaryThousandsSeparator = settings.thousandsSeparator;
    const QString shortDate = locale.dateFormat(QLocale::ShortFormat);
    settings.dateSeparator = dateSeparator(shortDate, settings.dateSeparator);
    settings.dateOrder = dateOrder(shortDate);
    if (const QString symbol = locale.currencySymbol(); !symbol.isEmpty()) {
        settings.currencySymbol = symbol.toStdString();
    }
    return settings;
}

void useLocale(const QLocale& locale) {
    QLocale::setDefault(locale);
    ado::regionalSettings() = regionalSettingsOf(locale);
}

} // namespace platform
