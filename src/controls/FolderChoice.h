#pragma once

#include <QString>

#include <string>

class QWidget;

namespace controls {

/// Lets the user pick a folder, in the system's own dialog where it has one for this. Empty where none was picked.
std::string chooseFolder(QWidget* parent, const QString& title);

} // namespace controls
