#include "engine/run/ResultRows.h"

#include "engine/run/SystemTables.h"
#include "engine/values/Conversions.h"

namespace engine {

PlanRows::PlanRows(ServerSession& session, PlanPtr plan, const Bindings& bindings, std::int64_t most)
    : session_(session), database_(session.current()), plan_(std::move(plan)), most_(most) {
    try {
        for (const std::string& table : plan_->systemTables) {
            fillSystemTable(table, database_, session_.instance());
        }
        bindLiterals(plan_->statement, plan_->parameters, bindings);
    } catch (const sqlite::Failure& failure) {
        database_.raise(failure, nullptr, "");
    }
}

PlanRows::~PlanRows() {
    plan_->statement.reset();
}

bool PlanRows::next() {
    if (over_) {
        return false;
    }
    try {
        if ((most_ == 0 || walked_ < most_) && plan_->statement.step()) {
            ++walked_;
            return true;
        }
    } catch (const sqlite::Failure& failure) {
        database_.raise(failure, nullptr, "");
    }
    over_ = true;
    session_.wrote(walked_);
    session_.failed(0);
    // A read that stays open would keep the storage's log from being emptied.
    plan_->statement.reset();
    return false;
}

std::string_view PlanRows::text(int column) const {
    const sqlite::Statement& statement = plan_->statement;
    const DataType& type = plan_->columns[static_cast<std::size_t>(column)].type;
    if (!type.isNumber() || type.isInteger() || statement.isNull(column)) {
        return statement.text(column);
    }
    formatted_ = type.kind != DataType::Kind::Decimal ? floatText(statement.real(column))
                 : statement.isInteger(column)        ? Decimal::of(statement.integer(column)).text(type.scale)
                                                      : Decimal::of(statement.real(column)).text(type.scale);
    return formatted_;
}

std::int64_t ListedRows::integer(int column) const {
    const auto* number = std::get_if<std::int64_t>(&value(column));
    return number == nullptr ? 0 : *number;
}

std::string_view ListedRows::text(int column) const {
    if (const auto* text = std::get_if<std::string>(&value(column))) {
        return *text;
    }
    if (isNull(column)) {
        return {};
    }
    formatted_ = integerText(integer(column));
    return formatted_;
}

} // namespace engine
