#include "provision/Ledger.h"

#include "provision/LedgerDraft.h"
#include "provision/Random.h"
#include "provision/Sql.h"

#include <charconv>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace provision {

namespace {

using std::chrono::sys_days;

constexpr long kRowsPerTransaction = 10000;
constexpr std::string_view kColumns =
    "numerotransazione, idsede, datatransazione, datareport, idconto, idprogettorendiconto, idsedecompetenza, "
    "Descrizione, importodepositi, importoprelievi, idvaluta, importovaluta, seziva, definito";

/// The first and last day of the ledger, and the day of the last balance between them.
struct Period {
    sys_days first, balance, last;
};

sys_days dayOf(std::string_view text) { // YYYY-MM-DD…
    const auto number = [text](std::size_t begin, std::size_t length) {
        int value = 0;
        std::from_chars(text.data() + begin, text.data() + begin + length, value);
        return value;
    };
    return std::chrono::year(number(0, 4)) / number(5, 2) / number(8, 2);
}

Period periodOf(engine::Session& session) {
    const sys_days balance = dayOf(texts(session, "SELECT iddate FROM contatorepd").at(0));
    return {balance - std::chrono::days(730), balance, balance + std::chrono::days(365)};
}

/// The day on which rows are reported: mostly the same day, sometimes some days later, for a few not yet.
std::optional<sys_days> reportDay(Random& random, sys_days day) {
    if (random.oneIn(20)) {
        return std::nullopt;
    }
    return random.oneIn(3) ? day + std::chrono::days(random.below(45)) : day;
}

struct Place {
    std::int64_t number, branch, competence;
    sys_days day;
    std::optional<sys_days> reported;
    bool definitive;
};

void write(RowWriter& writer, const Place& place, std::string_view description, const LedgerLine& line) {
    writer.integer(place.number).integer(place.branch).date(place.day);
    place.reported ? writer.date(*place.reported) : writer.null();
    writer.integer(line.account).integer(line.project).integer(place.competence).text(description);
    if (line.withoutAmount) {
        writer.null().null();
    } else {
        writer.cents(line.debit).cents(line.credit);
    }
    writer.integer(line.currency).cents(line.foreignAmount).integer(line.vatSection);
    writer.integer(place.definitive ? -1 : 0).endRow();
}

/// Writes the ledger. Transactions are numbered for each branch, and their days go through the period.
class Writing {
public:
    Writing(engine::Session& session, long rows, std::uint64_t seed)
        : session_(session),
          random_(seed),
          accounts_(LedgerAccounts::read(session)),
          period_(periodOf(session)),
          branches_(integers(session, "SELECT IdSede FROM ElencoSedi ORDER BY IdSede")),
          numbers_(branches_.size()),
          rows_(rows) {}

    bool done() const { return written_ == rows_; }

    void writePart() {
        Transaction transaction(session_);
        RowWriter writer(session_, "partitadoppia", kColumns);
        const long end = written_ + kRowsPerTransaction;
        while (written_ < end && !done()) {
            writeTransaction(writer);
        }
        writer.finish();
        transaction.commit();
    }

    std::int64_t lastNumber() const { return numbers_.front(); }

private:
    void writeTransaction(RowWriter& writer) {
        const LedgerTransaction transaction = draftTransaction(random_, accounts_, rows_ - written_);
        // The headquarters write half of the transactions; the costs of a branch may belong to another one.
        const std::size_t branch = random_.oneIn(2) ? 0 : static_cast<std::size_t>(random_.below(count()));
        const auto competence = random_.oneIn(10) ? static_cast<std::size_t>(random_.below(count())) : branch;
        const sys_days day = period_.first + (period_.last - period_.first) * written_ / rows_;
        const Place place{++numbers_[branch],      branches_[branch],     branches_[competence], day,
                          reportDay(random_, day), day <= period_.balance};
        for (const LedgerLine& line : transaction.lines) {
            write(writer, place, transaction.description, line);
        }
        written_ += static_cast<long>(transaction.lines.size());
    }

    std::int64_t count() const { return static_cast<std::int64_t>(branches_.size()); }

    engine::Session& session_;
    Random random_;
    LedgerAccounts accounts_;
    Period period_;
    std::vector<std::int64_t> branches_;
    std::vector<std::int64_t> numbers_; ///< number of the last transaction of each branch
    long rows_, written_ = 0;
};

} // namespace

void addLedger(engine::Session& session, long rows, std::uint64_t seed) {
    if (rows == 0) {
        return;
    }
    Writing writing(session, rows, seed);
    while (!writing.done()) {
        writing.writePart();
    }
    run(session, "UPDATE contatorepd SET ultimatransazione = " + std::to_string(writing.lastNumber()));
}

} // namespace provision
