#include "provision/LedgerDraft.h"

#include "provision/Sql.h"

#include <array>
#include <string>

namespace provision {

namespace {

constexpr std::int64_t kGeneralProject = 10000001;
constexpr std::array<std::int64_t, 3> kForeignCurrencies = {1002, 1003, 1004};
constexpr std::array<std::int64_t, 4> kForeignRates = {109, 131, 7150,
                                                       14580}; ///< hundredths for one unit of the own currency

struct Draft {
    Random& random;
    const LedgerAccounts& accounts;
    LedgerTransaction result;

    std::int64_t amount() { return 500 + random.below(250000); }

    LedgerLine& debit(std::int64_t account, std::int64_t project, std::int64_t cents) {
        return result.lines.emplace_back(LedgerLine{.account = account, .project = project, .debit = cents});
    }
    LedgerLine& credit(std::int64_t account, std::int64_t project, std::int64_t cents) {
        return result.lines.emplace_back(LedgerLine{.account = account, .project = project, .credit = cents});
    }

    /// A charge and its project: the general one, or one with its own accounts.
    struct Charge {
        std::int64_t account, project;
    };
    Charge charge() {
        if (accounts.projects.empty() || random.oneIn(4)) {
            return {random.among(accounts.charges), kGeneralProject};
        }
        const auto& project = random.among(accounts.projects);
        return {random.among(project.charges), project.id};
    }
};

void payment(Draft& draft) {
    const auto charge = draft.charge();
    const std::int64_t amount = draft.amount();
    draft.debit(charge.account, charge.project, amount);
    draft.credit(draft.random.among(draft.accounts.banks), charge.project, amount);
}

void cashPayment(Draft& draft) {
    const auto charge = draft.charge();
    const std::int64_t amount = draft.amount() / 20;
    draft.debit(charge.account, charge.project, amount);
    draft.credit(draft.random.among(draft.accounts.cash), charge.project, amount);
}

void donation(Draft& draft) {
    const std::int64_t amount = draft.amount();
    draft.debit(draft.random.among(draft.accounts.banks), kGeneralProject, amount);
    draft.credit(draft.random.among(draft.accounts.income), kGeneralProject, amount);
}

void transferOfFunds(Draft& draft) {
    const std::int64_t amount = draft.amount() * 3;
    const std::int64_t project = draft.charge().project;
    draft.debit(draft.random.among(draft.accounts.transfers), project, amount);
    draft.credit(draft.random.among(draft.accounts.banks), project, amount);
}

void closing(Draft& draft) {
    const std::int64_t amount = draft.amount();
    draft.debit(draft.random.among(draft.accounts.charges), kGeneralProject, amount);
    draft.credit(draft.random.among(draft.accounts.summary), kGeneralProject, amount);
}

void purchaseWithVat(Draft& draft) {
    const auto charge = draft.charge();
    const std::int64_t net = draft.amount();
    const std::int64_t vat = net * 22 / 100;
    const std::int64_t section = 1 + draft.random.below(2);
    draft.debit(charge.account, charge.project, net);
    draft.debit(draft.accounts.vatOnPurchases, charge.project, vat).vatSection = section;
    draft.credit(draft.random.among(draft.accounts.payables), charge.project, net + vat);
}

void saleWithVat(Draft& draft) {
    const std::int64_t net = draft.amount();
    const std::int64_t vat = net * 22 / 100;
    draft.debit(draft.random.among(draft.accounts.receivables), kGeneralProject, net + vat);
    draft.credit(draft.random.among(draft.accounts.income), kGeneralProject, net);
    draft.credit(draft.accounts.vatOnSales, kGeneralProject, vat).vatSection = 1;
}

void foreignPayment(Draft& draft) {
    const auto charge = draft.charge();
    const std::int64_t amount = draft.amount();
    const std::int64_t currency = draft.random.among(kForeignCurrencies);
    const std::int64_t foreign = amount * draft.random.among(kForeignRates) / 100;
    const auto inCurrency = [currency](LedgerLine& line, std::int64_t cents) {
        line.currency = currency;
        line.foreignAmount = cents;
    };
    inCurrency(draft.debit(charge.account, charge.project, amount), foreign);
    inCurrency(draft.credit(draft.random.among(draft.accounts.cash), charge.project, amount), foreign);
    if (!draft.random.oneIn(3)) {
        return;
    }
    LedgerLine& difference = draft.debit(draft.accounts.exchangeLoss, charge.project, 0);
    inCurrency(difference, 1 + draft.random.below(500));
    difference.withoutAmount = draft.random.oneIn(2);
}

void sharedPayment(Draft& draft) {
    const std::int64_t first = draft.amount();
    const std::int64_t second = draft.amount();
    const std::int64_t third = draft.amount();
    for (const std::int64_t amount : {first, second, third}) {
        const auto charge = draft.charge();
        draft.debit(charge.account, charge.project, amount);
    }
    draft.credit(draft.random.among(draft.accounts.banks), kGeneralProject, first + second + third);
}

void paySlip(Draft& draft) {
    const std::int64_t gross = 120000 + draft.random.below(180000);
    const std::int64_t tax = gross * 19 / 100;
    const std::int64_t insurance = gross * 9 / 100;
    const std::int64_t employer = gross * 28 / 100;
    const std::int64_t project = draft.charge().project;
    draft.debit(draft.random.among(draft.accounts.wages), project, gross);
    draft.debit(draft.accounts.insuranceCharge, project, employer);
    draft.credit(draft.accounts.taxPayable, project, tax);
    draft.credit(draft.accounts.insurancePayable, project, insurance + employer);
    draft.credit(draft.accounts.wagesPayable, project, gross - tax - insurance);
}

struct Kind {
    std::string_view description;
    void (*fill)(Draft&);
    int weight;
};

constexpr std::array kKinds = {
    Kind{"Pagamento con bonifico", payment, 24},
    Kind{"Pagamento per cassa", cashPayment, 14},
    Kind{"Donazione", donation, 18},
    Kind{"Trasferimento fondi", transferOfFunds, 3},
    Kind{"Scrittura di chiusura", closing, 1},
    Kind{"Fattura di acquisto", purchaseWithVat, 8},
    Kind{"Fattura di vendita", saleWithVat, 4},
    Kind{"Pagamento in valuta", foreignPayment, 12},
    Kind{"Spesa ripartita", sharedPayment, 8},
    Kind{"Busta paga", paySlip, 8},
};

constexpr int kAllWeights = [] {
    int sum = 0;
    for (const Kind& kind : kKinds) {
        sum += kind.weight;
    }
    return sum;
}();

const Kind& pickKind(Random& random) {
    std::int64_t place = random.below(kAllWeights);
    for (const Kind& kind : kKinds) {
        place -= kind.weight;
        if (place < 0) {
            return kind;
        }
    }
    return kKinds.front();
}

std::vector<std::int64_t> postingAccounts(engine::Session& session, const std::string& keys) {
    return integers(session, "SELECT IdConto FROM conti WHERE idchiave LIKE '" + keys +
                                 "' AND NOT idchiave LIKE '%.0' ORDER BY IdConto");
}

std::int64_t named(engine::Session& session, const std::string& name) {
    return integers(session, "SELECT IdConto FROM conti WHERE NomeConto = " + literal(name)).at(0);
}

} // namespace

LedgerAccounts LedgerAccounts::read(engine::Session& session) {
    LedgerAccounts accounts;
    accounts.banks = postingAccounts(session, "303.01.%");
    accounts.cash = postingAccounts(session, "303.02.%");
    accounts.charges = postingAccounts(session, "402.%");
    accounts.income = postingAccounts(session, "10[12].%");
    accounts.payables = postingAccounts(session, "203.01.%");
    accounts.receivables = postingAccounts(session, "302.01.%");
    accounts.wages = postingAccounts(session, "401.01.%");
    accounts.transfers =
        integers(session, "SELECT idconto FROM tabellacontiutiliTransfersHQ WHERE Id <= 2 ORDER BY Id");
    accounts.summary = integers(session, "SELECT idconto FROM TabellaContiUtili WHERE ID IN (1, 2, 5, 18) ORDER BY ID");
    accounts.vatOnPurchases = named(session, "Iva su acquisti");
    accounts.vatOnSales = named(session, "Iva su vendite");
    accounts.wagesPayable = named(session, "Dipendenti c/retribuzioni");
    accounts.taxPayable = named(session, "Erario c/ritenute Irpef dipendenti");
    accounts.insurancePayable = named(session, "Debiti v/Inps");
    accounts.insuranceCharge = named(session, "C/Inps - oneri");
    accounts.exchangeLoss = named(session, "Perdite su cambi");
    for (const std::int64_t project : integers(session, "SELECT ID FROM progetti WHERE ID > 10000001 ORDER BY ID")) {
        accounts.projects.push_back(
            {project, integers(session, "SELECT IdConto FROM conti WHERE idmastro = 4 AND NOT idchiave LIKE '%.0'"
                                        " AND IDProgetto = " +
                                            std::to_string(project) + " ORDER BY IdConto")});
    }
    return accounts;
}

LedgerTransaction draftTransaction(Random& random, const LedgerAccounts& accounts, long mostLines) {
    for (;;) {
        const Kind& kind = pickKind(random);
        Draft draft{random, accounts, {kind.description, {}}};
        kind.fill(draft);
        const long over = mostLines - static_cast<long>(draft.result.lines.size());
        if (over == 0 || over >= 2) {
            return draft.result;
        }
    }
}

} // namespace provision
