#pragma once

#include <QString>

#include <string>

namespace monkey {

/// The last few hundred steps, which are printed where a run fails, crashes or hangs. A step is told before it is done.
namespace story {

/// Prints the story when a signal or a sanitizer ends the process. `headline` is its first line.
void printAtDeath(const std::string& headline);

void tell(const QString& step);
/// Forgets all steps.
void begin();

/// For failures.
std::string text();
/// To the standard error, without memory of the heap: the process may be about to die.
void print();

} // namespace story

} // namespace monkey
