#pragma once

#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/EndOfProcess.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// The sample workstation with the terminal's name set, as after the start form.
class SessionTest : public testing::Test {
protected:
    SessionTest() {
        vabo::NomeTerminale = support::kTerminalName;
        server = workstation.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt");
    }

    void control(const std::string& sql) const { workstation.run(support::kControlDatabase, sql); }
    std::string controlValue(const std::string& sql) const { return workstation.value(support::kControlDatabase, sql); }
    /// The company's number in the registry.
    double idOf(const std::string& database) const {
        return std::stod(controlValue("select id from link_programma where dbname = '" + database + "'"));
    }
    std::string textOf(double number) const { return std::to_string(static_cast<long>(number)); }
    void setTerminal(const std::string& name, double number) const {
        control("insert into link_programmaTerminale (Nometerminale, ultimo) values (N'" + name + "', " +
                textOf(number) + ")");
    }
    /// Name and company of every terminal.
    std::vector<support::TestWorkstation::Row> terminals() const {
        return workstation.rows(support::kControlDatabase,
                                "select Nometerminale, ultimo from link_programmaTerminale order by idAutonumber");
    }
    void drop(const std::string& database) const { workstation.drop(database); }
    void create(const std::string& database) const { workstation.run("master", "CREATE DATABASE [" + database + "]"); }
    /// Overwrites the database's file with these bytes; the server still lists the database.
    void breakDatabase(const std::string& database, const std::string& bytes) const {
        const std::filesystem::path place = workstation.databaseFile(database);
        ASSERT_TRUE(std::filesystem::is_regular_file(place)) << place;
        std::ofstream(place, std::ios::binary) << bytes;
    }
    void noCompanyDatabases() const {
        drop(support::kCompany);
        drop(support::kOtherCompany);
    }
    void removeFile(const std::string& path) const { workstation.removeFile(path); }

    support::TestWorkstation workstation;
    support::DialogScript script; ///< no box but those that the test expects
    support::EndOfProcess end;
    std::string server; ///< first line of the server's pointer file
};

using Rows = std::vector<support::TestWorkstation::Row>;
