#pragma once

#include "ado/Capabilities.h"
#include "ado/Connection.h"
#include "ado/ExpectError.h"
#include "ado/Recordset.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace ado::test {

/// A server of its own for one test, with an empty database and a login.
class TestServer {
public:
    virtual ~TestServer() = default;
    virtual std::string connectionString() const = 0;
    virtual std::string connectionString(const std::string& database) const = 0;
    /// What another process needs to reach it: arguments of the helper executable.
    virtual std::vector<std::string> helperArguments() const = 0;
};

/// One road to a server; the contract holds for each.
struct ServerUnderTest {
    const char* name;
    std::unique_ptr<TestServer> (*make)();
    Capabilities capabilities;
};

/// All roads. A new one joins here.
std::vector<ServerUnderTest> serversUnderTest();

/// Every statement sent while it lives.
class Recorder {
public:
    Recorder() {
        setStatementRecorder([this](const std::string& text) { texts.push_back(text); });
    }
    ~Recorder() { setStatementRecorder({}); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    std::vector<std::string> texts;
};

/// A connection to a fresh server with a table of four towns and a table of one column for each type.
class Contract : public ::testing::TestWithParam<ServerUnderTest> {
protected:
    void SetUp() override;

    /// The rows of a statement as texts, fields divided by "|", null as "-".
    std::vector<std::string> rowsOf(const std::string& statement);
    std::string cell(const std::string& statement);

    void open(Recordset& rs, const std::string& source = "select * from Comuni order by id",
              CursorType cursor = CursorType::Keyset, LockType lock = LockType::Optimistic) {
        rs.Open(source, connection, cursor, lock);
    }

    std::unique_ptr<TestServer> server;
    Connection connection;
};

std::string display(const Value& value);

} // namespace ado::test

#define FOR_EVERY_SERVER(suite)                                                                                        \
    INSTANTIATE_TEST_SUITE_P(Servers, suite, ::testing::ValuesIn(::ado::test::serversUnderTest()),                     \
                             [](const auto& tested) { return std::string(tested.param.name); })
