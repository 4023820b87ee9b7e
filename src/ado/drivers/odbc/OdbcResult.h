#pragma once

#include "ado/Driver.h"
#include "ado/drivers/odbc/OdbcHandles.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace ado::odbc {

/// The results of one text, on its own statement handle, fetched row by row without a cursor of the driver.
class OdbcResult : public DriverResult {
public:
    /// `timeout`: seconds to wait for an answer; after that the server is remembered as silent.
    OdbcResult(std::shared_ptr<const Handle> connection, std::string server, std::string_view text, int timeout);

    bool nextResult() override;
    bool hasRows() const override { return !fields_.empty(); }
    const std::vector<FieldDescription>& fields() const override { return fields_; }
    std::int64_t affected() const override { return affected_; }

    bool nextRow() override;
    bool isNull(int field) const override { return cell(field).null; }
    std::int64_t integer(int field) const override { return cell(field).integer; }
    double real(int field) const override { return cell(field).real; }
    std::string_view text(int field) const override {
        return cell(field).null ? std::string_view() : std::string_view(cell(field).text);
    }

private:
    struct Cell {
        bool null = true;
        std::int64_t integer = 0;
        double real = 0;
        std::string text;
    };

    bool answered(SQLRETURN code, const char* call);
    void describe();
    FieldDescription describeField(SQLUSMALLINT number);
    const Cell& cell(int field) const { return rows_[at_][static_cast<std::size_t>(field)]; }
    void readAhead();
    bool readRow();
    void read(SQLUSMALLINT number, Cell& cell);
    void readText(SQLUSMALLINT number, Cell& cell);

    std::shared_ptr<const Handle> connection_; // declared before the statement, so that it is destroyed later
    std::string server_;
    Handle statement_;
    SQLRETURN executed_ = SQL_ERROR;
    bool started_ = false;
    std::vector<FieldDescription> fields_;
    std::vector<std::vector<Cell>> rows_; ///< read ahead
    std::size_t at_ = 0, read_ = 0;       ///< the present one of how many
    SQLRETURN fetched_ = SQL_SUCCESS;
    std::exception_ptr failure_;
    std::vector<SQLWCHAR> buffer_;
    std::int64_t affected_ = -1;
};

} // namespace ado::odbc
