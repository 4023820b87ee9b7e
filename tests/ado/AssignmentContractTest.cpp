#include "ado/AdoFixture.h"

#include <cmath>
#include <optional>

namespace ado {
namespace {

using test::Contract;
using test::display;
using test::errorOf;
using test::raises;

class Assigning : public Contract {};

struct Assignment {
    const char* column;
    Value value;
    std::optional<Value> kept; ///< nothing where the value is refused
};

const std::optional<Value> kRefused;

const Assignment kAssignments[] = {
    // Texts are read by the regional settings.
    {"doppio", "2,5", 2.5},
    {"doppio", "2.5", 25.0},
    {"doppio", "abc", kRefused},
    {"doppio", "", kRefused},
    {"intero", "2,5", 2},
    {"intero", "3,5", 4},
    {"intero", " 7 ", 7},
    {"intero", "abc", kRefused},
    {"intero", "", kRefused},
    {"decimale", "2,567", Decimal{257, 2}},
    {"decimale", "", kRefused},
    {"denaro", "€ 1,5", Currency{15000}},
    {"data", "31/12/2020", Date::of(2020, 12, 31)},
    {"data", "31/02/2020", kRefused},
    {"data", "", kRefused},
    {"data", "ieri", kRefused},
    {"logico", "Vero", true},
    {"logico", "0", false},
    {"logico", "forse", kRefused},
    // Numbers are rounded half to even and must be within their range.
    {"intero", 2.5, 2},
    {"intero", -1.5, -2},
    {"intero", 2147483647.4, 2147483647},
    {"intero", 2147483647.5, kRefused},
    {"corto", 32768, kRefused},
    {"corto", std::int32_t{-32768}, std::int16_t{-32768}},
    {"ottetto", 255, std::uint8_t{255}},
    {"ottetto", 256, kRefused},
    {"ottetto", -1, kRefused},
    {"grande", 5e9, Decimal{5000000000, 0}},
    {"grande", 1e19, kRefused},
    {"singolo", 0.5, 0.5F},
    {"singolo", 1e39, kRefused},
    {"decimale", 1.005, Decimal{101, 2}},
    {"decimale", Decimal{12345, 4}, Decimal{123, 2}},
    {"decimale", Decimal{5, 0}, Decimal{500, 2}},
    {"decimale", 99999999.99, Decimal{9999999999, 2}},
    {"decimale", 100000000.0, kRefused},
    {"denaro", 1.23456, Currency{12346}},
    {"denaro", Decimal{150, 2}, Currency{15000}},
    {"doppio", Currency{12500}, 1.25},
    {"doppio", std::nan(""), kRefused},
    {"singolo", std::nan(""), kRefused},
    {"intero", std::nan(""), kRefused},
    {"decimale", std::nan(""), kRefused},
    // true is -1 as a number; any number but 0 is true.
    {"logico", 2, true},
    {"logico", -1, true},
    {"logico", 0.0, false},
    {"intero", true, -1},
    {"intero", false, 0},
    {"doppio", true, -1.0},
    {"ottetto", true, kRefused},
    // Dates convert to numbers of days; they must be within the server's range.
    {"doppio", Date::of(1900, 1, 1, 12), 2.5},
    {"data", 38053.5, Date::of(2004, 3, 7, 12)},
    {"data", Date::of(1752, 12, 31), kRefused},
    {"data", Date::of(1753, 1, 1), Date::of(1753, 1, 1)},
    {"testo", Date::of(2004, 3, 7), "07/03/2004"},
    // The length of a text counts in characters; blanks beyond it are cut.
    {"testo", "dieci aaaa", "dieci aaaa"},
    {"testo", "undici aaaa", kRefused},
    {"testo", "perchéàèìò", "perchéàèìò"},
    {"testo", "perchéàèìòù", kRefused},
    {"testo", "dieci aaaa    ", "dieci aaaa"},
    {"testo", "", ""},
    {"testo", 2.5, "2,5"},
    {"testo", 7, "7"},
    {"testo", true, "Vero"},
    {"stretto", "abc", "abc"},
    {"stretto", "undici aaaa", kRefused},
    {"fisso", "abcd", kRefused},
    {"fisso", "abc", "abc"},
    // Every column accepts null, and an empty value is stored as null.
    {"intero", Null{}, Null{}},
    {"testo", Null{}, Null{}},
    {"data", Value(), Null{}},
};

TEST_F(Assigning, KeepsWhatFitsAndRefusesTheRestAtOnce) {
    connection.Execute("update Tipi set intero = 5, doppio = 5, testo = 'prima', data = '20040101'");
    for (const Assignment& assignment : kAssignments) {
        const std::string label =
            std::string(assignment.column) + " = " + display(assignment.value.isNull() ? "null" : assignment.value);
        Recordset rs;
        open(rs, "Tipi");
        const Value before = rs[assignment.column].Value();
        const auto assign = [&] { rs[assignment.column] = assignment.value; };
        if (!assignment.kept) {
            EXPECT_TRUE(raises(kMultipleStep, assign)) << label;
            EXPECT_EQ(rs[assignment.column].Value(), before) << label;
            continue;
        }
        assign();
        EXPECT_EQ(rs[assignment.column].Value(), *assignment.kept) << label;
        rs.Update();
        EXPECT_EQ(rs[assignment.column].Value(), *assignment.kept) << label;
        rs.Requery();
        EXPECT_EQ(rs[assignment.column].Value(), *assignment.kept) << label;
    }
}

TEST_F(Assigning, ATextWithoutLimitTakesAnyLength) {
    Recordset rs;
    open(rs, "Tipi");
    const std::string text(20'000, 'x');
    rs["lungo"] = text;
    rs.Update();
    rs.Requery();
    EXPECT_EQ(rs["lungo"].Value(), Value(text));
}

TEST_F(Assigning, ARefusedValueTellsItsColumnAndLeavesNoEdit) {
    Recordset rs;
    open(rs, "Tipi");
    const auto error = errorOf([&] { rs["intero"] = "abc"; });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(), "Multiple-step operation generated errors. Check each status value.");
    EXPECT_EQ(error->context(), "intero");
    rs.Close();
}

TEST_F(Assigning, ARefusedValueLeavesTheOthersOfTheEdit) {
    Recordset rs;
    open(rs, "Tipi");
    rs["testo"] = "uno";
    EXPECT_TRUE(raises(kMultipleStep, [&] { rs["testo"] = "troppo lungo davvero"; }));
    EXPECT_EQ(display(rs["testo"]), "uno");
    rs.Update();
    EXPECT_EQ(cell("select testo from Tipi"), "uno");
}

} // namespace
} // namespace ado
