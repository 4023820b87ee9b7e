#pragma once

#include <functional>

namespace ado {

/// Sets what the present thread does while one of its statements waits for its server, and gives what was set before;
/// an empty function for nothing. It is called on this thread, at most twenty times a second. What it throws is
/// dropped, and a statement that it sends is refused with error 3711, without harm to the one that waits. It must not
/// end the life of a recordset that holds a row: to let the row go would be such a statement, so what was written
/// meanwhile on that connection is taken back.
std::function<void()> setWhileWaiting(std::function<void()> hook);

/// Sets it for the length of a scope.
class WhileWaiting {
public:
    explicit WhileWaiting(std::function<void()> hook) : before_(setWhileWaiting(std::move(hook))) {}
    WhileWaiting(const WhileWaiting&) = delete;
    WhileWaiting& operator=(const WhileWaiting&) = delete;
    ~WhileWaiting() { setWhileWaiting(std::move(before_)); }

private:
    std::function<void()> before_;
};

// For the drivers.

/// Whether there is anything to be done.
bool isWaitingUsed();
/// Does it, unless it was done a moment ago.
void whileWaiting() noexcept;
/// Throws error 3711 in the midst of it.
void refuseWhileWaiting();

} // namespace ado
