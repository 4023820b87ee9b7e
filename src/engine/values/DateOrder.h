#pragma once

namespace engine {

/// How the numbers of a date stand in a text where no style says it: SET DATEFORMAT and SET LANGUAGE.
enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

} // namespace engine
