#include "controls/DataControl.h"

#include "DataFixture.h"
#include "ado/Conversions.h"
#include "ado/Error.h"

namespace {

using DataControl = DataFixture;

int numberOf(const std::function<void()>& act) {
    try {
        act();
    } catch (const ado::Error& error) {
        return error.number();
    }
    return 0;
}

TEST_F(DataControl, RefreshStandsOnTheFirstRow) {
    source.Refresh();
    EXPECT_EQ(ado::toText(source.Recordset()["nome"]), "Mela");
    EXPECT_EQ(source.Recordset().RecordCount(), 5);
    EXPECT_EQ(source.Recordset().AbsolutePosition(), 1);
}

TEST_F(DataControl, RefreshLiftsTheFilterAndShowsNewRows) {
    source.Refresh();
    source.Recordset().setFilter("nome = 'Pera'");
    EXPECT_EQ(source.Recordset().RecordCount(), 2);
    workstation.run(support::kCompany, "insert into frutta (nome) values ('Uva')");
    source.Refresh();
    EXPECT_EQ(source.Recordset().Filter(), "");
    EXPECT_EQ(source.Recordset().RecordCount(), 6);
    EXPECT_EQ(source.Recordset().AbsolutePosition(), 1);
}

TEST_F(DataControl, LoadTakesBothTextsAndRefreshes) {
    const std::string connection = source.ConnectionString;
    source.ConnectionString.clear();
    source.load(connection, "select nome from frutta where id = 3");
    EXPECT_EQ(source.ConnectionString, connection);
    EXPECT_EQ(source.RecordSource, "select nome from frutta where id = 3");
    EXPECT_EQ(ado::toText(source.Recordset()["nome"]), "Albicocca");
    EXPECT_EQ(numberOf([&] { source.load(connection, "select * from nessuna"); }), ado::kObjectMissing);
    EXPECT_FALSE(source.hasRecordset());
    EXPECT_EQ(source.RecordSource, "select * from nessuna") << "what the next refresh asks for";
}

TEST_F(DataControl, WithoutARefreshThereIsNoRecordset) {
    EXPECT_FALSE(source.hasRecordset());
    EXPECT_EQ(numberOf([&] { source.Recordset(); }), 91);
}

TEST_F(DataControl, ABadSourceRaisesInCodeAndLeavesNoRecordset) {
    source.Refresh();
    int errors = 0;
    QObject::connect(&source, &controls::DataControl::Error, [&] { ++errors; });
    source.RecordSource = "select * from nessuna";
    EXPECT_EQ(numberOf([&] { source.Refresh(); }), ado::kObjectMissing);
    EXPECT_FALSE(source.hasRecordset());
    EXPECT_EQ(errors, 0) << "code was running: it has the error";
    source.RecordSource = "update frutta set prezzo = 0 where id = 0";
    EXPECT_NE(numberOf([&] { source.Refresh(); }), 0) << "a text without rows";
}

TEST_F(DataControl, AnErrorBehindTheUsersActIsTheEvent) {
    int number = 0;
    QString description;
    QObject::connect(&source, &controls::DataControl::Error, [&](int n, const QString& d) {
        number = n;
        description = d;
    });
    source.byUser([] { throw ado::Error(ado::kNoCurrentRecord); });
    EXPECT_EQ(number, 3021);
    EXPECT_EQ(description.toStdString(), ado::Error(ado::kNoCurrentRecord).description());
}

TEST_F(DataControl, TellsRowsThatChangeFromAMove) {
    source.Refresh();
    int rows = 0;
    int moves = 0;
    QObject::connect(&source, &controls::DataControl::rowsChanged, [&] { ++rows; });
    QObject::connect(&source, &controls::DataControl::moved, [&] { ++moves; });
    source.Recordset().MoveNext();
    EXPECT_EQ(rows, 0);
    EXPECT_EQ(moves, 1);
    source.Recordset().setFilter("id > 2");
    EXPECT_EQ(rows, 1);
}

TEST_F(DataControl, IsNeverSeen) {
    QWidget form;
    controls::DataControl inside(&form);
    form.show();
    EXPECT_FALSE(inside.isVisible());
}

} // namespace
