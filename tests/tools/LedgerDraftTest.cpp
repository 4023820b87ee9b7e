#include "provision/LedgerDraft.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

using provision::draftTransaction;
using provision::LedgerAccounts;
using provision::LedgerLine;
using provision::Random;

namespace {

LedgerAccounts someAccounts() {
    LedgerAccounts accounts;
    accounts.banks = {1, 2};
    accounts.cash = {3};
    accounts.charges = {10, 11};
    accounts.income = {20};
    accounts.payables = {30};
    accounts.receivables = {40};
    accounts.wages = {50};
    accounts.transfers = {60, 61};
    accounts.summary = {70};
    accounts.projects = {{10000002, {80, 81}}};
    return accounts;
}

} // namespace

TEST(LedgerDraft, BalancesEveryTransactionOfTwoToFiveRows) {
    const LedgerAccounts accounts = someAccounts();
    Random random(7);
    std::set<std::string_view> kinds;
    for (int count = 0; count < 2000; ++count) {
        const auto transaction = draftTransaction(random, accounts, 1000);
        kinds.insert(transaction.description);
        ASSERT_GE(transaction.lines.size(), 2U);
        ASSERT_LE(transaction.lines.size(), 5U);
        std::int64_t difference = 0;
        for (const LedgerLine& line : transaction.lines) {
            ASSERT_GE(line.debit, 0);
            ASSERT_GE(line.credit, 0);
            difference += line.debit - line.credit;
        }
        ASSERT_EQ(difference, 0) << transaction.description;
    }
    EXPECT_EQ(kinds.size(), 10U);
}

TEST(LedgerDraft, FillsWhatIsLeftWithoutASingleRowOver) {
    const LedgerAccounts accounts = someAccounts();
    for (long left = 2; left <= 8; ++left) {
        Random random(static_cast<std::uint64_t>(left));
        for (int count = 0; count < 200; ++count) {
            const auto lines = static_cast<long>(draftTransaction(random, accounts, left).lines.size());
            ASSERT_LE(lines, left);
            ASSERT_NE(left - lines, 1);
        }
    }
}

TEST(LedgerDraft, GivesTheSameTransactionsForTheSameSeed) {
    const LedgerAccounts accounts = someAccounts();
    Random first(2024);
    Random second(2024);
    for (int count = 0; count < 100; ++count) {
        const auto left = draftTransaction(first, accounts, 1000);
        const auto right = draftTransaction(second, accounts, 1000);
        ASSERT_EQ(left.description, right.description);
        ASSERT_EQ(left.lines.front().debit, right.lines.front().debit);
    }
}

TEST(Random, FollowsThePublishedSequence) {
    Random random(1234567);
    EXPECT_EQ(random.next(), 6457827717110365317ULL);
    EXPECT_EQ(random.next(), 3203168211198807973ULL);
    EXPECT_EQ(random.next(), 9817491932198370423ULL);
}
