#include "ado/AdoFixture.h"
#include "ado/WhileWaiting.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>

namespace ado {
namespace {

using test::Contract;
using test::raises;

/// A table of so many numbers, and what takes long to find out about it.
class Waiting : public Contract {
protected:
    static constexpr int kNumbers = 1'800;
    static constexpr const char* kLong = "select count(*) from Numeri a, Numeri b where a.n + b.n > 1800";
    static constexpr const char* kItsResult = "1620900";

    void SetUp() override {
        Contract::SetUp();
        connection.Execute("create table Numeri (n int not null)");
        std::string values;
        for (int n = 1; n <= kNumbers; ++n) {
            values += (values.empty() ? "(" : ", (") + std::to_string(n) + ")";
            if (n % 600 == 0) {
                connection.Execute("insert into Numeri values " + values);
                values.clear();
            }
        }
    }
    std::function<void()> counting() {
        return [this] { ++times; };
    }

    int times = 0;
};

TEST_F(Waiting, IsFilledAgainAndAgainDuringOneStatementAndAtMostTwentyTimesASecond) {
    std::vector<std::thread::id> threads;
    const auto start = std::chrono::steady_clock::now();
    {
        const WhileWaiting waiting([&] { threads.push_back(std::this_thread::get_id()); });
        EXPECT_EQ(cell(kLong), kItsResult);
    }
    const auto took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(threads.size(), 2U);
    EXPECT_LE(threads.size(), static_cast<std::size_t>(took / std::chrono::milliseconds(50)));
    EXPECT_EQ(std::count(threads.begin(), threads.end(), std::this_thread::get_id()),
              static_cast<std::ptrdiff_t>(threads.size()));
}

TEST_F(Waiting, IsFilledWhileAStatementWritesToo) {
    const WhileWaiting waiting(counting());
    EXPECT_EQ(connection.Execute("update Numeri set n = n where n <= (select count(*) from Numeri a, Numeri b where "
                                 "a.n + b.n > 1800)"),
              kNumbers);
    EXPECT_GE(times, 2);
}

TEST_F(Waiting, IsFilledDuringABatchToo) {
    const WhileWaiting waiting(counting());
    const auto result = connection.driverConnection()->run(std::string("select 'primo'; ") + kLong);
    for (int statement = 1; statement <= 2; ++statement) {
        ASSERT_TRUE(result->nextResult());
        ASSERT_TRUE(result->nextRow());
        ASSERT_FALSE(result->nextRow());
    }
    EXPECT_GE(times, 2);
}

TEST_F(Waiting, IsOverWithItsScopeAndThenAsItWasBefore) {
    int outer = 0;
    {
        const WhileWaiting waiting([&] { ++outer; });
        {
            const WhileWaiting within(counting());
            cell(kLong);
        }
        EXPECT_GE(times, 2);
        EXPECT_EQ(outer, 0);
        cell(kLong);
        EXPECT_GE(outer, 2);
    }
    const int before = times + outer;
    EXPECT_EQ(cell(kLong), kItsResult);
    EXPECT_EQ(times + outer, before);
    EXPECT_FALSE(isWaitingUsed());
}

TEST_F(Waiting, IsOverWithAScopeThatEndsByAnError) {
    EXPECT_TRUE(raises(kObjectMissing, [&] {
        const WhileWaiting waiting(counting());
        connection.Execute("select * from Nessuna");
    }));
    cell(kLong);
    EXPECT_EQ(times, 0);
}

TEST_F(Waiting, IsFilledOfOneThreadAndOfNoOther) {
    const WhileWaiting waiting(counting());
    const auto other = std::async(std::launch::async, [this] {
        Connection theirs;
        theirs.Open(server.connectionString());
        return theirs.Execute(kLong);
    });
    other.wait();
    EXPECT_EQ(times, 0);
}

TEST_F(Waiting, AStatementSentInTheMeantimeIsRefusedAndTheOneThatRunsIsUnharmed) {
    Connection other;
    other.Open(server.connectionString());
    Recordset open;
    open.Open("select * from Comuni", connection);
    auto unread = other.driverConnection()->run("select n from Numeri");
    unread->nextResult();
    const auto driver = other.driverConnection();
    const WhileWaiting waiting([&] {
        ++times;
        for (Connection* one : {&connection, &other}) {
            EXPECT_TRUE(raises(kStillExecuting, [&] { one->Execute("update Comuni set cap = '1'"); }));
            EXPECT_TRUE(raises(kStillExecuting, [&] { Recordset().Open("select 1", *one); }));
            EXPECT_TRUE(raises(kStillExecuting, [&] { one->Close(); }));
        }
        EXPECT_TRUE(raises(kStillExecuting, [&] { Connection().Open(server.connectionString()); }));
        EXPECT_TRUE(raises(kStillExecuting, [&] { open.Close(); }));
        EXPECT_TRUE(raises(kStillExecuting, [&] { driver->run("update Comuni set cap = '1'"); }));
        EXPECT_TRUE(raises(kStillExecuting, [&] { driver->hold("select id from Comuni"); }));
        EXPECT_TRUE(raises(kStillExecuting, [&] { unread->nextRow(); }));
        EXPECT_TRUE(raises(kStillExecuting, [&] { unread->nextResult(); }));
    });
    EXPECT_EQ(cell(kLong), kItsResult);
    EXPECT_GE(times, 2);
    EXPECT_EQ(cell("select count(*) from Comuni where cap = '1'"), "0");
    EXPECT_TRUE(unread->nextRow());
    EXPECT_TRUE(open.IsOpen());
    other.Close();
    open.Close();
}

TEST_F(Waiting, TheRefusalTellsWhatIsWrong) {
    std::string told;
    const WhileWaiting waiting([&] {
        const auto error = test::errorOf([&] { connection.Execute("select 1"); });
        told = error ? error->description() : "nothing";
    });
    cell(kLong);
    EXPECT_EQ(told, "Operation cannot be performed while executing asynchronously.");
}

TEST_F(Waiting, WhatIsThrownInTheMeantimeIsDropped) {
    const WhileWaiting waiting([&] {
        ++times;
        throw std::runtime_error("in the meantime");
    });
    EXPECT_EQ(cell(kLong), kItsResult);
    EXPECT_GE(times, 2);
    EXPECT_EQ(cell("select count(*) from Comuni"), "4") << "nothing is refused any more";
}

TEST_F(Waiting, IsNotFilledWithinItself) {
    int depth = 0, deepest = 0;
    const WhileWaiting waiting([&] {
        deepest = std::max(deepest, ++depth);
        if (depth < 3) {
            whileWaiting();
        }
        --depth;
    });
    cell(kLong);
    EXPECT_EQ(deepest, 1);
}

TEST_F(Waiting, MayBeEndedInTheMeantime) {
    setWhileWaiting([this] {
        ++times;
        setWhileWaiting({});
    });
    EXPECT_EQ(cell(kLong), kItsResult);
    EXPECT_EQ(times, 1);
}

TEST_F(Waiting, IsFilledWhileAnotherConnectionWrites) {
    std::promise<void> mayEnd, begun;
    const auto other = std::async(std::launch::async, [&] {
        Connection theirs;
        theirs.Open(server.connectionString());
        theirs.Execute("begin transaction");
        theirs.Execute("update Comuni set cap = '1'");
        begun.set_value();
        mayEnd.get_future().wait();
        theirs.Execute("commit transaction");
    });
    begun.get_future().wait();
    {
        const WhileWaiting waiting([&] {
            if (++times == 3) {
                mayEnd.set_value();
            }
        });
        EXPECT_EQ(connection.Execute("update Comuni set cap = '2'"), 4);
    }
    EXPECT_GE(times, 3);
    other.wait();
    EXPECT_EQ(cell("select count(*) from Comuni where cap = '2'"), "4");
}

/// None of these rows takes long, nor do all of one result on a fast machine.
TEST_F(Waiting, IsFilledWhileRowsAreRead) {
    constexpr int kMostResults = 100;
    const WhileWaiting waiting(counting());
    for (int results = 0; times < 2 && results < kMostResults; ++results) {
        const auto result = connection.driverConnection()->run("select a.n from Numeri a, Numeri b where b.n <= 300");
        ASSERT_TRUE(result->nextResult());
        int rows = 0;
        while (result->nextRow()) {
            ++rows;
        }
        EXPECT_EQ(rows, 300 * kNumbers);
    }
    EXPECT_GE(times, 2);
}

TEST_F(Waiting, RowsComeAsEver) {
    const char* const rows =
        "select n, n / 7.0, 'riga ' + cast(n as varchar(9)), nullif(n, 250) from Numeri order by n";
    const auto expected = rowsOf(rows);
    ASSERT_EQ(expected.size(), static_cast<std::size_t>(kNumbers));
    const WhileWaiting waiting(counting());
    EXPECT_EQ(rowsOf(rows), expected);
}

TEST_F(Waiting, RowsAheadOfAFailureComeAsEver) {
    const auto ahead = [&] {
        int rows = 0;
        const auto result = connection.driverConnection()->run("select 10 / (250 - n) from Numeri");
        const auto error = test::errorOf([&] {
            result->nextResult();
            while (result->nextRow()) {
                ++rows;
            }
        });
        return std::to_string(rows) + (error ? error->description() : "");
    };
    EXPECT_EQ(ahead(), "249Divide by zero error encountered.");
    const WhileWaiting waiting(counting());
    EXPECT_EQ(ahead(), "249Divide by zero error encountered.");
}

TEST_F(Waiting, RowsThatAreReadOneByOneMayBeLeftForTheNextResult) {
    const WhileWaiting waiting(counting());
    for (const char* const first : {"select n from Numeri order by n", "select n from Numeri where n < 6 order by n"}) {
        const auto result = connection.driverConnection()->run(std::string(first) + "; select 'ultimo'");
        ASSERT_TRUE(result->nextResult());
        ASSERT_TRUE(result->nextRow());
        ASSERT_TRUE(result->nextRow());
        EXPECT_EQ(result->integer(0), 2);
        ASSERT_TRUE(result->nextResult());
        ASSERT_TRUE(result->nextRow()) << first;
        EXPECT_EQ(result->text(0), "ultimo");
        EXPECT_FALSE(result->nextRow());
        EXPECT_FALSE(result->nextResult());
    }
}

} // namespace
} // namespace ado
