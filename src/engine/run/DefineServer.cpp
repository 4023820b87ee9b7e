#include "engine/errors/DefinitionErrors.h"
#include "engine/errors/RunErrors.h"
#include "engine/run/Definitions.h"
#include "engine/text/DatabaseOptions.h"

namespace engine {

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

void define(ServerSession& session, const Reconfigure& /*reconfigure*/) {
    session.instance().reconfigure();
}

void define(ServerSession& session, const Transaction& transaction) {
    switch (transaction.kind) {
    case Transaction::Kind::Begin:
        session.beginTransaction(transaction.name);
        break;
    case Transaction::Kind::Commit:
        session.commitTransaction();
        break;
    case Transaction::Kind::Rollback:
        if (!transaction.name.empty() && session.inTransaction() && !session.isOutermost(transaction.name)) {
            throw errors::unknownTransaction(transaction.name);
        }
        session.rollbackTransaction();
        break;
    }
}

} // namespace engine
