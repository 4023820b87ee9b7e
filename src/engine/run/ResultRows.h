#pragma once

// The rows of one result, walked once from the first to the last.

#include "engine/run/ServerSession.h"
#include "engine/run/Session.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// Values are read after a `next` that gave true.
class ResultRows : public ResultRow {
public:
    /// Known before the first row and after the last one.
    virtual const std::vector<ResultColumn>& columns() const = 0;
    virtual bool next() = 0;
};

/// The rows of a SELECT, read from the storage one by one. The session learns their number behind the last one.
class PlanRows final : public ResultRows {
public:
    /// Fills the server's own tables that the plan reads. Throws the errors of the literals' conversions. Gives `most`
    /// rows at most, 0 is all.
    PlanRows(ServerSession& session, PlanPtr plan, const Bindings& bindings, std::int64_t most = 0);
    ~PlanRows() override;
    PlanRows(const PlanRows&) = delete;
    PlanRows& operator=(const PlanRows&) = delete;

    const std::vector<ResultColumn>& columns() const override { return plan_->columns; }
    bool next() override;
    bool isNull(int column) const override { return plan_->statement.isNull(column); }
    std::int64_t integer(int column) const override { return plan_->statement.integer(column); }
    double real(int column) const override { return plan_->statement.real(column); }
    std::string_view text(int column) const override;

private:
    ServerSession& session_;
    Database& database_; ///< the present one may be another by the time the rows are read
    PlanPtr plan_;
    bool over_ = false;
    std::int64_t walked_ = 0;
    std::int64_t most_; ///< 0 for all
    mutable std::string formatted_;
};

/// What a procedure lists.
struct Listing {
    std::vector<ResultColumn> columns;
    std::vector<std::vector<Scalar>> rows;
};

class ListedRows final : public ResultRows {
public:
    explicit ListedRows(Listing listing) : listing_(std::move(listing)) {}

    const std::vector<ResultColumn>& columns() const override { return listing_.columns; }
    bool next() override { return row_ < listing_.rows.size() && ++row_ > 0; }
    bool isNull(int column) const override { return engine::isNull(value(column)); }
    std::int64_t integer(int column) const override;
    double real(int column) const override { return static_cast<double>(integer(column)); }
    std::string_view text(int column) const override;

private:
    const Scalar& value(int column) const { return listing_.rows[row_ - 1][static_cast<std::size_t>(column)]; }

    Listing listing_;
    std::size_t row_ = 0; ///< counted from 1
    mutable std::string formatted_;
};

} // namespace engine
