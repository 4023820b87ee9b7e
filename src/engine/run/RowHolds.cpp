// Holding the rows that a SELECT finds for one session alone.

#include "engine/bind/Binder.h"
#include "engine/errors/RunErrors.h"
#include "engine/errors/StoreErrors.h"
#include "engine/run/BatchRun.h"
#include "engine/run/SessionTables.h"
#include "engine/text/Parser.h"
#include "engine/translate/SqlText.h"

namespace engine {

namespace {

class HeldRows final : public RowHold {
public:
    HeldRows(std::shared_ptr<Database> database, std::string table)
        : database_(std::move(database)), table_(std::move(table)) {}
    ~HeldRows() override {
        for (const std::int64_t row : rows_) {
            database_->locks().release(table_, row);
        }
    }
    HeldRows(const HeldRows&) = delete;
    HeldRows& operator=(const HeldRows&) = delete;

    int rows() const override { return static_cast<int>(rows_.size()); }

    void take(std::int64_t row) {
        if (!database_->locks().acquire(table_, row)) {
            throw errors::lockTimeout();
        }
        rows_.push_back(row);
    }

private:
    std::shared_ptr<Database> database_;
    std::string table_;
    std::vector<std::int64_t> rows_;
};

/// The table whose rows a SELECT gives. The rows of joins, groups and the like are no rows of a table to hold.
const bound::Table& heldTable(const bound::Select& select) {
    const bound::Core& core = select.cores.front();
    const bool plain = select.cores.size() == 1 && !core.distinct && !core.aggregated && core.from.size() == 1;
    const auto* table = plain ? std::get_if<bound::Table>(&core.from.front()->node) : nullptr;
    if (table == nullptr || table->schema != "main") {
        throw errors::readOnlyCursor();
    }
    return *table;
}

} // namespace

std::unique_ptr<RowHold> ServerSession::takeRows(std::string_view select) {
    stopBatch();
    current_->refresh();
    prepareFor(*current_, false);
    const BatchTree tree = parse(select);
    if (tree.statements.size() != 1 || !std::holds_alternative<Select>(tree.statements.front()->node)) {
        throw errors::readOnlyCursor();
    }
    return holdRows(std::get<Select>(tree.statements.front()->node));
}

void ServerSession::holdUntilTransactionEnds(const Select& select) {
    transactionHolds_.push_back(holdRows(select));
}

std::unique_ptr<RowHold> ServerSession::holdRows(const Select& select) {
    SessionTables finder(*this);
    Binder binder(finder);
    const auto bound = std::get<bound::Select>(binder.bind(select));
    const bound::Table& table = heldTable(bound);
    auto hold = std::make_unique<HeldRows>(current_, table.info->name);
    try {
        // The write lock keeps other sessions' changes out between finding the rows and holding them.
        sqlite::Transaction transaction(current_->connection());
        const translate::Text text = translate::rowsOf(bound);
        sqlite::Statement rows(current_->connection(), text.sql());
        bindLiterals(rows, text.parameters(binder.parameters()), {nullptr, settings.dateOrder});
        const int rowNumber = rows.columns() - 1;
        while (rows.step()) {
            hold->take(rows.integer(rowNumber));
        }
        rows.reset();
        transaction.commit();
    } catch (const sqlite::Failure& failure) {
        current_->raise(failure, nullptr, "");
    }
    return hold;
}

} // namespace engine
