#include "ado/AdoFixture.h"

#include "ado/Conversions.h"

namespace ado::test {

void Contract::SetUp() {
    connection.Open(server.connectionString());
    connection.Execute("CREATE TABLE Comuni (id int IDENTITY (1, 1) NOT NULL PRIMARY KEY, nome nvarchar(20) NOT NULL, "
                       "cap nvarchar(5) NULL DEFAULT '00000', abitanti int NULL, sede bit NOT NULL DEFAULT 0)");
    connection.Execute("INSERT INTO Comuni (nome, cap, abitanti, sede) VALUES ('Roma', '00118', 2800000, 1), "
                       "('Milano', '20121', 1400000, 0), (N'Forlì', '47121', NULL, 0), ('L''Aquila', NULL, 70000, 1)");
    connection.Execute(
        "CREATE TABLE Tipi (id int NOT NULL PRIMARY KEY, logico bit NULL, ottetto tinyint NULL, corto smallint "
        "NULL, intero int NULL, grande bigint NULL, singolo real NULL, doppio float NULL, decimale "
        "decimal(10,2) NULL, denaro money NULL, data datetime NULL, testo nvarchar(10) NULL, stretto "
        "varchar(10) NULL, fisso char(3) NULL, lungo ntext NULL)");
    connection.Execute("INSERT INTO Tipi (id) VALUES (1)");
}

std::vector<std::string> Contract::rowsOf(const std::string& statement) {
    std::vector<std::string> rows;
    Recordset rs;
    rs.Open(statement, connection);
    for (; !rs.EOF(); rs.MoveNext()) {
        std::string row;
        for (int i = 0; i < rs.FieldCount(); ++i) {
            row += (i == 0 ? "" : "|") + display(rs[i]);
        }
        rows.push_back(row);
    }
    return rows;
}

std::string Contract::cell(const std::string& statement) {
    const auto rows = rowsOf(statement);
    return rows.size() == 1 ? rows.front() : "(" + std::to_string(rows.size()) + " rows)";
}

std::string display(const Value& value) {
    return value.isNull() ? "-" : toText(value);
}

} // namespace ado::test
