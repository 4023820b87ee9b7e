#include "ado/Assignment.h"
#include "ado/RecordsetState.h"
#include "ado/Source.h"

#include <algorithm>
#include <utility>

namespace ado {

void Recordset::State::demandEditable() {
    if (lock == LockType::ReadOnly || !edits().tellsRowsApart()) {
        throw Error(kNotUpdatable);
    }
}

const RowStatements& Recordset::State::edits() {
    if (statements) {
        return *statements;
    }
    if (!selectsPlainRows(statement)) {
        throw Error(kNotUpdatable);
    }
    driverConnection->nameSources(statement, fields);
    const auto table = RowStatements::baseTable(fields);
    if (!table) {
        throw Error(kNotUpdatable);
    }
    const bool byIdentity = std::ranges::any_of(fields, &FieldDescription::identity);
    statements.emplace(fields, *table, byIdentity ? std::vector<std::string>() : driverConnection->primaryKey(*table));
    return *statements;
}

/// While a row is held, its writes must go through the hold.
std::unique_ptr<DriverResult> Recordset::State::send(const std::string& text) {
    recordStatement(text);
    return hold ? hold->run(text) : driverConnection->run(text);
}

void Recordset::State::assign(int column, const Value& value) {
    demandOpen();
    if (!onRow()) {
        throw Error(kNoCurrentRecord);
    }
    demandEditable();
    const auto place = static_cast<std::size_t>(column);
    const FieldDescription& field = fields[place];
    if (field.identity || field.baseColumn.empty()) {
        throw Error(kMultipleStep).in(field.name);
    }
    Value fitting = coerced(value, field);
    if (edit == Edit::None) {
        if (lock == LockType::Pessimistic) {
            holdRow();
        }
        assigned.assign(fields.size(), std::nullopt);
        edit = Edit::Changing;
    }
    assigned[place] = std::move(fitting);
}

/// Holds the row and reads it again, so that what another program wrote meanwhile isn't overwritten unseen.
void Recordset::State::holdRow() {
    const std::string select = edits().select(rows, cursor.row(), driverConnection->holdingHint());
    try {
        recordStatement(select);
        hold = driverConnection->hold(select);
        readHeldRow();
    } catch (Error& error) {
        hold.reset();
        error.during(select);
        throw;
    }
}

void Recordset::State::readHeldRow() {
    std::vector<FieldDescription> columns;
    for (const int column : edits().readColumns()) {
        columns.push_back(fields[static_cast<std::size_t>(column)]);
    }
    RowStore found(columns);
    found.fetch(*hold->rows());
    if (found.rows() == 0) {
        throw Error(kRowChanged);
    }
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        rows.replace(cursor.row(), edits().readColumns()[static_cast<std::size_t>(i)], found.value(0, i));
    }
}

void Recordset::State::addNew() {
    demandOpen();
    demandEditable();
    update();
    assigned.assign(fields.size(), std::nullopt);
    edit = Edit::Adding;
    notify();
}

void Recordset::State::update() {
    demandOpen();
    if (edit == Edit::None) {
        return;
    }
    if (edit == Edit::Adding) {
        storeNewRow();
    } else {
        storeChanges();
    }
    endEdit();
    notify();
}

void Recordset::State::storeChanges() {
    const std::string text = edits().update(assigned, rows, cursor.row());
    try {
        const auto result = send(text);
        std::int64_t written = 0;
        while (result->nextResult()) {
            written += std::max<std::int64_t>(result->affected(), 0);
        }
        if (written == 0) {
            throw Error(kRowChanged);
        }
        if (hold) {
            hold->release();
        }
    } catch (Error& error) {
        error.during(text);
        throw;
    }
    for (std::size_t i = 0; i < assigned.size(); ++i) {
        if (assigned[i]) {
            rows.replace(cursor.row(), static_cast<int>(i), *assigned[i]);
        }
    }
}

void Recordset::State::storeNewRow() {
    const std::string text = edits().insert(assigned);
    try {
        const auto result = send(text);
        while (result->nextResult()) {
        }
    } catch (Error& error) {
        error.during(text);
        throw;
    }
    std::vector<Value> row;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].identity) {
            row.push_back(newIdentity());
        } else {
            row.push_back(assigned[i].value_or(Null{}));
        }
    }
    rows.append(row);
    cursor.added(rows.rows() - 1);
}

/// Null where it can't be read: the row is stored, and an error would make the user store it again.
Value Recordset::State::newIdentity() const {
    try {
        return static_cast<std::int32_t>(driverConnection->lastIdentity());
    } catch (const Error&) {
        return Null{};
    }
}

void Recordset::State::cancelUpdate() {
    demandOpen();
    if (edit == Edit::None) {
        throw Error(kNotAllowedHere);
    }
    endEdit();
    notify();
}

void Recordset::State::endEdit() {
    edit = Edit::None;
    assigned.clear();
    hold.reset();
}

} // namespace ado
