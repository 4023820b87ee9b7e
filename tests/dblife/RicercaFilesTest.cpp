// The folder of the branch's file: read from its table, or found on the disk and stored there.

#include "dblife/RicercaFiles.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "support/SomebodyElse.h"

#include <QTimer>

namespace vabo {
namespace {

using Testi = std::vector<std::string>;

class RicercaFiles : public AziendaAperta {
protected:
    void tabella(const std::string& colonne) const { esegui("update DirectorySede set " + colonne); }
    std::string percorso() const { return valore("select Directoryfile from DirectorySede"); }
    static std::string cartella() {
        std::string trovata = "prima";
        CercaDirectorySede(trovata);
        return trovata;
    }
    static std::string scritta(const std::string& percorso) {
        return "UPDATE [DirectorySede] SET [Directoryfile] = N'" + percorso + "' WHERE [IdAutonumber] = 1";
    }

    support::DialogScript script; ///< no box but those that the test expects
};

TEST_F(RicercaFiles, TheFolderIsThePathUpToItsLastBackslash) {
    const std::pair<const char*, const char*> percorsi[] = {{"C:\\vabo\\NomeServer.txt", "C:\\vabo\\"},
                                                            {"D:\\a\\b\\c", "D:\\a\\b\\"},
                                                            {"\\\\server\\dati\\x.mdb", "\\\\server\\dati\\"},
                                                            {"C:\\Città\\è.txt", "C:\\Città\\"},
                                                            {"C:\\vabo\\", "C:\\vabo\\"},
                                                            {"C:/vabo/x", ""},
                                                            {"x.txt", ""}};
    for (const auto& [file, attesa] : percorsi) {
        tabella("Directoryfile = '" + std::string(file) + "'");
        EXPECT_EQ(cartella(), attesa) << file;
        EXPECT_EQ(percorso(), file);
    }
}

TEST_F(RicercaFiles, AKnownPathIsReadLetterForLetterAndNotSearched) {
    tabella("Directoryfile = 'Z:\\manca\\x.txt'");
    const support::StatementRecorder recorder;
    EXPECT_EQ(cartella(), "Z:\\manca\\");
    EXPECT_EQ(recorder.texts(), Testi{"Select * from DirectorySede"});
}

TEST_F(RicercaFiles, TheTableIsReadOnTheOpenConnection) {
    StringaAzienda = "Server=altrove";
    EXPECT_EQ(cartella(), "C:\\vabo\\");
}

TEST_F(RicercaFiles, AnEmptyTableIsAnEmptyFolderWithoutASearch) {
    esegui("delete from DirectorySede");
    EXPECT_EQ(cartella(), "");
}

TEST_F(RicercaFiles, AnUnknownPathIsSearchedAndStored) {
    for (const char* vuoto : {"null", "''", "' '", "'0'"}) {
        posto.putFile("C:\\Dati\\Sede\\Archivio.DAT", "x");
        tabella(std::string("NomeFile = 'ARCHIVIO.dat', Directoryfile = ") + vuoto);
        const support::StatementRecorder recorder;
        EXPECT_EQ(cartella(), "C:\\Dati\\Sede\\") << vuoto;
        EXPECT_EQ(percorso(), "C:\\Dati\\Sede\\Archivio.DAT");
        EXPECT_EQ(recorder.texts().front(), "Select * from DirectorySede");
        EXPECT_EQ(recorder.texts().back(), scritta("C:\\Dati\\Sede\\Archivio.DAT"));
    }
}

TEST_F(RicercaFiles, OnlyTheFirstOfSeveralRowsCounts) {
    esegui("insert into DirectorySede (Directoryfile, NomeFile) values ('C:\\b\\x', 'x')");
    tabella("NomeFile = 'archivio.dat', Directoryfile = null");
    esegui("update DirectorySede set Directoryfile = 'C:\\b\\x' where IdAutonumber = 2");
    posto.putFile("C:\\archivio.dat", "x");
    EXPECT_EQ(cartella(), "C:\\");
    EXPECT_EQ(posto.rows(support::kCompany, "select Directoryfile from DirectorySede order by IdAutonumber"),
              (std::vector<Riga>{{"C:\\archivio.dat"}, {"C:\\b\\x"}}));
}

TEST_F(RicercaFiles, AFileThatIsNotFoundIsToldAndTheEmptyTextStored) {
    for (const char* nome : {"'manca.dat'", "''", "'''; drop table Sede --'"}) {
        tabella(std::string("Directoryfile = null, NomeFile = ") + nome);
        script.expectMessage("There were no files found.", platform::Icon::None);
        EXPECT_EQ(cartella(), "");
        EXPECT_EQ(percorso(), "");
    }
}

TEST_F(RicercaFiles, WithoutANameThereIsNoSearchAndTheErrorIsTheCallers) {
    tabella("Directoryfile = null, NomeFile = null");
    std::string trovata = "prima";
    try {
        CercaDirectorySede(trovata);
        ADD_FAILURE() << "nothing raised";
    } catch (const std::exception& errore) {
        EXPECT_STREQ(errore.what(), "Invalid use of Null");
    }
    EXPECT_EQ(trovata, "prima");
    EXPECT_EQ(percorso(), "NULL");
}

TEST_F(RicercaFiles, APathThatItsColumnCanNotHoldRaisesAndNothingIsStored) {
    const std::string profonda(200, 'd');
    posto.putFile("C:\\" + profonda + "\\" + profonda + "\\x.dat", "x");
    tabella("Directoryfile = null, NomeFile = 'x.dat'");
    std::string trovata = "prima";
    EXPECT_THROW(CercaDirectorySede(trovata), ado::Error);
    EXPECT_EQ(trovata, "prima");
    EXPECT_EQ(percorso(), "NULL");
    tabella("Directoryfile = 'C:\\a\\x.dat'");
    EXPECT_EQ(cartella(), "C:\\a\\") << "the connection is as usable as before";
}

TEST_F(RicercaFiles, ATableThatCanNotBeReadRaises) {
    esegui("drop table DirectorySede");
    std::string trovata = "prima";
    EXPECT_THROW(CercaDirectorySede(trovata), ado::Error);
    EXPECT_EQ(trovata, "prima");
}

TEST_F(RicercaFiles, WindowsArePaintedWhileTheDiskIsSearched) {
    posto.putFile("C:\\Dati\\x.dat", "x");
    tabella("Directoryfile = null, NomeFile = 'x.dat'");
    bool dipinta = false;
    bool primaDellaScrittura = false;
    QTimer::singleShot(0, [&] { dipinta = true; });
    const support::SomebodyElse qualcuno([&](const std::string& testo) {
        if (testo.starts_with("UPDATE")) {
            primaDellaScrittura = dipinta;
        }
    });
    cartella();
    EXPECT_TRUE(primaDellaScrittura);
}

} // namespace
} // namespace vabo
