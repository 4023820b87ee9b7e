#pragma once

#include "engine/run/Database.h"

#include <memory>
#include <mutex>
#include <vector>

namespace engine {

/// Databases that no session uses at present, open and with their description and plans, for the next session of this
/// process. Nothing of the session before stays with them. Between `start` and `stop` they are kept; otherwise the
/// storage is closed with its session.
class KeptDatabases {
public:
    void start();
    /// Closes what is kept.
    void stop();

    /// nullptr where none is kept, or its file has gone or is another one by now.
    std::shared_ptr<Database> take(const DatabaseEntry& entry);
    /// Closes those of that entry.
    void forget(const DatabaseEntry& entry);
    /// Closes it where something of its session is left: a hold, a transaction, another database beside it.
    void keep(std::shared_ptr<Database> database);

private:
    std::mutex mutex_; ///< sessions of several threads may share it
    bool started_ = false;
    std::vector<std::shared_ptr<Database>> databases_;
};

} // namespace engine
