// The form of the payment terms: what it shows, its lists, the row that is picked.

#include "CondizioniForm.h"

#include "session/LinguaClient.h"
#include "session/TreatForms.h"

#include <QLineEdit>

namespace vabo {
namespace {

constexpr const char* kColonna =
    "alter TABLE [condizionipagamento] add    RataAnticipo decimal(18,2) not NULL default 0";
constexpr const char* kRegole = "SELECT * from  CondizioniPagamentoDecorrenza order by Descrizione";
constexpr const char* kTipi = "SELECT * from  CondizioniPagamentoTipoIncasso order by descrizione";

TEST_F(FormCondizioni, ItIsOpenedByItsNameAndClosesToTheFormBelow) {
    gui.forms().show("Avvio_Azienda");
    PilaForm = {"Avvio_Azienda"};
    CimaForm = 0;
    EXPECT_TRUE(ApriForm(kCondizioni, true));
    EXPECT_TRUE(gui.isVisible(kCondizioni));
    EXPECT_TRUE(FormInCima(kCondizioni));
    gui.click(kCondizioni, "Chiudi");
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
    EXPECT_EQ(PilaForm, Riga{"Avvio_Azienda"});
}

TEST_F(FormCondizioni, TheCloseOfTheWindowLeadsToTheFormBelowToo) {
    apri();
    gui.form(kCondizioni).close();
    support::Gui::handleEvents();
    EXPECT_EQ(gui.visibleForms(), "Avvio_Azienda");
}

TEST_F(FormCondizioni, AddsItsColumnAndReadsItsLists) {
    LeggiLinguaClient(""); // the database of the language is there
    const support::StatementRecorder recorder;
    apri();
    const auto& elenco = pagina.control<controls::DataControl>("CPAdo");
    EXPECT_TRUE(elenco.RecordSource.starts_with("SELECT CondizioniPagamento.IDPagamento, Condizioni"));
    EXPECT_TRUE(recorder.sentInOrder(
        {kColonna, "select * from LinguaClient where id = 1", elenco.RecordSource, kRegole, kTipi}));
    for (const std::string& testo :
         {std::string(kColonna), elenco.RecordSource, std::string(kRegole), std::string(kTipi)}) {
        EXPECT_EQ(recorder.count(testo), 1) << testo;
    }
    for (const char* dati : {"CPAdo", "Decorrenza", "TipoIncasso"}) {
        EXPECT_EQ(pagina.control<controls::DataControl>(dati).ConnectionString, StringaAzienda);
    }
}

TEST_F(FormCondizioni, ComingBackToItReadsTheListsAndNotTheColumn) {
    apri();
    scegli(3);
    pagina.combo("IDDecorrenza").DblClick();
    support::Gui::handleEvents();
    esegui("update CondizioniPagamento set Descrizione = 'Aaa' where IDPagamento = 4");
    esegui("insert into CondizioniPagamentoDecorrenza (Descrizione) values ('Nuova')");
    const support::StatementRecorder recorder;
    gui.click(kDecorrenze, "Chiudi");
    EXPECT_EQ(gui.visibleForms(), kCondizioni);
    EXPECT_EQ(recorder.count(kColonna), 0);
    EXPECT_EQ(recorder.count(kRegole), 1);
    EXPECT_EQ(recorder.count(kTipi), 1);
    EXPECT_EQ(pagina.cell("DataGrid1", 0, 1), "Aaa");
    EXPECT_GE(pagina.combo("IDDecorrenza").findText("Nuova"), 0);
    EXPECT_EQ(campi()[0], "Fine mese") << "the fields stay";
    EXPECT_EQ(griglia().Columns(0).Width(), 0);
}

TEST_F(FormCondizioni, StartsEmptyWithTheFocusOnTheRule) {
    apri();
    EXPECT_EQ(campi(), kVuota);
    EXPECT_EQ(testo("IDPagamento"), "");
    EXPECT_EQ(fuoco(), "IDDecorrenza");
    EXPECT_EQ(pagina.combo("IDDecorrenza").count(), 8);
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5);
    EXPECT_EQ(pagina.combo("IdTipoRimessa").itemText(0), "Assegno") << "in the order of the names";
    EXPECT_EQ(gui.mnemonics(kCondizioni), "C");
}

/// What a column of the grid has.
struct Colonna {
    int posto;
    const char* titolo;
    int twips; ///< 0 where it is hidden
};

TEST_F(FormCondizioni, LaysItsGridAgainAfterEachReading) {
    const Colonna colonne[] = {{0, "IDPagamento", 0},  {1, "Descrizione", 5000}, {2, "NRrate", 1000},
                               {3, "IDDecorrenza", 0}, {4, "Scadenze", 4000},    {5, "RataAnticipo", 0},
                               {6, "Scadenza1", 0},    {17, "Scadenza12", 0},    {18, "Tipo Pagamento", 0},
                               {19, "Descrizione", 0}};
    const auto verifica = [&] {
        ASSERT_EQ(griglia().ColumnCount(), 20);
        for (int i = 0; i < 20; ++i) {
            EXPECT_TRUE(griglia().Columns(i).Locked()) << i;
            EXPECT_EQ(griglia().Columns(i).Visible(), i == 1 || i == 2 || i == 4) << i;
        }
        for (const Colonna& colonna : colonne) {
            EXPECT_EQ(griglia().Columns(colonna.posto).Caption(), colonna.titolo);
            EXPECT_EQ(griglia().Columns(colonna.posto).Width(), colonna.twips) << colonna.posto;
        }
    };
    apri();
    verifica();
    EXPECT_EQ(pagina.cell("DataGrid1", rigaDi(3), 4), "Fine mese") << "the rule, under the heading of the days";
    scegli(3);
    vaiA("Descrizione");
    invio(); // behind a save
    verifica();
}

TEST_F(FormCondizioni, APickedRowIsShownInTheFields) {
    apri();
    for (const bool conIlMouse : {false, true}) {
        conIlMouse ? clicca(3) : scegli(3);
        EXPECT_EQ(campi(), (Riga{"Fine mese", "0", "|30|60|90", "Rimessa diretta", "3",
                                 "Rimessa diretta a 30-60-90 Fine mese"}));
        EXPECT_EQ(testo("IDPagamento"), "N. 3");
        EXPECT_EQ(fuoco(), "IDDecorrenza");
        conIlMouse ? clicca(14) : scegli(14);
        EXPECT_EQ(campi(), (Riga{"Data fattura", "0", "|30|60|90|120|150|180|210|240|270|300|330|360",
                                 "Rimessa diretta", "12", "Rimessa diretta a 30-60-90-120-150-180-210-240-270"}));
    }
    scegli(9);
    EXPECT_EQ(testo("RataAnticipo"), "10,5");
    vaiA("DataGrid1");
    gui.press(Qt::Key_Down);
    EXPECT_EQ(testo("IDPagamento"), "N. 4") << "an arrow picks the next one";
    EXPECT_EQ(fuoco(), "IDDecorrenza");
}

TEST_F(FormCondizioni, LargeKeysEnterTheFiltersInPlainDigits) {
    esegui("drop table CondizioniPagamentoDecorrenza create table CondizioniPagamentoDecorrenza (IDDecorrenza int, "
           "Descrizione nvarchar(255))");
    esegui("insert into CondizioniPagamentoDecorrenza values (1234567, 'Regola lontana'), (2, 'Fine mese')");
    esegui("drop table CondizioniPagamentoTipoIncasso create table CondizioniPagamentoTipoIncasso (IdTipoRimessa int, "
           "Descrizione nvarchar(50))");
    esegui("insert into CondizioniPagamentoTipoIncasso values (7654321, 'Tipo lontano'), (2, 'Bonifico bancario')");
    esegui("update CondizioniPagamento set IDDecorrenza = 1234567, IdTipoRimessa = 7654321 where IDPagamento = 4");
    apri();
    scegli(4);
    EXPECT_EQ(decorrenza(), "Regola lontana");
    EXPECT_EQ(tipo(), "Tipo lontano");
}

TEST_F(FormCondizioni, AClickOnARowOfAListIsAPick) {
    apri();
    scegli(3);
    pagina.pickByMouse("IDDecorrenza", "Sc.il 10 del mese");
    EXPECT_EQ(fuoco(), "RataAnticipo");
    EXPECT_EQ(decorrenza(), "Sc.il 10 del mese");
    pagina.pickByMouse("IdTipoRimessa", "Assegno");
    EXPECT_EQ(fuoco(), "Descrizione");
    EXPECT_EQ(testo("Descrizione"), "Assegno a 30-60-90 Sc.il 10 del mese");
    invio();
    const Riga scritta = condizione("IDPagamento = 3");
    EXPECT_EQ(scritta[2], "4");
    EXPECT_EQ(scritta[5], "4");
}

TEST_F(FormCondizioni, AfterAPickEveryRuleAndKindCanBeChosen) {
    apri();
    scegli(3);
    EXPECT_EQ(pagina.combo("IDDecorrenza").count(), 8);
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5);
    pagina.pick("IdTipoRimessa", "Contanti");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(condizione("IDPagamento = 3")[5], "5");
}

TEST_F(FormCondizioni, AStoredZeroIsAnEmptyFieldAndEndsTheList) {
    esegui("update CondizioniPagamento set Scadenza2 = 0, Scadenza4 = 120, NRrate = 7 where IDPagamento = 3");
    apri();
    scegli(3);
    EXPECT_EQ(scadenze(), "|30|||||||||||");
    EXPECT_EQ(testo("NRrate"), "7") << "as it is stored";
}

TEST_F(FormCondizioni, ARuleOrAKindThatIsGoneLeavesItsComboAsItWas) {
    apri();
    scegli(14);
    esegui("delete from CondizioniPagamentoDecorrenza where IDDecorrenza = 2");
    pagina.control<controls::DataControl>("Decorrenza").Refresh();
    scegli(3);
    EXPECT_EQ(campi()[0], "Data fattura");
    EXPECT_EQ(testo("IDPagamento"), "N. 3");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(condizione("IDPagamento = 3")[2], "2") << "what is stored is the key of the row";
    scegli(14);
    esegui("delete from CondizioniPagamentoTipoIncasso where IdTipoRimessa = 4");
    pagina.control<controls::DataControl>("TipoIncasso").Refresh();
    scegli(9);
    EXPECT_EQ(tipo(), "Rimessa diretta");
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 4) << "the list is whole";
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(condizione("IDPagamento = 9")[5], "4");
}

TEST_F(FormCondizioni, ListsThatCannotBeReadAreSkippedAtTheOpening) {
    esegui("drop table CondizioniPagamento");
    apri();
    EXPECT_EQ(gui.visibleForms(), kCondizioni);
    EXPECT_EQ(righe(), 0);
    EXPECT_EQ(pagina.combo("IDDecorrenza").count(), 8);
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5);
    gui.click(kCondizioni, "Chiudi");
    esegui("drop table CondizioniPagamentoDecorrenza");
    apri();
    EXPECT_EQ(pagina.combo("IDDecorrenza").count(), 0);
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5);
    gui.click(kCondizioni, "Chiudi");
    esegui("drop table CondizioniPagamentoTipoIncasso");
    apri();
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 0);
    EXPECT_EQ(fuoco(), "IDDecorrenza");
}

TEST_F(FormCondizioni, AnEmptyTableHasNothingToPick) {
    esegui("delete from CondizioniPagamento");
    apri();
    vaiA("DataGrid1");
    gui.press(Qt::Key_Space);
    gui.press(Qt::Key_Down);
    QTest::mouseClick(griglia().viewport(), Qt::LeftButton);
    EXPECT_EQ(campi(), kVuota);
}

TEST_F(FormCondizioni, ItFitsANarrowScreen) {
    apri();
    EXPECT_LE(gui.form(kCondizioni).minimumSizeHint().width(), 960);
}

} // namespace
} // namespace vabo
