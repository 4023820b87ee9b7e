// The deletion of a VAT section, and where its list stands then.

#include "fiscal/SezionaliForm.h"

namespace vabo {
namespace {

constexpr const char* kCancellare = "Sei sicuro di voler cancellare ?";
constexpr const char* kNessuno = "Selezionare il Sezionale da annullare";

std::string azzero(const std::string& chiave) {
    return "Azzero i contatori del Sezionale " + chiave + "\nSei sicuro";
}

TEST_F(SezionaliForm, ThePositionIsThatOfTheRowWhereTheListStands) {
    esegui("insert into IvaSezionale (id) values (20), (21)");
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_Space);
    EXPECT_EQ(testo("didascalia"), "Record: 1");
    scegli("3");
    script.expectQuestion(kCancellare, true);
    premi("Command3");
    EXPECT_EQ(corrente(), "5");
    EXPECT_EQ(testo("didascalia"), "Record: 4") << "one below the deleted one";
    scrivi("Mostre", "Arte", "5");
    gui.press(Qt::Key_Return);
    EXPECT_EQ(testo("didascalia"), "Record: 1") << "the list was read again";
    pagina.control<controls::DataControl>("IvaSezionale").Recordset().MoveNext();
    EXPECT_EQ(testo("didascalia"), "Record: 2");
    scegli("5");
    script.expectQuestion(kCancellare, true);
    premi("Command3");
    ASSERT_TRUE(pagina.control<controls::DataControl>("IvaSezionale").Recordset().EOF());
    EXPECT_EQ(testo("didascalia"), "") << "past the last row there is none";
}

// The position counts from 1 and the move from the first row: it ends below, or past the end.
TEST_F(SezionaliForm, AfterADeletionTheGridIsOneRowBelow) {
    for (int id = 11; id <= 14; ++id) {
        esegui("insert into IvaSezionale (id) values (" + std::to_string(id) + ")");
    }
    apri();
    scegli("3");
    script.expectQuestion(kCancellare, true);
    premi("Command3");
    EXPECT_EQ(righe(), 6);
    EXPECT_EQ(corrente(), "5") << "behind 4, which followed";
    EXPECT_EQ(pagina.control<controls::DataControl>("IvaSezionale").Recordset().AbsolutePosition(), 4);
    script.expectMessage(kNessuno);
    premi("Command1"); // none is picked any more
    scegli("7");
    script.expectQuestion(kCancellare, true);
    premi("Command3");
    EXPECT_TRUE(pagina.control<controls::DataControl>("IvaSezionale").Recordset().EOF());
}

TEST_F(SezionaliForm, ASectionInUseStaysAndIsNoMoreThePickedOne) {
    esegui("update partitadoppia set seziva = 1 where seziva = 2");
    apri();
    scegli("1");
    script.expectQuestion(kCancellare, true);
    script.expectMessage("Il sezionale è stato usato, non è possibile cancellarlo");
    premi("Command3");
    EXPECT_EQ(righe(), 3);
    EXPECT_EQ(corrente(), "2");
    premi("Command3"); // nothing is picked
}

TEST_F(SezionaliForm, ADeletionRefusedKeepsTheKey) {
    apri();
    scegli("3");
    script.expectQuestion(kCancellare, false);
    premi("Command3");
    script.expectQuestion(azzero("3"), false);
    premi("Command1");
    EXPECT_EQ(righe(), 3);
}

// The list has no row to move to: the error ends the command, and the key stays.
TEST_F(SezionaliForm, AfterTheLastSectionTheMoveFails) {
    esegui("delete from IvaSezionale where idautonumber > 1");
    esegui("update partitadoppia set seziva = 0");
    apri();
    scegli("1");
    script.expectQuestion(kCancellare, true);
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    premi("Command3");
    EXPECT_EQ(righe(), 0);
    EXPECT_EQ(valore("select count(*) from IvaSezionale"), "0");
    script.expectQuestion(azzero("1"), false);
    premi("Command1");
}

} // namespace
} // namespace vabo
