#pragma once

// What SET changes in a session.

#include "engine/values/DateOrder.h"

#include <cstdint>
#include <string>

namespace engine {

class ServerSession;

struct Settings {
    DateOrder dateOrder = DateOrder::MonthDayYear;
    std::string language = "us_english";
    int firstDayOfWeek = 7;            ///< 1 is Monday, 7 Sunday
    std::int64_t rowCount = 0;         ///< so many rows at most are read or written by a statement; 0 is all
    std::int64_t lockTimeout = -1;     ///< milliseconds; -1 is as long as it takes
    bool noCount = false;              ///< the number of rows written isn't told
    bool implicitTransactions = false; ///< what reads or writes a table begins a transaction
    bool abortsTransactions = false;   ///< XACT_ABORT: an error ends the batch and takes the transaction back
    bool stableReads = false;          ///< REPEATABLE READ and SERIALIZABLE: what a transaction has read stays

    /// How much of a statement is run.
    bool noExecution = false; ///< its names are looked up
    bool showPlan = false;    ///< likewise; no plan is shown
    bool parseOnly = false;
    bool formatOnly = false; ///< the columns of its result are told

    /// SET IDENTITY_INSERT … ON, empty where none.
    std::string identityInsert;
    std::string identityInsertDatabase;

    bool runsNothing() const { return noExecution || showPlan || parseOnly || formatOnly; }
    /// Whether a plan made for a shape serves as it is.
    bool takesPlans() const { return rowCount == 0 && !implicitTransactions && !runsNothing(); }
    /// How long a statement waits for another writer, in milliseconds; below 0 the storage's usual time. Never less
    /// than a moment: the storage lets one session write at a time, also where the rows are others and nobody would be
    /// waited for. A row that is held is refused at once.
    std::int64_t patience() const;
    /// @@OPTIONS, a bit each.
    std::int64_t options() const;
};

} // namespace engine
