#include "engine/run/Database.h"

#include "engine/store/StorageErrors.h"

#include <utility>

namespace engine {

Database::Database(DatabaseEntry entry)
    : entry_(std::move(entry)),
      connection_(entry_.file, false),
      catalog_(connection_),
      locks_(std::in_place, entry_.file) {
    connection_.lockBy("UPDATE main._vabo_identity SET next = next WHERE 0");
    registerFunctions(connection_, functions_);
}

bool Database::leave() {
    locks_.reset();
    catalog_.forgetGiven();
    functions_ = {};
    return connection_.isIdle();
}

bool Database::enter() {
    if (connection_.isMoved()) {
        return false;
    }
    locks_.emplace(entry_.file);
    return true;
}

bool Database::refresh() {
    const bool changed = catalog_.refresh();
    if (changed) {
        cache_.clear();
    }
    return changed;
}

void Database::raise(const sqlite::Failure& failure, const TableInfo* table, const char* verb) {
    if (functions_.refusal) {
        std::rethrow_exception(std::exchange(functions_.refusal, nullptr));
    }
    raiseFailure(connection_, name(), failure, table, verb);
}

} // namespace engine
