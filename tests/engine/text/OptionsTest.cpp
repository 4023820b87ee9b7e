#include "engine/ExpectError.h"
#include "engine/text/DatabaseOptions.h"
#include "engine/text/ServerOptions.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace engine {
namespace {

TEST(ServerOptions, AreFoundByAnyPartThatOnlyOneHas) {
    EXPECT_STREQ(serverOption("query timeout", false).name, "remote query timeout (s)");
    EXPECT_STREQ(serverOption("SHOW ADVANCED OPTIONS", false).name, "show advanced options");
    EXPECT_STREQ(serverOption("min memory per query (KB)", true).name, "min memory per query (KB)");
    EXPECT_STREQ(serverOption("locks", true).name, "locks");
}

TEST(ServerOptions, AreRefusedWhenUnknownHiddenOrAmbiguous) {
    const std::string tail = "' does not exist, or it may be an advanced option.";
    EXPECT_EQ(errorOf([] { serverOption("no such", true); }), "15123 The configuration option 'no such" + tail);
    EXPECT_EQ(errorOf([] { serverOption("locks", false); }), "15123 The configuration option 'locks" + tail);
    EXPECT_EQ(errorOf([] { serverOption("", true); }), "15123 The configuration option '" + tail);
    EXPECT_EQ(errorOf([] { serverOption("remote", false); }), "15124 The configuration option 'remote' is not unique.");
    EXPECT_EQ(errorNumberOf([] { serverOption("timeout", false); }), 15124);
}

TEST(ServerOptions, TakeTheirRangeAndTheirStandard) {
    EXPECT_EQ(errorNumberOf([] { checkServerOptionValue(serverOption("min memory per query", true), 512); }), 0);
    EXPECT_EQ(errorNumberOf([] { checkServerOptionValue(serverOption("min memory per query", true), 511); }), 15129);
    EXPECT_EQ(errorNumberOf([] { checkServerOptionValue(serverOption("locks", true), 0); }), 0);
    EXPECT_EQ(errorNumberOf([] { checkServerOptionValue(serverOption("locks", true), 1); }), 15129);
    EXPECT_EQ(errorNumberOf([] { checkServerOptionValue(serverOption("query timeout", false), -1); }), 15129);
}

TEST(ServerOptions, HaveEachANameOfItsOwn) {
    std::set<std::string> names;
    for (const ServerOption& option : serverOptions()) {
        EXPECT_TRUE(names.insert(option.name).second) << option.name;
        EXPECT_EQ(errorNumberOf([&] { checkServerOptionValue(option, option.standard); }), 0) << option.name;
        EXPECT_STREQ(serverOption(option.name, true).name, option.name);
    }
}

TEST(DatabaseOptions, AreFoundByAnyPartThatOnlyOneHas) {
    constexpr struct {
        const char* part;
        const char* name;
    } kCases[] = {
        {"autoclose", "autoclose"},
        {"bulkcopy", "select into/bulkcopy"},
        {"trunc. log", "trunc. log on chkpt."},
        {"torn page detection", "torn page detection"},
        {"read only", "read only"},
        {"dbo use", "dbo use only"},
        {"single", "single user"},
        {"autoshrink", "autoshrink"},
        {"ANSI null default", "ANSI null default"},
        {"recursive triggers", "recursive triggers"},
        {"ANSI nulls", "ANSI nulls"},
        {"concat null yields null", "concat null yields null"},
        {"cursor close on commit", "cursor close on commit"},
        {"default to local cursor", "default to local cursor"},
        {"quoted identifier", "quoted identifier"},
        {"ANSI warnings", "ANSI warnings"},
        {"auto create statistics", "auto create statistics"},
        {"AUTO UPDATE STATISTICS", "auto update statistics"},
    };
    for (const auto& c : kCases) {
        EXPECT_STREQ(databaseOption(c.part).name, c.name);
    }
}

TEST(DatabaseOptions, AreRefusedWhenUnknownOrAmbiguous) {
    EXPECT_EQ(errorOf([] { databaseOption("no such"); }), "15011 Database option 'no such' does not exist.");
    EXPECT_EQ(errorOf([] { databaseOption("ANSI null"); }), "15242 Database option 'ANSI null' is not unique.");
    EXPECT_EQ(errorNumberOf([] { databaseOption(""); }), 15011);
}

} // namespace
} // namespace engine
