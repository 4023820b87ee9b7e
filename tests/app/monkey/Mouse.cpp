// The mouse of the monkey's hands.

#include "app/monkey/Hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <array>
#include <optional>

namespace monkey {

namespace {

constexpr std::array kModifiers = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

/// The place in the control's window; nothing where the window doesn't show it.
std::optional<QPoint> placeInWindow(const QWidget& control, QPoint place) {
    const QWindow* window = control.window()->windowHandle();
    const QPoint at = control.mapTo(control.window(), place);
    if (window == nullptr || at.isNull() || !QRect({}, window->geometry().size()).contains(at)) {
        return std::nullopt;
    }
    return at;
}

} // namespace

void Hands::click(QWidget& control, Qt::MouseButton button) {
    const auto place = placeInWindow(control, control.rect().center());
    if (place) {
        begin(*control.window(), QStringLiteral("click on ") + control.objectName());
        QTest::mouseClick(control.window()->windowHandle(), button, Qt::NoModifier, *place);
    }
}

void Hands::clickAt(QWidget& control, QPoint place, const QString& where) {
    const auto at = placeInWindow(control, place);
    if (!at) {
        return;
    }
    const QPointer<QWindow> window = control.window()->windowHandle();
    const Qt::KeyboardModifiers modifiers = dice_.oneIn(8) ? dice_.oneOf(kModifiers) : Qt::NoModifier;
    const QString spot = QStringLiteral(" %1,%2 on %3").arg(at->x()).arg(at->y()).arg(where);
    switch (dice_.below(10)) {
    case 0:
        begin(*control.window(), QStringLiteral("right click") + spot);
        QTest::mouseClick(window, Qt::RightButton, modifiers, *at);
        break;
    case 1:
    case 2:
        begin(*control.window(), QStringLiteral("double click") + spot);
        QTest::mouseDClick(window, Qt::LeftButton, modifiers, *at);
        if (!window.isNull()) {
            QTest::mouseRelease(window, Qt::LeftButton, modifiers, *at);
        }
        break;
    case 3:
        begin(*control.window(), QStringLiteral("middle click") + spot);
        QTest::mouseClick(window, Qt::MiddleButton, modifiers, *at);
        break;
    default:
        begin(*control.window(), QStringLiteral("click") + spot);
        QTest::mouseClick(window, Qt::LeftButton, modifiers, *at);
    }
}

/// On a row or a header of a list or grid.
void Hands::itemClick() {
    QWidget* window = front();
    if (window == nullptr) {
        return;
    }
    QList<QAbstractItemView*> views;
    for (auto* view : window->findChildren<QAbstractItemView*>()) {
        if (view->isVisible() && view->window() == window) {
            views.append(view);
        }
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(window)) {
        views.append(view);
    }
    if (!views.isEmpty()) {
        clickItem(*dice_.oneOf(views));
    }
}

void Hands::clickItem(QAbstractItemView& view) {
    const QString name = view.objectName();
    if (const auto* header = qobject_cast<QHeaderView*>(&view)) {
        const int section = header->count() == 0 ? 0 : header->sectionViewportPosition(dice_.below(header->count()));
        clickAt(*view.viewport(), {section + dice_.below(6), view.viewport()->height() / 2},
                QStringLiteral("a header"));
        return;
    }
    const QAbstractItemModel* model = view.model();
    if (model == nullptr || model->rowCount(view.rootIndex()) == 0 || model->columnCount(view.rootIndex()) == 0) {
        return;
    }
    const QRect viewport = view.viewport()->rect();
    const QPoint inside(dice_.below(std::max(1, viewport.width())), dice_.below(std::max(1, viewport.height())));
    const QModelIndex item = view.indexAt(inside);
    clickAt(*view.viewport(), item.isValid() ? view.visualRect(item).center() : inside,
            QStringLiteral("row %1 of %2").arg(item.row()).arg(name));
}

void Hands::wheel() {
    QWidget* window = front();
    QWidget* control = window == nullptr ? nullptr : anyControl(*window);
    const auto place = control == nullptr ? std::nullopt : placeInWindow(*control, control->rect().center());
    if (!place) {
        return;
    }
    begin(*window, QStringLiteral("wheel on ") + control->objectName());
    constexpr int kNotch = 120;
    const QPoint turn = dice_.oneIn(5) ? QPoint(kNotch, 0) : QPoint(0, dice_.oneIn(2) ? kNotch : -3 * kNotch);
    QWheelEvent event(QPointF(*place), QPointF(window->mapToGlobal(*place)), {}, turn, Qt::NoButton,
                      dice_.oneOf(kModifiers), Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

void Hands::drag() {
    QWidget* window = front();
    QWidget* control = window == nullptr ? nullptr : anyControl(*window);
    if (control == nullptr || control->width() < 1 || control->height() < 1) {
        return;
    }
    const auto from = placeInWindow(*control, {dice_.below(control->width()), dice_.below(control->height())});
    const QPoint to(dice_.between(1, window->width()), dice_.between(1, window->height()));
    const QPointer<QWindow> handle = window->windowHandle();
    if (!from || !QRect({}, handle->geometry().size()).contains(to)) {
        return;
    }
    begin(*window, QStringLiteral("drag from %1 to %2,%3").arg(control->objectName()).arg(to.x()).arg(to.y()));
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, *from);
    constexpr int kMoves = 3;
    for (int move = 1; move <= kMoves && !handle.isNull(); ++move) {
        const QPoint at = *from + (to - *from) * move / kMoves;
        if (QRect({}, handle->geometry().size()).contains(at)) {
            QTest::mouseMove(handle, at);
        }
    }
    if (!handle.isNull()) {
        const bool fits = QRect({}, handle->geometry().size()).contains(to);
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, fits ? to : QPoint(1, 1));
    }
}

} // namespace monkey
