// The list of sections, the columns of later versions, and the quick save.

#include "ado/Error.h"
#include "fiscal/SezionaliAperti.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

TEST_F(SezionaliAperti, TheListIsReadLetterForLetterInTheOrderOfTheNumbers) {
    EXPECT_EQ(ElencoSezionali(),
              "select idautonumber,id,descrizione ,AreaAttivita, ultimadataacquistir As DataAcquistiDef, "
              "Ultimadatavenditer as DataVenditeDef,IvaSezionale.liquidazione from IvaSezionale   ORDER BY "
              "ivasezionale.id");
    esegui("update IvaSezionale set id = 7 where idautonumber = 1");
    EXPECT_EQ(posto.rows(support::kCompany, ElencoSezionali()),
              (Righe{{"2", "2", "Formazione", "Corsi", "2024-03-31 00:00:00.000", "2024-03-31 00:00:00.000", "3"},
                     {"1", "7", "Attività commerciale", "Botteghe", "2024-03-31 00:00:00.000",
                      "2024-03-31 00:00:00.000", "3"},
                     {"3", "10", "Affitto sale", "Immobili", "NULL", "NULL", "3"}}));
}

TEST_F(SezionaliAperti, ColumnsThatAreThereAreRefusedAndNothingChanges) {
    const Righe prima = tutto();
    const support::StatementRecorder recorder;
    AggiungiColonneSezionali();
    EXPECT_EQ(recorder.texts(),
              (Testi{"alter table Ivasezionale add    descrizione nvarchar(255) not null default 'Sezionale Iva' ",
                     "alter table Ivasezionale add    AreaAttivita nvarchar(255)  null  "}));
    EXPECT_EQ(tutto(), prima);
}

TEST_F(SezionaliAperti, AnOlderDatabaseGetsTheColumnsInItsRows) {
    esegui("drop table IvaSezionale");
    esegui("create table IvaSezionale (idautonumber int identity(1,1) not null primary key, id int null)");
    esegui("insert into IvaSezionale (id) values (4)");
    AggiungiColonneSezionali();
    EXPECT_EQ(tabella("id, descrizione, AreaAttivita"), (Righe{{"4", "Sezionale Iva", "NULL"}}));
}

TEST_F(SezionaliAperti, WithoutATableOrAConnectionTheColumnsAreSkipped) {
    esegui("drop table IvaSezionale");
    AggiungiColonneSezionali();
    DbAzienda.Close();
    AggiungiColonneSezionali();
}

// Quick save.

TEST_F(SezionaliAperti, AQuickSaveOfANumberThatIsThereKeepsItsCounters) {
    const Righe contatoriPrima = contatori(), datePrima = date(), importiPrima = importi();
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaSezionale({"2", "  Scuola ", " Lezioni  "}));
    EXPECT_EQ(recorder.texts().front(), "select * from ivasezionale where Id=2");
    EXPECT_EQ(scritture(recorder).back(), "UPDATE [IvaSezionale] SET [id] = 2, [descrizione] = N'Scuola', "
                                          "[AreaAttivita] = N'Lezioni' WHERE [idautonumber] = 2");
    EXPECT_EQ(testate(), (Righe{{"1", "1", "Attività commerciale", "Botteghe", "3"},
                                {"2", "1", "Scuola", "Lezioni", "3"},
                                {"10", "1", "Affitto sale", "Immobili", "3"}}));
    EXPECT_EQ(contatori(), contatoriPrima);
    EXPECT_EQ(date(), datePrima);
    EXPECT_EQ(importi(), importiPrima);
}

TEST_F(SezionaliAperti, AQuickSaveOfANewNumberLeavesTheRestToTheDatabase) {
    const support::StatementRecorder recorder;
    EXPECT_TRUE(SalvaSezionale({"5", "Mostre", "Arte"}));
    EXPECT_EQ(recorder.texts().front(), "select * from ivasezionale where Id=5");
    EXPECT_EQ(scritture(recorder),
              (Testi{"INSERT INTO [IvaSezionale] ([id], [descrizione], [AreaAttivita]) VALUES (5, N'Mostre', "
                     "N'Arte')"}));
    EXPECT_EQ(testate().back(), (Riga{"5", "1", "Mostre", "Arte", "1"}));
    EXPECT_EQ(contatori().back(), (Riga{"0", "0", "0", "0"}));
    EXPECT_EQ(date().back(), (Riga{"NULL", "NULL", "NULL", "NULL"}));
}

TEST_F(SezionaliAperti, AQuickSaveDoesNothingUnlessAllThreeFieldsAreFilled) {
    const support::StatementRecorder recorder;
    for (const char* vuoto : {"", " ", "0", "00", "0,00"}) {
        EXPECT_FALSE(SalvaSezionale({vuoto, "Scuola", "Lezioni"})) << vuoto;
        EXPECT_FALSE(SalvaSezionale({"2", vuoto, "Lezioni"})) << vuoto;
        EXPECT_FALSE(SalvaSezionale({"2", "Scuola", vuoto})) << vuoto;
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, AQuickSaveRewritesTheFirstOfSeveralSectionsOfANumber) {
    esegui("update IvaSezionale set id = 1");
    EXPECT_TRUE(SalvaSezionale({"1", "Scuola", "Lezioni"}));
    EXPECT_EQ(ovunque("descrizione"), "Scuola Formazione Affitto sale");
}

TEST_F(SezionaliAperti, ANumberThatIsNoneMakesTheQuickSaveFailAndTheNextOneWorks) {
    const Righe prima = tutto();
    for (const char* numero : {"abc", "1,5", "due", "'", "2'", "2 or", "1;", "x'; --", "1 2", "€", "/*", "\""}) {
        SCOPED_TRACE(numero);
        EXPECT_THROW(SalvaSezionale({numero, "Scuola", "Lezioni"}), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
    EXPECT_THROW(SalvaSezionale({std::string(4'000, '9'), "Scuola", "Lezioni"}), ado::Error);
    EXPECT_TRUE(SalvaSezionale({"2", "Scuola", "Lezioni"})) << "the shared recordset was given back";
    EXPECT_EQ(testate()[1][2], "Scuola");
}

// The number is part of the statement, and then a value of the column: the row that is found or added stays as it is.
TEST_F(SezionaliAperti, ANumberThatGoesOnIsRunAndThenRefusedByItsColumn) {
    const Righe prima = tutto();
    for (const char* numero : {"2 or 1=1", "2 --", "99 --", "2 /* */", "id", "null"}) {
        SCOPED_TRACE(numero);
        try {
            SalvaSezionale({numero, "Scuola", "Lezioni"});
            ADD_FAILURE() << "nothing raised";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.number(), ado::kMultipleStep);
        }
        EXPECT_EQ(tutto(), prima);
    }
    EXPECT_THROW(SalvaSezionale({"2; delete from contatorepd", "Scuola", "Lezioni"}), ado::Error);
    EXPECT_EQ(valore("select count(*) from contatorepd"), "0") << "a second statement behind the number is run";
}

// Blanks of any kind around a number end nothing in the statement; the column takes some of them.
TEST_F(SezionaliAperti, AControlCharacterInTheNumberIsABlankOrRefused) {
    for (const char* numero : {"2\t", "\t2", "2\n", "2\r\n", "\n 2"}) {
        SCOPED_TRACE(testing::PrintToString(numero));
        EXPECT_TRUE(SalvaSezionale({numero, "Scuola", "Lezioni"}));
        EXPECT_EQ(ovunque("id"), "1 2 10");
    }
    const Righe prima = tutto();
    for (const char* numero : {"\x01", "2\x01", "2\x7f", "2\v"}) {
        SCOPED_TRACE(testing::PrintToString(numero));
        EXPECT_THROW(SalvaSezionale({numero, "Altro", "Altra"}), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
}

// A point groups digits in the column and ends a whole number in the statement.
TEST_F(SezionaliAperti, APointInTheNumberIsReadOtherwiseByTheColumn) {
    EXPECT_TRUE(SalvaSezionale({"2.0", "Scuola", "Lezioni"}));
    EXPECT_EQ(ovunque("id"), "1 20 10");
    EXPECT_TRUE(SalvaSezionale({" 1 ", "Negozio", "Lezioni"}));
    EXPECT_EQ(ovunque("id"), "1 20 10");
    EXPECT_TRUE(SalvaSezionale({"-4", "Mostre", "Arte"}));
    EXPECT_EQ(ovunque("id"), "1 20 10 -4");
}

TEST_F(SezionaliAperti, DescriptionAndAreaEnterNoStatementAsText) {
    for (const std::string testo :
         {"'", "x'; delete from IvaSezionale --", "a;b", "-- x", "/*", "\"", "a\tb", "\x01"}) {
        SCOPED_TRACE(testo);
        EXPECT_TRUE(SalvaSezionale({"2", testo, testo}));
        EXPECT_EQ(testate()[1], (Riga{"2", "1", testo, testo, "3"}));
        EXPECT_EQ(testate().size(), 3U);
    }
}

TEST_F(SezionaliAperti, ATextThatIsTooLongMakesTheQuickSaveFail) {
    const Righe prima = tutto();
    for (const CampiSezionale& campi : {CampiSezionale{"2", std::string(4'000, 'x'), "Lezioni"},
                                        CampiSezionale{"2", "Scuola", std::string(256, 'x')}}) {
        EXPECT_THROW(SalvaSezionale(campi), ado::Error);
        EXPECT_EQ(tutto(), prima);
    }
    EXPECT_TRUE(SalvaSezionale({"2", std::string(255, 'x'), "  " + std::string(255, 'y') + "  "}));
    EXPECT_EQ(testate()[1][3], std::string(255, 'y'));
}

TEST_F(SezionaliAperti, ARowThatSomebodyElseHoldsMakesTheQuickSaveFail) {
    const Righe prima = tutto();
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from IvaSezionale where idautonumber = 2", altrui);
    tenuta["AreaAttivita"] = "X";
    EXPECT_THROW(SalvaSezionale({"2", "Scuola", "Lezioni"}), ado::Error);
    tenuta.CancelUpdate();
    EXPECT_EQ(tutto(), prima);
}

} // namespace
} // namespace vabo
