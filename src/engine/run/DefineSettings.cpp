#include "engine/errors/DefinitionErrors.h"
#include "engine/run/Definitions.h"
#include "engine/text/DatabaseOptions.h"
#include "engine/values/Collation.h"

#include <algorithm>

namespace engine {

namespace {

void setIdentityInsert(ServerSession& session, const SetOption& option) {
    const TableInfo* table = definedTable(session, option.table);
    if (table == nullptr) {
        throw errors::missingTableToChange(option.table.last());
    }
    if (table->identity() == nullptr) {
        throw errors::identityMissing(table->name);
    }
    if (sameText(option.value, "ON")) {
        if (!session.identityInsert.empty() && !sameText(session.identityInsert, table->name)) {
            throw errors::identityInsertBusy(session.identityInsert, table->name);
        }
        session.identityInsert = table->name;
    } else if (sameText(session.identityInsert, table->name)) {
        session.identityInsert.clear();
    }
    // Plans made before know the table's identity as it was.
    session.current().cache().clear();
}

bool isDayFirst(const std::string& order) {
    return sameText(order, "dmy") || sameText(order, "dym");
}

bool languageIsDayFirst(const std::string& language) {
    return !sameText(language, "us_english") && !sameText(language, "English");
}

} // namespace

void define(ServerSession& session, const CreateDatabase& create) {
    std::string file;
    std::string log;
    for (const DatabaseFile& one : create.files) {
        std::string& target = one.log ? log : file;
        if (target.empty()) {
            target = one.fileName;
        }
    }
    session.instance().createDatabase(create.name, file, log);
}

void define(ServerSession& session, const AlterDatabase& alter) {
    if (!session.instance().database(alter.name)) {
        throw errors::alterDatabaseRefused(alter.name);
    }
    for (const AlterDatabase::Setting& setting : alter.settings) {
        for (const auto& [option, value] : databaseSetting(setting.option, setting.value)) {
            session.instance().setDatabaseOption(alter.name, option, value);
        }
    }
}

void define(ServerSession& session, const Use& use) {
    session.use(use.database);
}

void define(ServerSession& session, const SetOption& option) {
    const auto is = [&](const char* name) {
        return std::any_of(option.options.begin(), option.options.end(),
                           [&](const std::string& one) { return sameText(one, name); });
    };
    if (is("IDENTITY_INSERT")) {
        setIdentityInsert(session, option);
    } else if (is("DATEFORMAT")) {
        session.dayFirst = isDayFirst(option.value);
    } else if (is("LANGUAGE")) {
        session.dayFirst = languageIsDayFirst(option.value);
    }
}

void define(ServerSession& session, const Reconfigure& /*reconfigure*/) {
    session.instance().reconfigure();
}

void define(ServerSession& session, const Transaction& transaction) {
    switch (transaction.kind) {
    case Transaction::Kind::Begin:
        session.beginTransaction();
        break;
    case Transaction::Kind::Commit:
        session.commitTransaction();
        break;
    case Transaction::Kind::Rollback:
        session.rollbackTransaction();
        break;
    }
}

} // namespace engine
