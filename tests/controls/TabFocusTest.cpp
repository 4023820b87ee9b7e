// The tab bar shows whether it has the focus.

#include "support/Gui.h"

#include <QLineEdit>
#include <QTabBar>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

TEST(TabFocus, IsSeen) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* tabs = new QTabBar;
    auto* field = new QLineEdit;
    tabs->addTab(QStringLiteral("Piano dei Conti"));
    layout->addWidget(tabs);
    layout->addWidget(field);
    window.show();
    window.activateWindow();
    field->setFocus();
    support::Gui::waitFor("the focus", [&] { return field->hasFocus(); });
    const QImage without = tabs->grab().toImage();
    tabs->setFocus();
    EXPECT_NE(tabs->grab().toImage(), without);
}

} // namespace
