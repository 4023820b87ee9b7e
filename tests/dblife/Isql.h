#pragma once

#include "ado/ConnectionString.h"
#include "support/Processes.h"
#include "support/TestWorkstation.h"
#include "support/TestedDriver.h"

#include <QStandardPaths>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace vabo {

/// Only with the wire driver, since no other program can reach an embedded server.
struct ConServerDiRete {
    ConServerDiRete() {
        constexpr std::array kArguments{"", "--driver=wire"};
        support::chooseTestedDriver(static_cast<int>(kArguments.size()), kArguments.data());
    }
};

inline std::string programmaIsql() {
    return QStandardPaths::findExecutable("isql").toStdString();
}

/// The output of isql for a statement, logged in with user and password of the server's connection text.
inline std::string risposta(const std::string& server, const std::string& dataSource, const std::string& statement) {
    const ado::ConnectionString login(server);
    support::HelperProcess isql(programmaIsql(), {dataSource, login.user(), login.password(), "-b", "-d|"});
    isql.writeLine(statement);
    EXPECT_EQ(isql.finish(), 0) << dataSource;
    return isql.readAll();
}

/// Expects that each of the three data sources connects to its database.
inline void aspettaOgniDatabase(const support::TestWorkstation& workstation, const std::string& server) {
    const struct {
        const char* dataSource;
        const char* statement;
        const char* database;
    } cases[] = {
        {"Tlv_server", "select idautonumber, NomeUtente from AbilitazioneAccessi order by idautonumber",
         support::kCompany},
        {"Tlv_Temp", "select id, Lingua from LinguaClient order by id", support::kTemporaryDatabase},
        {"Tlv_Azienda", "select id, NomeAzienda from link_programma order by id", support::kControlDatabase},
    };
    for (const auto& one : cases) {
        std::string expected;
        for (const auto& row : workstation.rows(one.database, one.statement)) {
            expected += row[0] + "|" + row[1] + "\n";
        }
        ASSERT_FALSE(expected.empty()) << one.dataSource;
        EXPECT_EQ(risposta(server, one.dataSource, one.statement), expected) << one.dataSource;
    }
}

} // namespace vabo
