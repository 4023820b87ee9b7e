#pragma once

#include <exception>
#include <utility>

namespace controls {

/// Shows the error's own description in a box.
void tellError(const std::exception& error);

/// Runs the code of one event. An error that no failure rule handled ends it with a box that shows the description;
/// then the result is false. The end of the process isn't caught.
template<typename Event>
bool guarded(Event&& event) {
    try {
        std::forward<Event>(event)();
        return true;
    } catch (const std::exception& error) {
        tellError(error);
        return false;
    }
}

} // namespace controls
