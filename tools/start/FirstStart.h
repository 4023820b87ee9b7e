#pragma once

namespace start {

/// Whether drive C tells where the server is. Without that the console ends at its first step.
bool isSetUp();
/// Tells what is missing and offers the sample workstation instead. True where it was laid down.
bool setUp();

} // namespace start
