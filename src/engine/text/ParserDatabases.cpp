#include "engine/text/DatabaseOptions.h"
#include "engine/text/ParserGrammar.h"

#include <algorithm>
#include <array>

namespace engine {

Grammar::Node Grammar::createDatabase() {
    CreateDatabase node;
    expect(Keyword::Database);
    node.name = expectName();
    if (consumeIf(Keyword::On)) {
        consumeIf(Keyword::Primary);
        node.files = databaseFiles(false);
    }
    if (atWord("LOG")) {
        consume();
        expect(Keyword::On);
        auto logs = databaseFiles(true);
        std::move(logs.begin(), logs.end(), std::back_inserter(node.files));
    }
    if (consumeIf(Keyword::Collate)) {
        collation();
    }
    return node;
}

Grammar::Node Grammar::alterDatabase() {
    AlterDatabase node;
    expect(Keyword::Database);
    node.name = expectName();
    expect(Keyword::Set);
    do {
        node.settings.push_back(databaseSetting());
    } while (consumeIf(","));
    if (consumeIf(Keyword::With)) {
        termination();
    }
    return node;
}

AlterDatabase::Setting Grammar::databaseSetting() {
    const Token& token = now();
    AlterDatabase::Setting setting;
    setting.option = expectName();
    if (isDatabaseSetting(setting.option, "")) {
        return setting;
    }
    setting.value = at(Keyword::On) || at(Keyword::Off) || at(Keyword::Full) ? valueOf(consume()) : expectName();
    if (!isDatabaseSetting(setting.option, setting.value)) {
        refuse(token);
    }
    return setting;
}

/// How sessions in the way would be ended. None ever is in the way, so this is read and ignored.
void Grammar::termination() {
    if (consumeIfWord("NO_WAIT")) {
        return;
    }
    expect(Keyword::Rollback);
    if (consumeIfWord("IMMEDIATE")) {
        return;
    }
    expectWord("AFTER");
    expectInteger();
    consumeIfWord("SECONDS");
}

std::vector<DatabaseFile> Grammar::databaseFiles(bool log) {
    std::vector<DatabaseFile> files;
    do {
        files.push_back(databaseFile(log));
    } while (consumeIf(","));
    return files;
}

/// `(NAME = N'…', FILENAME = '…', SIZE = 2, FILEGROWTH = 10%)`; sizes are read and ignored.
DatabaseFile Grammar::databaseFile(bool log) {
    constexpr std::array<std::string_view, 3> kSizes = {"SIZE", "MAXSIZE", "FILEGROWTH"};
    DatabaseFile file;
    file.log = log;
    expect("(");
    do {
        if (consumeIfWord("NAME")) {
            expect("=");
            file.logicalName = now().isText() ? expectText() : expectName();
        } else if (consumeIfWord("FILENAME")) {
            expect("=");
            file.fileName = expectText();
        } else if (std::any_of(kSizes.begin(), kSizes.end(), [this](auto word) { return consumeIfWord(word); })) {
            expect("=");
            fileSize();
        } else {
            refuse();
        }
    } while (consumeIf(","));
    expect(")");
    return file;
}

void Grammar::fileSize() {
    constexpr std::array<std::string_view, 4> kUnits = {"KB", "MB", "GB", "TB"};
    if (consumeIfWord("UNLIMITED")) {
        return;
    }
    if (!now().isNumber()) {
        refuse();
    }
    consume();
    if (!consumeIf("%") && now().kind == Token::Kind::Identifier &&
        std::none_of(kUnits.begin(), kUnits.end(), [this](auto unit) { return consumeIfWord(unit); })) {
        refuse();
    }
}

} // namespace engine
