// Appends rows to a database without end and reports each one whose statement had returned: by turns a plain INSERT,
// and a row with its copy in a second table by one transaction. It is killed by whoever started it.

#include "engine/run/Session.h"
#include "engine/store/Instance.h"

#include <cstdio>
#include <string>

namespace {

void run(engine::Session& session, const std::string& text) {
    const auto batch = session.execute(text);
    while (batch->nextResult()) {
    }
}

void appendAlone(engine::Session& session) {
    run(session, "INSERT INTO t (note) VALUES (N'riga sola')");
}

void appendWithCopy(engine::Session& session) {
    run(session, "BEGIN TRANSACTION");
    run(session, "INSERT INTO t (note) VALUES (N'riga doppia')");
    run(session, "INSERT INTO copia (id, note) SELECT id, note FROM t WHERE id = @@IDENTITY");
    run(session, "COMMIT TRANSACTION");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: engine_kill_writer <instance folder>\n", stderr);
        return 2;
    }
    try {
        const auto instance = engine::Instance::open(argv[1], {[](std::string_view path) { return path; }});
        const auto session = engine::Session::open(instance, {"", "", "prova"});
        for (bool alone = true;; alone = !alone) {
            alone ? appendAlone(*session) : appendWithCopy(*session);
            // The copy has no identity: the last one given is still that of `t`.
            std::int64_t written = 0;
            const auto last = session->execute("SELECT IDENT_CURRENT('t')");
            if (const engine::ResultRow* row = last->nextResult() ? last->nextRow() : nullptr) {
                written = row->integer(0);
            }
            std::printf("%lld\n", static_cast<long long>(written));
            if (std::fflush(stdout) != 0) {
                return 1;
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
