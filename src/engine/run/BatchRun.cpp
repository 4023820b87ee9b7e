#include "engine/run/BatchRun.h"

#include "engine/errors/Error.h"
#include "engine/run/InternalErrors.h"
#include "engine/run/Planner.h"
#include "engine/run/StatementKinds.h"
#include "engine/run/Writer.h"
#include "engine/text/Parser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace engine {

namespace {

/// Errors that end the open transaction together with the batch.
constexpr std::array kConversionErrors = {241, 242, 245, 248, 8114, 8115, 517, 536, 537};

/// SET IMPLICIT_TRANSACTIONS: what begins a transaction.
template<class Node>
bool touchesTable(const Node& node) {
    if constexpr (std::is_same_v<Node, Select>) {
        return !node.cores.front().from.empty();
    } else {
        return kKindOf<Node>.writes;
    }
}

Verb verbOf(const Statement& statement) {
    return std::visit(
        [](const auto& node) {
            using Node = std::remove_cvref_t<decltype(node)>;
            if constexpr (std::is_same_v<Node, Transaction>) {
                return node.kind == Transaction::Kind::Begin    ? Verb::Begin
                       : node.kind == Transaction::Kind::Commit ? Verb::Commit
                                                                : Verb::Rollback;
            }
            return kKindOf<Node>.verb;
        },
        statement.node);
}

/// Names are looked up before the first statement runs, as far as they can be. False where what the batch makes itself,
/// or the database it goes to, isn't there yet.
bool checkAll(ServerSession& session, const std::vector<StatementPtr>& statements) {
    return std::all_of(statements.begin(), statements.end(), [&](const StatementPtr& statement) {
        return std::visit(
            [&](const auto& node) {
                using Names = StatementKind::Names;
                constexpr Names kNames = kKindOf<decltype(node)>.names;
                if constexpr (kNames == Names::Checked) {
                    checkNames(session, *statement);
                } else if constexpr (kNames == Names::OfItsStatements) {
                    return checkAll(session, node.statements);
                }
                return kNames != Names::EndCheck;
            },
            statement->node);
    });
}

} // namespace

BatchRun::BatchRun(ServerSession& session, PlanPtr plan, Shape shape, std::string text)
    : session_(&session), shape_(std::move(shape)), ready_(std::move(plan)), text_(std::move(text)), checked_(true) {
    session.running(this);
}

BatchRun::BatchRun(ServerSession& session, BatchTree tree, std::optional<Shape> shape)
    : session_(&session), tree_(std::move(tree)), shape_(std::move(shape)), checked_(tree_.statements.size() < 2) {
    queue(tree_.statements);
    session.running(this);
}

BatchRun::~BatchRun() {
    if (session_ != nullptr && session_->running() == this) {
        session_->running(nullptr);
    }
}

void BatchRun::stop() {
    outcome_ = {};
    ready_ = nullptr;
    pending_.clear();
    session_ = nullptr;
}

void BatchRun::queue(const std::vector<StatementPtr>& statements) {
    for (auto statement = statements.rbegin(); statement != statements.rend(); ++statement) {
        pending_.push_back(statement->get());
    }
}

/// A step that fails ends the walk of its rows; the session goes on.
template<class Step>
bool BatchRun::guarded(Step step) {
    try {
        return answered(step);
    } catch (const Error& error) {
        outcome_ = {};
        answered([&] { failed(error); });
        throw;
    }
}

bool BatchRun::nextResult() {
    outcome_ = {};
    messages_.clear();
    return session_ != nullptr && guarded([this] { return runNext(); });
}

bool BatchRun::runNext() {
    if (!std::exchange(checked_, true) && !session_->settings.parseOnly) {
        checkAll(*session_, tree_.statements);
    }
    if (const PlanPtr plan = std::exchange(ready_, nullptr)) {
        verb_ = plan->verb;
        session_->prepareFor(session_->current(), plan->writes());
        try {
            show(runPlan(*session_, plan, {&shape_->literals, session_->settings.dateOrder}));
            return true;
        } catch (const StalePlan&) {
            tree_ = parse(text_);
            queue(tree_.statements);
        }
    }
    bool shown = false;
    while (!shown && !pending_.empty()) {
        const Statement& statement = *pending_.back();
        pending_.pop_back();
        verb_ = verbOf(statement);
        std::visit(
            [&](const auto& node) {
                constexpr StatementKind kKind = kKindOf<decltype(node)>;
                if constexpr (kKind.runBy == StatementKind::RunBy::Batch) {
                    enter(node);
                } else if constexpr (std::is_same_v<std::remove_cvref_t<decltype(node)>, SetOption>) {
                    shown = run(statement, kKind.writes, false);
                } else {
                    shown = session_->settings.runsNothing() ? describe(statement)
                                                             : run(statement, kKind.writes, touchesTable(node));
                }
            },
            statement.node);
    }
    return shown;
}

bool BatchRun::run(const Statement& statement, bool writes, bool touchesTable) {
    begin(writes, touchesTable);
    show(runStatement(*session_, statement, shape_, messages_));
    return true;
}

bool BatchRun::describe(const Statement& statement) {
    const Settings& settings = session_->settings;
    if (settings.parseOnly || kindOf(statement).runBy != StatementKind::RunBy::Plan) {
        return false;
    }
    begin(false, false);
    PlanPtr plan = makePlan(*session_, statement);
    if (!settings.formatOnly || plan->writes()) {
        return false;
    }
    outcome_.rows = std::make_unique<ListedRows>(Listing{plan->columns, {}});
    return true;
}

void BatchRun::begin(bool writes, bool touchesTable) {
    session_->current().refresh();
    session_->beginTransactionOf(touchesTable);
    session_->prepareFor(session_->current(), writes);
}

void BatchRun::enter(const If& branch) {
    const Settings& settings = session_->settings;
    if (settings.runsNothing()) {
        for (const Statement* each : {branch.otherwise.get(), branch.then.get()}) {
            if (each != nullptr) {
                pending_.push_back(each);
            }
        }
        return;
    }
    begin(kKindOf<If>.writes, false);
    const StatementPtr& taken = holds(*session_, *branch.condition) ? branch.then : branch.otherwise;
    if (taken) {
        pending_.push_back(taken.get());
    }
}

void BatchRun::enter(const Block& block) {
    queue(block.statements);
}

void BatchRun::show(Outcome outcome) {
    outcome_ = std::move(outcome);
    if (!outcome_.rows) {
        session_->wrote(std::max<std::int64_t>(outcome_.affected, 0));
        session_->failed(0);
    }
}

const std::vector<ResultColumn>& BatchRun::columns() const {
    static const std::vector<ResultColumn> kNone;
    return outcome_.rows ? outcome_.rows->columns() : kNone;
}

std::int64_t BatchRun::affected() const {
    return session_ != nullptr && session_->settings.noCount ? -1 : outcome_.affected;
}

const ResultRow* BatchRun::nextRow() {
    return outcome_.rows && guarded([this] { return outcome_.rows->next(); }) ? outcome_.rows.get() : nullptr;
}

void BatchRun::failed(const Error& error) {
    if (session_ == nullptr) {
        return;
    }
    session_->failed(error.number());
    session_->wrote(0);
    session_->giveUpFirstWrite();
    if (session_->endLostTransaction()) {
        pending_.clear();
    }
    const bool aborts = session_->settings.abortsTransactions;
    if (error.reach() == Error::Reach::Statement && !aborts) {
        return;
    }
    pending_.clear();
    const auto number = std::find(kConversionErrors.begin(), kConversionErrors.end(), error.number());
    if ((aborts || number != kConversionErrors.end()) && session_->inTransaction()) {
        session_->rollbackTransaction();
    }
}

} // namespace engine
