#include "ado/Source.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

struct SourceCase {
    const char* source;
    int options;
    const char* statement;
};

class Sources : public ::testing::TestWithParam<SourceCase> {};

TEST_P(Sources, StandForAStatement) {
    EXPECT_EQ(statementOf(GetParam().source, GetParam().options), GetParam().statement);
}

INSTANTIATE_TEST_SUITE_P(Table, Sources,
                         ::testing::Values(SourceCase{"Comuni", -1, "select * from [Comuni]"},
                                           SourceCase{" Comuni ", -1, "select * from [Comuni]"},
                                           SourceCase{"[Piano Conti]", -1, "select * from [Piano Conti]"},
                                           SourceCase{"dbo.Comuni", -1, "select * from [dbo].[Comuni]"},
                                           SourceCase{"città", -1, "select * from [città]"},
                                           SourceCase{"Comuni", 2, "select * from [Comuni]"},
                                           SourceCase{"Piano Conti", 2, "select * from [Piano Conti]"},
                                           SourceCase{"Comuni", 1, "Comuni"}, SourceCase{"sp_who 5", -1, "sp_who 5"},
                                           SourceCase{"Select * from Comuni ", -1, "Select * from Comuni "},
                                           SourceCase{"", -1, ""}, SourceCase{"[Comuni", -1, "[Comuni"},
                                           SourceCase{"a.", -1, "a."}, SourceCase{"4x", -1, "4x"}));

struct PlainCase {
    const char* statement;
    bool plain;
};

class PlainRows : public ::testing::TestWithParam<PlainCase> {};

TEST_P(PlainRows, AreOneTablesRows) {
    EXPECT_EQ(selectsPlainRows(GetParam().statement), GetParam().plain) << GetParam().statement;
}

INSTANTIATE_TEST_SUITE_P(
    Table, PlainRows,
    ::testing::Values(PlainCase{"select * from Comuni where des_comune = 'x' order by 1", true},
                      PlainCase{"select a.* from A a INNER join B b on a.id = b.id", false},
                      PlainCase{"select distinct a from T", false}, PlainCase{"select a from T Group By a", false},
                      PlainCase{"select a from T union select a from U", false},
                      PlainCase{"select * from T where a = 'join'", true}, PlainCase{"select [union] from T", true},
                      PlainCase{"select \"group\" from T", true}, PlainCase{"select a -- distinct\nfrom T", true},
                      PlainCase{"select a /* union */ from T", true}, PlainCase{"select joined, unions from T", true},
                      PlainCase{"select * from T where a = 'it''s a join'", true},
                      PlainCase{"select a /*x*/ from T union select 'open", false}));

} // namespace
} // namespace ado
