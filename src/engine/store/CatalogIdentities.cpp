#include "engine/errors/Error.h"
#include "engine/errors/ValueErrors.h"
#include "engine/store/CatalogState.h"
#include "engine/values/Conversions.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace engine {
namespace {

/// The values that an identity of the type may give; a bigint and a decimal keep kRoom for the step behind their last.
IntegerRange valuesOf(const DataType& type) {
    constexpr std::int64_t kRoom = std::numeric_limits<std::int32_t>::max();
    if (type.isInteger() && type.kind != DataType::Kind::BigInt) {
        return rangeOf(type);
    }
    const IntegerRange range = rangeOf({DataType::Kind::BigInt});
    return {range.first + kRoom, range.last - kRoom};
}

/// The later one of two values in the direction that the identity counts.
std::int64_t further(const ColumnInfo& identity, std::int64_t left, std::int64_t right) {
    return identity.increment < 0 ? std::min(left, right) : std::max(left, right);
}

const ColumnInfo& identityOf(const TableInfo& table) {
    const ColumnInfo* identity = table.identity();
    if (identity == nullptr) {
        throw InternalError("the table " + table.name + " has no identity");
    }
    return *identity;
}

} // namespace

std::int64_t Catalog::nextIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    std::int64_t value = state_->storedNext(id);
    const auto known = state_->given.find(id);
    if (known != state_->given.end()) {
        value = further(identity, value, known->second);
    }
    const IntegerRange range = valuesOf(identity.type);
    if (value < range.first || value > range.last) {
        throw errors::overflow("IDENTITY", toText(identity.type));
    }
    const std::int64_t next = value + identity.increment;
    state_->given[id] = next;
    state_->storeNext(id, next);
    return value;
}

void Catalog::forgetGiven() {
    state_->given.clear();
}

void Catalog::raiseIdentity(const TableInfo& table, std::int64_t used) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    const std::int64_t stored = state_->storedNext(id);
    const std::int64_t next = further(identity, stored, used + identity.increment);
    if (next != stored) {
        state_->storeNext(id, next);
    }
}

void Catalog::settleIdentities() {
    for (const auto& [key, entry] : state_->tables) {
        const auto known = state_->given.find(entry->id);
        if (known == state_->given.end()) {
            continue;
        }
        const ColumnInfo& identity = identityOf(entry->info);
        const std::int64_t stored = state_->storedNext(entry->id);
        if (further(identity, stored, known->second) != stored) {
            state_->storeNext(entry->id, known->second);
        }
    }
}

void Catalog::resetIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t id = state_->entry(table.name).id;
    sqlite::Transaction transaction(state_->connection);
    state_->given.erase(id);
    state_->storeNext(id, identity.seed);
    state_->changed();
    transaction.commit();
}

std::int64_t Catalog::currentIdentity(const TableInfo& table) {
    const ColumnInfo& identity = identityOf(table);
    const std::int64_t next = state_->storedNext(state_->entry(table.name).id);
    return next == identity.seed ? next : next - identity.increment;
}

} // namespace engine
