#include "ado/RowStore.h"

#include "ado/Error.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace ado {

namespace {

constexpr double kLargestSureWhole = 1e15; // a double holds every whole number up to here
constexpr int kLargestPower = 15;

int digitsAt(std::string_view text, std::size_t from, std::size_t count) {
    int number = 0;
    for (const char c : text.substr(std::min(from, text.size()), count)) {
        number = number * 10 + (c - '0');
    }
    return number;
}

/// Reads YYYY-MM-DD hh:mm:ss.mmm; the time may be missing.
Date readDate(std::string_view text) {
    using namespace std::chrono;
    const year_month_day date(year(digitsAt(text, 0, 4)), month(static_cast<unsigned>(digitsAt(text, 5, 2))),
                              day(static_cast<unsigned>(digitsAt(text, 8, 2))));
    const int seconds = (digitsAt(text, 11, 2) * 60 + digitsAt(text, 14, 2)) * 60 + digitsAt(text, 17, 2);
    return {static_cast<std::int32_t>(sys_days(date).time_since_epoch().count()),
            seconds * 1000 + digitsAt(text, 20, 3)};
}

/// The digits of a decimal text with its point moved `scale` places to the right.
std::int64_t readUnscaled(std::string_view text, int scale) {
    std::int64_t number = 0;
    int decimals = -1;
    for (const char c : text) {
        if (c == '.') {
            decimals = 0;
        }
        if (c < '0' || c > '9') {
            continue;
        }
        if (decimals >= scale) {
            break;
        }
        if (__builtin_mul_overflow(number, 10, &number) || __builtin_add_overflow(number, c - '0', &number)) {
            throw Error(kOverflow);
        }
        if (decimals >= 0) {
            ++decimals;
        }
    }
    for (int missing = scale - std::max(decimals, 0); missing > 0; --missing) {
        if (__builtin_mul_overflow(number, 10, &number)) {
            throw Error(kOverflow);
        }
    }
    return text.starts_with('-') ? -number : number;
}

double powerOfTen(int exponent) {
    static constexpr std::array<double, kLargestPower + 1> kPowers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                                      1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    return kPowers[static_cast<std::size_t>(exponent)];
}

int scaleOf(const FieldDescription& field) {
    return field.type == FieldType::Currency ? 4 : field.type == FieldType::Decimal ? field.scale : 0;
}

bool comesAsText(FieldType type) {
    return type == FieldType::DateTime || type == FieldType::Char || type == FieldType::WChar ||
           type == FieldType::Binary;
}

/// A decimal without its point, read from its text where it has more digits than a double holds.
std::int64_t unscaled(const DriverResult& result, int field, int scale) {
    if (scale <= kLargestPower) {
        const double number = result.real(field) * powerOfTen(scale);
        if (std::fabs(number) < kLargestSureWhole) {
            return std::llround(number);
        }
    }
    return readUnscaled(result.text(field), scale);
}

} // namespace

RowStore::RowStore(const std::vector<FieldDescription>& fields) : wordsOfNulls_((fields.size() + 63) / 64) {
    const std::size_t rows =
        Block::kUsualSize / (sizeof(Cell) * std::max<std::size_t>(1, wordsOfNulls_ + fields.size()));
    logRowsOfBlock_ = static_cast<unsigned>(std::bit_width(std::max<std::size_t>(1, rows))) - 1;
    for (const FieldDescription& field : fields) {
        columns_.push_back({field.type, comesAsText(field.type), scaleOf(field)});
    }
}

void RowStore::fetch(DriverResult& result) {
    const int count = static_cast<int>(columns_.size());
    while (result.nextRow()) {
        Cell* row = nextRow();
        for (int field = 0; field < count; ++field) {
            if (!read(result, field, cellOf(row, field))) {
                setNull(row, field);
            }
        }
        ++rows_;
    }
}

void RowStore::append(const std::vector<Value>& row) {
    Cell* written = nextRow();
    for (std::size_t column = 0; column < row.size(); ++column) {
        write(written, static_cast<int>(column), row[column]);
    }
    ++rows_;
}

void RowStore::replace(std::size_t row, int column, const Value& value) {
    write(this->row(row), column, value);
}

RowStore::Cell* RowStore::nextRow() {
    if (rows_ >> logRowsOfBlock_ == blocks_.size()) {
        blocks_.emplace_back(rowsOfBlock() * widthOfRow() * sizeof(Cell));
    }
    Cell* fresh = row(rows_);
    std::fill_n(fresh, wordsOfNulls_, Cell{});
    return fresh;
}

const std::byte* RowStore::kept(std::string_view text) {
    const auto length = static_cast<std::uint32_t>(text.size());
    const std::size_t size = sizeof length + text.size();
    if (size > textRoom_) {
        const Block& block = texts_.emplace_back(size);
        textRoom_ = block.size();
        nextText_ = block.data();
    }
    std::byte* place = nextText_;
    std::memcpy(place, &length, sizeof length);
    text.copy(reinterpret_cast<char*>(place) + sizeof length, text.size());
    nextText_ += size;
    textRoom_ -= size;
    return place;
}

bool RowStore::read(const DriverResult& result, int field, Cell& cell) {
    const Column& column = columns_[static_cast<std::size_t>(field)];
    if (column.comesAsText) { // a null is told by the text itself
        const std::string_view text = result.text(field);
        if (text.data() == nullptr) {
            return false;
        }
        if (column.type == FieldType::DateTime) {
            const Date date = readDate(text);
            cell.date = {date.day, date.millisecond};
        } else {
            cell.text = kept(text);
        }
        return true;
    }
    if (result.isNull(field)) {
        return false;
    }
    switch (column.type) {
    case FieldType::Single:
    case FieldType::Double:
        cell.real = result.real(field);
        break;
    case FieldType::Currency:
    case FieldType::Decimal:
        cell.integer = unscaled(result, field, column.scale);
        break;
    default:
        cell.integer = result.integer(field);
        break;
    }
    return true;
}

void RowStore::write(Cell* row, int column, const Value& value) {
    row[static_cast<std::size_t>(column) / 64].nulls &= ~bitOf(column);
    Cell& cell = cellOf(row, column);
    const auto set = [&]<typename T>(const T& content) {
        if constexpr (std::is_same_v<T, std::string>) {
            cell.text = kept(content);
        } else if constexpr (std::is_same_v<T, Date>) {
            cell.date = {content.day, content.millisecond};
        } else if constexpr (std::is_floating_point_v<T>) {
            cell.real = static_cast<double>(content);
        } else if constexpr (std::is_same_v<T, std::monostate> || std::is_same_v<T, Null>) {
            setNull(row, column);
        } else if constexpr (std::is_same_v<T, Currency>) {
            cell.integer = content.tenThousandths;
        } else if constexpr (std::is_same_v<T, Decimal>) {
            cell.integer = content.unscaled;
        } else {
            cell.integer = content;
        }
    };
    std::visit(set, value.variant());
}

std::string_view RowStore::textOf(const Cell& cell) {
    std::uint32_t length = 0;
    std::memcpy(&length, cell.text, sizeof length);
    return {reinterpret_cast<const char*>(cell.text) + sizeof length, length};
}

std::string_view RowStore::text(std::size_t row, int column) const {
    return isNull(row, column) ? std::string_view() : textOf(cellOf(this->row(row), column));
}

Value RowStore::value(std::size_t row, int column) const {
    Cell* cells = this->row(row);
    if (hasNull(cells, column)) {
        return Null{};
    }
    const Cell& found = cellOf(cells, column);
    const Column& description = columns_[static_cast<std::size_t>(column)];
    switch (description.type) {
    case FieldType::Boolean:
        return found.integer != 0;
    case FieldType::Byte:
        return static_cast<std::uint8_t>(found.integer);
    case FieldType::SmallInt:
        return static_cast<std::int16_t>(found.integer);
    case FieldType::Integer:
        return static_cast<std::int32_t>(found.integer);
    case FieldType::Single:
        return static_cast<float>(found.real);
    case FieldType::Double:
        return found.real;
    case FieldType::Currency:
        return Currency{found.integer};
    case FieldType::BigInt:
    case FieldType::Decimal:
        return Decimal{found.integer, description.scale};
    case FieldType::DateTime:
        return Date{found.date.day, found.date.millisecond};
    case FieldType::Char:
    case FieldType::WChar:
    case FieldType::Binary:
        break;
    }
    return textOf(found);
}

} // namespace ado
