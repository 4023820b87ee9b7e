#pragma once

#include <exception>
#include <utility>

namespace controls {

/// The error's own description in a box.
void tellError(const std::exception& error);

/// Runs one event. An error that no rule took becomes a box with its description, and the event ends; the end of the
/// process passes. False when an error ended it.
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
