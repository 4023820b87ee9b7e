#include "ado/RowStore.h"

#include "ado/Error.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
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

RowStore::RowStore(const std::vector<FieldDescription>& fields) {
    for (const FieldDescription& field : fields) {
        columns_.push_back({field.type, scaleOf(field)});
    }
}

void RowStore::fetch(DriverResult& result) {
    const int count = static_cast<int>(columns_.size());
    while (result.nextRow()) {
        Cell* cells = nextRow();
        for (int field = 0; field < count; ++field) {
            cells[field] = read(result, field);
        }
        ++rows_;
    }
}

void RowStore::append(const std::vector<Value>& row) {
    std::transform(row.begin(), row.end(), nextRow(), [this](const Value& value) { return toCell(value); });
    ++rows_;
}

void RowStore::replace(std::size_t row, int column, const Value& value) {
    blocks_[row / kRowsOfBlock][row % kRowsOfBlock * columns_.size() + static_cast<std::size_t>(column)] =
        toCell(value);
}

RowStore::Cell* RowStore::nextRow() {
    const std::size_t place = rows_ % kRowsOfBlock;
    if (rows_ / kRowsOfBlock == blocks_.size()) {
        blocks_.push_back(std::make_unique_for_overwrite<Cell[]>(kRowsOfBlock * columns_.size()));
    }
    return &blocks_.back()[place * columns_.size()];
}

RowStore::Cell RowStore::textCell(std::string_view text) {
    if (text.size() > textRoom_) {
        textRoom_ = std::max(kTextBlock, text.size());
        texts_.push_back(std::make_unique_for_overwrite<char[]>(textRoom_));
        nextText_ = texts_.back().get();
    }
    Cell cell{};
    cell.kind = Kind::Text;
    cell.text = nextText_;
    cell.length = static_cast<std::uint32_t>(text.size());
    text.copy(nextText_, text.size());
    nextText_ += text.size();
    textRoom_ -= text.size();
    return cell;
}

RowStore::Cell RowStore::read(const DriverResult& result, int field) {
    Cell cell{};
    if (result.isNull(field)) {
        return cell;
    }
    const Column& column = columns_[static_cast<std::size_t>(field)];
    switch (column.type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::SmallInt:
    case FieldType::Integer:
    case FieldType::BigInt:
        cell.kind = Kind::Integer;
        cell.integer = result.integer(field);
        return cell;
    case FieldType::Single:
    case FieldType::Double:
        cell.kind = Kind::Real;
        cell.real = result.real(field);
        return cell;
    case FieldType::Currency:
    case FieldType::Decimal:
        cell.kind = Kind::Integer;
        cell.integer = unscaled(result, field, column.scale);
        return cell;
    case FieldType::DateTime: {
        const Date date = readDate(result.text(field));
        cell.kind = Kind::Date;
        cell.date = {date.day, date.millisecond};
        return cell;
    }
    case FieldType::Char:
    case FieldType::WChar:
    case FieldType::Binary:
        break;
    }
    return textCell(result.text(field));
}

RowStore::Cell RowStore::toCell(const Value& value) {
    Cell cell{};
    const auto write = [&]<typename T>(const T& content) {
        if constexpr (std::is_same_v<T, std::string>) {
            cell = textCell(content);
        } else if constexpr (std::is_same_v<T, Date>) {
            cell.kind = Kind::Date;
            cell.date = {content.day, content.millisecond};
        } else if constexpr (std::is_floating_point_v<T>) {
            cell.kind = Kind::Real;
            cell.real = static_cast<double>(content);
        } else if constexpr (!std::is_same_v<T, std::monostate> && !std::is_same_v<T, Null>) {
            cell.kind = Kind::Integer;
            if constexpr (std::is_same_v<T, Currency>) {
                cell.integer = content.tenThousandths;
            } else if constexpr (std::is_same_v<T, Decimal>) {
                cell.integer = content.unscaled;
            } else {
                cell.integer = content;
            }
        }
    };
    std::visit(write, value.variant());
    return cell;
}

std::string_view RowStore::text(std::size_t row, int column) const {
    const Cell& found = cell(row, column);
    return {found.text, found.length};
}

Value RowStore::value(std::size_t row, int column) const {
    const Cell& found = cell(row, column);
    if (found.kind == Kind::Null) {
        return Null{};
    }
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
    return text(row, column);
}

} // namespace ado
