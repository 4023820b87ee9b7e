#pragma once

#include "app/monkey/Dice.h"
#include "app/monkey/Watchdog.h"

#include <QList>
#include <QPoint>
#include <QString>

#include <functional>
#include <map>
#include <string>

class QAbstractItemView;
class QWidget;
class QWindow;

namespace monkey {

/// What a user can do with keyboard, mouse and window manager, at random, on whatever is in front. Events go to windows
/// and never to widgets, so that popups and modal boxes keep from the forms what they keep from a user's.
class Hands {
public:
    explicit Hands(Dice& dice) : dice_(dice) {}

    /// Does one event.
    void act();
    /// Only what a window manager does, on that form.
    void manage(QWidget& window);

    void key(int key, Qt::KeyboardModifiers modifiers);
    void type(const QString& text);
    void click(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
    void closeWindow(QWidget& window);

    /// The visible forms, in an order that depends on nothing but the events.
    std::function<QList<QWidget*>()> forms;
    /// The events so far.
    long events() const { return events_; }
    /// How many events each form has had.
    const std::map<std::string, long>& eventsOf() const { return eventsOf_; }

private:
    QWidget* front();
    QWindow* focusWindow();
    QWidget* anyControl(const QWidget& window);
    void begin(const QWidget& window, const QString& what);

    void anyKey();
    void anyChord();
    void mnemonic();
    void paste();
    void commit(const QString& text);
    void anyClick();
    void clickAt(QWidget& control, QPoint place, const QString& where);
    void itemClick();
    void clickItem(QAbstractItemView& view);
    void wheel();
    void drag();

    Dice& dice_;
    long events_ = 0;
    std::map<std::string, long> eventsOf_;
};

} // namespace monkey
