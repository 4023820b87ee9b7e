#pragma once

// What a road to a server must offer. Everything above is written once on top of it; where drivers differ they say so
// in Capabilities.

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

/// The results of one text, walked once and forward.
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
    virtual std::int64_t integer(int field) const = 0;  ///< booleans are 0 and 1
    virtual double real(int field) const = 0;           ///< decimals too
    virtual std::string_view text(int field) const = 0; ///< dates YYYY-MM-DD hh:mm:ss.mmm, decimals with a point
};

/// Rows held against all other connections. Writes to them go through it where the road needs that.
class DriverHold {
public:
    virtual ~DriverHold() = default;
    /// The held rows as they are now, at their result: asked for once, read before anything else is run.
    virtual std::unique_ptr<DriverResult> rows() = 0;
    virtual std::unique_ptr<DriverResult> run(std::string_view text) = 0;
};

class DriverConnection {
public:
    virtual ~DriverConnection() = default;
    virtual std::unique_ptr<DriverResult> run(std::string_view text) = 0;
    /// What stands behind the table in a SELECT given to `hold`; empty where it needs no word for it.
    virtual std::string holdingHint() const { return {}; }
    /// Names the table and the columns that the fields of a selection come from, where its result didn't.
    virtual void nameSources(const std::string& /*statement*/, std::vector<FieldDescription>& /*fields*/) {}
    /// Holds the rows that a SELECT on one table finds; throws at once when somebody else holds one (native 1222), a
    /// server that tells it late when the rows are read.
    virtual std::unique_ptr<DriverHold> hold(std::string_view select) = 0;
    /// The identity given by this connection's last INSERT, 0 where none.
    virtual std::int64_t lastIdentity() = 0;
    /// The columns of a table's primary key, none where it has none.
    virtual std::vector<std::string> primaryKey(const std::string& table) = 0;
    virtual bool alive() const = 0;
};

class Driver {
public:
    virtual ~Driver() = default;
    virtual const char* name() const = 0;
    /// Throws Error: login refused, database or server not there.
    virtual std::unique_ptr<DriverConnection> connect(const ConnectionString& text) = 0;
};

} // namespace ado
