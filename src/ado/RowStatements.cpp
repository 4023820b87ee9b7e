#include "ado/RowStatements.h"

#include "ado/Literals.h"
#include "ado/Names.h"
#include "ado/Text.h"

#include <algorithm>
#include <utility>

namespace ado {

namespace {

using Fields = std::vector<FieldDescription>;

std::vector<int> identityOf(const Fields& fields) {
    const auto found = std::ranges::find_if(fields, &FieldDescription::identity);
    return found == fields.end() ? std::vector<int>{} : std::vector<int>{static_cast<int>(found - fields.begin())};
}

/// The places of these columns among the fields; none where one of them is missing.
std::vector<int> placesOf(const std::vector<std::string>& columns, const Fields& fields) {
    std::vector<int> places;
    for (const std::string& column : columns) {
        const auto found = std::ranges::find_if(
            fields, [&](const FieldDescription& field) { return sameName(field.baseColumn, column); });
        if (found == fields.end()) {
            return {};
        }
        places.push_back(static_cast<int>(found - fields.begin()));
    }
    return places;
}

/// The columns that "=" compares reliably: no single precision numbers, no binaries, no texts of unlimited length.
std::vector<int> comparablePlaces(const Fields& fields) {
    std::vector<int> places;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const FieldDescription& field = fields[i];
        const bool text = field.type == FieldType::Char || field.type == FieldType::WChar;
        const bool vague =
            field.type == FieldType::Single || field.type == FieldType::Binary || (text && field.length < 0);
        if (!vague && !field.baseColumn.empty()) {
            places.push_back(static_cast<int>(i));
        }
    }
    return places;
}

} // namespace

std::optional<std::string> RowStatements::baseTable(const Fields& fields) {
    std::optional<std::string> table;
    for (const FieldDescription& field : fields) {
        if (field.baseTable.empty()) {
            continue;
        }
        if (table && !sameName(*table, field.baseTable)) {
            return std::nullopt;
        }
        table = field.baseTable;
    }
    return table;
}

RowStatements::RowStatements(const Fields& fields, const std::string& table, const std::vector<std::string>& primaryKey)
    : fields_(fields), table_(quotedName(table)) {
    key_ = identityOf(fields);
    if (key_.empty()) {
        key_ = placesOf(primaryKey, fields);
    }
    if (key_.empty()) {
        key_ = comparablePlaces(fields);
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!fields[i].baseColumn.empty()) {
            readColumns_.push_back(static_cast<int>(i));
        }
    }
}

std::string RowStatements::insert(const Assignments& values) const {
    std::string columns, literals;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!values[i]) {
            continue;
        }
        addPiece(columns, ", ", quotedName(fields_[i].baseColumn));
        addPiece(literals, ", ", literal(*values[i], fields_[i].type));
    }
    const std::string into = "INSERT INTO " + table_;
    return columns.empty() ? into + " DEFAULT VALUES" : into + " (" + columns + ") VALUES (" + literals + ")";
}

std::string RowStatements::update(const Assignments& values, const RowStore& rows, std::size_t row) const {
    std::string assignments;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i]) {
            addPiece(assignments, ", ",
                     quotedName(fields_[i].baseColumn) + " = " + literal(*values[i], fields_[i].type));
        }
    }
    return "UPDATE " + table_ + " SET " + assignments + where(rows, row);
}

std::string RowStatements::select(const RowStore& rows, std::size_t row, const std::string& hint) const {
    std::string columns;
    for (const int place : readColumns_) {
        addPiece(columns, ", ", quotedName(fields_[static_cast<std::size_t>(place)].baseColumn));
    }
    return "SELECT " + columns + " FROM " + table_ + hint + where(rows, row);
}

std::string RowStatements::where(const RowStore& rows, std::size_t row) const {
    std::string condition;
    for (const int place : key_) {
        const FieldDescription& field = fields_[static_cast<std::size_t>(place)];
        condition += condition.empty() ? " WHERE " : " AND ";
        condition += quotedName(field.baseColumn);
        condition += rows.isNull(row, place) ? " IS NULL" : " = " + literal(rows.value(row, place), field.type);
    }
    return condition;
}

} // namespace ado
