#include "controls/Label.h"

#include <QLabel>

namespace controls {

QString spokenName(QString caption) {
    caption.remove(QLatin1Char('&'));
    caption = caption.trimmed();
    while (caption.endsWith(QLatin1Char(':'))) {
        caption = caption.chopped(1).trimmed();
    }
    return caption;
}

void setCaption(QLabel& label, const std::string& caption) {
    label.setText(QString::fromStdString(caption));
    if (QWidget* named = label.buddy()) {
        named->setAccessibleName(spokenName(label.text()));
    }
}

} // namespace controls
