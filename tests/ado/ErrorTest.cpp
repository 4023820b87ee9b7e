#include "ado/Error.h"

#include "ado/ServerErrors.h"

#include <gtest/gtest.h>

namespace ado {
namespace {

struct OwnRefusal {
    ErrorNumber number;
    int value;
    const char* text;
};

class OwnRefusals : public ::testing::TestWithParam<OwnRefusal> {};

TEST_P(OwnRefusals, HaveTheirDocumentedText) {
    const Error error(GetParam().number);
    EXPECT_EQ(error.number(), GetParam().value);
    EXPECT_EQ(error.description(), GetParam().text);
    EXPECT_STREQ(error.what(), GetParam().text);
    EXPECT_EQ(error.nativeError(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OwnRefusals,
    ::testing::Values(
        OwnRefusal{kOverflow, 6, "Overflow"}, OwnRefusal{kTypeMismatch, 13, "Type mismatch"},
        OwnRefusal{kInvalidUseOfNull, 94, "Invalid use of Null"},
        OwnRefusal{
            kWrongArguments, 3001,
            "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."},
        OwnRefusal{kNoCurrentRecord, 3021,
                   "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
                   "current record."},
        OwnRefusal{kNotAllowedHere, 3219, "Operation is not allowed in this context."},
        OwnRefusal{kNotUpdatable, 3251,
                   "Current Recordset does not support updating. This may be a limitation of the provider, or of the "
                   "selected locktype."},
        OwnRefusal{kItemNotFound, 3265,
                   "Item cannot be found in the collection corresponding to the requested name or ordinal."},
        OwnRefusal{kWrongType, 3421, "Application uses a value of the wrong type for the current operation."},
        OwnRefusal{kObjectClosed, 3704, "Operation is not allowed when the object is closed."},
        OwnRefusal{kObjectOpen, 3705, "Operation is not allowed when the object is open."},
        OwnRefusal{kProviderNotFound, 3706, "Provider cannot be found. It may not be properly installed."},
        OwnRefusal{kConnectionUnusable, 3709,
                   "The connection cannot be used to perform this operation. It is either closed or invalid in this "
                   "context."},
        OwnRefusal{kMultipleStep, -2147217887, "Multiple-step operation generated errors. Check each status value."},
        OwnRefusal{kRowChanged, -2147217864,
                   "Row cannot be located for updating. Some values may have been changed since it was last read."}));

struct ServerRefusal {
    int native;
    int number;
    const char* sqlState;
};

class ServerRefusals : public ::testing::TestWithParam<ServerRefusal> {};

TEST_P(ServerRefusals, KeepTheServersTextUnderTheirClass) {
    const Error error = serverError(GetParam().native, "the server's own words");
    EXPECT_EQ(error.number(), GetParam().number) << GetParam().native;
    EXPECT_EQ(error.sqlState(), GetParam().sqlState) << GetParam().native;
    EXPECT_EQ(error.nativeError(), GetParam().native);
    EXPECT_EQ(error.description(), "the server's own words");
}

INSTANTIATE_TEST_SUITE_P(
    Table, ServerRefusals,
    ::testing::Values(ServerRefusal{208, -2147217865, "42S02"}, ServerRefusal{3701, -2147217865, "42S02"},
                      ServerRefusal{102, -2147217900, "42000"}, ServerRefusal{156, -2147217900, "42000"},
                      ServerRefusal{105, -2147217900, "42000"}, ServerRefusal{207, -2147217900, "42S22"},
                      ServerRefusal{515, -2147217873, "23000"}, ServerRefusal{2627, -2147217873, "23000"},
                      ServerRefusal{547, -2147217873, "23000"}, ServerRefusal{8152, -2147217833, "22001"},
                      ServerRefusal{241, -2147217913, "22007"}, ServerRefusal{245, -2147217913, "22018"},
                      ServerRefusal{8114, -2147217913, "22018"}, ServerRefusal{8115, -2147217913, "22003"},
                      ServerRefusal{18456, -2147217843, "28000"}, ServerRefusal{4060, -2147217843, "42000"},
                      ServerRefusal{1222, -2147467259, "HYT00"}, ServerRefusal{1801, -2147467259, "HY000"},
                      ServerRefusal{99999, -2147467259, "HY000"}));

TEST(Error, GathersWhereItHappenedAndKeepsTheInnermostStatement) {
    Error error(kMultipleStep);
    error.during("UPDATE a").during("UPDATE b").in("nome").in("Comuni");
    EXPECT_EQ(error.statement(), "UPDATE a");
    EXPECT_EQ(error.context(), "nome, Comuni");
    EXPECT_EQ(error.description(), Error(kMultipleStep).description());
}

} // namespace
} // namespace ado
