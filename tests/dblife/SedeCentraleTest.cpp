// The row of the headquarters and the two tables with its folders.

#include "dblife/SedeCentrale.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

using Testi = std::vector<std::string>;
using Righe = std::vector<Riga>;

const CampiSede kBari = {.citta = "Bari",
                         .indirizzo = "Via del Porto 1",
                         .statoOProvincia = "BA",
                         .cap = "70121",
                         .telefono = "080 555",
                         .fax = "080 556",
                         .posta = "bari@aurora.example",
                         .note = "Porto"};

class SedeCentrale : public AziendaAperta {
protected:
    Righe sedi() const {
        return posto.rows(support::kCompany,
                          "select idsede, città, Indirizzo, statooprovincia, cap, IdStato, telefonoufficio, numerofax, "
                          "indirizzopostaelettronica, Note from sedecentrale order by IdAutonumber");
    }
    Righe cartelle(const std::string& tabella) const {
        return posto.rows(support::kCompany, "select IdAutonumber, Directoryfile from " + tabella);
    }
    /// The rows written through a recordset. The table's name in them is the statement's or the catalog's, by driver.
    static Testi scritture(const support::StatementRecorder& recorder) {
        Testi testi;
        for (const std::string& testo : recorder.texts()) {
            if (testo.starts_with("UPDATE [") || testo.starts_with("INSERT INTO [")) {
                testi.push_back(testo);
            }
        }
        return testi;
    }
    static long quante(const support::StatementRecorder& recorder) {
        long selezioni = 0;
        for (const std::string& testo : recorder.texts()) {
            selezioni += testo.starts_with("Select") ? 1 : 0;
        }
        return selezioni;
    }
};

const Riga kRigaDiBari = {"5",       "Bari",    "Via del Porto 1",     "BA",   "70121", "2",
                          "080 555", "080 556", "bari@aurora.example", "Porto"};

TEST_F(SedeCentrale, ReadsLetterForLetter) {
    EXPECT_EQ(ElencoStatiSede(), "SELECT * FROM Stati order by descstato");
    EXPECT_EQ(ElencoSediConStato(),
              "SELECT E.IdSede, E.Città, E.Indirizzo, E.StatoOProvincia, E.IdStato, S.IdStato, S.DescStato FROM "
              "ElencoSedi AS E INNER JOIN Stati AS S ON E.IdStato = S.IdStato order by e.idsede");
    EXPECT_EQ(SedeScelta(12), "Select * from ElencoSedi where IdSede = 12");
    EXPECT_EQ(StatoDellaSede(2147483647), "Select * from stati where IdStato = 2147483647");
}

TEST_F(SedeCentrale, TheRowOfNumberOneIsWrittenOver) {
    const support::StatementRecorder recorder;
    SalvaSedeCentrale(5, 2, kBari);
    EXPECT_EQ(recorder.texts().front(), "Select * from  sedecentrale where idsede=1");
    EXPECT_EQ(quante(recorder), 1);
    EXPECT_EQ(scritture(recorder),
              Testi{"UPDATE [sedecentrale] SET [idsede] = 5, [città] = N'Bari', [Indirizzo] = N'Via del Porto 1', "
                    "[statooprovincia] = N'BA', [cap] = N'70121', [IdStato] = 2, [telefonoufficio] = N'080 555', "
                    "[numerofax] = N'080 556', [indirizzopostaelettronica] = N'bari@aurora.example', [Note] = N'Porto' "
                    "WHERE [IdAutonumber] = 1"});
    EXPECT_EQ(sedi(), Righe{kRigaDiBari});
}

TEST_F(SedeCentrale, AnEmptyTableGetsOneRow) {
    esegui("delete from sedecentrale");
    const support::StatementRecorder recorder;
    SalvaSedeCentrale(5, 2, kBari);
    EXPECT_EQ(scritture(recorder),
              Testi{"INSERT INTO [sedecentrale] ([idsede], [città], [Indirizzo], [statooprovincia], [cap], [IdStato], "
                    "[telefonoufficio], [numerofax], [indirizzopostaelettronica], [Note]) VALUES (5, N'Bari', N'Via "
                    "del Porto 1', N'BA', N'70121', 2, N'080 555', N'080 556', N'bari@aurora.example', N'Porto')"});
    EXPECT_EQ(sedi(), Righe{kRigaDiBari});
}

// The row is looked for by number 1, and gets another number.
TEST_F(SedeCentrale, AfterABranchOfAnotherNumberTheNextOneIsAddedBesideIt) {
    SalvaSedeCentrale(5, 2, kBari);
    SalvaSedeCentrale(1, 1, kBari);
    ASSERT_EQ(sedi().size(), 2U);
    EXPECT_EQ(sedi()[0][0], "5");
    EXPECT_EQ(sedi()[1][0], "1");
    SalvaSedeCentrale(1, 9, kBari);
    ASSERT_EQ(sedi().size(), 2U);
    EXPECT_EQ(sedi()[1][5], "9") << "number 1 keeps its row";
}

TEST_F(SedeCentrale, EmptyFieldsAreStoredEmptyAndARowOfNullsIsFilled) {
    SalvaSedeCentrale(1, 0, {});
    EXPECT_EQ(sedi(), (Righe{{"1", "", "", "", "", "0", "", "", "", ""}}));
    esegui("delete from sedecentrale insert into sedecentrale (idsede) values (1)");
    SalvaSedeCentrale(5, 2, kBari);
    EXPECT_EQ(sedi(), Righe{kRigaDiBari});
}

TEST_F(SedeCentrale, WhatIsTypedEntersNoStatementAsText) {
    for (const std::string testo : {"'", "'; drop table sedecentrale --", "a;b", "/*", "\"", "a\tb", "\x01"}) {
        SCOPED_TRACE(testo);
        SalvaSedeCentrale(1, 1,
                          {.citta = testo,
                           .indirizzo = testo,
                           .statoOProvincia = testo,
                           .cap = testo.substr(0, 10),
                           .telefono = testo,
                           .fax = testo,
                           .posta = testo,
                           .note = testo});
        EXPECT_EQ(sedi(), (Righe{{"1", testo, testo, testo, testo.substr(0, 10), "1", testo, testo, testo, testo}}));
    }
}

TEST_F(SedeCentrale, ATextThatItsColumnCanNotHoldRaisesAndTheNextOneIsStored) {
    const Righe prima = sedi();
    CampiSede lunghi = kBari;
    lunghi.cap = std::string(4'000, '7');
    try {
        SalvaSedeCentrale(5, 2, lunghi);
        ADD_FAILURE() << "nothing raised";
    } catch (const ado::Error& errore) {
        EXPECT_EQ(errore.number(), ado::kMultipleStep);
    }
    EXPECT_EQ(sedi(), prima);
    SalvaSedeCentrale(5, 2, kBari);
    EXPECT_EQ(sedi(), Righe{kRigaDiBari}) << "the shared recordset was given back";
}

TEST_F(SedeCentrale, ARowThatSomebodyElseHoldsRaisesAtOnce) {
    const Righe prima = sedi();
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    {
        ado::Recordset tenuta;
        ApriScrivibile(tenuta, "select * from sedecentrale", altrui);
        tenuta["Note"] = "mia";
        EXPECT_THROW(SalvaSedeCentrale(5, 2, kBari), ado::Error);
        tenuta.CancelUpdate();
    }
    EXPECT_EQ(sedi(), prima);
    SalvaSedeCentrale(5, 2, kBari);
}

TEST_F(SedeCentrale, TheRowIsWrittenOnAConnectionOfItsOwnAndTheFoldersOnTheOpenOne) {
    const std::string azienda = StringaAzienda;
    StringaAzienda = "Server=altrove";
    SalvaCartelleSede("C:\\Nuova");
    EXPECT_EQ(cartelle("Directorybackup"), (Righe{{"1", "C:\\Nuova\\Backup"}}));
    StringaAzienda = azienda;
    DbAzienda.Close();
    SalvaSedeCentrale(5, 2, kBari);
    EXPECT_EQ(sedi(), Righe{kRigaDiBari});
}

TEST_F(SedeCentrale, TheFoldersRowsAreWrittenOverWhateverTheirNumber) {
    esegui("update DirectoryHQ set IdAutonumber = 7");
    const support::StatementRecorder recorder;
    SalvaCartelleSede("C:\\Nuova");
    EXPECT_EQ(scritture(recorder),
              (Testi{"UPDATE [DirectoryHQ] SET [IdAutonumber] = 1, [Directoryfile] = N'C:\\Nuova\\VaboDatiHQ' WHERE "
                     "[IdAutonumber] = 7",
                     "UPDATE [Directorybackup] SET [IdAutonumber] = 1, [Directoryfile] = N'C:\\Nuova\\Backup' WHERE "
                     "[IdAutonumber] = 1"}));
    EXPECT_TRUE(recorder.sentInOrder({"Select * from DirectoryHQ", "Select * from Directorybackup"}));
    EXPECT_EQ(cartelle("DirectoryHQ"), (Righe{{"1", "C:\\Nuova\\VaboDatiHQ"}}));
    EXPECT_EQ(cartelle("Directorybackup"), (Righe{{"1", "C:\\Nuova\\Backup"}}));
}

TEST_F(SedeCentrale, EmptyTablesOfFoldersGetOneRowEach) {
    esegui("delete from DirectoryHQ");
    esegui("delete from Directorybackup");
    SalvaCartelleSede("C:\\");
    EXPECT_EQ(cartelle("DirectoryHQ"), (Righe{{"1", "C:\\\\VaboDatiHQ"}}));
    EXPECT_EQ(cartelle("Directorybackup"), (Righe{{"1", "C:\\\\Backup"}}));
    SalvaCartelleSede("C:\\Nuova");
    EXPECT_EQ(cartelle("DirectoryHQ"), (Righe{{"1", "C:\\Nuova\\VaboDatiHQ"}}));
    EXPECT_EQ(cartelle("Directorybackup"), (Righe{{"1", "C:\\Nuova\\Backup"}}));
}

TEST_F(SedeCentrale, NullsInTheFoldersTablesAreWrittenOver) {
    esegui("update DirectoryHQ set Directoryfile = null");
    esegui("update Directorybackup set Directoryfile = null");
    SalvaCartelleSede("C:\\Nuova");
    EXPECT_EQ(cartelle("DirectoryHQ"), (Righe{{"1", "C:\\Nuova\\VaboDatiHQ"}}));
    EXPECT_EQ(cartelle("Directorybackup"), (Righe{{"1", "C:\\Nuova\\Backup"}}));
}

TEST_F(SedeCentrale, AFolderTooLongForItsTableRaises) {
    const Righe copie = cartelle("Directorybackup");
    EXPECT_THROW(SalvaCartelleSede("C:\\" + std::string(250, 'x')), ado::Error);
    EXPECT_EQ(cartelle("Directorybackup"), copie);
    SalvaCartelleSede("C:\\Nuova");
    EXPECT_EQ(cartelle("DirectoryHQ"), (Righe{{"1", "C:\\Nuova\\VaboDatiHQ"}}));
}

} // namespace
} // namespace vabo
