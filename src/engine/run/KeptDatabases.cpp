#include "engine/run/KeptDatabases.h"

#include <algorithm>
#include <utility>

namespace engine {

void KeptDatabases::start() {
    const std::scoped_lock guard(mutex_);
    started_ = true;
}

void KeptDatabases::stop() {
    std::vector<std::shared_ptr<Database>> closed;
    const std::scoped_lock guard(mutex_);
    started_ = false;
    closed.swap(databases_);
}

std::shared_ptr<Database> KeptDatabases::take(const DatabaseEntry& entry) {
    const std::scoped_lock guard(mutex_);
    const auto found =
        std::find_if(databases_.begin(), databases_.end(), [&](const auto& one) { return one->entry() == entry; });
    if (found == databases_.end()) {
        return nullptr;
    }
    std::shared_ptr<Database> database = std::move(*found);
    databases_.erase(found);
    return database->enter() ? database : nullptr;
}

void KeptDatabases::forget(const DatabaseEntry& entry) {
    const std::scoped_lock guard(mutex_);
    std::erase_if(databases_, [&](const auto& one) { return one->entry() == entry; });
}

void KeptDatabases::keep(std::shared_ptr<Database> database) {
    const std::scoped_lock guard(mutex_);
    if (started_ && database.use_count() == 1 && database->leave()) {
        databases_.push_back(std::move(database));
    }
}

} // namespace engine
