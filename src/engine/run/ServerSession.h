#pragma once

// The session itself: the databases it has open, its settings, and what it remembers between statements.

#include "engine/run/Database.h"
#include "engine/run/InternalErrors.h"
#include "engine/run/KeptDatabases.h"
#include "engine/run/Session.h"
#include "engine/run/Settings.h"
#include "engine/text/Tree.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace engine {

class BatchRun;

class ServerSession final : public Session {
public:
    ServerSession(std::shared_ptr<Instance> instance, Login login, std::shared_ptr<KeptDatabases> kept);
    ~ServerSession() override;

    std::unique_ptr<Batch> execute(std::string_view text) override {
        return answered([&] { return begin(text); });
    }
    std::unique_ptr<RowHold> hold(std::string_view select) override {
        return answered([&] { return takeRows(select); });
    }
    const std::string& database() const override { return current_->name(); }
    std::int64_t lastIdentity() const override { return lastIdentity_; }

    Instance& instance() { return *instance_; }
    Database& current() { return *current_; }
    /// Opens another database of the instance, once; nullptr where there is none of that name.
    std::shared_ptr<Database> open(std::string_view name);
    /// Throws 911.
    void use(std::string_view name);
    /// Before a database is dropped: closes this session's own connection to it, unless it is the current one, and
    /// those that are kept for the next session.
    void forget(std::string_view name);

    Settings settings;

    /// What the session answers to the @@variables.
    void wrote(std::int64_t rows) { rowCount_ = rows; }
    void failed(int error) { lastError_ = error; }
    void gaveIdentity(std::int64_t value) { lastIdentity_ = value; }

    /// `name` may be empty. Only the outermost one's is remembered.
    void beginTransaction(const std::string& name);
    bool isOutermost(std::string_view transactionName) const;
    /// SET IMPLICIT_TRANSACTIONS: before a statement that touches a table.
    void beginTransactionOf(bool touchesTable);
    /// Throws 3902, 3903.
    void commitTransaction();
    void rollbackTransaction();
    bool inTransaction() const { return transactions_ > 0; }
    /// Holds the rows of a SELECT until the open transaction ends. Throws as `hold` does.
    void holdUntilTransactionEnds(const Select& select);
    /// Called before a statement runs on a database: gives it the statement's time, and joins a statement that writes
    /// to the open transaction. Reads before the first write see what others have committed meanwhile.
    void prepareFor(Database& database, bool writes);
    /// After a statement failed: where it was the transaction's first to write, takes it back and frees the write lock.
    void giveUpFirstWrite();
    /// After a statement failed: a full disk and the like make SQLite roll back all that the open transaction wrote to
    /// a database. Rolls the rest back too, since no part of it may be committed; true where that was so.
    bool endLostTransaction();

    /// The one batch that runs; nullptr when it ends.
    void running(BatchRun* batch) { running_ = batch; }
    const BatchRun* running() const { return running_; }

private:
    std::unique_ptr<Batch> begin(std::string_view text);
    std::unique_ptr<RowHold> takeRows(std::string_view select);
    Scalar fact(Fact fact, const Scalar& argument);
    /// OBJECT_ID of a name, its pieces from the last to the first; null where there is none.
    Scalar objectOf(const std::vector<std::string>& pieces);
    void stopBatch();
    std::unique_ptr<RowHold> holdRows(const Select& select);
    void takeBack(Database& database);

    std::shared_ptr<Database> opened(const DatabaseEntry& entry);

    std::shared_ptr<Instance> instance_;
    Login login_;
    std::shared_ptr<KeptDatabases> kept_;
    std::map<std::string, std::shared_ptr<Database>> databases_; ///< by the collation's key of the name
    std::shared_ptr<Database> current_;
    BatchRun* running_ = nullptr;
    std::int64_t lastIdentity_ = 0;
    std::int64_t rowCount_ = 0;
    int lastError_ = 0;
    int transactions_ = 0;
    std::string transactionName_;      ///< of the outermost
    std::set<const Database*> joined_; ///< databases that the open transaction has written to
    Database* firstWrite_ = nullptr;   ///< the database that the present statement joined to the transaction
    std::vector<std::unique_ptr<RowHold>> transactionHolds_;
};

} // namespace engine
