#include "engine/run/BatchRun.h"

#include "engine/errors/BindErrors.h"
#include "engine/errors/Error.h"
#include "engine/run/Definitions.h"
#include "engine/run/InternalErrors.h"
#include "engine/run/Procedures.h"
#include "engine/run/SystemTables.h"
#include "engine/run/Writer.h"
#include "engine/values/Collation.h"
#include "engine/values/Conversions.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

/// Errors that end the open transaction together with the batch.
constexpr std::array kConversionErrors = {241, 242, 245, 248, 8114, 8115, 517, 537};

bool writes(const Statement& statement) {
    const auto& node = statement.node;
    return std::holds_alternative<Insert>(node) || std::holds_alternative<Update>(node) ||
           std::holds_alternative<Delete>(node) || std::holds_alternative<Truncate>(node) ||
           std::holds_alternative<CreateTable>(node) || std::holds_alternative<AlterTable>(node) ||
           std::holds_alternative<CreateIndex>(node) || std::holds_alternative<Drop>(node);
}

/// UPDLOCK behind the one table of a SELECT: its rows are the transaction's alone until it ends.
bool asksForHold(const Select& select) {
    const auto& from = select.cores.front().from;
    const auto* table = from.size() == 1 ? std::get_if<NamedTable>(&from.front()->node) : nullptr;
    return table != nullptr && std::any_of(table->hints.begin(), table->hints.end(),
                                           [](const std::string& hint) { return sameText(hint, "UPDLOCK"); });
}

} // namespace

BatchRun::BatchRun(ServerSession& session, PlanPtr plan, Shape shape)
    : session_(&session),
      database_(&session.current()),
      shape_(std::move(shape)),
      ready_(std::move(plan)),
      checked_(true) {
    session.running(this);
}

BatchRun::BatchRun(ServerSession& session, BatchTree tree, std::optional<Shape> shape)
    : session_(&session), database_(&session.current()), tree_(std::move(tree)), shape_(std::move(shape)) {
    for (auto statement = tree_.statements.rbegin(); statement != tree_.statements.rend(); ++statement) {
        pending_.push_back(statement->get());
    }
    checked_ = tree_.statements.size() < 2;
    session.running(this);
}

BatchRun::~BatchRun() {
    if (session_ != nullptr) {
        endRows();
        if (session_->running() == this) {
            session_->running(nullptr);
        }
    }
}

void BatchRun::stop() {
    endRows();
    ready_ = nullptr;
    pending_.clear();
    session_ = nullptr;
}

void BatchRun::endRows() {
    if (outcome_.walk) {
        outcome_.walk->statement.reset();
    }
    outcome_ = {};
    columns_ = nullptr;
}

/// A step that fails ends the walk of its rows; the session goes on.
template<class Step>
bool BatchRun::guarded(Step step) {
    try {
        return answered(step);
    } catch (const Error& error) {
        endRows();
        answered([&] { failed(error); });
        throw;
    }
}

bool BatchRun::nextResult() {
    endRows();
    messages_.clear();
    if (session_ == nullptr) {
        return false;
    }
    return guarded([this] { return runNext(); });
}

bool BatchRun::runNext() {
    if (!checked_) {
        checked_ = true;
        bool goOn = true;
        for (const StatementPtr& statement : tree_.statements) {
            check(*statement, goOn);
        }
    }
    if (ready_) {
        const PlanPtr plan = std::exchange(ready_, nullptr);
        session_->prepareFor(session_->current(), plan->kind != Plan::Kind::Select);
        show(runPlanned(plan, {&shape_->literals, session_->dayFirst}));
        return true;
    }
    if (pending_.empty()) {
        return false;
    }
    const Statement& statement = *pending_.back();
    pending_.pop_back();
    if (const auto* block = std::get_if<Block>(&statement.node)) {
        for (auto inner = block->statements.rbegin(); inner != block->statements.rend(); ++inner) {
            pending_.push_back(inner->get());
        }
        return runNext();
    }
    session_->current().refresh();
    session_->prepareFor(session_->current(), writes(statement));
    if (const auto* branch = std::get_if<If>(&statement.node)) {
        const StatementPtr& taken = holds(*branch->condition) ? branch->then : branch->otherwise;
        if (taken) {
            pending_.push_back(taken.get());
        }
        return runNext();
    }
    show(run(statement));
    return true;
}

/// Names are looked up before the first statement runs, as far as they can be: what the batch makes itself, or the
/// database it goes to, isn't there yet.
void BatchRun::check(const Statement& statement, bool& goOn) {
    if (!goOn) {
        return;
    }
    if (const auto* block = std::get_if<Block>(&statement.node)) {
        for (const StatementPtr& inner : block->statements) {
            check(*inner, goOn);
        }
        return;
    }
    const auto& node = statement.node;
    if (std::holds_alternative<Use>(node) || std::holds_alternative<CreateTable>(node) ||
        std::holds_alternative<Drop>(node) || std::holds_alternative<Execute>(node) ||
        std::holds_alternative<SetOption>(node)) {
        goOn = false;
        return;
    }
    checkNames(*session_, statement);
}

Outcome BatchRun::run(const Statement& statement) {
    if (const auto* text = std::get_if<Print>(&statement.node)) {
        print(*text->text);
        return {};
    }
    if (const auto* call = std::get_if<Execute>(&statement.node)) {
        return callProcedure(*session_, *call, messages_);
    }
    if (define(*session_, statement)) {
        return {};
    }
    return runPlannedOf(statement);
}

Outcome BatchRun::runPlannedOf(const Statement& statement) {
    const auto* select = std::get_if<Select>(&statement.node);
    const bool holding = select != nullptr && asksForHold(*select);
    if (holding && session_->inTransaction()) {
        session_->holdUntilTransactionEnds(*select);
    }
    const PlanPtr plan = makePlan(*session_, statement);
    if (shape_ && plan->reusable && !holding) {
        fixLiterals(*plan, *shape_);
        session_->current().cache().add(*shape_, plan);
    }
    return runPlanned(plan, {nullptr, session_->dayFirst});
}

Outcome BatchRun::runPlanned(const PlanPtr& plan, const Bindings& bindings) {
    database_ = &session_->current();
    Outcome outcome;
    if (plan->kind != Plan::Kind::Select) {
        outcome.affected = write(*session_, *plan, bindings);
        return outcome;
    }
    try {
        for (const std::string& table : plan->systemTables) {
            fillSystemTable(table, *database_, session_->instance());
        }
        bindLiterals(plan->statement, plan->parameters, bindings);
    } catch (const sqlite::Failure& failure) {
        database_->raise(failure, nullptr, "");
    }
    outcome.walk = plan;
    return outcome;
}

bool BatchRun::holds(const Expression& condition) {
    const PlanPtr plan = makeConditionPlan(*session_, condition);
    show(runPlanned(plan, {nullptr, session_->dayFirst}));
    const bool result = stepRows() && integer(0) != 0;
    endRows();
    return result;
}

void BatchRun::print(const Expression& text) {
    const PlanPtr plan = makeValuePlan(*session_, text);
    show(runPlanned(plan, {nullptr, session_->dayFirst}));
    const std::string line = stepRows() && !isNull(0) ? std::string(this->text(0)) : std::string();
    endRows();
    messages_.push_back({0, line});
}

void BatchRun::show(Outcome outcome) {
    outcome_ = std::move(outcome);
    columns_ = outcome_.walk ? &outcome_.walk->columns : outcome_.memory ? &outcome_.memory->columns : nullptr;
    memoryRow_ = 0;
    walked_ = 0;
    formats_.clear();
    if (columns_ == nullptr) {
        session_->wrote(std::max<std::int64_t>(outcome_.affected, 0));
        session_->failed(0);
        return;
    }
    for (const ResultColumn& column : *columns_) {
        formats_.push_back(column.type.kind == DataType::Kind::Decimal          ? Format::Decimal
                           : column.type.isNumber() && !column.type.isInteger() ? Format::Real
                                                                                : Format::AsStored);
    }
}

const std::vector<ResultColumn>& BatchRun::columns() const {
    static const std::vector<ResultColumn> none;
    return columns_ == nullptr ? none : *columns_;
}

bool BatchRun::nextRow() {
    return guarded([this] { return stepRows(); });
}

bool BatchRun::stepRows() {
    if (outcome_.memory) {
        return memoryRow_ < outcome_.memory->rows.size() && ++memoryRow_ > 0;
    }
    if (!outcome_.walk) {
        return false;
    }
    try {
        if (outcome_.walk->statement.step()) {
            ++walked_;
            return true;
        }
    } catch (const sqlite::Failure& failure) {
        database_->raise(failure, nullptr, "");
    }
    session_->wrote(walked_);
    session_->failed(0);
    // The rows are over, the columns stay known; a read that goes on would keep the storage's log from being emptied.
    outcome_.walk->statement.reset();
    outcome_.memory = MemoryRows{};
    return false;
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
    if (error.reach() == Error::Reach::Statement) {
        return;
    }
    pending_.clear();
    const auto number = std::find(kConversionErrors.begin(), kConversionErrors.end(), error.number());
    if (number != kConversionErrors.end() && session_->inTransaction()) {
        session_->rollbackTransaction();
    }
}

const Scalar& BatchRun::memoryValue(int column) const {
    return outcome_.memory->rows[memoryRow_ - 1][static_cast<std::size_t>(column)];
}

bool BatchRun::isNull(int column) const {
    return outcome_.memory ? engine::isNull(memoryValue(column)) : outcome_.walk->statement.isNull(column);
}

std::int64_t BatchRun::integer(int column) const {
    if (!outcome_.memory) {
        return outcome_.walk->statement.integer(column);
    }
    const auto* value = std::get_if<std::int64_t>(&memoryValue(column));
    return value == nullptr ? 0 : *value;
}

double BatchRun::real(int column) const {
    return outcome_.memory ? static_cast<double>(integer(column)) : outcome_.walk->statement.real(column);
}

std::string_view BatchRun::text(int column) const {
    if (outcome_.memory) {
        const Scalar& value = memoryValue(column);
        if (const auto* text = std::get_if<std::string>(&value)) {
            return *text;
        }
        formatted_ = engine::isNull(value) ? std::string() : integerText(integer(column));
        return formatted_;
    }
    const sqlite::Statement& statement = outcome_.walk->statement;
    const Format format = formats_[static_cast<std::size_t>(column)];
    if (format == Format::AsStored || statement.isNull(column)) {
        return statement.text(column);
    }
    const double value = statement.real(column);
    formatted_ = format == Format::Decimal ? decimalText(value, (*columns_)[static_cast<std::size_t>(column)].type)
                                           : floatText(value);
    return formatted_;
}

} // namespace engine
