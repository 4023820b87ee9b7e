#include "engine/run/ServerSession.h"

#include "engine/errors/RunErrors.h"
#include "engine/run/BatchRun.h"
#include "engine/run/StatementKinds.h"
#include "engine/text/Lexer.h"
#include "engine/text/Parser.h"
#include "engine/values/Collation.h"

#include <algorithm>

namespace engine {

namespace {

constexpr std::string_view kMaster = "master";

} // namespace

std::unique_ptr<Session> Session::open(std::shared_ptr<Instance> instance, const Login& login,
                                       std::shared_ptr<KeptDatabases> kept) {
    return answered([&]() -> std::unique_ptr<Session> {
        if (!login.user.empty() && !instance->authenticates(login.user, login.password)) {
            throw errors::loginFailed(login.user);
        }
        return std::make_unique<ServerSession>(std::move(instance), login, std::move(kept));
    });
}

ServerSession::ServerSession(std::shared_ptr<Instance> instance, Login login, std::shared_ptr<KeptDatabases> kept)
    : instance_(std::move(instance)), login_(std::move(login)), kept_(std::move(kept)) {
    const std::string name = login_.database.empty() ? std::string(kMaster) : login_.database;
    current_ = open(name);
    if (current_ == nullptr) {
        throw errors::cannotOpenDatabase(name);
    }
}

ServerSession::~ServerSession() {
    stopBatch();
    // Plans that were made under IDENTITY_INSERT are this session's alone.
    if (kept_ == nullptr || !settings.identityInsert.empty()) {
        return;
    }
    transactionHolds_.clear();
    current_.reset();
    for (auto& [key, database] : databases_) {
        kept_->keep(std::move(database));
    }
}

void ServerSession::stopBatch() {
    if (running_ != nullptr) {
        std::exchange(running_, nullptr)->stop();
    }
}

std::shared_ptr<Database> ServerSession::open(std::string_view name) {
    const std::string key = collationKey(name);
    const auto entry = instance_->database(name);
    const auto known = databases_.find(key);
    if (known != databases_.end()) {
        if (entry && entry->file == known->second->entry().file && entry->id == known->second->entry().id) {
            return known->second;
        }
        databases_.erase(known); // dropped by another session, and perhaps made again
    }
    if (!entry) {
        return nullptr;
    }
    std::shared_ptr<Database> database;
    try {
        database = opened(*entry);
    } catch (const sqlite::Failure&) {
        return nullptr; // it is registered, but its file can't be opened
    }
    database->functions().fact = [this](Fact fact, const Scalar& argument) { return this->fact(fact, argument); };
    databases_.emplace(key, database);
    return database;
}

std::shared_ptr<Database> ServerSession::opened(const DatabaseEntry& entry) {
    std::shared_ptr<Database> database = kept_ == nullptr ? nullptr : kept_->take(entry);
    return database != nullptr ? database : std::make_shared<Database>(entry);
}

void ServerSession::use(std::string_view name) {
    auto database = open(name);
    if (database == nullptr) {
        throw errors::databaseMissing(std::string(name));
    }
    current_ = std::move(database);
}

void ServerSession::forget(std::string_view name) {
    if (!sameText(name, current_->name())) {
        databases_.erase(collationKey(name));
    }
    if (const auto entry = instance_->database(name); entry && kept_ != nullptr) {
        kept_->forget(*entry);
    }
}

std::unique_ptr<Batch> ServerSession::begin(std::string_view text) {
    stopBatch();
    const std::vector<Token> tokens = tokenize(text);
    Shape shape = shapeOf(tokens);
    PlanPtr plan = settings.takesPlans() ? current_->cache().find(shape) : nullptr;
    // A write that begins its own transaction looks for changes of the schema in there, without a lock for the look.
    const bool looksLater = plan != nullptr && plan->writes() && transactions_ == 0;
    if (!looksLater && current_->refresh()) {
        plan = nullptr;
    }
    if (plan != nullptr) {
        return std::make_unique<BatchRun>(*this, std::move(plan), std::move(shape), std::string(text));
    }
    BatchTree tree = parse(text);
    const bool keepsPlan =
        tree.statements.size() == 1 && kindOf(*tree.statements.front()).runBy == StatementKind::RunBy::Plan;
    return std::make_unique<BatchRun>(*this, std::move(tree),
                                      keepsPlan ? std::optional(std::move(shape)) : std::nullopt);
}

void ServerSession::beginTransaction(const std::string& name) {
    if (transactions_ == 0) {
        transactionName_ = name;
    }
    transactions_ += settings.implicitTransactions && transactions_ == 0 ? 2 : 1;
}

/// Names of transactions are told apart by their letters too, whatever the collation.
bool ServerSession::isOutermost(std::string_view transactionName) const {
    return transactionName == transactionName_;
}

void ServerSession::beginTransactionOf(bool touchesTable) {
    if (settings.implicitTransactions && touchesTable && transactions_ == 0) {
        transactions_ = 1;
        transactionName_.clear();
    }
}

void ServerSession::takeBack(Database& database) {
    joined_.erase(&database);
    database.connection().rollback();
    database.catalog().settleIdentities();
    database.refresh();
}

void ServerSession::giveUpFirstWrite() {
    if (firstWrite_ != nullptr && firstWrite_->connection().inTransaction()) {
        takeBack(*firstWrite_);
    }
    firstWrite_ = nullptr;
}

bool ServerSession::endLostTransaction() {
    const bool lost = std::any_of(databases_.begin(), databases_.end(), [this](const auto& one) {
        return joined_.count(one.second.get()) > 0 && !one.second->connection().inTransaction();
    });
    if (lost) {
        rollbackTransaction();
    }
    return lost;
}

void ServerSession::prepareFor(Database& database, bool writes) {
    firstWrite_ = nullptr;
    database.connection().waitAtMost(settings.patience());
    if ((writes || settings.stableReads) && transactions_ > 0 && !database.connection().inTransaction()) {
        try {
            database.connection().begin();
            firstWrite_ = &database;
            joined_.insert(&database);
        } catch (const sqlite::Failure& failure) {
            database.raise(failure, nullptr, "");
        }
    }
    database.functions().dateOrder = settings.dateOrder;
    database.functions().firstDayOfWeek = settings.firstDayOfWeek;
    database.functions().now.clear();
}

void ServerSession::commitTransaction() {
    if (transactions_ == 0) {
        throw errors::nothingToCommit();
    }
    if (transactions_ > 1) {
        --transactions_;
        return;
    }
    for (const auto& [key, database] : databases_) {
        try {
            if (database->connection().inTransaction()) {
                database->connection().commit();
            }
        } catch (const sqlite::Failure& failure) {
            rollbackTransaction();
            database->raise(failure, nullptr, "");
        }
    }
    transactions_ = 0;
    joined_.clear();
    transactionHolds_.clear();
}

void ServerSession::rollbackTransaction() {
    if (transactions_ == 0) {
        throw errors::nothingToRollBack();
    }
    transactions_ = 0;
    for (const auto& [key, database] : databases_) {
        takeBack(*database);
    }
    transactionHolds_.clear();
}

} // namespace engine
