#include "engine/store/RowLocks.h"

#include "engine/values/Collation.h"
#include "os/FileLock.h"
#include "os/Files.h"

#include <string>
#include <unordered_map>

namespace engine {
namespace {

/// A lock on the last byte says that a session uses the database; all other bytes stand for rows.
constexpr std::uint64_t kPresencePlace = os::FileLock::kEnd - 1;

std::filesystem::path lockFile(const std::filesystem::path& database) {
    std::filesystem::path file = database;
    return file += ".locks";
}

std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char byte : text) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return hash;
}

std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 30U)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27U)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31U);
}

} // namespace

struct RowLocks::State {
    explicit State(const std::filesystem::path& database) : file(lockFile(database)) {}

    std::uint64_t placeOf(std::string_view table, std::int64_t row) {
        if (table != lastTable || lastHash == 0) {
            lastTable = table;
            lastHash = hashOf(collationKey(table));
        }
        return mixed(lastHash + mixed(static_cast<std::uint64_t>(row))) % kPresencePlace;
    }

    os::FileLock file;
    std::unordered_map<std::uint64_t, int> held;
    std::string lastTable;
    std::uint64_t lastHash = 0;
};

RowLocks::RowLocks(const std::filesystem::path& database) : state_(std::make_unique<State>(database)) {
    state_->file.tryShared(kPresencePlace);
}

RowLocks::~RowLocks() = default;

bool RowLocks::acquire(std::string_view table, std::int64_t row) {
    const std::uint64_t place = state_->placeOf(table, row);
    const auto held = state_->held.find(place);
    if (held != state_->held.end()) {
        ++held->second;
        return true;
    }
    if (!state_->file.tryExclusive(place)) {
        return false;
    }
    state_->held.emplace(place, 1);
    return true;
}

void RowLocks::release(std::string_view table, std::int64_t row) {
    const std::uint64_t place = state_->placeOf(table, row);
    const auto held = state_->held.find(place);
    if (held != state_->held.end() && --held->second == 0) {
        state_->held.erase(held);
        state_->file.unlock(place);
    }
}

bool RowLocks::anyHeldByOthers() const {
    return state_->file.heldByOthers(0, kPresencePlace);
}

bool RowLocks::heldByOthers(std::string_view table, std::int64_t row) const {
    return state_->file.heldByOthers(state_->placeOf(table, row), 1);
}

bool RowLocks::databaseInUse(const std::filesystem::path& database) {
    const std::filesystem::path file = lockFile(database);
    return std::filesystem::exists(file) && os::FileLock(file).heldByOthers(kPresencePlace, 1);
}

void RowLocks::removeFile(const std::filesystem::path& database) {
    os::removeFile(lockFile(database));
}

} // namespace engine
