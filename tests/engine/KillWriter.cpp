// Appends rows to a database without end, each with its copy in a second table by one transaction, and reports each
// one that the storage said is committed. It is killed by whoever started it.

#include "engine/Sqlite.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: engine_kill_writer <database>\n", stderr);
        return 2;
    }
    try {
        engine::sqlite::Connection connection(argv[1], true);
        connection.run("CREATE TABLE IF NOT EXISTS t (id INTEGER PRIMARY KEY, note TEXT COLLATE TSQL);"
                       "CREATE INDEX IF NOT EXISTS i ON t (note);"
                       "CREATE TABLE IF NOT EXISTS copy (id INTEGER PRIMARY KEY, note TEXT)");
        engine::sqlite::Statement insert(connection, "INSERT INTO t (note) VALUES ('riga ' || random())");
        engine::sqlite::Statement copy(connection, "INSERT INTO copy SELECT id, note FROM t WHERE id = ?1");
        while (true) {
            engine::sqlite::Transaction transaction(connection);
            insert.step();
            insert.reset();
            const std::int64_t row = connection.lastRow();
            copy.bind(1, row);
            copy.step();
            copy.reset();
            transaction.commit();
            std::printf("%lld\n", static_cast<long long>(row));
            if (std::fflush(stdout) != 0) {
                return 1;
            }
        }
    } catch (const engine::sqlite::Failure& failure) {
        std::fprintf(stderr, "%d %s\n", failure.code(), failure.what());
        return 1;
    }
}
