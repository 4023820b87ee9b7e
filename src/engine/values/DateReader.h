#pragma once

#include "engine/values/CalendarDate.h"
#include "engine/values/DateOrder.h"

#include <string_view>

namespace engine {

/// A date, a time or both as a text has them: numbers in `order`, `yyyymmdd`, `yyyy-mm-ddThh:mm:ss.mmm`, a month by its
/// English name. '' is 1900-01-01. Throws 241, and 242 where a number is out of its range.
CalendarDate readDate(std::string_view text, DateOrder order);

} // namespace engine
