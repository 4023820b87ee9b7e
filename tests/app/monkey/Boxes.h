#pragma once

#include "app/monkey/Hands.h"
#include "controls/QtDialogs.h"

#include <QObject>

class QDialog;

namespace monkey {

/// Answers every box at random while it lives: most are the program's own windows, at which the hands try this and
/// that until one of its buttons closes it; the others are answered before they come, as fast as no user can.
class Boxes : public QObject {
public:
    Boxes(Dice& dice, Hands& hands);
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;
    ~Boxes() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The text of the last message, question or title.
    const std::string& last() const { return last_; }
    long count() const { return count_; }

private:
    class Answers;

    bool atOnce(const char* kind, const std::string& text);
    void use(QDialog& box);

    Dice& dice_;
    Hands& hands_;
    std::string last_;
    long count_ = 0;
};

} // namespace monkey
