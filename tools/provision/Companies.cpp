#include "provision/Companies.h"

#include "provision/Chart.h"
#include "provision/Folders.h"
#include "provision/Ledger.h"
#include "provision/Sql.h"
#include "provision/States.h"

#include <string>

namespace provision {

namespace {

std::string onServer(const Company& company, std::string_view ending) {
    return std::string(folders::kData) + "\\" + std::string(company.database) + std::string(ending);
}

long ledgerRows(const Company& company, const Plan& plan) {
    const long rows = plan.ledgerRows / company.ledgerShare;
    return rows == 1 ? 0 : rows;
}

} // namespace

const std::array<Company, 2>& companies() {
    static constexpr std::array<Company, 2> kAll = {
        Company{"Associazione Aurora", kFirstDatabase, "tlv_locale_sql.mdb", "aurora.sql", true, 1, 2024},
        Company{"Fondazione Il Ponte", kSecondDatabase, "tlv_locale_ponte.mdb", "ponte.sql", false, 10, 2030},
    };
    return kAll;
}

std::string dataFile(const Company& company) {
    return onServer(company, ".mdf");
}

void fillCompany(engine::Session& session, const Company& company, const Plan& plan) {
    Transaction transaction(session);
    runScript(session, "company.sql");
    if (company.grown) {
        runScript(session, "additions.sql");
    }
    addStates(session);
    for (const std::string_view rows :
         {std::string_view("comuni.sql"), std::string_view("comune_a_tutte.sql"), std::string_view("conti.sql"),
          std::string_view("conti_di_sistema.sql"), company.script}) {
        runScript(session, rows);
    }
    addProjectAccounts(session);
    growChart(session, plan.accounts);
    transaction.commit();

    addLedger(session, ledgerRows(company, plan), company.seed);
}

void fillRegistry(engine::Session& session, std::string_view server) {
    Transaction transaction(session);
    runScript(session, "control.sql");
    RowWriter writer(session, "link_programma",
                     "NomeAzienda, Stringa_connessione_sql, tlv_access, tlv_sql, Nserver, dbname, nRoot, Npassw, "
                     "IndirizzoMdf, IndirizzoLdf");
    for (const Company& company : companies()) {
        writer.text(company.name).text("VaBoDati").text("tlv_access.mdb").text(company.localFile).text(server);
        writer.text(company.database).text(kServerUser).text(kServerPassword);
        writer.text(dataFile(company)).text(onServer(company, ".ldf")).endRow();
    }
    writer.finish();
    transaction.commit();
}

} // namespace provision
