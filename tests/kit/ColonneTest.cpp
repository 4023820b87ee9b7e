#include "kit/Colonne.h"

#include "ado/Error.h"
#include "kit/Regole.h"
#include "kit/Riposiziona.h"
#include "support/DialogScript.h"
#include "support/StatementRecorder.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

namespace {

using namespace vabo;
using Row = std::vector<std::string>;

/// A table of three rows that an older version created.
class Colonne : public testing::Test {
protected:
    Colonne() {
        workstation.run(support::kCompany, "create table voci (id int identity(1,1) not null primary key, "
                                           "nome nvarchar(10) null, rate int null, nota nvarchar(20) null)");
        workstation.run(support::kCompany, "insert into voci (nome, rate, nota) values ('Uno', 1, 'x'), "
                                           "('Due', 2, 'y'), ('Tre', 3, 'z')");
        db.Open(workstation.driveC().firstLine("C:\\vabo\\IndirizzoServer.txt") + "DATABase=" + support::kCompany);
    }
    Row row(int id) const {
        return workstation.row(support::kCompany, "select nome, rate, nota from voci where id = " + std::to_string(id));
    }
    std::string count() const { return workstation.value(support::kCompany, "select count(*) from voci"); }

    support::TestWorkstation workstation;
    support::DialogScript noBox;
    ado::Connection db;
    ado::Recordset rs;
};

TEST_F(Colonne, TheRowOfAKeyIsOpenedToBeWritten) {
    const support::StatementRecorder recorder;
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 2);
    EXPECT_EQ(recorder.count("select * from voci where id = 2"), 1);
    ScriviColonne(kSenzaRegola, rs, {{"nome", "Secondo"}, {"rate", 20}});
    rs.Update();
    EXPECT_EQ(row(2), (Row{"Secondo", "20", "y"}));
    EXPECT_EQ(count(), "3");
}

TEST_F(Colonne, WithoutAKeyItIsANewRow) {
    const support::StatementRecorder recorder;
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 0);
    EXPECT_EQ(recorder.count("select * from voci"), 1);
    ScriviColonne(kSenzaRegola, rs, {{"nome", "Quattro"}});
    rs.Update();
    EXPECT_EQ(count(), "4");
    EXPECT_EQ(row(4).at(0), "Quattro");
}

TEST_F(Colonne, AKeyWithoutARowRaisesOrIsSkippedByItsRule) {
    EXPECT_THROW(ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 99), ado::Error);
    rs.Close();
    ApriRiga(kSaltando, rs, db, "select * from voci", " where id = ", 99);
    EXPECT_TRUE(rs.EOF());
}

TEST_F(Colonne, AnEmptyFieldIsWrittenAsItsColumnSays) {
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 1);
    ScriviColonne(kSenzaRegola, rs,
                  {{"nome", "", SeVuoto::Testo}, {"rate", "", SeVuoto::Zero}, {"nota", "", SeVuoto::Salta}});
    rs.Update();
    EXPECT_EQ(row(1), (Row{"", "0", "x"}));
}

TEST_F(Colonne, AFieldThatIsFilledIsWrittenWhateverItsColumnSays) {
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 1);
    ScriviColonne(kSenzaRegola, rs,
                  {{"nome", "a", SeVuoto::Testo}, {"rate", "45", SeVuoto::Zero}, {"nota", "b", SeVuoto::Salta}});
    rs.Update();
    EXPECT_EQ(row(1), (Row{"a", "45", "b"}));
}

TEST_F(Colonne, AZeroIsNoTextUnlessItStandsAsItIs) {
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 1);
    ScriviColonne(kSenzaRegola, rs, {{"nome", "0", SeVuoto::Testo}, {"nota", "0"}});
    rs.Update();
    EXPECT_EQ(row(1), (Row{"", "1", "0"}));
}

TEST_F(Colonne, AFieldThatItsColumnRefusesEndsTheRowOrIsSkippedAlone) {
    ApriRiga(kSenzaRegola, rs, db, "select * from voci", " where id = ", 1);
    EXPECT_THROW(ScriviColonne(kSenzaRegola, rs, {{"rate", "molte"}, {"nota", "mai"}}), ado::Error);
    EXPECT_EQ(ado::toText(rs["nota"]), "x");
    ScriviColonne(kSaltando, rs, {{"rate", "molte"}, {"nota", "sempre"}});
    rs.Update();
    EXPECT_EQ(row(1), (Row{"Uno", "1", "sempre"}));
}

TEST_F(Colonne, ColumnsAreAddedOnceAndTheirRefusalIsSilent) {
    const auto add = [&] {
        AggiungiColonne(db, {"alter table voci add    tipo nvarchar(255) not null default 'Uso' ",
                             "alter table voci add    zona nvarchar(255)  null  "});
    };
    add();
    workstation.run(support::kCompany, "update voci set tipo = 'Altro', zona = 'Nord' where id = 1");
    const support::StatementRecorder recorder;
    add();
    EXPECT_EQ(recorder.count("alter table voci add    zona nvarchar(255)  null  "), 1)
        << "the refusal of the first doesn't keep the second back";
    EXPECT_EQ(workstation.row(support::kCompany, "select tipo, zona from voci where id = 1"), (Row{"Altro", "Nord"}));
    EXPECT_EQ(workstation.value(support::kCompany, "select tipo from voci where id = 2"), "Uso");
}

/// A data control with a recordset, as a grid has it.
struct Control {
    ado::Recordset& Recordset() const {
        if (rows == nullptr) {
            throw ado::Error(ado::kObjectClosed);
        }
        return *rows;
    }
    ado::Recordset* rows = nullptr;
};

TEST_F(Colonne, AGridGoesBackSoManyRowsFromItsFirst) {
    Control control{&rs};
    const auto after = [&](long rows) {
        rs.MoveFirst();
        Riposiziona(control, rows);
        return rs.AbsolutePosition();
    };
    ApriScrivibile(rs, "select * from voci", db);
    EXPECT_EQ(after(0), 1);
    EXPECT_EQ(after(2), 3);
    EXPECT_EQ(after(3), -3) << "past the end";
    Riposiziona(control, 1);
    EXPECT_TRUE(rs.EOF()) << "a move that fails is skipped";
    Control without;
    Riposiziona(without, 1);
}

} // namespace
