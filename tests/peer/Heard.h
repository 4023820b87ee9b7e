#pragma once

// What a client hears, read by the protocol's description and not by the server's code.

#include "peer/Bytes.h"

#include <string>
#include <vector>

namespace peer {

/// The messages that came, each token a line: `columns a int 4, b nvarchar 40`, `row 1|x`, `done 10 C1 1` (status,
/// command, rows), `error 208`, `info 0 said`, `change 18`, `status 0`, `value 0 @handle 1`, `login`. The first message
/// is the answer to the login. `version` is the one agreed on.
std::vector<std::vector<std::string>> heardMessages(const Bytes& wire, std::uint32_t version);

} // namespace peer
