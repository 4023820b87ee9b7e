#include "provision/Scripts.h"

#include "engine/text/Parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using provision::batches;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Scripts, AreCutAtTheLinesThatSayGo) {
    EXPECT_THAT(batches("select 1\nGO\nselect 2\nGO\n"), ElementsAre("select 1\n", "select 2\n"));
    EXPECT_THAT(batches("select 1\r\nGO\r\nselect 2"), ElementsAre("select 1\r\n", "select 2"));
    EXPECT_THAT(batches("select 1\nGO"), ElementsAre("select 1\n"));
    EXPECT_THAT(batches("GO\n\nGO\n"), IsEmpty());
    EXPECT_THAT(batches(""), IsEmpty());
}

TEST(Scripts, KeepGoInsideALine) {
    EXPECT_THAT(batches("select 'GO'\nGOTO x\n-- GO\n"), ElementsAre("select 'GO'\nGOTO x\n-- GO\n"));
}

TEST(Scripts, AreFoundByTheirNames) {
    EXPECT_NE(provision::script("company.sql").find("CREATE TABLE [partitadoppia]"), std::string_view::npos);
    EXPECT_THROW(provision::script("missing.sql"), std::out_of_range);
}

TEST(Scripts, HoldOneOrMoreStatementsInEachBatchThatTheServerUnderstands) {
    ASSERT_EQ(provision::scripts().size(), 9U);
    for (const provision::Script& script : provision::scripts()) {
        const auto parts = batches(script.text);
        EXPECT_FALSE(parts.empty()) << script.name;
        for (const std::string_view batch : parts) {
            SCOPED_TRACE(batch);
            EXPECT_GE(engine::parse(batch).statements.size(), 1U) << script.name;
        }
    }
}
