#include "ado/drivers/odbc/SilentServers.h"

#include "ado/PresentEvent.h"

#include <chrono>
#include <map>

namespace ado::odbc {

namespace {

std::map<std::string, Error>& silent() {
    static std::map<std::string, Error> servers;
    return servers;
}

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds kMoment{1};

std::map<std::string, Clock::time_point>& answers() {
    static std::map<std::string, Clock::time_point> servers;
    return servers;
}

} // namespace

bool isSilence(const Error& error) {
    return error.sqlState() == "HYT00" || error.sqlState() == "HYT01";
}

Error outOfReach(const Error& error) {
    Error told(kUnspecified, "Server does not exist or access denied.", "08001", error.nativeError(), {});
    return told.in(error.description()).in(error.context());
}

void rememberSilent(const std::string& server, const Error& error) {
    if (!silent().empty() || atEndOfEvent([] { silent().clear(); })) {
        silent().insert_or_assign(server, outOfReach(error));
    }
}

void refuseSilent(const std::string& server) {
    const auto found = silent().find(server);
    if (found != silent().end()) {
        throw Error(found->second);
    }
}

void rememberAnswer(const std::string& server) {
    if (!answers().empty() || atEndOfEvent([] { answers().clear(); })) {
        answers().insert_or_assign(server, Clock::now());
    }
}

void forgetAnswer(const std::string& server) {
    const auto found = answers().find(server);
    if (found != answers().end()) {
        found->second = {}; // the entry stays: the end of the event is arranged while there is one
    }
}

bool hasJustAnswered(const std::string& server) {
    const auto found = answers().find(server);
    return found != answers().end() && Clock::now() - found->second < kMoment;
}

} // namespace ado::odbc
