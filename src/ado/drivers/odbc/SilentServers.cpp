#include "ado/drivers/odbc/SilentServers.h"

#include <QAbstractEventDispatcher>
#include <QThread>

#include <map>

namespace ado::odbc {

namespace {

std::map<std::string, Error>& silent() {
    static std::map<std::string, Error> servers;
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
    QAbstractEventDispatcher* events = QAbstractEventDispatcher::instance();
    if (events == nullptr || QThread::currentThread()->loopLevel() == 0) {
        return;
    }
    if (silent().empty()) {
        QObject::connect(
            events, &QAbstractEventDispatcher::aboutToBlock, events, [] { silent().clear(); },
            Qt::SingleShotConnection);
    }
    silent().insert_or_assign(server, outOfReach(error));
}

void refuseSilent(const std::string& server) {
    const auto found = silent().find(server);
    if (found != silent().end()) {
        throw Error(found->second);
    }
}

} // namespace ado::odbc
