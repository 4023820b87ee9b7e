#pragma once

#include "engine/values/DataType.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

namespace sqlite {
class Connection;
}

struct ColumnInfo {
    std::string name; ///< spelt as it was created
    DataType type;
    bool nullable = true;
    bool identity = false;
    std::int64_t seed = 1, increment = 1;
    std::optional<std::string> defaultText; ///< the default as the script wrote it, in the dialect
    std::string defaultName;
};

struct KeyInfo {
    std::string name;
    bool primary = false;
    std::vector<std::string> columns;
};

struct TableInfo {
    std::string name;    ///< spelt as it was created
    std::int64_t id = 0; ///< its own in its database while it exists; 0 before it is made
    std::vector<ColumnInfo> columns;
    std::vector<KeyInfo> keys;

    /// Position of a column by its name under the server's collation, -1 where there is none.
    int find(std::string_view column) const;
    const ColumnInfo* identity() const;
    const KeyInfo* primaryKey() const;
};

/// What the tables of one database are in the dialect's own terms. It is kept in tables of the same file (their names
/// begin with `_vabo_`), so that a schema change and its description are one transaction.
class Catalog {
public:
    /// Makes the catalog's own tables where they are missing.
    explicit Catalog(sqlite::Connection& connection);
    ~Catalog();

    /// By name under the server's collation; nullptr where there is none. Valid until the next change of the schema.
    const TableInfo* table(std::string_view name);
    std::vector<std::string> tableNames();
    /// Reads the description anew where any session has changed it, or taken a change back, since the last call; true
    /// where one has. Cheap where none has.
    bool refresh();

    void addTable(const TableInfo& table);
    void addColumn(std::string_view table, const ColumnInfo& column);
    void addKey(std::string_view table, const KeyInfo& key);
    void removeTable(std::string_view table);

    /// The next identity value of a table. Call it inside the transaction of the insert, which makes it unique among
    /// all processes and costs no write of its own; throws 8115 where the type has no value left. This session
    /// doesn't give a value twice, whatever becomes of the transaction.
    std::int64_t nextIdentity(const TableInfo& table);
    /// The session that was given values has ended.
    void forgetGiven();
    /// After a failed statement or a rollback: no session gives the values anew that were given in it. Writes (in the
    /// open transaction, or else in one of its own) only where a rollback took one back.
    void settleIdentities();
    /// After an insert with IDENTITY_INSERT on: later values start behind this one.
    void raiseIdentity(const TableInfo& table, std::int64_t used);
    /// Back to the seed, as when a table is emptied by TRUNCATE.
    void resetIdentity(const TableInfo& table);
    /// The last value given in any session; the seed where none was.
    std::int64_t currentIdentity(const TableInfo& table);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace engine
