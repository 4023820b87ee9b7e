#pragma once

#include "support/Capabilities.h"

namespace support {

/// How the program of a test reaches its server: embedded in the process, or over ODBC and the wire to a Peer.
enum class TestedDriver { Embedded, Wire };

/// Takes "--driver=wire" or "--driver=embedded" from a test executable's arguments; where there is none, the last
/// choice stays, which is embedded at first. Any other value ends the process with exit code 2.
void chooseTestedDriver(int argc, const char* const* argv);
TestedDriver testedDriver();
const char* name(TestedDriver of);
const Capabilities& capabilities(TestedDriver of = testedDriver());

} // namespace support
