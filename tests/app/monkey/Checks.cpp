#include "app/monkey/Checks.h"

#include "engine/store/Sqlite.h"
#include "state/variabili.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>

namespace monkey {

namespace {

namespace fs = std::filesystem;

bool isDatabase(const fs::path& file) {
    constexpr std::string_view kMark = "SQLite format 3";
    std::string start(kMark.size(), '\0');
    std::ifstream(file, std::ios::binary).read(start.data(), static_cast<std::streamsize>(start.size()));
    return start == kMark;
}

void checkFile(const fs::path& file) {
    engine::sqlite::Connection connection(file, false);
    engine::sqlite::Statement check(connection, "PRAGMA integrity_check");
    EXPECT_TRUE(check.step());
    EXPECT_EQ(check.text(0), "ok") << file;
}

/// The databases on drive C, and those of a server beside it.
std::set<fs::path> databaseFiles(const support::TestWorkstation& workstation) {
    std::set<fs::path> files;
    for (const fs::directory_entry& file : fs::recursive_directory_iterator(workstation.driveC().root())) {
        if (file.is_regular_file() && isDatabase(file.path())) {
            files.insert(file.path());
        }
    }
    for (const auto& row : workstation.rows("master", "select filename from master.dbo.sysdatabases")) {
        files.insert(row[0].starts_with('/') ? fs::path(row[0]) : workstation.driveC().real(row[0]));
    }
    return files;
}

bool sameText(const std::string& one, const std::string& other) {
    return QString::compare(QString::fromStdString(one), QString::fromStdString(other), Qt::CaseInsensitive) == 0;
}

} // namespace

std::string stackFault(const std::vector<std::string>& names) {
    if (vabo::CimaForm < 0 || vabo::CimaForm != std::floor(vabo::CimaForm)) {
        return "the top of the stack is " + std::to_string(vabo::CimaForm);
    }
    const std::size_t depth = vabo::PilaForm.size();
    // Nothing has been opened before the console or the first form.
    const bool unused = depth == 0 && vabo::CimaForm == 0;
    if (!unused && static_cast<double>(depth) != vabo::CimaForm + 1) {
        return "the stack has " + std::to_string(depth) + " names and its top is " + std::to_string(vabo::CimaForm);
    }
    for (const std::string& name : vabo::PilaForm) {
        const bool known = std::ranges::any_of(names, [&](const std::string& form) { return sameText(form, name); });
        if (!known && !name.empty()) {
            return "no form has the stack's name " + name;
        }
    }
    return {};
}

void checkDatabases(const support::TestWorkstation& workstation) {
    constexpr std::size_t kFewest = 8; // of the instance, the two companies and the local files
    const std::set<fs::path> files = databaseFiles(workstation);
    EXPECT_GE(files.size(), kFewest);
    std::ranges::for_each(files, checkFile);
    for (const auto& database : workstation.rows("master", "select name from master.dbo.sysdatabases")) {
        const auto session = workstation.engineSession(database[0]);
        for (const auto& table :
             workstation.rows(database[0], "select name from sysobjects where xtype = 'U' order by name")) {
            EXPECT_NO_THROW(workstation.rows(database[0], "select * from [" + table[0] + "]")) << table[0];
        }
    }
}

} // namespace monkey
