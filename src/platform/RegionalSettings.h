#pragma once

#include "ado/Conversions.h"

#include <QLocale>

namespace platform {

/// The system's locale, Italian where the system has none ("C", "POSIX").
QLocale localeOr(const QLocale& system);

/// How that locale writes numbers and dates, as far as single characters go; what it doesn't tell stays Italian.
ado::RegionalSettings regionalSettingsOf(const QLocale& locale);

/// Makes the locale the one of the data layer and of Qt.
void useLocale(const QLocale& locale);

} // namespace platform
