#pragma once

#include "support/Gui.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>

#include <functional>
#include <string>
#include <vector>

namespace support {

/// What a user sees of a box.
struct Seen {
    std::string title, text;
    std::vector<std::string> buttons;
};

/// Runs `ask`, records the box that it opens and calls `answer` with it.
template<typename Ask>
auto withBox(Seen& seen, const std::function<void(QDialog&)>& answer, Ask ask) {
    const auto look = [&seen, answer] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "no box came";
        seen.title = box->windowTitle().toStdString();
        if (const auto* message = qobject_cast<QMessageBox*>(box)) {
            seen.text = message->text().toStdString();
        }
        for (const auto* button : box->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty()) {
                seen.buttons.push_back(button->text().toStdString());
            }
        }
        answer(*box);
    };
    QMetaObject::invokeMethod(qApp, look, Qt::QueuedConnection);
    return ask();
}

inline void pressKey(QDialog& box, Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &box, key);
}

} // namespace support
