#pragma once

// The running of one batch: its statements one after the other, and the walk over the rows of the present one.

#include "engine/run/Planner.h"
#include "engine/run/ServerSession.h"
#include "engine/text/Tree.h"

#include <optional>
#include <string>
#include <vector>

namespace engine {

/// Rows that a procedure made by itself.
struct MemoryRows {
    std::vector<ResultColumn> columns;
    std::vector<std::vector<Scalar>> rows;
};

/// What one statement gave.
struct Outcome {
    PlanPtr walk; ///< a SELECT that waits to be stepped
    std::optional<MemoryRows> memory;
    std::int64_t affected = -1;
};

class BatchRun final : public Batch {
public:
    /// A statement whose plan is there already.
    BatchRun(ServerSession& session, PlanPtr plan, Shape shape);
    /// `shape` where the batch is one statement whose plan may be kept.
    BatchRun(ServerSession& session, BatchTree tree, std::optional<Shape> shape);
    ~BatchRun() override;

    bool nextResult() override;
    bool hasRows() const override { return columns_ != nullptr; }
    const std::vector<ResultColumn>& columns() const override;
    std::int64_t affected() const override { return outcome_.affected; }
    const std::vector<Message>& messages() const override { return messages_; }
    bool nextRow() override;
    bool isNull(int column) const override;
    std::int64_t integer(int column) const override;
    double real(int column) const override;
    std::string_view text(int column) const override;

    /// Another batch starts, or the session ends: nothing more comes of this one.
    void stop();

private:
    enum class Format { AsStored, Decimal, Real };

    bool runNext();
    bool stepRows();
    template<class Step>
    bool guarded(Step step);
    Outcome run(const Statement& statement);
    Outcome runPlanned(const PlanPtr& plan, const Bindings& bindings);
    Outcome runPlannedOf(const Statement& statement);
    bool holds(const Expression& condition);
    void print(const Expression& text);
    void show(Outcome outcome);
    void endRows();
    void failed(const Error& error);
    void check(const Statement& statement, bool& goOn);
    const Scalar& memoryValue(int column) const;

    ServerSession* session_;
    Database* database_; ///< of the rows being walked
    BatchTree tree_;
    std::optional<Shape> shape_;
    PlanPtr ready_;
    std::vector<const Statement*> pending_; ///< the next one last
    bool checked_ = false;

    Outcome outcome_;
    const std::vector<ResultColumn>* columns_ = nullptr;
    std::vector<Format> formats_;
    std::size_t memoryRow_ = 0;
    std::int64_t walked_ = 0;
    std::vector<Message> messages_;
    mutable std::string formatted_;
};

} // namespace engine
