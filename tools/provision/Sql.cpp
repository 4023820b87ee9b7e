#include "provision/Sql.h"

#include "provision/Scripts.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <exception>

namespace provision {

namespace {

constexpr int kRowsPerStatement = 20; // with more the time per row grows again

template<typename Read>
auto firstColumn(engine::Session& session, std::string_view select, Read read) {
    std::vector<decltype(read(std::declval<const engine::ResultRow&>()))> values;
    const auto batch = session.execute(select);
    while (batch->nextResult()) {
        while (const engine::ResultRow* row = batch->nextRow()) {
            values.push_back(read(*row));
        }
    }
    return values;
}

} // namespace

void run(engine::Session& session, std::string_view text) {
    const auto batch = session.execute(text);
    while (batch->nextResult()) {
    }
}

void runScript(engine::Session& session, std::string_view name) {
    for (const std::string_view batch : batches(script(name))) {
        run(session, batch);
    }
}

std::vector<std::int64_t> integers(engine::Session& session, std::string_view select) {
    return firstColumn(session, select, [](const engine::ResultRow& row) { return row.integer(0); });
}

std::vector<std::string> texts(engine::Session& session, std::string_view select) {
    return firstColumn(session, select, [](const engine::ResultRow& row) { return std::string(row.text(0)); });
}

std::string literal(std::string_view text) {
    std::string written = "N'";
    for (const char character : text) {
        written += character;
        if (character == '\'') {
            written += character;
        }
    }
    return written += '\'';
}

RowWriter::RowWriter(engine::Session& session, std::string_view table, std::string_view columns)
    : session_(session), head_("INSERT INTO ") {
    head_.append(table).append(" (").append(columns).append(") VALUES ");
}

std::string& RowWriter::next() {
    if (inRow_) {
        return statement_ += ", ";
    }
    inRow_ = true;
    statement_ += rows_ == 0 ? head_ : ", ";
    return statement_ += '(';
}

RowWriter& RowWriter::integer(std::int64_t value) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    next().append(digits.begin(), end);
    return *this;
}

RowWriter& RowWriter::cents(std::int64_t value) {
    integer(value / 100);
    const auto rest = static_cast<int>(value % 100);
    statement_ += {'.', static_cast<char>('0' + rest / 10), static_cast<char>('0' + rest % 10)};
    return *this;
}

RowWriter& RowWriter::text(std::string_view value) {
    next() += literal(value);
    return *this;
}

RowWriter& RowWriter::date(std::chrono::sys_days value) {
    const std::chrono::year_month_day day(value);
    std::array<char, 16> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "'%04d%02u%02u'", static_cast<int>(day.year()),
                                     static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    next().append(digits.data(), static_cast<std::size_t>(length));
    return *this;
}

RowWriter& RowWriter::null() {
    next() += "NULL";
    return *this;
}

void RowWriter::endRow() {
    statement_ += ')';
    inRow_ = false;
    if (++rows_ == kRowsPerStatement) {
        finish();
    }
}

void RowWriter::finish() {
    if (rows_ > 0) {
        run(session_, statement_);
    }
    statement_.clear();
    rows_ = 0;
}

Transaction::Transaction(engine::Session& session) : session_(session) {
    run(session_, "BEGIN TRANSACTION");
}

Transaction::~Transaction() {
    if (!open_) {
        return;
    }
    try {
        run(session_, "ROLLBACK TRANSACTION");
    } catch (const std::exception&) {
        // The error that left the transaction open is the one that the caller gets.
    }
}

void Transaction::commit() {
    run(session_, "COMMIT TRANSACTION");
    open_ = false;
}

} // namespace provision
