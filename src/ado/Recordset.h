#pragma once

#include "ado/Connection.h"
#include "ado/Value.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#undef EOF // the name is the recordset's here

namespace ado {

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3, BatchOptimistic = 4 };

class Recordset;

/// One column at the current row; valid while its recordset is open. An assignment is checked at once.
class Field {
public:
    const FieldDescription& description() const;
    const std::string& Name() const { return description().name; }
    /// Error 3021 where there is no current row.
    ado::Value Value() const;
    operator ado::Value() const { return Value(); }
    /// Errors 3021, 3251, -2147217887.
    Field& operator=(const ado::Value& value);
    Field& operator=(const Field& other);
    Field(const Field&) = default;

private:
    friend class Recordset;
    Field(Recordset& recordset, int index) : recordset_(&recordset), index_(index) {}
    Recordset* recordset_;
    int index_;
};

/// The rows of one selection, kept on our side with their keys; edits go out as plain statements by key.
/// Error numbers: 3704 closed, 3705 open, 3021 no current row, 3265 unknown field, 3251 read-only, 3219 not here.
class Recordset {
public:
    Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset(); ///< an open one is given up: pending edits are dropped, holds released

    void Open(const std::string& source, Connection& connection, CursorType cursor = CursorType::ForwardOnly,
              LockType lock = LockType::ReadOnly, int options = -1);
    /// On a connection of its own, closed with the recordset.
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
    Field operator[](std::string_view name); ///< the first of that name, in any case; Error 3265
    Field operator[](int index);

    void AddNew();
    void Update();
    void CancelUpdate();
    void Requery();

    const std::string& Filter() const;
    /// Error 3001 and nothing changes where it can't be read.
    void setFilter(const std::string& filter);

    long AbsolutePosition() const; ///< from 1; -1 unknown or empty, -2 BOF, -3 EOF
    void setAbsolutePosition(long position);
    long RecordCount() const; ///< -1 on forward-only and dynamic cursors

    /// For controls that draw many rows: a value by place (from 1, as the filter leaves them) and column, without
    /// moving. Error 3021 where there is no such row.
    ado::Value ValueAt(long position, int column) const;

    /// Told after every change of row, of rows or of filter, so that a control can follow.
    void onChange(std::function<void()> listener);

private:
    friend class Field;
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace ado
