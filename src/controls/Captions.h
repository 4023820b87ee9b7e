#pragma once

#include <QString>

namespace controls {

// The buttons of all boxes.
inline const QString kOk = QStringLiteral("OK");
inline const QString kAnnulla = QStringLiteral("Annulla");

} // namespace controls
