#include "engine/run/Writer.h"

#include "engine/errors/Error.h"
#include "engine/errors/StoreErrors.h"
#include "engine/store/StorageErrors.h"
#include "engine/store/StoredNames.h"
#include "engine/translate/SqlText.h"

namespace engine {

namespace {

using Source = bound::Parameter::Source;
using Row = std::vector<Scalar>;

Scalar storedValue(const sqlite::Statement& statement, int column, const DataType& type) {
    if (statement.isNull(column)) {
        return {};
    }
    if (type.isInteger()) {
        return statement.integer(column);
    }
    if (type.isNumber()) {
        return statement.real(column);
    }
    return std::string(statement.text(column));
}

class Writer {
public:
    Writer(ServerSession& session, Plan& plan, const Bindings& bindings)
        : session_(session), database_(session.current()), plan_(plan), bindings_(bindings) {}

    std::int64_t write() {
        try {
            return inTransaction();
        } catch (const sqlite::Failure& failure) {
            settle();
            database_.raise(failure, plan_.table, plan_.verb == Verb::Insert ? "INSERT" : "UPDATE");
        } catch (const Error&) {
            settle();
            throw;
        }
    }

private:
    std::int64_t inTransaction() {
        std::optional<sqlite::Transaction> transaction;
        // Inside of the user's transaction a single statement of the storage's needs none of its own.
        if (plan_.source || !database_.connection().inTransaction()) {
            transaction.emplace(database_.connection());
            if (database_.refresh()) {
                throw StalePlan();
            }
        }
        const std::int64_t rows = plan_.verb == Verb::Insert ? insert() : change();
        if (plan_.verb == Verb::Insert && plan_.table->identity() == nullptr) {
            session_.gaveIdentity(0); // only now: the statement itself may ask for the one before
        }
        if (transaction) {
            transaction->commit();
        }
        return rows;
    }

    std::int64_t insert() {
        if (plan_.source) {
            return insertSelected();
        }
        giveIdentities();
        bindLiterals(plan_.statement, plan_.parameters, bindings_);
        run();
        if (plan_.givesIdentity) {
            identityGiven(database_.connection().lastRow());
        }
        return database_.connection().changes();
    }

    std::int64_t insertSelected() {
        sqlite::Statement& source = *plan_.source;
        bindLiterals(source, plan_.sourceParameters, bindings_);
        bindLiterals(plan_.statement, plan_.parameters, bindings_);
        // All rows are read before the first is written: the table may be its own source.
        std::vector<Row> rows;
        const int columns = source.columns();
        const auto most = static_cast<std::size_t>(session_.settings.rowCount);
        while ((most == 0 || rows.size() < most) && source.step()) {
            Row row;
            for (int i = 0; i < columns; ++i) {
                row.push_back(storedValue(source, i, rowType(i)));
            }
            rows.push_back(std::move(row));
        }
        source.reset();
        for (const Row& row : rows) {
            for (std::size_t i = 0; i < plan_.parameters.size(); ++i) {
                const bound::Parameter& parameter = plan_.parameters[i];
                if (parameter.source == Source::Row) {
                    bindValue(plan_.statement, static_cast<int>(i) + 1,
                              row[static_cast<std::size_t>(parameter.ordinal)]);
                }
            }
            giveIdentities();
            run();
        }
        return static_cast<std::int64_t>(rows.size());
    }

    const DataType& rowType(int column) const { return plan_.columns[static_cast<std::size_t>(column)].type; }

    std::int64_t change() {
        bindLiterals(plan_.statement, plan_.parameters, bindings_);
        // Asked under the write lock, so that no session can take a hold between the question and the write.
        if (database_.locks().anyHeldByOthers()) {
            refuseHeldRows(database_, plan_.table->name, rowsToChange());
        }
        try {
            run();
        } catch (const sqlite::Failure& failure) {
            plan_.statement.reset();
            if (!isDuplicate(failure) || !changesSeveralRows()) {
                throw;
            }
            return changeAtOnce();
        }
        return database_.connection().changes();
    }

    sqlite::Statement& rowsToChange() {
        if (!plan_.rows) {
            plan_.rows.emplace(database_.connection(), plan_.rowsText);
        }
        bindLiterals(*plan_.rows, plan_.rowsParameters, bindings_);
        return *plan_.rows;
    }

    bool changesSeveralRows() {
        sqlite::Statement& rows = rowsToChange();
        const bool several = rows.step() && rows.step();
        rows.reset();
        return several;
    }

    /// SQLite compares each row with the others as soon as it is written, the server all of them behind the last one:
    /// `n = n + 1` is no duplicate. So the unique indexes are made anew behind it, and their failure is the answer.
    std::int64_t changeAtOnce() {
        sqlite::Connection& connection = database_.connection();
        sqlite::Transaction transaction(connection);
        std::vector<std::string> made;
        std::vector<std::string> names;
        sqlite::Statement unique(connection,
                                 "SELECT i.name, s.sql FROM pragma_index_list(?1) AS i JOIN sqlite_schema AS "
                                 "s ON s.name = i.name WHERE i.\"unique\" AND s.sql IS NOT NULL");
        unique.bind(1, std::string_view(stored::tableName(plan_.table->name)));
        while (unique.step()) {
            names.emplace_back(unique.text(0));
            made.emplace_back(unique.text(1));
        }
        unique.reset();
        for (const std::string& name : names) {
            connection.run("DROP INDEX main." + stored::quoted(name));
        }
        run();
        const std::int64_t changed = connection.changes();
        for (const std::string& text : made) {
            connection.run(text);
        }
        transaction.commit();
        return changed;
    }

    void run() {
        plan_.statement.step();
        plan_.statement.reset();
    }

    void giveIdentities() {
        if (plan_.identity == nullptr || plan_.givesIdentity) {
            return;
        }
        for (std::size_t i = 0; i < plan_.parameters.size(); ++i) {
            if (plan_.parameters[i].source == Source::Identity) {
                const std::int64_t value = database_.catalog().nextIdentity(*plan_.table);
                plan_.statement.bind(static_cast<int>(i) + 1, value);
                session_.gaveIdentity(value);
                gave_ = true;
            }
        }
    }

    void identityGiven(std::int64_t row) {
        sqlite::Statement value(database_.connection(), "SELECT " + stored::quoted(plan_.identity->name) + " FROM " +
                                                            stored::qualifiedTable("main", plan_.table->name) +
                                                            " WHERE " + translate::rowidOf(*plan_.table) + " = ?1");
        value.bind(1, row);
        if (value.step()) {
            database_.catalog().raiseIdentity(*plan_.table, value.integer(0));
            session_.gaveIdentity(value.integer(0));
        }
    }

    /// The identity values of a failed insert aren't given again.
    void settle() {
        if (gave_) {
            database_.catalog().settleIdentities();
        }
    }

    ServerSession& session_;
    Database& database_;
    Plan& plan_;
    const Bindings& bindings_;
    bool gave_ = false;
};

} // namespace

std::int64_t write(ServerSession& session, Plan& plan, const Bindings& bindings) {
    return Writer(session, plan, bindings).write();
}

void refuseHeldRows(Database& database, const std::string& table, sqlite::Statement& rows) {
    bool held = false;
    while (!held && rows.step()) {
        held = database.locks().heldByOthers(table, rows.integer(0));
    }
    rows.reset();
    if (held) {
        throw errors::lockTimeout();
    }
}

} // namespace engine
