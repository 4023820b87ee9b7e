#pragma once

#include "ado/Connection.h"
#include "ado/ExpectError.h"
#include "ado/Recordset.h"
#include "ado/TestServer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ado::test {

/// The contract of every driver: a connection to a new server with a table of four towns and a table with one column of
/// each type.
class Contract : public ::testing::Test {
protected:
    void SetUp() override;

    /// The rows of a statement as texts: fields separated by "|", null as "-".
    std::vector<std::string> rowsOf(const std::string& statement);
    std::string cell(const std::string& statement);

    void open(Recordset& rs, const std::string& source = "select * from Comuni order by id",
              CursorType cursor = CursorType::Keyset, LockType lock = LockType::Optimistic) {
        rs.Open(source, connection, cursor, lock);
    }

    TestServer server;
    Connection connection;
};

std::string display(const Value& value);

} // namespace ado::test
