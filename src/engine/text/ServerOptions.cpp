#include "engine/text/ServerOptions.h"

#include "engine/errors/TextErrors.h"
#include "engine/text/OptionNames.h"

#include <array>

namespace engine {
namespace {

constexpr long long kMost = 2147483647;
constexpr long long kLeast = -kMost - 1;
constexpr bool kAdvanced = true;
constexpr bool kBasic = false;

constexpr std::array kOptions{
    ServerOption{"access check cache bucket count", 0, 65536, 0, kAdvanced},
    ServerOption{"access check cache quota", 0, kMost, 0, kAdvanced},
    ServerOption{"Ad Hoc Distributed Queries", 0, 1, 0, kAdvanced},
    ServerOption{"affinity I/O mask", kLeast, kMost, 0, kAdvanced},
    ServerOption{"affinity mask", kLeast, kMost, 0, kAdvanced},
    ServerOption{"affinity64 I/O mask", kLeast, kMost, 0, kAdvanced},
    ServerOption{"affinity64 mask", kLeast, kMost, 0, kAdvanced},
    ServerOption{"Agent XPs", 0, 1, 0, kAdvanced},
    ServerOption{"allow updates", 0, 1, 0, kBasic},
    ServerOption{"backup compression default", 0, 1, 0, kBasic},
    ServerOption{"blocked process threshold (s)", 0, 86400, 0, kAdvanced},
    ServerOption{"c2 audit mode", 0, 1, 0, kAdvanced},
    ServerOption{"clr enabled", 0, 1, 0, kBasic},
    ServerOption{"common criteria compliance enabled", 0, 1, 0, kAdvanced},
    ServerOption{"cost threshold for parallelism", 0, 32767, 5, kAdvanced},
    ServerOption{"cross db ownership chaining", 0, 1, 0, kBasic},
    ServerOption{"cursor threshold", -1, kMost, -1, kAdvanced},
    ServerOption{"Database Mail XPs", 0, 1, 0, kAdvanced},
    ServerOption{"default full-text language", 0, kMost, 1033, kAdvanced},
    ServerOption{"default language", 0, 9999, 0, kBasic},
    ServerOption{"default trace enabled", 0, 1, 1, kAdvanced},
    ServerOption{"disallow results from triggers", 0, 1, 0, kAdvanced},
    ServerOption{"EKM provider enabled", 0, 1, 0, kAdvanced},
    ServerOption{"filestream access level", 0, 2, 0, kBasic},
    ServerOption{"fill factor (%)", 0, 100, 0, kAdvanced},
    ServerOption{"ft crawl bandwidth (max)", 0, 32767, 100, kAdvanced},
    ServerOption{"ft crawl bandwidth (min)", 0, 32767, 0, kAdvanced},
    ServerOption{"ft notify bandwidth (max)", 0, 32767, 100, kAdvanced},
    ServerOption{"ft notify bandwidth (min)", 0, 32767, 0, kAdvanced},
    ServerOption{"index create memory (KB)", 704, kMost, 0, kAdvanced},
    ServerOption{"in-doubt xact resolution", 0, 2, 0, kAdvanced},
    ServerOption{"lightweight pooling", 0, 1, 0, kAdvanced},
    ServerOption{"locks", 5000, kMost, 0, kAdvanced},
    ServerOption{"max degree of parallelism", 0, 1024, 0, kAdvanced},
    ServerOption{"max full-text crawl range", 0, 256, 4, kAdvanced},
    ServerOption{"max server memory (MB)", 16, kMost, kMost, kAdvanced},
    ServerOption{"max text repl size (B)", -1, kMost, 65536, kBasic},
    ServerOption{"max worker threads", 128, 32767, 0, kAdvanced},
    ServerOption{"media retention", 0, 365, 0, kAdvanced},
    ServerOption{"min memory per query (KB)", 512, kMost, 1024, kAdvanced},
    ServerOption{"min server memory (MB)", 0, kMost, 0, kAdvanced},
    ServerOption{"nested triggers", 0, 1, 1, kBasic},
    ServerOption{"network packet size (B)", 512, 32767, 4096, kAdvanced},
    ServerOption{"Ole Automation Procedures", 0, 1, 0, kAdvanced},
    ServerOption{"open objects", 0, kMost, 0, kAdvanced},
    ServerOption{"optimize for ad hoc workloads", 0, 1, 0, kAdvanced},
    ServerOption{"PH timeout (s)", 1, 3600, 60, kAdvanced},
    ServerOption{"precompute rank", 0, 1, 0, kAdvanced},
    ServerOption{"priority boost", 0, 1, 0, kAdvanced},
    ServerOption{"query governor cost limit", 0, kMost, 0, kAdvanced},
    ServerOption{"query wait (s)", -1, kMost, -1, kAdvanced},
    ServerOption{"recovery interval (min)", 0, 32767, 0, kAdvanced},
    ServerOption{"remote access", 0, 1, 1, kBasic},
    ServerOption{"remote admin connections", 0, 1, 0, kBasic},
    ServerOption{"remote login timeout (s)", 0, kMost, 20, kBasic},
    ServerOption{"remote proc trans", 0, 1, 0, kBasic},
    ServerOption{"remote query timeout (s)", 0, kMost, 600, kBasic},
    ServerOption{"Replication XPs", 0, 1, 0, kAdvanced},
    ServerOption{"scan for startup procs", 0, 1, 0, kAdvanced},
    ServerOption{"server trigger recursion", 0, 1, 1, kBasic},
    ServerOption{"set working set size", 0, 1, 0, kAdvanced},
    ServerOption{kShowAdvancedOptions, 0, 1, 0, kBasic},
    ServerOption{"SMO and DMO XPs", 0, 1, 1, kAdvanced},
    ServerOption{"transform noise words", 0, 1, 0, kAdvanced},
    ServerOption{"two digit year cutoff", 1753, 9999, 2049, kAdvanced},
    ServerOption{"user connections", 0, 32767, 0, kAdvanced},
    ServerOption{"user options", 0, 32767, 0, kBasic},
    ServerOption{"xp_cmdshell", 0, 1, 0, kAdvanced},
};

} // namespace

std::span<const ServerOption> serverOptions() {
    return kOptions;
}

const ServerOption& serverOption(std::string_view name, bool advancedShown) {
    const auto match = matchOption(serverOptions(), name,
                                   [&](const ServerOption& option) { return advancedShown || !option.advanced; });
    if (match.count == 0) {
        throw errors::optionMissing(name);
    }
    if (match.option == nullptr) {
        throw errors::optionAmbiguous(name);
    }
    return *match.option;
}

void checkServerOptionValue(const ServerOption& option, long long value) {
    const bool taken = (value >= option.minimum && value <= option.maximum) || value == option.standard;
    if (!taken) {
        throw errors::optionValue(value, option.name);
    }
}

} // namespace engine
