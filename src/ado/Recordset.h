#pragma once

#include "ado/Connection.h"
#include "ado/Value.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#undef EOF // the macro of <cstdio>; Recordset has a function of that name

namespace ado {

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3, BatchOptimistic = 4 };

class Recordset;

/// One column of the current row; valid while its recordset is open. An assigned value is checked at once.
class Field {
public:
    const FieldDescription& description() const;
    const std::string& Name() const { return description().name; }
    /// Raises error 3021 where there is no current row.
    ado::Value Value() const;
    operator ado::Value() const { return Value(); }
    /// Raises errors 3021 (no current row), 3251 (read-only), -2147217887 (the value doesn't fit).
    Field& operator=(const ado::Value& value);
    Field& operator=(const Field& other);
    Field(const Field&) = default;

private:
    friend class Recordset;
    Field(Recordset& recordset, int index) : recordset_(&recordset), index_(index) {}
    Recordset* recordset_;
    int index_;
};

/// The rows of one selection, kept in memory with their keys. Edits are sent as UPDATE and INSERT statements that find
/// the row by its key. Raises errors 3704 (closed), 3705 (open), 3021 (no current row), 3265 (unknown field), 3251
/// (read-only), 3219 (not allowed in this state).
class Recordset {
public:
    Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset(); ///< drops a pending edit and releases held rows

    void Open(const std::string& source, Connection& connection, CursorType cursor = CursorType::ForwardOnly,
              LockType lock = LockType::ReadOnly, int options = -1);
    /// Opens a connection of its own, which is closed with the recordset.
    void Open(const std::string& source, const std::string& connectionString,
              CursorType cursor = CursorType::ForwardOnly, LockType lock = LockType::ReadOnly, int options = -1);
    void Close();
    bool IsOpen() const;
    const std::string& Source() const;

    bool EOF() const;
    bool BOF() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(long rows);          ///< from the current row
    void MoveFromFirst(long rows); ///< from the first row

    int FieldCount() const;
    Field operator[](std::string_view name); ///< the first of that name, in any case; raises 3265
    Field operator[](int index);

    void AddNew();
    void Update();
    void CancelUpdate();
    void Requery();

    const std::string& Filter() const;
    /// Raises error 3001, with nothing changed, for a text that isn't a filter.
    void setFilter(const std::string& filter);

    long AbsolutePosition() const; ///< counted from 1; -1 unknown or empty, -2 BOF, -3 EOF
    void setAbsolutePosition(long position);
    long RecordCount() const; ///< -1 on forward-only and dynamic cursors

    /// For controls that draw many rows: the value at a position (counted from 1 among the rows that the filter admits)
    /// and column, without a move. Raises error 3021 where there is no such row.
    ado::Value ValueAt(long position, int column) const;

    /// Adds a function to be called after every change of the current row, of the rows or of the filter.
    void onChange(std::function<void()> listener);

private:
    friend class Field;
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace ado
