#include "ado/LinkFile.h"

#include "ado/Conversions.h"
#include "ado/Error.h"
#include "engine/store/Sqlite.h"
#include "os/Files.h"

#include <string>
#include <system_error>

namespace ado {

namespace {

namespace fs = std::filesystem;
using engine::sqlite::Statement;

constexpr const char* kSchema =
    "CREATE TABLE tables (id INTEGER PRIMARY KEY, type TEXT NOT NULL, name TEXT NOT NULL, provider TEXT)";

/// A start rewrites what a power cut took back, so a commit needn't wait for the disk. Another program writes for
/// milliseconds; who holds the file longer makes each write fail, and a start has some forty of them.
constexpr const char* kSettings = "PRAGMA synchronous=NORMAL; PRAGMA busy_timeout=200";

/// The storage's errors become the data layer's.
template<typename Step>
decltype(auto) told(Step&& step) {
    try {
        return step();
    } catch (const engine::sqlite::Failure& failure) {
        throw Error(kUnspecified, failure.what());
    }
}

Value valueOf(const Statement& row, int column) {
    return row.isNull(column) ? Value(Null{}) : Value(row.text(column));
}

std::unique_ptr<engine::sqlite::Connection> opened(const fs::path& file, bool create) {
    return told([&] {
        auto connection = std::make_unique<engine::sqlite::Connection>(file, create);
        connection->run(kSettings);
        return connection;
    });
}

/// Anything but a catalog is refused here: opening it would write to it, or wait for it. A catalog has passwords in its
/// links, whoever has put it there.
const fs::path& checked(const fs::path& file) {
    std::error_code reason;
    if (!fs::is_regular_file(file, reason)) {
        throw Error(kUnspecified, "Could not find file.");
    }
    if (!LinkFile::isOne(file)) {
        throw Error(kUnspecified, "Unrecognized database format.");
    }
    os::keepForOwner(file);
    return file;
}

} // namespace

bool LinkFile::isOne(const fs::path& file) {
    return os::sizeOf(file).value_or(0) > 0 && engine::sqlite::holdsTable(file, "tables");
}

LinkFile LinkFile::create(const fs::path& file) {
    LinkFile made(opened(file, true));
    told([&] { made.connection_->run(kSchema); });
    return made;
}

LinkFile::LinkFile(std::unique_ptr<engine::sqlite::Connection> connection) : connection_(std::move(connection)) {}

LinkFile::LinkFile(const fs::path& file) : connection_(opened(checked(file), false)) {}

LinkFile::LinkFile(LinkFile&&) noexcept = default;
LinkFile& LinkFile::operator=(LinkFile&&) noexcept = default;
LinkFile::~LinkFile() = default;

std::vector<LinkFile::Entry> LinkFile::entries() {
    return told([&] {
        std::vector<Entry> all;
        Statement row(*connection_, "SELECT id, type, name FROM tables ORDER BY id");
        while (row.step()) {
            all.push_back({.id = row.integer(0), .type = valueOf(row, 1), .name = valueOf(row, 2)});
        }
        return all;
    });
}

Value LinkFile::provider(std::int64_t id) {
    return told([&] {
        Statement row(*connection_, "SELECT provider FROM tables WHERE id = ?1");
        row.bind(1, id);
        if (!row.step()) {
            throw Error(kItemNotFound);
        }
        return valueOf(row, 0);
    });
}

void LinkFile::setProvider(std::int64_t id, std::string_view text) {
    told([&] {
        Statement update(*connection_, "UPDATE tables SET provider = ?2 WHERE id = ?1");
        update.bind(1, id);
        update.bind(2, text);
        update.run();
        if (connection_->changes() == 0) {
            throw Error(kItemNotFound);
        }
    });
}

void LinkFile::add(std::string_view type, std::string_view name, const Value& provider) {
    told([&] {
        Statement insert(*connection_, "INSERT INTO tables (type, name, provider) VALUES (?1, ?2, ?3)");
        insert.bind(1, type);
        insert.bind(2, name);
        if (provider.isNull()) {
            insert.bindNull(3);
        } else {
            insert.bind(3, std::string_view(toText(provider)));
        }
        insert.run();
    });
}

} // namespace ado
