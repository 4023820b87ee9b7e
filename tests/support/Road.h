#pragma once

#include "support/Capabilities.h"

namespace support {

/// How the program of a test reaches its server: embedded in the process, or over ODBC and the wire to a Peer.
enum class Road { Embedded, Wire };

/// Takes "--road=wire" or "--road=embedded" from a test executable's arguments; embedded where there is none. Any other
/// road ends the process.
void chooseRoad(int argc, const char* const* argv);
Road road();
const char* name(Road of);
const Capabilities& capabilities(Road of = road());

} // namespace support
