#include "ado/RowStore.h"

#include "ado/ExpectError.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace ado {
namespace {

/// One column of given texts, as a driver's result.
class Texts : public DriverResult {
public:
    Texts(FieldDescription field, std::vector<std::optional<std::string>> rows)
        : fields_{std::move(field)}, rows_(std::move(rows)) {}

    bool nextResult() override { return false; }
    bool hasRows() const override { return true; }
    const std::vector<FieldDescription>& fields() const override { return fields_; }
    std::int64_t affected() const override { return -1; }
    bool nextRow() override { return ++row_ < static_cast<int>(rows_.size()); }
    bool isNull(int) const override { return !current(); }
    std::int64_t integer(int) const override { return std::strtoll(current()->c_str(), nullptr, 10); }
    double real(int) const override { return std::strtod(current()->c_str(), nullptr); }
    std::string_view text(int) const override { return current() ? std::string_view(*current()) : std::string_view(); }

private:
    const std::optional<std::string>& current() const { return rows_[static_cast<std::size_t>(row_)]; }

    std::vector<FieldDescription> fields_;
    std::vector<std::optional<std::string>> rows_;
    int row_ = -1;
};

Value read(FieldType type, int scale, const char* text) {
    FieldDescription field;
    field.type = type;
    field.scale = scale;
    Texts result(field, {text});
    RowStore rows(result.fields());
    rows.fetch(result);
    return rows.value(0, 0);
}

TEST(RowStore, KeepsEveryDigitOfADecimal) {
    EXPECT_EQ(read(FieldType::Decimal, 2, "0.29"), Value(Decimal{29, 2}));
    EXPECT_EQ(read(FieldType::Decimal, 2, "-0.05"), Value(Decimal{-5, 2}));
    EXPECT_EQ(read(FieldType::Decimal, 2, "9999999999999.99"), Value(Decimal{999999999999999, 2}));
    EXPECT_EQ(read(FieldType::Decimal, 2, "1234567890123456.78"), Value(Decimal{123456789012345678, 2}));
    EXPECT_EQ(read(FieldType::Decimal, 2, "-1234567890123456.78"), Value(Decimal{-123456789012345678, 2}));
    EXPECT_EQ(read(FieldType::Decimal, 3, "1234567890123456.7"), Value(Decimal{1234567890123456700, 3}));
    EXPECT_EQ(read(FieldType::Decimal, 18, "0.123456789012345678"), Value(Decimal{123456789012345678, 18}));
    EXPECT_EQ(read(FieldType::Currency, 4, "922337203685477.5807"), Value(Currency{9223372036854775807}));
    EXPECT_TRUE(test::raises(kOverflow, [] { read(FieldType::Decimal, 2, "1234567890123456789.00"); }));
}

TEST(RowStore, ReadsDatesWithAndWithoutTheTime) {
    EXPECT_EQ(read(FieldType::DateTime, 0, "2004-03-07 08:05:09.123"), Value(Date::of(2004, 3, 7, 8, 5, 9, 123)));
    EXPECT_EQ(read(FieldType::DateTime, 0, "1753-01-01"), Value(Date::of(1753, 1, 1)));
    EXPECT_EQ(read(FieldType::DateTime, 0, "9999-12-31 23:59:59.997"), Value(Date::of(9999, 12, 31, 23, 59, 59, 997)));
}

TEST(RowStore, KeepsRowsApartWhateverIsReplacedInThem) {
    FieldDescription field;
    Texts result(field, {"uno", std::nullopt, "", "quattro"});
    RowStore rows(result.fields());
    rows.fetch(result);
    ASSERT_EQ(rows.rows(), 4U);
    rows.replace(0, 0, "un testo che non stava nel posto di prima");
    rows.replace(3, 0, Null{});
    rows.append({"cinque"});
    EXPECT_EQ(rows.value(0, 0), Value("un testo che non stava nel posto di prima"));
    EXPECT_TRUE(rows.isNull(1, 0));
    EXPECT_EQ(rows.value(2, 0), Value(""));
    EXPECT_TRUE(rows.isNull(3, 0));
    EXPECT_EQ(rows.value(4, 0), Value("cinque"));
}

std::vector<FieldDescription> integers(int count) {
    FieldDescription field;
    field.type = FieldType::Integer;
    return std::vector<FieldDescription>(static_cast<std::size_t>(count), field);
}

TEST(RowStore, TellsTheNullsOfMoreColumnsThanAWordHasBits) {
    constexpr int kColumns = 130;
    RowStore rows(integers(kColumns));
    std::vector<Value> row;
    for (int column = 0; column < kColumns; ++column) {
        row.push_back(column % 3 == 0 ? Value(Null{}) : Value(column));
    }
    rows.append(row);
    rows.append(std::vector<Value>(kColumns, 7));
    for (int column = 0; column < kColumns; ++column) {
        EXPECT_EQ(rows.value(0, column), row[static_cast<std::size_t>(column)]) << column;
        EXPECT_EQ(rows.value(1, column), Value(7)) << column;
    }
    rows.replace(0, 129, 5);
    rows.replace(1, 63, Null{});
    rows.replace(1, 64, Null{});
    EXPECT_EQ(rows.value(0, 129), Value(5));
    EXPECT_TRUE(rows.isNull(1, 63));
    EXPECT_TRUE(rows.isNull(1, 64));
    EXPECT_FALSE(rows.isNull(1, 65));
    EXPECT_FALSE(rows.isNull(1, 62));
}

TEST(RowStore, KeepsEveryRowWhateverTheWidthOfARow) {
    for (const int columns : {1, 8, 63, 64, 1024, 4096}) { // the last one is wider than a block
        RowStore rows(integers(columns));
        const int count = columns > 1000 ? 20 : 2000;
        for (int row = 0; row < count; ++row) {
            std::vector<Value> values;
            for (int column = 0; column < columns; ++column) {
                values.emplace_back(row * 31 + column);
            }
            rows.append(values);
        }
        ASSERT_EQ(rows.rows(), static_cast<std::size_t>(count));
        for (int row = 0; row < count; ++row) {
            for (const int column : {0, columns / 2, columns - 1}) {
                ASSERT_EQ(rows.value(static_cast<std::size_t>(row), column), Value(row * 31 + column))
                    << columns << " columns, row " << row;
            }
        }
    }
}

TEST(RowStore, KeepsTextsLongerThanABlockBesideShortOnes) {
    FieldDescription field;
    std::vector<std::optional<std::string>> texts;
    for (int i = 0; i < 300; ++i) {
        texts.emplace_back(
            std::string(static_cast<std::size_t>(i % 50 == 49 ? 100'000 : i), static_cast<char>('a' + i % 26)));
    }
    Texts result(field, texts);
    RowStore rows(result.fields());
    rows.fetch(result);
    for (std::size_t row = 0; row < texts.size(); ++row) {
        ASSERT_EQ(rows.text(row, 0), *texts[row]) << row;
        ASSERT_EQ(rows.value(row, 0), Value(*texts[row])) << row;
    }
}

TEST(RowStore, GivesNoCharactersForANullText) {
    FieldDescription field;
    Texts result(field, {std::nullopt, ""});
    RowStore rows(result.fields());
    rows.fetch(result);
    EXPECT_TRUE(rows.isNull(0, 0));
    EXPECT_EQ(rows.text(0, 0), "");
    EXPECT_FALSE(rows.isNull(1, 0));
}

TEST(RowStore, TellsNullDatesFromDates) {
    FieldDescription field;
    field.type = FieldType::DateTime;
    Texts result(field, {std::nullopt, "2004-03-07"});
    RowStore rows(result.fields());
    rows.fetch(result);
    EXPECT_TRUE(rows.isNull(0, 0));
    EXPECT_EQ(rows.value(1, 0), Value(Date::of(2004, 3, 7)));
}

} // namespace
} // namespace ado
