#pragma once

#include "ado/Filter.h"
#include "ado/Recordset.h"
#include "ado/RowCursor.h"
#include "ado/RowStatements.h"
#include "ado/RowStore.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ado {

/// The state of a recordset: its selection, its position, and the edit that may be pending. RecordsetState.cpp opens
/// and reads, RecordsetEdit.cpp writes.
struct Recordset::State {
    // The arguments of Open.
    std::string source;
    CursorType cursorType = CursorType::ForwardOnly;
    LockType lock = LockType::ReadOnly;
    std::string statement;
    std::vector<std::function<void()>> listeners;

    // The selection.
    bool open = false;
    std::unique_ptr<Connection> ownConnection;
    std::shared_ptr<DriverConnection> driverConnection;
    std::vector<FieldDescription> fields;
    RowStore rows;
    RowCursor cursor;
    std::string filter;
    std::optional<FilterExpression> filterExpression;

    // The pending edit.
    enum class Edit { None, Changing, Adding };
    Edit edit = Edit::None;
    Assignments assigned;
    std::unique_ptr<DriverHold> hold;
    std::optional<RowStatements> statements; ///< made at the first edit

    void openOn(std::shared_ptr<DriverConnection> newConnection);
    bool fetch();
    void close();
    void requery();
    void demandOpen() const;
    void demandBackwards() const; ///< 3219 on a forward-only cursor
    void applyFilter();
    void notify() const;

    Value value(int column) const;
    bool onRow() const { return edit == Edit::Adding || cursor.onRow(); }
    void move(const std::function<void(RowCursor&)>& step);

    void assign(int column, const Value& value);
    void addNew();
    void update();
    void cancelUpdate();

private:
    void demandEditable();
    const RowStatements& edits();
    std::unique_ptr<DriverResult> send(const std::string& text);
    void holdRow();
    void readHeldRow();
    void storeChanges();
    void storeNewRow();
    ::ado::Value newIdentity() const;
    void endEdit();
};

} // namespace ado
