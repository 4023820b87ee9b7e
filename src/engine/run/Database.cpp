#include "engine/run/Database.h"

#include "engine/store/StorageErrors.h"

#include <sqlite3.h>

#include <utility>

namespace engine {

Database::Database(DatabaseEntry entry)
    : entry_(std::move(entry)),
      connection_(entry_.file, false),
      catalog_(connection_),
      locks_(entry_.file),
      begin_(connection_, "BEGIN"),
      lock_(connection_, "UPDATE main._vabo_identity SET next = next WHERE 0"),
      commit_(connection_, "COMMIT") {
    registerFunctions(connection_, functions_);
}

void Database::refresh() {
    if (catalog_.refresh()) {
        cache_.clear();
    }
}

void Database::begin() {
    begin_.step();
    begin_.reset();
    try {
        lock_.step();
        lock_.reset();
    } catch (...) {
        rollback();
        throw;
    }
}

void Database::commit() {
    commit_.step();
    commit_.reset();
}

void Database::rollback() noexcept {
    if (connection_.inTransaction()) {
        sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Database::raise(const sqlite::Failure& failure, const TableInfo* table, const char* verb) {
    if (functions_.refusal) {
        std::rethrow_exception(std::exchange(functions_.refusal, nullptr));
    }
    raiseFailure(connection_, name(), failure, table, verb);
}

WriteTransaction::WriteTransaction(Database& database)
    : database_(database), own_(!database.connection().inTransaction()) {
    if (own_) {
        database_.begin();
    }
}

WriteTransaction::~WriteTransaction() {
    if (own_) {
        database_.rollback();
    }
}

void WriteTransaction::commit() {
    if (own_) {
        database_.commit();
        own_ = false;
    }
}

} // namespace engine
