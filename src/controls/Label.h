#pragma once

#include <QString>

#include <string>

class QLabel;

namespace controls {

/// A caption as assistive tools read it out: without the mark of a mnemonic and without the colon at its end.
QString spokenName(QString caption);

/// Gives a label another text, and the control that it names another accessible name with it.
void setCaption(QLabel& label, const std::string& caption);

} // namespace controls
