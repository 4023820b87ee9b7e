#pragma once

// The running of one batch: which statement comes next, and what an error leaves of the batch.

#include "engine/run/ServerSession.h"
#include "engine/run/StatementRun.h"
#include "engine/text/Tree.h"

#include <optional>
#include <string>
#include <vector>

namespace engine {

class BatchRun final : public Batch {
public:
    /// A statement whose plan is there already; `text` where it turns out to be stale.
    BatchRun(ServerSession& session, PlanPtr plan, Shape shape, std::string text);
    /// `shape` where the batch is one statement whose plan may be kept.
    BatchRun(ServerSession& session, BatchTree tree, std::optional<Shape> shape);
    ~BatchRun() override;

    bool nextResult() override;
    Verb verb() const override { return verb_; }
    bool hasRows() const override { return outcome_.rows != nullptr; }
    const std::vector<ResultColumn>& columns() const override;
    std::int64_t affected() const override;
    const std::vector<Message>& messages() const override { return messages_; }
    const ResultRow* nextRow() override;

    /// Another batch starts, or the session ends: nothing more comes of this one.
    void stop();

private:
    bool runNext();
    bool run(const Statement& statement, bool writes, bool touchesTable);
    /// Under NOEXEC and its kind: looks up the names, and tells the columns under FMTONLY. Whether there is a result.
    bool describe(const Statement& statement);
    void begin(bool writes, bool touchesTable);
    void enter(const If& branch);
    void enter(const Block& block);
    void queue(const std::vector<StatementPtr>& statements);
    void show(Outcome outcome);
    template<class Step>
    bool guarded(Step step);
    void failed(const Error& error);

    ServerSession* session_;
    BatchTree tree_;
    std::optional<Shape> shape_;
    PlanPtr ready_;
    std::string text_;                      ///< of `ready_`
    std::vector<const Statement*> pending_; ///< the next one last
    bool checked_ = false;

    Verb verb_ = Verb::Other;
    Outcome outcome_;
    std::vector<Message> messages_;
};

} // namespace engine
