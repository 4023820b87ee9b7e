#pragma once

#include "engine/run/Session.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace provision {

/// Runs all statements of a text without reading their rows.
void run(engine::Session& session, std::string_view text);
/// Runs one of the scripts, batch by batch.
void runScript(engine::Session& session, std::string_view name);

/// The first column of a SELECT.
std::vector<std::int64_t> integers(engine::Session& session, std::string_view select);
std::vector<std::string> texts(engine::Session& session, std::string_view select);

/// A text as a literal: N'…'.
std::string literal(std::string_view text);

/// Writes many rows of one table, several per statement. finish() writes the remaining ones.
class RowWriter {
public:
    /// `columns` as between the brackets of an INSERT.
    RowWriter(engine::Session& session, std::string_view table, std::string_view columns);

    RowWriter& integer(std::int64_t value);
    RowWriter& cents(std::int64_t value); ///< an amount in hundredths
    RowWriter& text(std::string_view value);
    RowWriter& date(std::chrono::sys_days value);
    RowWriter& null();
    void endRow();
    void finish();

private:
    std::string& next();

    engine::Session& session_;
    std::string head_, statement_;
    int rows_ = 0;
    bool inRow_ = false;
};

/// A transaction, which is rolled back where commit() isn't called.
class Transaction {
public:
    explicit Transaction(engine::Session& session);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    engine::Session& session_;
    bool open_ = true;
};

} // namespace provision
