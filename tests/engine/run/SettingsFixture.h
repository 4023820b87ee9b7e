#pragma once

#include "engine/SessionFixture.h"

#include <memory>
#include <string>

namespace engine {

/// A table of five rows, and another session that sees what is committed.
class SettingsTest : public SessionTest {
protected:
    SettingsTest() {
        run("CREATE TABLE voci (n int NOT NULL PRIMARY KEY, testo varchar(20) NULL)");
        run("INSERT INTO voci VALUES (1, 'a'), (2, 'b'), (3, 'c'), (4, 'd'), (5, 'e')");
    }
    std::string left() { return rowsOf(*other, "SELECT n, testo FROM voci ORDER BY n"); }

    std::unique_ptr<Session> other = connect();
};

} // namespace engine
