#pragma once

// The interface of a driver. Connection and Recordset are written once on top of it; where drivers differ there is a
// function here (holdingHint, nameSources).

#include "ado/ConnectionString.h"
#include "ado/Error.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ado {

enum class FieldType {
    Boolean,
    Byte,
    SmallInt,
    Integer,
    BigInt,
    Single,
    Double,
    Currency,
    Decimal,
    DateTime,
    Char,
    WChar,
    Binary
};

struct FieldDescription {
    std::string name;
    FieldType type = FieldType::WChar;
    int length = 0; ///< characters, -1 unlimited
    int precision = 0, scale = 0;
    bool nullable = true;
    bool identity = false;
    bool key = false;
    std::string baseTable, baseColumn; ///< empty for an expression
};

/// The results of one text, read once and only forward.
class DriverResult {
public:
    virtual ~DriverResult() = default;
    /// Goes to the next result. Throws Error when its statement failed.
    virtual bool nextResult() = 0;
    virtual bool hasRows() const = 0;
    virtual const std::vector<FieldDescription>& fields() const = 0;
    virtual std::int64_t affected() const = 0; ///< -1: not a writing statement

    virtual bool nextRow() = 0;
    virtual bool isNull(int field) const = 0;
    virtual std::int64_t integer(int field) const = 0; ///< booleans are 0 and 1
    virtual double real(int field) const = 0;          ///< decimals too
    /// Dates as YYYY-MM-DD hh:mm:ss.mmm, decimals with a point. Of a null it has no data (`data()` is null).
    virtual std::string_view text(int field) const = 0;
};

/// Rows that no other connection can write until `release`, or while this object lives. Their own writes must go
/// through `run`.
class DriverHold {
public:
    virtual ~DriverHold() = default;
    /// The held rows with their present values. To be called once, and read before `run` is called.
    virtual std::unique_ptr<DriverResult> rows() = 0;
    virtual std::unique_ptr<DriverResult> run(std::string_view text) = 0;
    /// Throws Error where the server couldn't keep what was written meanwhile.
    virtual void release() {}
};

class DriverConnection {
public:
    virtual ~DriverConnection() = default;
    virtual std::unique_ptr<DriverResult> run(std::string_view text) = 0;
    /// The hint that follows the table in a SELECT given to `hold`; empty where the driver needs none.
    virtual std::string holdingHint() const { return {}; }
    /// Fills in the table and the columns that the fields come from, where the driver's results don't tell them.
    virtual void nameSources(const std::string& /*statement*/, std::vector<FieldDescription>& /*fields*/) {}
    /// Holds the rows that a SELECT on one table finds. Where another connection holds one, this throws at once (native
    /// error 1222), or, with a server that tells it later, when the rows are read.
    virtual std::unique_ptr<DriverHold> hold(std::string_view select) = 0;
    /// The identity value of this connection's last INSERT, 0 where there is none.
    virtual std::int64_t lastIdentity() = 0;
    /// The columns of a table's primary key; none where it has no such key.
    virtual std::vector<std::string> primaryKey(const std::string& table) = 0;
    virtual bool alive() const = 0;
};

class Driver {
public:
    virtual ~Driver() = default;
    virtual const char* name() const = 0;
    /// Throws Error where the login is refused, or database or server can't be reached.
    virtual std::unique_ptr<DriverConnection> connect(const ConnectionString& text) = 0;
};

} // namespace ado
