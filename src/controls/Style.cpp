#include "controls/Style.h"

#include "controls/RoomyStyle.h"

#include <QApplication>
#include <QPalette>

namespace controls::style {

namespace {

struct Colours {
    const char *window, *base, *alternate, *text, *muted, *button, *border, *accent, *accentText, *pale, *disabled;
};

constexpr Colours kLight = {"#f3f5f7", "#ffffff", "#f6f8fa", "#1c2731", "#5b6975", "#fdfdfe",
                            "#c3cbd3", "#1f6391", "#ffffff", "#cfdfeb", "#9aa5ae"};
constexpr Colours kDark = {"#21262c", "#191d22", "#1e2329", "#e3e8ec", "#9aa7b2", "#2c333b",
                           "#46515c", "#4a9ac9", "#0d151b", "#34495a", "#6d7882"};

QPalette palette(const Colours& colours) {
    QPalette palette{QColor(colours.button), QColor(colours.window)};
    const std::initializer_list<std::pair<QPalette::ColorRole, const char*>> roles = {
        {QPalette::Window, colours.window},
        {QPalette::WindowText, colours.text},
        {QPalette::Base, colours.base},
        {QPalette::AlternateBase, colours.alternate},
        {QPalette::Text, colours.text},
        {QPalette::Button, colours.button},
        {QPalette::ButtonText, colours.text},
        {QPalette::ToolTipBase, colours.base},
        {QPalette::ToolTipText, colours.text},
        {QPalette::Highlight, colours.accent},
        {QPalette::HighlightedText, colours.accentText},
        {QPalette::PlaceholderText, colours.muted},
        {QPalette::Link, colours.accent},
        {QPalette::Mid, colours.border},
        {QPalette::BrightText, colours.accentText}};
    for (const auto& [role, colour] : roles) {
        palette.setColor(role, QColor(colour));
    }
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(colours.pale));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(colours.text));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(colours.disabled));
    }
    for (const auto role : {QPalette::Base, QPalette::Button}) {
        palette.setColor(QPalette::Disabled, role, QColor(colours.window));
    }
    return palette;
}

const char* const kSheet = R"(
*[role="header"] { background-color: #1b4f72; border: none; }
*[role="header"] QLabel { color: #cfe0ec; background: transparent; }
*[role="header"] QLabel[role="title"] { color: #ffffff; font-size: 17pt; font-weight: 600; }
*[role="header"] QLabel[role="subtitle"] { color: #ffffff; font-size: 11pt; }
*[role="heading"] { font-size: 17pt; font-weight: 600; }
*[role="section"] { font-size: 11pt; font-weight: 600; }
*[role="muted"] { color: %1; }
*[role="panel"] { background-color: palette(base); border: 1px solid palette(mid); border-radius: 6px; }
)";

} // namespace

void install(QApplication& application, Scheme scheme) {
    constexpr int kMiddleLightness = 128;
    const bool dark =
        scheme == Scheme::Dark ||
        (scheme == Scheme::System && application.palette().color(QPalette::Window).lightness() < kMiddleLightness);
    QApplication::setStyle(RoomyStyle::create());
    const Colours& colours = dark ? kDark : kLight;
    QApplication::setPalette(palette(colours));
    application.setStyleSheet(QString::fromLatin1(kSheet).arg(QLatin1String(colours.muted)));
}

} // namespace controls::style
