#include "controls/RoomyStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

namespace controls {

namespace {

constexpr int kSpacing = 12;
constexpr int kControlHeight = 32;
constexpr int kRowHeight = 26;
constexpr int kButtonPadding = 20;
constexpr int kTextPadding = 6;
constexpr int kCellPadding = 7;
constexpr int kIndicator = 16;
constexpr int kArrowWidth = 28;
constexpr double kCorner = 4;

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

void drawFrame(QPainter& painter, const QStyleOption& option, const QColor& fill, bool marked) {
    const QPalette::ColorRole border = marked ? QPalette::Highlight : QPalette::Mid;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(border), marked ? 2 : 1));
    painter.setBrush(fill);
    const double inset = marked ? 1 : 0.5;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
    painter.restore();
}

QColor buttonFill(const QStyleOption& option) {
    constexpr int kHover = 104;
    constexpr int kPressed = 112;
    const QColor plain = option.palette.color(QPalette::Button);
    if (has(option, QStyle::State_Sunken) || has(option, QStyle::State_On)) {
        return plain.darker(kPressed);
    }
    return has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled) ? plain.darker(kHover) : plain;
}

/// A list's arrow, pointing down, in the middle of `place`.
void drawArrow(QPainter& painter, const QStyleOption& option, const QRect& place) {
    constexpr double kHalfWidth = 4.5;
    constexpr double kHalfHeight = 2.5;
    const QPointF centre = QRectF(place).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(option.palette.color(QPalette::ButtonText), 1.6);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.drawPolyline(QPolygonF{centre + QPointF(-kHalfWidth, -kHalfHeight), centre + QPointF(0, kHalfHeight),
                                   centre + QPointF(kHalfWidth, -kHalfHeight)});
    painter.restore();
}

/// The square of a check box: empty, ticked, or with a grey tick.
void drawCheckBox(QPainter& painter, const QStyleOption& option) {
    const bool on = has(option, QStyle::State_On);
    const bool greyed = has(option, QStyle::State_NoChange);
    drawFrame(painter, option, option.palette.color(QPalette::Base), has(option, QStyle::State_HasFocus));
    if (!on && !greyed) {
        return;
    }
    const QRectF box(option.rect);
    const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x * box.width(), y * box.height()); };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool pale = greyed && has(option, QStyle::State_Enabled);
    QPen pen(option.palette.color(pale ? QPalette::PlaceholderText : QPalette::Text), 2);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.drawPolyline(QPolygonF{at(0.25, 0.5), at(0.43, 0.7), at(0.75, 0.3)});
    painter.restore();
}

bool isFlat(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
}

} // namespace

RoomyStyle::RoomyStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QStyle* RoomyStyle::create() {
    return new RoomyStyle;
}

int RoomyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return kSpacing;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return kIndicator;
    case PM_HeaderMargin:
        return kCellPadding;
    case PM_FocusFrameHMargin:
        return kCellPadding - 1; // the base style adds one
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int RoomyStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* more) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    if (hint == SH_LineEdit_PasswordCharacter) {
        return '*';
    }
    return QProxyStyle::styleHint(hint, option, widget, more);
}

QSize RoomyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_LineEdit || type == CT_ComboBox || type == CT_PushButton) {
        size.setHeight(std::max(size.height(), kControlHeight));
    }
    if (type == CT_PushButton) {
        size.rwidth() += kButtonPadding;
    }
    if (type == CT_ItemViewItem) {
        size.setHeight(std::max(size.height(), kRowHeight));
    }
    return size;
}

QRect RoomyStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? place.adjusted(kTextPadding, 0, -kTextPadding, 0) : place;
}

QRect RoomyStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    if (control == CC_ComboBox && (part == SC_ComboBoxArrow || part == SC_ComboBoxEditField)) {
        QRect arrow = option->rect;
        arrow.setLeft(arrow.right() - kArrowWidth);
        // The text field of an editable combo has its own padding.
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        const int padding = combo != nullptr && combo->editable ? 0 : kTextPadding;
        const QRect field = option->rect.adjusted(2 + padding, 2, -kArrowWidth, -2);
        return visualRect(option->direction, option->rect, part == SC_ComboBoxArrow ? arrow : field);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void RoomyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const bool focused = has(*option, State_HasFocus);
    if (element == PE_PanelLineEdit) {
        const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (field != nullptr && field->lineWidth > 0) {
            drawFrame(*painter, *option, option->palette.color(QPalette::Base), focused);
        }
    } else if (element == PE_PanelButtonCommand && !isFlat(*option)) {
        drawFrame(*painter, *option, buttonFill(*option), focused);
    } else if (element == PE_IndicatorCheckBox) {
        drawCheckBox(*painter, *option);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

// The base style leaves open whether the tabs have the focus.
void RoomyStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_TabBarTabLabel && has(*option, State_HasFocus)) {
        constexpr int kInside = 3;
        QStyleOption inside = *option;
        inside.rect.adjust(kInside, kInside, -kInside, -kInside);
        drawFrame(*painter, inside, Qt::transparent, true);
    }
}

void RoomyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
    if (control != CC_ComboBox) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const bool editable = combo != nullptr && combo->editable;
    const QColor fill = editable ? option->palette.color(QPalette::Base) : buttonFill(*option);
    drawFrame(*painter, *option, fill, has(*option, State_HasFocus));
    drawArrow(*painter, *option, proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
}

} // namespace controls
