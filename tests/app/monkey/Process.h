#pragma once

#include <cstddef>

namespace monkey {

/// Calls the function when a signal or a sanitizer ends this process.
void callAtDeath(void (*function)());
/// Writes to the standard error, without memory of the heap.
void writeRaw(const char* text);

/// Bytes of the heap in use.
std::size_t heap();
int openFiles();

} // namespace monkey
