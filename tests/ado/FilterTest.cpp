#include "ado/Filter.h"

#include "ado/ExpectError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ado {
namespace {

FieldDescription field(const char* name, FieldType type) {
    FieldDescription description;
    description.name = name;
    description.type = type;
    description.length = 50;
    description.precision = 10;
    description.scale = 2;
    return description;
}

/// Five rows, identified by the letter in the field `riga`.
class Rows {
public:
    Rows()
        : fields{field("riga", FieldType::WChar),    field("id", FieldType::Integer),
                 field("nome", FieldType::WChar),    field("importo", FieldType::Decimal),
                 field("quota", FieldType::Double),  field("attivo", FieldType::Boolean),
                 field("data", FieldType::DateTime), field("nota breve", FieldType::Char),
                 field("blocco", FieldType::Binary)},
          store(fields) {
        store.append({"a", 1, "Roma", Decimal{1050, 2}, 0.5, true, Date::of(2004, 3, 7), "x", Null{}});
        store.append({"b", 2, "roma nord", Decimal{-300, 2}, -2.0, false, Date::of(2004, 3, 8), "it's", Null{}});
        store.append({"c", 3, "Forlì", Decimal{0, 2}, 1e3, true, Date::of(1999, 12, 31, 12), "50%", Null{}});
        store.append({"d", 4, "Forli", Null{}, Null{}, Null{}, Null{}, Null{}, Null{}});
        store.append({"e", 5, "L'Aquila [AQ]", Decimal{999999, 2}, 0.0, false, Date::of(2020, 12, 25), "a_b", Null{}});
    }

    std::string admitted(const std::string& filter) const {
        const FilterExpression expression(filter, fields);
        std::string letters;
        for (std::size_t row = 0; row < store.rows(); ++row) {
            if (expression.admits(store, row)) {
                letters += store.text(row, 0);
            }
        }
        return letters;
    }

    std::vector<FieldDescription> fields;
    RowStore store;
};

struct FilterCase {
    const char* filter;
    const char* rows;
};

class Filters : public ::testing::TestWithParam<FilterCase> {};

TEST_P(Filters, AdmitTheirRows) {
    EXPECT_EQ(Rows().admitted(GetParam().filter), GetParam().rows) << GetParam().filter;
}

INSTANTIATE_TEST_SUITE_P(Comparisons, Filters,
                         ::testing::Values(FilterCase{"id = 3", "c"}, FilterCase{"id=3", "c"},
                                           FilterCase{"ID<>3", "abde"}, FilterCase{"id<2", "a"},
                                           FilterCase{"id>4", "e"}, FilterCase{"id<=2", "ab"},
                                           FilterCase{"id >= 4", "de"}, FilterCase{"[id] = 1", "a"},
                                           FilterCase{"[nota breve] = 'x'", "a"}, FilterCase{"id = 7", ""},
                                           FilterCase{"id = '2'", "b"}, FilterCase{"importo = 10.5", "a"},
                                           FilterCase{"importo < 0", "b"}, FilterCase{"importo = '10,5'", "a"},
                                           FilterCase{"quota = 1e3", "c"}, FilterCase{"quota = -2", "b"},
                                           FilterCase{"attivo = 1", "ac"}, FilterCase{"attivo = -1", "ac"},
                                           FilterCase{"attivo = 0", "be"}, FilterCase{"importo <> 0", "abe"}));

INSTANTIATE_TEST_SUITE_P(Texts, Filters,
                         ::testing::Values(FilterCase{"nome = 'ROMA'", "a"}, FilterCase{"nome = 'roma  '", "a"},
                                           FilterCase{"nome = 'Forlì'", "c"}, FilterCase{"nome = 'FORLI'", "d"},
                                           FilterCase{"nome = 'L''Aquila [AQ]'", "e"},
                                           FilterCase{"[nota breve] = 'it''s'", "b"}, FilterCase{"nome > 'roma'", "b"},
                                           FilterCase{"nome < 'g'", "cd"}, FilterCase{"nome = ''", ""},
                                           FilterCase{"riga = 5", ""}));

INSTANTIATE_TEST_SUITE_P(Wildcards, Filters,
                         ::testing::Values(FilterCase{"nome like 'roma%'", "ab"}, FilterCase{"nome LIKE 'roma*'", "ab"},
                                           FilterCase{"nome like '%r%'", "abcd"}, FilterCase{"nome like '*o*d'", "b"},
                                           FilterCase{"nome like 'L%Aquila%'", "e"},
                                           FilterCase{"nome like '%[AQ]'", "e"}, FilterCase{"nome like 'roma'", "a"},
                                           FilterCase{"[nota breve] like 'a_b'", "e"},
                                           FilterCase{"[nota breve] like '5_%'", ""},
                                           FilterCase{"nome like '%'", "abcde"}));

INSTANTIATE_TEST_SUITE_P(
    Dates, Filters,
    ::testing::Values(FilterCase{"data = #07/03/2004#", "a"}, FilterCase{"data = #2004-03-08#", "b"},
                      FilterCase{"data < #2004-01-01#", "c"}, FilterCase{"data = '25/12/2020'", "e"},
                      FilterCase{"data = #31/12/1999 12:00#", "c"}, FilterCase{"data > #7/3/2004#", "be"}));

INSTANTIATE_TEST_SUITE_P(Groups, Filters,
                         ::testing::Values(FilterCase{"id > 1 AND id < 4", "bc"}, FilterCase{"id = 1 or id = 5", "ae"},
                                           FilterCase{"id = 1 OR id > 2 AND nome = 'forli'", "ad"},
                                           FilterCase{"(id = 2)", "b"},
                                           FilterCase{"(id > 1 and id < 3) or (id = 5)", "be"},
                                           FilterCase{"((id = 2))and(nome like 'r%')", "b"},
                                           FilterCase{"(id = 1 or id = 2)", "ab"},
                                           FilterCase{"(id = 1 or id = 2) or id = 3", "abc"}));

class RefusedFilters : public ::testing::TestWithParam<const char*> {};

TEST_P(RefusedFilters, AreWrongArguments) {
    EXPECT_TRUE(test::raises(kWrongArguments, [] { Rows().admitted(GetParam()); })) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, RefusedFilters,
                         ::testing::Values(" ", "id", "id =", "= 3", "id 3", "id == 3", "id = 3 and", "or id = 3",
                                           "id = 3 id = 4", "nome = 'L'Aquila'", "nome = 'open", "nome = Roma",
                                           "nome = \"Roma\"", "manca = 1", "[id = 1", "(id = 1", "id = 1)",
                                           "id = 1 xor id = 2", "not id = 1", "id is null", "id = null", "id like 1",
                                           "id like '1%'", "nome like 5", "id = 'abc'", "id = #1/1/2004#", "data = 5",
                                           "data = #31/02/2020#", "data = #1/1/2004", "data = 'ieri'",
                                           "data like '2004%'", "id = 1,5", "id = 3AND id = 4", "id = inf", "id = nan",
                                           "(id = 1 or id = 2) and id = 3", "blocco = 1", "blocco = 'x'", "id = 1;",
                                           "attivo = true", "id between 1 and 2", "id in (1)", "()"));

TEST(FilterLimits, DeepBracketsAreRefusedWithoutHarm) {
    const std::string deep = std::string(100'000, '(') + "id = 1" + std::string(100'000, ')');
    EXPECT_TRUE(test::raises(kWrongArguments, [&] { Rows().admitted(deep); }));
    EXPECT_EQ(Rows().admitted(std::string(50, '(') + "id = 1" + std::string(50, ')')), "a");
}

} // namespace
} // namespace ado
