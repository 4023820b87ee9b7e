#pragma once

#include "engine/errors/Error.h"
#include "engine/run/Session.h"
#include "engine/store/Instance.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace engine {

/// What a client sees of one result: `name|name` and a line `value|value` for each row, `(3)` for rows written, `-` for
/// neither; before it what the server said, as `number: text`.
inline std::string shown(Batch& batch) {
    std::string lines;
    for (const Message& message : batch.messages()) {
        lines += std::to_string(message.number) + ": " + message.text + "\n";
    }
    if (!batch.hasRows()) {
        return lines + (batch.affected() < 0 ? "-" : "(" + std::to_string(batch.affected()) + ")");
    }
    const auto line = [&](auto value) {
        for (int i = 0; i < static_cast<int>(batch.columns().size()); ++i) {
            lines += (i == 0 ? "" : "|") + value(i);
        }
    };
    line([&](int i) { return batch.columns()[static_cast<std::size_t>(i)].name; });
    while (const ResultRow* row = batch.nextRow()) {
        lines += "\n";
        line([&](int i) { return row->isNull(i) ? std::string("NULL") : std::string(row->text(i)); });
    }
    return lines;
}

/// All results of a batch, a line feed between them; an error is `!number text`.
inline std::string answer(Session& session, std::string_view text) {
    std::string all;
    const auto add = [&](const std::string& one) { all += (all.empty() ? "" : "\n") + one; };
    const auto guarded = [&](auto action) {
        try {
            return action();
        } catch (const Error& error) {
            add("!" + std::to_string(error.number()) + " " + error.what());
            return true;
        }
    };
    std::unique_ptr<Batch> batch;
    guarded([&] {
        batch = session.execute(text);
        return true;
    });
    while (batch != nullptr && guarded([&] {
               if (!batch->nextResult()) {
                   return false;
               }
               add(shown(*batch));
               return true;
           })) {
    }
    return all;
}

/// The rows of a SELECT without its heading, or whatever else the answer is.
inline std::string rowsOf(Session& session, std::string_view text) {
    const std::string all = answer(session, text);
    const std::size_t heading = all.find('\n');
    return all.starts_with("!") ? all : heading == std::string::npos ? "" : all.substr(heading + 1);
}

/// An instance of its own with a database `prova`, and a session that uses it.
class SessionTest : public ::testing::Test {
protected:
    SessionTest() {
        InstanceOptions options;
        options.mapPath = [this](std::string_view path) {
            return folder_.path() / std::string(path.substr(path.find_last_of('\\') + 1));
        };
        instance = Instance::create(folder_.path() / "pc01$prova", options);
        instance->createDatabase("prova", "", "");
        session = connect();
    }

    std::unique_ptr<Session> connect(const std::string& database = "prova") {
        return Session::open(instance, Login{"", "", database});
    }

    std::string answer(std::string_view text) { return engine::answer(*session, text); }
    std::string rows(std::string_view text) { return engine::rowsOf(*session, text); }
    /// For preparations, which must not fail.
    void run(std::string_view text) {
        const std::string said = answer(text);
        ASSERT_EQ(said.find('!'), std::string::npos) << text << "\n" << said;
    }

private:
    support::TemporaryFolder folder_;

protected:
    std::shared_ptr<Instance> instance;
    std::unique_ptr<Session> session;
};

} // namespace engine
