#include "ado/AdoFixture.h"

#include <rapidcheck.h>

#include <vector>

namespace ado {
namespace {

struct Town {
    int id;
    std::string name;
    Value people;
    bool operator==(const Town&) const = default;
};

void showValue(const Town& town, std::ostream& os) {
    os << town.id << " " << town.name;
}

/// The expected content of the table, computed by simple rules.
struct Model {
    std::vector<Town> rows;
    std::size_t at = 0;
    int nextId = 1;
    bool adding = false, editing = false;
    Town pending{};

    void settle() {
        if (adding) {
            pending.id = nextId++;
            rows.push_back(pending);
            at = rows.size() - 1;
        } else if (editing) {
            rows[at] = pending;
        }
        adding = editing = false;
    }
    bool onRow() const { return adding || at < rows.size(); }
};

std::vector<Town> readTowns(Recordset& rs) {
    std::vector<Town> towns;
    for (; !rs.EOF(); rs.MoveNext()) {
        towns.push_back({std::get<std::int32_t>(rs["id"].Value().variant()),
                         std::get<std::string>(rs["nome"].Value().variant()), rs["abitanti"].Value()});
    }
    return towns;
}

void assign(Recordset& rs, Model& model, const std::string& name, const Value& people) {
    if (!model.adding && !model.editing) {
        model.pending = model.rows[model.at];
        model.editing = true;
    }
    model.pending.name = name;
    model.pending.people = people;
    rs["nome"] = name;
    rs["abitanti"] = people;
}

std::string anyName() {
    return *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab'[]%_ \"x"))).as("name");
}

Value anyPeople() {
    return *rc::gen::inRange(0, 4) == 0 ? Value(Null{}) : Value(*rc::gen::inRange(-1000, 1000));
}

void step(Recordset& rs, Model& model) {
    enum { kAssign, kAdd, kUpdate, kCancel, kMove, kSteps };
    switch (*rc::gen::inRange(0, static_cast<int>(kSteps))) {
    case kAssign:
        if (model.onRow()) {
            assign(rs, model, anyName().substr(0, 20), anyPeople());
        }
        break;
    case kAdd:
        model.settle();
        model.adding = true;
        rs.AddNew();
        model.pending = {};
        assign(rs, model, anyName().substr(0, 20), anyPeople());
        break;
    case kUpdate:
        model.settle();
        rs.Update();
        break;
    case kCancel:
        if (model.adding || model.editing) {
            rs.CancelUpdate();
        }
        model.adding = model.editing = false;
        break;
    default:
        model.settle();
        rs.Update();
        if (!model.rows.empty()) {
            model.at = static_cast<std::size_t>(*rc::gen::inRange(0, static_cast<int>(model.rows.size())));
            rs.MoveFromFirst(static_cast<long>(model.at));
        }
    }
}

TEST(RecordsetProperty, AnyEditsLeaveTheTableThatAPlainListWouldBe) {
    const test::TestServer server;
    Connection connection;
    connection.Open(server.connectionString());
    int tables = 0; // a new table for each run, since a failed run leaves its own
    EXPECT_TRUE(rc::check("edits", [&] {
        const std::string table = "Liste" + std::to_string(++tables);
        connection.Execute(
            "CREATE TABLE " + table +
            " (id int IDENTITY (1, 1) NOT NULL PRIMARY KEY, nome nvarchar(20) NOT NULL, abitanti int NULL)");
        Model model;
        const auto lock = *rc::gen::element(LockType::Optimistic, LockType::Pessimistic);
        Recordset rs;
        rs.Open("select * from " + table + " order by id", connection, CursorType::Keyset, lock);
        const int steps = *rc::gen::inRange(0, 40);
        for (int i = 0; i < steps; ++i) {
            step(rs, model);
        }
        model.settle();
        rs.Update();
        RC_ASSERT(rs.RecordCount() == static_cast<long>(model.rows.size()));
        if (!model.rows.empty()) {
            rs.MoveFirst();
            RC_ASSERT(readTowns(rs) == model.rows);
        }
        rs.Requery();
        RC_ASSERT(readTowns(rs) == model.rows);
    }));
}

} // namespace
} // namespace ado
