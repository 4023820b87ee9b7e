#pragma once

#include "engine/run/Session.h"
#include "provision/Random.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace provision {

/// The accounts of the ledger's transactions, by their purpose.
struct LedgerAccounts {
    std::vector<std::int64_t> banks, cash, charges, income, payables, receivables, wages, transfers, summary;
    std::int64_t vatOnPurchases = 0, vatOnSales = 0, wagesPayable = 0, taxPayable = 0, insurancePayable = 0,
                 insuranceCharge = 0, exchangeLoss = 0;
    struct Project {
        std::int64_t id;
        std::vector<std::int64_t> charges;
    };
    std::vector<Project> projects; ///< without the general one

    static LedgerAccounts read(engine::Session& session);
};

/// One row of a transaction, amounts in hundredths.
struct LedgerLine {
    std::int64_t account = 0, project = 0;
    std::int64_t debit = 0, credit = 0;
    std::int64_t currency = 1001, foreignAmount = 0;
    std::int64_t vatSection = 0;
    bool withoutAmount = false; ///< both amounts are null: a movement in another currency only
};

struct LedgerTransaction {
    std::string_view description;
    std::vector<LedgerLine> lines;
};

/// One realistic transaction of two to `mostLines` lines. It never has mostLines - 1, since a single line couldn't be a
/// transaction.
LedgerTransaction draftTransaction(Random& random, const LedgerAccounts& accounts, long mostLines);

} // namespace provision
