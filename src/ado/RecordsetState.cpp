#include "ado/RecordsetState.h"

#include "ado/Source.h"

#include <utility>

namespace ado {

void Recordset::State::demandOpen() const {
    if (!open) {
        throw Error(kObjectClosed);
    }
}

void Recordset::State::demandBackwards() const {
    demandOpen();
    if (cursorType == CursorType::ForwardOnly) {
        throw Error(kNotAllowedHere);
    }
}

void Recordset::State::openOn(std::shared_ptr<DriverConnection> newConnection) {
    driverConnection = std::move(newConnection);
    filter.clear();
    filterExpression.reset();
    open = fetch();
    if (!open) {
        driverConnection.reset();
    }
}

/// Runs the statement to its end and reads its first result with rows; false where there is none.
bool Recordset::State::fetch() {
    recordStatement(statement);
    bool selected = false;
    try {
        const auto result = driverConnection->run(statement);
        while (result->nextResult()) {
            if (selected || !result->hasRows()) {
                continue;
            }
            selected = true;
            fields = result->fields();
            statements.reset();
            rows = RowStore(fields);
            rows.fetch(*result);
        }
    } catch (Error& error) {
        error.during(statement);
        throw;
    }
    applyFilter();
    return selected;
}

void Recordset::State::requery() {
    demandOpen();
    if (edit != Edit::None) {
        throw Error(kNotAllowedHere);
    }
    fetch();
    notify();
}

void Recordset::State::close() {
    open = false;
    edit = Edit::None;
    hold.reset();
    statements.reset();
    rows = RowStore();
    fields.clear();
    cursor.showAll(0);
    driverConnection.reset();
    ownConnection.reset();
}

void Recordset::State::applyFilter() {
    if (!filterExpression) {
        cursor.showAll(rows.rows());
        return;
    }
    std::vector<std::uint32_t> admitted;
    for (std::size_t row = 0; row < rows.rows(); ++row) {
        if (filterExpression->admits(rows, row)) {
            admitted.push_back(static_cast<std::uint32_t>(row));
        }
    }
    cursor.showOnly(std::move(admitted));
}

void Recordset::State::notify() const {
    const auto told = listeners; // a copy, since a listener may add another one
    for (const auto& listener : told) {
        listener();
    }
}

Value Recordset::State::value(int column) const {
    demandOpen();
    if (!onRow()) {
        throw Error(kNoCurrentRecord);
    }
    const auto place = static_cast<std::size_t>(column);
    if (edit != Edit::None && assigned[place]) {
        return *assigned[place];
    }
    return edit == Edit::Adding ? Value(Null{}) : rows.value(cursor.row(), column);
}

void Recordset::State::move(const std::function<void(RowCursor&)>& step) {
    demandOpen();
    update();
    step(cursor);
    notify();
}

} // namespace ado
