#pragma once

#include <map>
#include <string>

namespace platform {

using Environment = std::map<std::string, std::string>;
using Facts = std::map<std::string, std::string>;

/// What the program says of its workstation when it is started with this environment.
Facts probe(Environment environment);

} // namespace platform
