#pragma once

// A write operation of the program with each of its requests to the server refused in turn: once, and from there on.
//
// A `World` is a fixture without tests. Each run has a new one, so that nothing of the run before is left. It has
//     Lines fields() const;        what the user has typed, and what stands in the form beside the list
//     Lines shown() const;         the rows of the list as the form shows them
//     Lines held() const;          the same rows as the table holds them, in the same words
//     void expectAlive() const;    fails where the user can't go on
//     void reopen();               closes the form and opens it again
//     std::string half() const;    where a run may leave the rows half written: how they are; may take what is stored

#include "ado/Conversions.h"
#include "ado/Recordset.h"
#include "state/variabili.h"
#include "support/HeardBoxes.h"
#include "support/Refusals.h"
#include "support/Stored.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace support {

using Lines = std::vector<std::string>;

template<typename World>
struct Operation {
    std::set<std::string> tables;      ///< what it writes, under the names of `allStored`
    std::function<void(World&)> reach; ///< opens the form and fills it
    std::function<void(World&)> act;   ///< the keys that write; questions are answered with Yes
    std::string folder = {};           ///< the answer where a folder is asked for
    /// What comes of each refusal, in the order of the requests; see `outcome`.
    Lines once, fromThere;
    int first = 1;        ///< the request that the first line is about
    bool toTheEnd = true; ///< whether the last line is about the last request
};

/// How all stands at one moment.
struct Moment {
    Lines fields, shown, held;
    Stored rows;
    std::string half;
};

struct Run {
    Moment before, after;
    Lines told, asked;
};

template<typename World>
Moment momentOf(const World& world) {
    Moment moment{world.fields(), world.shown(), world.held(), allStored(world.posto), "half"};
    if constexpr (requires { world.half(moment.rows); }) {
        moment.half = world.half(moment.rows);
    } else if constexpr (requires { world.half(); }) {
        moment.half = world.half();
    }
    return moment;
}

/// What holds at the end of each run, whatever was refused.
template<typename World>
void expectWhole(World& world, const Operation<World>& operation, const Run& run) {
    world.expectAlive();
    for (const auto& [table, rows] : run.after.rows) {
        const auto known = run.before.rows.find(table);
        const bool same = known != run.before.rows.end() && known->second == rows;
        EXPECT_TRUE(same || operation.tables.contains(table)) << "something else is written: " << table;
    }
    for (ado::Connection* connection : {&vabo::DbAzienda, &vabo::DbTemp, &vabo::DbControllo}) {
        if (connection->IsOpen()) {
            ado::Recordset open;
            open.Open("select @@trancount as n", *connection);
            EXPECT_EQ(ado::toDouble(open["n"]), 0) << "a transaction is open";
        }
    }
    for (const std::string& table : operation.tables) {
        if (run.after.rows.contains(table)) {
            expectFree(world.posto, table);
        }
    }
    const HeardBoxes boxes;
    world.reopen();
    EXPECT_EQ(boxes.texts, Lines{}) << "told by the next opening";
    EXPECT_EQ(world.shown(), world.held()) << "after the next opening";
}

/// A run with the request at that place refused, none for 0.
template<typename World>
Run play(const Operation<World>& operation, int place, Refusals::Lasting lasting) {
    Refusals refusals; // ahead of the world's connections
    World world;
    Run run;
    operation.reach(world);
    run.before = momentOf(world);
    {
        const HeardBoxes boxes(HeardBoxes::Answer::Yes, operation.folder);
        refusals.begin(place, lasting);
        operation.act(world);
        run.asked = refusals.asked();
        refusals.end();
        run.told = boxes.texts;
    }
    run.after = momentOf(world);
    expectWhole(world, operation, run);
    return run;
}

/// The boxes that an undisturbed run doesn't show; "it" is the refusal itself.
inline std::string toldBeyond(const Run& run, const Run& undisturbed) {
    std::multiset<std::string> usual(undisturbed.told.begin(), undisturbed.told.end());
    std::string texts;
    for (const std::string& text : run.told) {
        if (const auto known = usual.find(text); known != usual.end()) {
            usual.erase(known);
            continue;
        }
        texts += (texts.empty() ? "told " : " and ") + (text == Refusals::kRefusal ? std::string("it") : text);
    }
    return texts.empty() ? "silent" : texts;
}

/// The fields that differ from what they were before.
inline std::string changed(const Run& run) {
    std::string texts;
    for (std::size_t i = 0; i < run.after.fields.size(); ++i) {
        if (i >= run.before.fields.size() || run.after.fields[i] != run.before.fields[i]) {
            texts += (texts.empty() ? "" : ", ") + run.after.fields[i];
        }
    }
    return "changed to " + texts;
}

/// A run in words: what was told; the rows as before, as after the undisturbed run or half; the list right (as the rows
/// are), empty, or old (neither); the fields kept as before, left as by the undisturbed run, or changed.
inline std::string outcome(const Run& run, const Run& undisturbed) {
    const Moment &before = run.before, &after = run.after, &done = undisturbed.after;
    const std::string rows = after.rows == before.rows ? "before" : after.rows == done.rows ? "done" : after.half;
    const std::string list = after.shown == after.held ? "right" : after.shown.empty() ? "empty" : "old";
    const std::string fields = after.fields == before.fields ? "kept"
                               : after.fields == done.fields ? "done"
                                                             : changed(run);
    return toldBeyond(run, undisturbed) + "; rows " + rows + "; list " + list + "; fields " + fields;
}

// Outcomes that many operations have, for their tables.
/// Nothing has happened but the box.
inline constexpr const char* kRefused = "told it; rows before; list right; fields kept";
/// It is stored as if nothing had been refused.
inline constexpr const char* kStored = "silent; rows done; list right; fields done";
inline constexpr const char* kStoredKept = "silent; rows done; list right; fields kept";
/// It is stored, and the list couldn't be read again.
inline constexpr const char* kStoredUnread = "told it; rows done; list empty; fields done";
inline constexpr const char* kStoredUnreadKept = "told it; rows done; list empty; fields kept";

/// Each outcome that many times, for tables in which neighbours are alike.
inline Lines inTurn(std::initializer_list<std::pair<int, std::string>> outcomes) {
    Lines all;
    for (const auto& [times, outcome] : outcomes) {
        all.insert(all.end(), static_cast<std::size_t>(times), outcome);
    }
    return all;
}

/// Runs an operation undisturbed, and then with each of its requests refused.
template<typename World>
void replay(const Operation<World>& operation) {
    using Lasting = Refusals::Lasting;
    const Run undisturbed = play(operation, 0, Lasting::Once);
    EXPECT_NE(undisturbed.after.rows, undisturbed.before.rows) << "nothing is written";
    EXPECT_EQ(undisturbed.after.shown, undisturbed.after.held);
    for (const Lasting lasting : {Lasting::Once, Lasting::FromThere}) {
        const Lines& expected = lasting == Lasting::Once ? operation.once : operation.fromThere;
        const int last = operation.first + static_cast<int>(expected.size()) - 1;
        if (operation.toTheEnd) {
            EXPECT_EQ(last, static_cast<int>(undisturbed.asked.size()));
        }
        for (int place = operation.first; place <= static_cast<int>(undisturbed.asked.size()); ++place) {
            if (place > last && !operation.toTheEnd) {
                break;
            }
            SCOPED_TRACE((lasting == Lasting::Once ? "once, " : "from there on, ") + std::to_string(place) + ": " +
                         undisturbed.asked[static_cast<std::size_t>(place) - 1]);
            const std::string wanted =
                place > last ? "nothing" : expected[static_cast<std::size_t>(place - operation.first)];
            EXPECT_EQ(outcome(play(operation, place, lasting), undisturbed), wanted);
        }
    }
}

} // namespace support
