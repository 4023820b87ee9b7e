#include "provision/Sql.h"
#include "tools/SampleWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::IsEmpty;

namespace {

constexpr auto kAurora = provision::kFirstDatabase;
constexpr auto kPonte = provision::kSecondDatabase;

std::int64_t count(std::string_view database, const std::string& condition) {
    return SampleWorkstation::shared().number(database, "SELECT COUNT(*) FROM partitadoppia WHERE " + condition);
}

/// Large enough to contain every kind of row.
const SampleWorkstation& largeLedger() {
    static const SampleWorkstation sample(5000);
    return sample;
}

std::int64_t countLarge(const std::string& condition) {
    return largeLedger().number(kAurora, "SELECT COUNT(*) FROM partitadoppia WHERE " + condition);
}

std::vector<std::string> wholeLedger(const SampleWorkstation& workstation) {
    return workstation.texts(kAurora,
                             "SELECT CONVERT(nvarchar(20), numerotransazione) + '/' + CONVERT(nvarchar(20), idsede)"
                             " + '/' + CONVERT(nvarchar(20), idconto) + '/' + CONVERT(nvarchar(20), idvaluta)"
                             " + '/' + CONVERT(nvarchar(30), importovaluta) FROM partitadoppia ORDER BY idautonumber");
}

} // namespace

TEST(SampleLedger, HasExactlyTheRowsOfThePlanAndATenthInTheSecondCompany) {
    EXPECT_EQ(count(kAurora, "1 = 1"), 200);
    EXPECT_EQ(count(kPonte, "1 = 1"), 20);
    EXPECT_EQ(countLarge("1 = 1"), 5000);
}

TEST(SampleLedger, BalancesEveryTransaction) {
    for (const auto database : {kAurora, kPonte}) {
        EXPECT_THAT(largeLedger().texts(database,
                                        "SELECT numerotransazione FROM partitadoppia GROUP BY numerotransazione, "
                                        "idsede HAVING SUM(importodepositi) <> SUM(importoprelievi)"),
                    IsEmpty());
    }
}

TEST(SampleLedger, HasTransactionsOfTwoToFiveRowsEachOnOneDay) {
    EXPECT_THAT(largeLedger().texts(kAurora,
                                    "SELECT numerotransazione FROM partitadoppia GROUP BY numerotransazione, idsede "
                                    "HAVING COUNT(*) < 2 OR COUNT(*) > 5 OR MIN(datatransazione) <> "
                                    "MAX(datatransazione)"),
                IsEmpty());
}

TEST(SampleLedger, NumbersTransactionsFromOneWithinEachBranch) {
    EXPECT_THAT(largeLedger().texts(kAurora, "SELECT MIN(numerotransazione) FROM partitadoppia GROUP BY idsede"),
                testing::Each("1"));
    EXPECT_EQ(largeLedger().number(kAurora, "SELECT ultimatransazione FROM contatorepd"),
              largeLedger().number(kAurora, "SELECT MAX(numerotransazione) FROM partitadoppia WHERE idsede = 1"));
}

TEST(SampleLedger, IsDefinitiveUpToTheBalanceAndOpenBehindIt) {
    EXPECT_GT(countLarge("definito = -1"), 0);
    EXPECT_GT(countLarge("definito = 0"), 0);
    EXPECT_EQ(countLarge("definito = -1 AND datatransazione > '20231231'"), 0);
    EXPECT_EQ(countLarge("definito = 0 AND datatransazione <= '20231231'"), 0);
}

TEST(SampleLedger, HasRowsOfEveryKindThatTheLocksTellApart) {
    EXPECT_GT(countLarge("seziva > 0"), 0);
    EXPECT_GT(countLarge("idvaluta <> 1001"), 0);
    EXPECT_GT(countLarge("importodepositi - importoprelievi = 0 AND idvaluta <> 1001"), 0);
    EXPECT_GT(countLarge("importodepositi - importoprelievi IS NULL AND idvaluta <> 1001"), 0);
    EXPECT_GT(countLarge("datareport IS NULL"), 0);
    EXPECT_GT(countLarge("datareport > datatransazione"), 0);
    EXPECT_GT(countLarge("idsede <> idsedecompetenza"), 0);
    for (const char* const table :
         {"TabellaContiUtili WHERE ID IN (1, 2, 5, 18)", "tabellacontiutiliTransfersHQ WHERE Id <= 2"}) {
        EXPECT_GT(countLarge("idconto IN (SELECT idconto FROM " + std::string(table) + ")"), 0) << table;
    }
}

TEST(SampleLedger, UsesAllBranchesAndProjects) {
    EXPECT_EQ(largeLedger().number(kAurora, "SELECT COUNT(DISTINCT idsede) FROM partitadoppia"), 8);
    EXPECT_EQ(largeLedger().number(kAurora, "SELECT COUNT(DISTINCT idprogettorendiconto) FROM partitadoppia"), 13);
}

TEST(SampleLedger, PointsAtAccountsProjectsAndBranchesThatExist) {
    for (const auto database : {kAurora, kPonte}) {
        for (
            const char* const condition :
            {"NOT EXISTS (SELECT * FROM conti WHERE conti.IdConto = partitadoppia.idconto)",
             "EXISTS (SELECT * FROM conti WHERE conti.IdConto = partitadoppia.idconto AND conti.idchiave LIKE '%.0')",
             "NOT EXISTS (SELECT * FROM progetti WHERE progetti.ID = partitadoppia.idprogettorendiconto)",
             "NOT EXISTS (SELECT * FROM ElencoSedi WHERE ElencoSedi.IdSede = partitadoppia.idsede)",
             "NOT EXISTS (SELECT * FROM ElencoSedi WHERE ElencoSedi.IdSede = partitadoppia.idsedecompetenza)",
             "seziva > 0 AND NOT EXISTS (SELECT * FROM IvaSezionale WHERE IvaSezionale.idautonumber = partitadoppia.seziva)"}) {
            EXPECT_EQ(
                largeLedger().number(database, std::string("SELECT COUNT(*) FROM partitadoppia WHERE ") + condition), 0)
                << condition;
        }
    }
}

TEST(SampleLedger, LeavesAVatSectionUnused) {
    EXPECT_EQ(countLarge("seziva = 3"), 0);
}

TEST(SampleLedger, IsTheSameForTheSamePlan) {
    const SampleWorkstation again;
    const auto rows = wholeLedger(again);
    ASSERT_EQ(rows.size(), 200U);
    EXPECT_EQ(rows, wholeLedger(SampleWorkstation::shared()));
}

TEST(SampleLedger, MayBeEmpty) {
    const SampleWorkstation empty(0);
    EXPECT_EQ(empty.number(kAurora, "SELECT COUNT(*) FROM partitadoppia"), 0);
    const SampleWorkstation tiny(11);
    EXPECT_EQ(tiny.number(kAurora, "SELECT COUNT(*) FROM partitadoppia"), 11);
    EXPECT_EQ(tiny.number(kPonte, "SELECT COUNT(*) FROM partitadoppia"), 0);
}
