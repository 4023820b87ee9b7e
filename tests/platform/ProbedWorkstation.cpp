#include "platform/ProbedWorkstation.h"

#include "support/Processes.h"

#include <sstream>

namespace platform {

Facts probe(Environment environment) {
    for (const char* name : {"VABO_DRIVE_C", "XDG_DATA_HOME", "LC_ALL", "LANG", "LC_NUMERIC", "LANGUAGE"}) {
        environment.try_emplace(name, "");
    }
    support::HelperProcess helper("workstation_probe", {}, environment);
    std::istringstream lines(helper.readAll());
    Facts facts;
    for (std::string line; std::getline(lines, line);) {
        facts[line.substr(0, line.find(' '))] = line.substr(line.find(' ') + 1);
    }
    return facts;
}

} // namespace platform
