#include "engine/Database.h"

#include <sqlite3.h>

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
