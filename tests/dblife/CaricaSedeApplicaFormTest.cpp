// The form of the headquarters: what its command writes, and where it stops.

#include "CaricaSedeFixture.h"
#include "kit/ApriScrivibile.h"
#include "support/SomebodyElse.h"

namespace vabo {
namespace {

using CaricaSedeApplica = CaricaSedeForm;

TEST_F(CaricaSedeApplica, WithoutABranchTheCommandDoesNothing) {
    apri();
    const support::StatementRecorder recorder;
    applica();
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_TRUE(script.shown().empty());
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\vabo\\Server"));
}

TEST_F(CaricaSedeApplica, WritesTheRowTheFilesAndTheTablesInThatOrder) {
    apri();
    scegli("4");
    gui.typeInto(kForm, "Indirizzo", "Moi Avenue 1");
    RsCondivisi(5).Open("select * from stati", DbAzienda);
    attendiScelta("C:\\Nuova", true);
    Riga passi;
    {
        const support::SomebodyElse qualcuno([&](const std::string& testo) {
            if (testo.starts_with("Select")) {
                const bool scritti = puntatori(posto) == puntatoriDi("C:\\Nuova");
                passi.push_back(testo + (scritti ? " behind the files" : ""));
            }
        });
        applica();
    }
    EXPECT_EQ(passi, (Riga{"Select * from  sedecentrale where idsede=1", "Select * from DirectoryHQ behind the files",
                           "Select * from Directorybackup behind the files"}));
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\Nuova"));
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
    EXPECT_EQ(sedi(), (std::vector<Riga>{{"4", "Nairobi", "Moi Avenue 1", "", "", numeroDelloStato(4),
                                          "+254 20 5550400", "", "nairobi@aurora.example", "Acqua e scuole"}}));
    EXPECT_FALSE(RsCondivisi(5).IsOpen()) << "the shared recordsets are closed";
    EXPECT_TRUE(gui.isVisible(kForm));
}

TEST_F(CaricaSedeApplica, ASecondRunWithAnotherFolderRewritesFilesAndTables) {
    apri();
    scegli("1");
    for (const char* cartella : {"C:\\Prima", "C:\\Città \"2\"'"}) {
        attendiScelta(cartella, true);
        applica();
        EXPECT_EQ(puntatori(posto), puntatoriDi(cartella));
        EXPECT_EQ(cartelle(), cartelleDi(cartella));
    }
    EXPECT_EQ(sedi().size(), 1U);
    EXPECT_EQ(sedi()[0][2], "") << "the address isn't read from the branch";
}

TEST_F(CaricaSedeApplica, WithEmptyTablesOneRowIsAddedToEach) {
    for (const char* tabella : {"sedecentrale", "DirectoryHQ", "Directorybackup"}) {
        esegui(std::string("delete from ") + tabella);
    }
    apri();
    scegli("2");
    attendiScelta("C:\\", true);
    applica();
    EXPECT_EQ(sedi(), (std::vector<Riga>{{"2", "Milano", "", "MI", "20121", "1", "02 5550200", "02 5550201",
                                          "milano@aurora.example", ""}}));
    EXPECT_EQ(cartelle(), (Riga{"C:\\\\VaboDatiHQ", "C:\\\\Backup"}));
    EXPECT_EQ(valore("select IdAutonumber from DirectoryHQ"), "1");
    EXPECT_EQ(valore("select IdAutonumber from Directorybackup"), "1");
}

TEST_F(CaricaSedeApplica, CancelAtTheBoxWritesNothing) {
    apri();
    scegli("4");
    const auto prima = sedi();
    const support::StatementRecorder recorder;
    for (const char* cartella : {"C:\\Nuova", ""}) {
        attendiScelta(cartella, false);
        applica();
        EXPECT_TRUE(script.allShown());
    }
    EXPECT_TRUE(recorder.texts().empty());
    EXPECT_EQ(sedi(), prima);
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\vabo\\Server"));
}

TEST_F(CaricaSedeApplica, AnEmptyFolderAsksAgainFromTheTopUntilThereIsOneOrCancel) {
    apri();
    scegli("4");
    for (int volta = 0; volta < 2; ++volta) {
        attendiScelta("", true);
        script.expectMessage(kMancante, platform::Icon::None);
    }
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
    attendiScelta("", true);
    script.expectMessage(kMancante);
    attendiScelta("C:\\Altra", false);
    applica();
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
}

TEST_F(CaricaSedeApplica, TheFieldsAreStoredAsTheyStandAndTheStateAsTheBranchHasIt) {
    apri();
    scegli("4");
    const std::pair<const char*, const char*> scritti[] = {{"città", "Nairobi'"},
                                                           {"Indirizzo", "\";--"},
                                                           {"statooprovincia", "/*"},
                                                           {"cap", "00100"},
                                                           {"telefonoufficio", "1"},
                                                           {"numerofax", "2"},
                                                           {"indirizzopostaelettronica", "a@b"},
                                                           {"Note", "'; drop table sedecentrale --"}};
    for (const auto& [campo, testo] : scritti) {
        gui.typeInto(kForm, campo, testo);
    }
    pagina.pick("DCStato", "Italia");
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(sedi(), (std::vector<Riga>{{"4", "Nairobi'", "\";--", "/*", "00100", numeroDelloStato(4), "1", "2", "a@b",
                                          "'; drop table sedecentrale --"}}));
}

TEST_F(CaricaSedeApplica, NotesOfSeveralLinesGoThroughTheFieldUnchanged) {
    esegui("update ElencoSedi set Note = 'una\r\ndue\ttre' where IdSede = 4");
    apri();
    scegli("4");
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(sedi()[0][9], "una\r\ndue\ttre");
}

TEST_F(CaricaSedeApplica, ATextTooLongForItsColumnIsToldAndNothingIsWritten) {
    apri();
    const auto prima = sedi();
    const char* const campi[] = {"città",           "Indirizzo", "statooprovincia",           "cap",
                                 "telefonoufficio", "numerofax", "indirizzopostaelettronica", "Note"};
    for (const char* campo : campi) {
        SCOPED_TRACE(campo);
        scegli("1");
        pagina.control<controls::TextBox>(campo).setText(std::string(4'000, 'x'));
        attendiScelta("C:\\Nuova", true);
        script.expectMessage("Multiple-step operation generated errors. Check each status value.");
        applica();
        pagina.control<controls::TextBox>(campo).setText("");
        EXPECT_EQ(sedi(), prima);
    }
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\vabo\\Server"));
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
}

TEST_F(CaricaSedeApplica, AFileThatCanNotBeWrittenEndsItBehindTheRowAndTheFilesAheadOfIt) {
    apri();
    scegli("4");
    impedisci(posto, "DirectoryHq.txt");
    const Riga primaCartelle = cartelle();
    attendiScelta("C:\\Nuova", true);
    script.expectMessage("Path/File access error");
    applica();
    const Puntatori nuovi = puntatoriDi("C:\\Nuova");
    const Puntatori vecchi = puntatoriDi("C:\\vabo\\Server");
    const Puntatori adesso = puntatori(posto);
    for (std::size_t i = 0; i < nuovi.size(); ++i) {
        if (i != 4) {
            EXPECT_EQ(adesso[i], i < 4 ? nuovi[i] : vecchi[i]);
        }
    }
    EXPECT_EQ(sedi()[0][0], "4");
    EXPECT_EQ(cartelle(), primaCartelle);
}

TEST_F(CaricaSedeApplica, AMissingTableEndsItThere) {
    struct Manca {
        const char* tabella;
        bool file;
        const char* hq;
    };
    for (const auto& [tabella, file, hq] : {Manca{"Directorybackup", true, "C:\\N\\VaboDatiHQ"},
                                            Manca{"DirectoryHQ", true, ""}, Manca{"sedecentrale", false, ""}}) {
        SCOPED_TRACE(tabella);
        metti(posto, puntatoriDi("prima"));
        esegui(std::string("drop table ") + tabella);
        gui.forms().unload(kForm);
        support::Gui::handleEvents();
        apri();
        scegli("1");
        attendiScelta("C:\\N", true);
        script.expectMessage(std::string("Invalid object name '") + tabella + "'.");
        applica();
        EXPECT_EQ(puntatori(posto), puntatoriDi(file ? "C:\\N" : "prima"));
        if (*hq != '\0') {
            EXPECT_EQ(valore("select Directoryfile from DirectoryHQ"), hq);
        }
    }
}

TEST_F(CaricaSedeApplica, ARowThatSomebodyElseHoldsIsTold) {
    apri();
    scegli("1");
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from sedecentrale", altrui);
    tenuta["Note"] = "mia";
    attendiScelta("C:\\Nuova", true);
    script.expectMessage("Lock request time out period exceeded.");
    applica();
    EXPECT_EQ(puntatori(posto), puntatoriDi("C:\\vabo\\Server"));
    tenuta.CancelUpdate();
    attendiScelta("C:\\Nuova", true);
    applica();
    EXPECT_EQ(cartelle(), cartelleDi("C:\\Nuova"));
}

} // namespace
} // namespace vabo
