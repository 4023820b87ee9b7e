#pragma once

#include <span>
#include <string_view>

namespace engine {

/// An option of sp_configure as the server is delivered.
struct ServerOption {
    const char* name;
    long long minimum, maximum, standard;
    bool advanced;
};

constexpr const char* kShowAdvancedOptions = "show advanced options";

/// In the order in which the server lists them.
std::span<const ServerOption> serverOptions();

/// By its name or a part that only one visible option has. Advanced ones are visible when shown. Throws 15123 where
/// there is none, 15124 where there are several.
const ServerOption& serverOption(std::string_view name, bool advancedShown);

/// Throws 15129 for a value that the option doesn't take.
void checkServerOptionValue(const ServerOption& option, long long value);

} // namespace engine
