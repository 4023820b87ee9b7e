#pragma once

#include "ado/Conversions.h"

#include <QLocale>

namespace platform {

/// This locale, or Italian where the system has none ("C", "POSIX").
QLocale localeOr(const QLocale& system);

/// How the locale writes numbers and dates. Separators are single characters; where the locale doesn't define one, the
/// Italian one is used.
ado::RegionalSettings regionalSettingsOf(const QLocale& locale);

/// Sets the locale of the data layer and of Qt.
void useLocale(const QLocale& locale);

} // namespace platform
