#pragma once

#include "controls/Form.h"
#include "support/Gui.h"
#include "support/Replays.h"

#include <QGuiApplication>

#include <string>

namespace support {

/// The part of a replay's world that all forms have in common. The fixture has `apri`, `gui` and `pagina`.
template<typename Fixture>
class FormWorld : public Fixture {
public:
    using Fixture::posto;

    explicit FormWorld(std::string form) : form_(std::move(form)) {}

    void expectAlive() const {
        EXPECT_TRUE(this->gui.isVisible(form_));
        EXPECT_TRUE(this->gui.form(form_).isEnabled());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    void reopen() {
        this->gui.forms().unload(form_);
        Gui::handleEvents();
        EXPECT_FALSE(this->gui.forms().isLoaded(form_));
        this->apri();
    }
    /// The rows of a grid, their cells separated by bars.
    Lines rowsOf(const std::string& grid) const {
        Lines lines;
        for (int row = 0; row < this->pagina.rows(grid); ++row) {
            std::string& line = lines.emplace_back();
            for (int column = 0; column < this->pagina.grid(grid).ColumnCount(); ++column) {
                line += (column > 0 ? "|" : "") + this->pagina.cell(grid, row, column);
            }
        }
        return lines;
    }
    /// The rows of a selection of the company as a grid displays them.
    Lines rowsAsSelected(const std::string& sql) const {
        ado::Connection connection;
        connection.Open(vabo::StringaAzienda);
        ado::Recordset rs;
        rs.Open(sql, connection);
        Lines lines;
        for (; !rs.EOF(); rs.MoveNext()) {
            std::string& line = lines.emplace_back();
            for (int column = 0; column < rs.FieldCount(); ++column) {
                const ado::Value value = rs[column].Value();
                line += (column > 0 ? "|" : "") + (value.isNull() ? std::string() : ado::toText(value));
            }
        }
        return lines;
    }

private:
    void TestBody() override {}

    std::string form_;
};

} // namespace support
