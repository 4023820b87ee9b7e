#pragma once

#include "app/monkey/Boxes.h"
#include "support/EndOfProcess.h"
#include "support/Gui.h"
#include "support/TestWorkstation.h"

#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace monkey {

/// The program on a fresh sample workstation, where the monkey visits its forms. It fails the test at the first step
/// that breaks a rule.
class Life {
public:
    Life(Dice& dice, Hands& hands, Boxes& boxes, Watchdog& watchdog);
    ~Life();
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    /// Opens every form of the program once, in any order, and does some events in it and in what it opens.
    void visitAll();
    const std::vector<std::string>& forms() const { return names_; }
    const support::TestWorkstation& workstation() const { return workstation_; }
    int ends() const { return ends_; }
    /// The program can't be started again.
    bool isOver() const { return over_; }

private:
    void start();
    void logIn();
    void goHome();
    void visit(const std::string& form);
    void open(const std::string& form);
    bool step();
    void check(const std::string& before);
    bool mayLeaveNothing(const std::string& before) const;
    QWidgetList visibleForms() const;
    std::string visibleNames() const;
    void hurry();
    void usePopup();
    void rights();
    void fail(const std::string& what) const;

    Dice& dice_;
    Hands& hands_;
    Boxes& boxes_;
    Watchdog& watchdog_;
    support::TestWorkstation workstation_;
    support::EndOfProcess end_;
    std::optional<support::Gui> gui_;
    std::vector<std::string> names_;
    QTimer impatience_; ///< fires when the program handles events in the middle of one
    bool working_ = false;
    int depth_ = 0; ///< of such events in such events
    bool over_ = false;
    int ends_ = 0;
};

} // namespace monkey
