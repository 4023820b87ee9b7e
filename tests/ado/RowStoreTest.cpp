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
    std::string_view text(int) const override { return *current(); }

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

} // namespace
} // namespace ado
