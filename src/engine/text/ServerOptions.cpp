#include "engine/text/ServerOptions.h"

#include "engine/errors/Error.h"
#include "engine/text/OptionNames.h"

#include <array>

namespace engine {
namespace {

constexpr long long most = 2147483647;
constexpr long long least = -most - 1;
constexpr bool advanced = true;
constexpr bool basic = false;

constexpr std::array options{
    ServerOption{"access check cache bucket count", 0, 65536, 0, advanced},
    ServerOption{"access check cache quota", 0, most, 0, advanced},
    ServerOption{"Ad Hoc Distributed Queries", 0, 1, 0, advanced},
    ServerOption{"affinity I/O mask", least, most, 0, advanced},
    ServerOption{"affinity mask", least, most, 0, advanced},
    ServerOption{"affinity64 I/O mask", least, most, 0, advanced},
    ServerOption{"affinity64 mask", least, most, 0, advanced},
    ServerOption{"Agent XPs", 0, 1, 0, advanced},
    ServerOption{"allow updates", 0, 1, 0, basic},
    ServerOption{"backup compression default", 0, 1, 0, basic},
    ServerOption{"blocked process threshold (s)", 0, 86400, 0, advanced},
    ServerOption{"c2 audit mode", 0, 1, 0, advanced},
    ServerOption{"clr enabled", 0, 1, 0, basic},
    ServerOption{"common criteria compliance enabled", 0, 1, 0, advanced},
    ServerOption{"cost threshold for parallelism", 0, 32767, 5, advanced},
    ServerOption{"cross db ownership chaining", 0, 1, 0, basic},
    ServerOption{"cursor threshold", -1, most, -1, advanced},
    ServerOption{"Database Mail XPs", 0, 1, 0, advanced},
    ServerOption{"default full-text language", 0, most, 1033, advanced},
    ServerOption{"default language", 0, 9999, 0, basic},
    ServerOption{"default trace enabled", 0, 1, 1, advanced},
    ServerOption{"disallow results from triggers", 0, 1, 0, advanced},
    ServerOption{"EKM provider enabled", 0, 1, 0, advanced},
    ServerOption{"filestream access level", 0, 2, 0, basic},
    ServerOption{"fill factor (%)", 0, 100, 0, advanced},
    ServerOption{"ft crawl bandwidth (max)", 0, 32767, 100, advanced},
    ServerOption{"ft crawl bandwidth (min)", 0, 32767, 0, advanced},
    ServerOption{"ft notify bandwidth (max)", 0, 32767, 100, advanced},
    ServerOption{"ft notify bandwidth (min)", 0, 32767, 0, advanced},
    ServerOption{"index create memory (KB)", 704, most, 0, advanced},
    ServerOption{"in-doubt xact resolution", 0, 2, 0, advanced},
    ServerOption{"lightweight pooling", 0, 1, 0, advanced},
    ServerOption{"locks", 5000, most, 0, advanced},
    ServerOption{"max degree of parallelism", 0, 1024, 0, advanced},
    ServerOption{"max full-text crawl range", 0, 256, 4, advanced},
    ServerOption{"max server memory (MB)", 16, most, most, advanced},
    ServerOption{"max text repl size (B)", -1, most, 65536, basic},
    ServerOption{"max worker threads", 128, 32767, 0, advanced},
    ServerOption{"media retention", 0, 365, 0, advanced},
    ServerOption{"min memory per query (KB)", 512, most, 1024, advanced},
    ServerOption{"min server memory (MB)", 0, most, 0, advanced},
    ServerOption{"nested triggers", 0, 1, 1, basic},
    ServerOption{"network packet size (B)", 512, 32767, 4096, advanced},
    ServerOption{"Ole Automation Procedures", 0, 1, 0, advanced},
    ServerOption{"open objects", 0, most, 0, advanced},
    ServerOption{"optimize for ad hoc workloads", 0, 1, 0, advanced},
    ServerOption{"PH timeout (s)", 1, 3600, 60, advanced},
    ServerOption{"precompute rank", 0, 1, 0, advanced},
    ServerOption{"priority boost", 0, 1, 0, advanced},
    ServerOption{"query governor cost limit", 0, most, 0, advanced},
    ServerOption{"query wait (s)", -1, most, -1, advanced},
    ServerOption{"recovery interval (min)", 0, 32767, 0, advanced},
    ServerOption{"remote access", 0, 1, 1, basic},
    ServerOption{"remote admin connections", 0, 1, 0, basic},
    ServerOption{"remote login timeout (s)", 0, most, 20, basic},
    ServerOption{"remote proc trans", 0, 1, 0, basic},
    ServerOption{"remote query timeout (s)", 0, most, 600, basic},
    ServerOption{"Replication XPs", 0, 1, 0, advanced},
    ServerOption{"scan for startup procs", 0, 1, 0, advanced},
    ServerOption{"server trigger recursion", 0, 1, 1, basic},
    ServerOption{"set working set size", 0, 1, 0, advanced},
    ServerOption{showAdvancedOptions, 0, 1, 0, basic},
    ServerOption{"SMO and DMO XPs", 0, 1, 1, advanced},
    ServerOption{"transform noise words", 0, 1, 0, advanced},
    ServerOption{"two digit year cutoff", 1753, 9999, 2049, advanced},
    ServerOption{"user connections", 0, 32767, 0, advanced},
    ServerOption{"user options", 0, 32767, 0, basic},
    ServerOption{"xp_cmdshell", 0, 1, 0, advanced},
};

} // namespace

std::span<const ServerOption> serverOptions() {
    return options;
}

const ServerOption& serverOption(std::string_view name, bool advancedShown) {
    const auto match = matchOption(serverOptions(), name,
                                   [&](const ServerOption& option) { return advancedShown || !option.advanced; });
    if (match.count == 0) {
        throw errors::optionMissing(std::string(name));
    }
    if (match.option == nullptr) {
        throw Error(15124, "The configuration option '" + std::string(name) + "' is not unique.");
    }
    return *match.option;
}

void checkServerOptionValue(const ServerOption& option, long long value) {
    const bool taken = (value >= option.minimum && value <= option.maximum) || value == option.standard;
    if (!taken) {
        throw Error(15129, "'" + std::to_string(value) + "' is not a valid value for configuration option '" +
                               option.name + "'.");
    }
}

} // namespace engine
