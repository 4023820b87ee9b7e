#include "provision/Chart.h"

#include "provision/Sql.h"

#include <array>
#include <string>

namespace provision {

namespace {

constexpr std::int64_t kGeneralProject = 10000001;
constexpr std::string_view kColumns = "IdConto, NomeConto, Contoreport, idchiave, IDProgetto, idmastro, IdGruppoVabo";

constexpr std::array kBudgetLines = {"Personale espatriato", "Personale locale",  "Viaggi e trasporti",
                                     "Attrezzature",         "Attività di campo", "Costi locali di gestione"};

struct Account {
    std::int64_t id;
    std::string name, key;
    std::int64_t project, master, group;
};

void write(RowWriter& writer, const Account& account) {
    writer.integer(account.id).text(account.name).text(account.key).text(account.key);
    writer.integer(account.project).integer(account.master).integer(account.group).endRow();
}

std::string padded(std::int64_t number, int width) {
    const std::string digits = std::to_string(number);
    const auto missing = static_cast<std::ptrdiff_t>(width) - static_cast<std::ptrdiff_t>(digits.size());
    return std::string(missing > 0 ? static_cast<std::size_t>(missing) : 0, '0') + digits;
}

} // namespace

void addProjectAccounts(engine::Session& session) {
    constexpr std::int64_t kCharges = 4;
    const auto projects = texts(session, "SELECT titolobreve FROM progetti WHERE ID > " +
                                             std::to_string(kGeneralProject) + " ORDER BY ID");
    RowWriter groups(session, "gruppivabo", "idgruppo, dettagli");
    RowWriter accounts(session, "conti", kColumns);
    for (std::size_t index = 0; index < projects.size(); ++index) {
        const auto number = static_cast<std::int64_t>(index) + 1;
        const std::int64_t project = kGeneralProject + number;
        const std::int64_t group = 100 + number;
        const std::string key = "501." + padded(number, 2);
        groups.integer(group).text(key + " " + projects[index]).endRow();
        write(accounts, {20000 + number * 100, projects[index], key + ".0", project, kCharges, group});
        for (std::size_t line = 0; line < kBudgetLines.size(); ++line) {
            const auto place = static_cast<std::int64_t>(line) + 1;
            write(accounts, {20000 + number * 100 + place, kBudgetLines[line] + std::string(" - ") + projects[index],
                             key + "." + padded(place, 4), project, kCharges, group});
        }
    }
    groups.finish();
    accounts.finish();
}

void growChart(engine::Session& session, long accounts) {
    struct Family {
        const char* name;
        const char* key;
        std::int64_t master, group;
    };
    constexpr std::array kFamilies = {Family{"Fornitore", "203.01.", 2, 25}, Family{"Cliente", "302.01.", 3, 35},
                                      Family{"Spesa di gestione", "402.05.", 4, 51},
                                      Family{"Donatore", "101.03.", 1, 13}};
    RowWriter writer(session, "conti", kColumns);
    for (std::int64_t number = integers(session, "SELECT COUNT(*) FROM conti").front() + 1; number <= accounts;
         ++number) {
        const Family& family = kFamilies[static_cast<std::size_t>(number) % kFamilies.size()];
        write(writer, {100000 + number, family.name + (" " + padded(number, 6)), family.key + padded(number, 6),
                       kGeneralProject, family.master, family.group});
    }
    writer.finish();
}

} // namespace provision
