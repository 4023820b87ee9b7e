#include "engine/differential/Tables.h"

#include "engine/differential/Values.h"

namespace engine::differential {

namespace {

constexpr const char* kColumns =
    "(id int not null, b bit null, t tinyint null, s smallint null, i int null, g bigint null, e decimal(18,0) null,"
    " d decimal(9,3) null, m money null, r real null, f float null, q datetime null, c char(8) null,"
    " v varchar(20) null, k nchar(6) null, n nvarchar(20) null, x nvarchar(max) null, w varchar(12) null,"
    " z varchar(24) null)";

std::string signedOf(Dice& dice, const std::string& number) {
    return dice.once(5) ? "-" + number : number;
}

/// The values of a row in the order of the columns.
std::string row(Dice& dice, int id, bool wide) {
    const auto text = [&] { return dice.oneOf("", "N") + quoted(dice.from(kTexts)); };
    const auto number = [&](const auto& usual, const auto& odd) {
        return signedOf(dice, wide && dice.once(3) ? dice.from(odd) : dice.from(usual));
    };
    const std::string values[] = {
        dice.oneOf("0", "1"),
        dice.from(kIntegers),
        signedOf(dice, dice.from(kIntegers)),
        wide && dice.once(4) ? "2147483647" : signedOf(dice, dice.from(kIntegers)),
        number(kIntegers, kWideIntegers),
        wide && dice.once(4) ? "123456789012345" : signedOf(dice, dice.from(kIntegers)),
        signedOf(dice, dice.from(kDecimals)),
        number(kDecimals, kWideDecimals),
        number(kFloats, kDecimals),
        number(kFloats, kWideFloats),
        quoted(dice.from(kDates)),
        text(),
        text(),
        text(),
        text(),
        text(),
        quoted(dice.from(kNumberTexts)),
        quoted(dice.from(kDates)),
    };
    std::string all = "(" + std::to_string(id);
    for (const std::string& value : values) {
        all += ", " + (dice.once(6) ? "null" : value);
    }
    return all + ")";
}

} // namespace

std::vector<std::string> tables(Dice& dice) {
    std::vector<std::string> statements;
    for (const std::string name : {"t", "u"}) {
        statements.push_back("create table " + name + " " + kColumns);
        const bool wide = dice.once(3);
        const int rows = dice.once(12) ? 0 : 3 + dice.below(15);
        if (rows == 0) {
            continue;
        }
        std::string insert =
            "insert into " + name + " (id, b, t, s, i, g, e, d, m, r, f, q, c, v, k, n, x, w, z) values ";
        for (int id = 1; id <= rows; ++id) {
            insert += (id == 1 ? "" : ", ") + row(dice, id, wide);
        }
        statements.push_back(insert);
    }
    return statements;
}

std::vector<IndexStatement> indexes(Dice& dice) {
    std::vector<IndexStatement> statements;
    for (const std::string table : {"t", "u"}) {
        if (dice.once(2)) {
            statements.push_back({"alter table " + table + " add primary key (id)", table, "id"});
        }
        for (int number = dice.below(5); number >= 0; --number) {
            const bool unique = dice.once(2);
            std::string letters = "itgdvcnqbsemrfkwz"; // the first ones are compared more often
            std::string plain;
            std::string ordered;
            for (int columns = 1 + dice.below(unique ? 3 : 2); columns > 0; --columns) {
                const int limit = dice.once(2) ? 8 : static_cast<int>(letters.size());
                const auto place = static_cast<std::size_t>(dice.below(limit));
                const std::string column(1, letters[place]);
                letters.erase(place, 1);
                plain += (plain.empty() ? "" : ", ") + column;
                ordered += (ordered.empty() ? "" : ", ") + column + dice.oneOf("", " desc");
            }
            const std::string name = "ix" + std::to_string(number) + table;
            const std::string text =
                unique && dice.once(2) ? "alter table " + table + " add constraint " + name + " unique (" + plain + ")"
                                       : std::string("create ") + (unique ? "unique " : "") + "index " + name + " on " +
                                             table + " (" + ordered + ")";
            statements.push_back({text, table, unique ? plain : ""});
        }
    }
    return statements;
}

} // namespace engine::differential
