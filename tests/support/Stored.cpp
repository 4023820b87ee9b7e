#include "support/Stored.h"

#include "ado/LinkFile.h"
#include "ado/Names.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace support {

namespace fs = std::filesystem;

namespace {

constexpr const char* kOwner = ".dbo.";

std::string textOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string textOf(const ado::Value& value) {
    const auto* text = std::get_if<std::string>(&value.variant());
    return text == nullptr ? "NULL" : *text;
}

std::vector<TestWorkstation::Row> linksOf(const fs::path& path) {
    std::vector<TestWorkstation::Row> rows;
    ado::LinkFile file(path);
    for (const ado::LinkFile::Entry& entry : file.entries()) {
        rows.push_back({textOf(entry.type), textOf(entry.name), textOf(file.provider(entry.id))});
    }
    return rows;
}

void addFiles(Stored& all, const TestWorkstation& posto, const std::string& folder) {
    const fs::path place = posto.driveC().real(folder);
    if (!fs::is_directory(place)) {
        return;
    }
    for (const fs::directory_entry& file : fs::directory_iterator(place)) {
        const QString name = QString::fromStdString(folder + "\\" + file.path().filename().string()).toLower();
        if (name.endsWith(".mdb")) {
            all[name.toStdString()] = linksOf(file.path());
        } else if (name.endsWith(".txt")) {
            all[name.toStdString()] = {{textOf(file.path())}};
        }
    }
}

/// The server of each workstation has another name behind a wire.
void hideServer(Stored& all, const std::string& server) {
    for (auto& [name, rows] : all) {
        for (TestWorkstation::Row& row : rows) {
            for (std::string& text : row) {
                for (auto place = text.find(server); place != std::string::npos; place = text.find(server)) {
                    text.replace(place, server.size(), "SERVER");
                }
            }
        }
    }
}

} // namespace

Stored allStored(const TestWorkstation& posto) {
    Stored all;
    all["databases"] = posto.rows("master", "select name from master.dbo.sysdatabases order by name");
    for (const std::string database : {kOtherCompany, kControlDatabase, kTemporaryDatabase}) {
        const bool exists = std::ranges::any_of(
            all["databases"], [&](const TestWorkstation::Row& row) { return ado::sameName(row.front(), database); });
        if (!exists) {
            continue;
        }
        for (auto& [table, rows] : posto.tables(database)) {
            all[database + kOwner + table] = std::move(rows);
        }
        for (const auto& [option, on] : posto.databaseOptions(database)) {
            all["options"].push_back({database, option, on ? "1" : "0"});
        }
    }
    addFiles(all, posto, "c:\\vabo");
    addFiles(all, posto, "c:\\vabo\\files");
    all["sources"] = {{posto.dataSources()}};
    hideServer(all, posto.serverName());
    all.merge(posto.tables(kCompany));
    return all;
}

void expectFree(const TestWorkstation& posto, const std::string& name) {
    if (name.find('\\') != std::string::npos || name == "databases" || name == "sources" || name == "options") {
        return;
    }
    const auto place = name.find(kOwner);
    const bool ofCompany = place == std::string::npos;
    EXPECT_NO_THROW(posto.run(ofCompany ? kCompany : name.substr(0, place),
                              "begin transaction; delete from " + (ofCompany ? name : name.substr(place + 1)) +
                                  "; rollback transaction"))
        << "rows are held: " << name;
}

} // namespace support
