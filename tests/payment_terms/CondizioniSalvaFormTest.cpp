// The payment terms are stored by Enter in the name.

#include "CondizioniForm.h"

#include <QLineEdit>

namespace vabo {
namespace {

constexpr const char* kRifiutato = "Multiple-step operation generated errors. Check each status value.";
constexpr const char* kDodiciZeri = "0 0 0 0 0 0 0 0 0 0 0 0";

TEST_F(FormCondizioni, EnterOrTabInTheNameStoresANewTermAndEmptiesTheFields) {
    apri();
    int quante = quanti("CondizioniPagamento");
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        componi("Fine mese", "12.5", {"30", "60"}, "Assegno");
        gui.press(tasto);
        EXPECT_EQ(ultima(), (Riga{"Assegno a 30-60 Fine mese", "2", "2", "12.50", "30 60 0 0 0 0 0 0 0 0 0 0", "4"}));
        EXPECT_EQ(quanti("CondizioniPagamento"), ++quante);
        EXPECT_EQ(righe(), quante) << "the list is read again";
        EXPECT_EQ(campi(), kVuota);
        EXPECT_EQ(fuoco(), "IDDecorrenza");
        EXPECT_EQ(pagina.combo("IDDecorrenza").lineEdit()->selectedText(), "Seleziona");
    }
}

TEST_F(FormCondizioni, APickedTermIsChangedAndTheNextOneIsNew) {
    apri();
    const int quante = quanti("CondizioniPagamento");
    scegli(3);
    pagina.pick("IDDecorrenza", "Data fattura");
    vaiA("Scadenza2");
    gui.type("0");
    vaiA("Descrizione");
    const support::StatementRecorder recorder;
    invio();
    EXPECT_EQ(recorder.texts().front(), " SELECT * from CondizioniPagamento WHERE  idpagamento = 3");
    EXPECT_EQ(condizione("IDPagamento = 3"),
              (Riga{"Rimessa diretta a 30 Data fattura", "1", "1", "0.00", "30 0 0 0 0 0 0 0 0 0 0 0", "1"}));
    EXPECT_EQ(quanti("CondizioniPagamento"), quante);
    EXPECT_EQ(campi(), kVuota);
    EXPECT_EQ(testo("IDPagamento"), "");
    componi("Fine mese", "", {}, "Contanti");
    invio();
    EXPECT_EQ(quanti("CondizioniPagamento"), quante + 1);
    EXPECT_EQ(ultima(), (Riga{"Contanti a  Fine mese", "1", "2", "0.00", kDodiciZeri, "5"}));
}

TEST_F(FormCondizioni, ASaveReadsAllThreeListsAgain) {
    apri();
    scegli(3);
    vaiA("Descrizione");
    const support::StatementRecorder recorder;
    invio();
    const std::string elenco = pagina.control<controls::DataControl>("CPAdo").RecordSource;
    EXPECT_TRUE(recorder.sentInOrder({" SELECT * from CondizioniPagamento WHERE  idpagamento = 3", elenco,
                                      "SELECT * from  CondizioniPagamentoDecorrenza order by Descrizione",
                                      "SELECT * from  CondizioniPagamentoTipoIncasso order by descrizione"}));
    EXPECT_EQ(recorder.count(elenco), 1);
}

TEST_F(FormCondizioni, AnIncompleteTermIsNotStoredAndNothingIsSaid) {
    apri();
    const support::StatementRecorder recorder;
    pagina.pick("IDDecorrenza", "Fine mese");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(campi(), (Riga{"Fine mese", "0,00", "", "Seleziona", "1", "Seleziona Fine mese"})) << "without a kind";
    EXPECT_EQ(fuoco(), "IDDecorrenza");
    vaiA("Descrizione");
    gui.type("A mano");
    invio();
    EXPECT_EQ(testo("Descrizione"), "A mano");
    gui.click(kCondizioni, "Chiudi");
    apri();
    pagina.pick("IdTipoRimessa", "Assegno");
    invio();
    EXPECT_EQ(campi(), (Riga{"Seleziona", "0,00", "", "Assegno", "1", "Assegno a  Seleziona"})) << "without a rule";
    gui.click(kCondizioni, "Chiudi");
    apri();
    pagina.pick("IDDecorrenza", "Fine mese");
    pagina.pick("IdTipoRimessa", "Assegno");
    gui.type("0");
    invio();
    EXPECT_EQ(campi()[5], "0") << "without a name";
    EXPECT_EQ(scritture(recorder), Testi{});
}

TEST_F(FormCondizioni, ALongNameIsCutByEnterAlone) {
    apri();
    componi("Fine mese", "", {}, "Assegno");
    const std::string lungo = std::string(25, 'x') + "àèìòù" + std::string(21, 'y');
    gui.type(lungo);
    vaiA("Chiudi");
    EXPECT_EQ(testo("Descrizione"), lungo) << "51 letters stay while the mouse leaves the field";
    campo("Descrizione").setFocus();
    campo("Descrizione").setText(lungo);
    invio();
    EXPECT_EQ(ultima()[0], std::string(25, 'x') + "àèìòù" + std::string(20, 'y'));
}

TEST_F(FormCondizioni, ANameOfFiftyLettersIsNotCut) {
    apri();
    componi("Fine mese", "", {}, "Assegno");
    gui.type(std::string(50, 'x'));
    invio();
    EXPECT_EQ(ultima()[0], std::string(50, 'x'));
}

TEST_F(FormCondizioni, ACharacterOfTwoHalvesIsNotCutInTwo) {
    apri();
    const std::string faccina = "\xF0\x9F\x98\x80";
    for (const int davanti : {48, 49, 50}) {
        componi("Fine mese", "", {}, "Assegno");
        campo("Descrizione").setText(std::string(davanti, 'x') + faccina + "y");
        invio();
        EXPECT_EQ(ultima()[0], std::string(davanti, 'x') + (davanti == 48 ? faccina : std::string()));
    }
}

TEST_F(FormCondizioni, AnAdvanceLeftByMouseIsStoredAsItStands) {
    apri();
    for (const auto& [digitato, scritto] : {std::pair{"1.500", "1500.00"}, std::pair{"12,5", "12.50"}}) {
        scegli(3);
        vaiA("RataAnticipo");
        gui.type(digitato);
        vaiA("Descrizione");
        EXPECT_EQ(testo("RataAnticipo"), digitato);
        invio();
        EXPECT_EQ(condizione("IDPagamento = 3")[3], scritto);
    }
}

TEST_F(FormCondizioni, AWorkedOutNameIsCutToo) {
    apri();
    componi("Data fattura", "", {"30", "60", "90", "120", "150", "180", "210", "240", "270", "300", "330", "360"},
            "Assegno");
    EXPECT_EQ(testo("Descrizione"), "Assegno a 30-60-90-120-150-180-210-240-270-300-330-360 Data fattura");
    invio();
    EXPECT_EQ(ultima(), (Riga{"Assegno a 30-60-90-120-150-180-210-240-270-300-330", "12", "1", "0.00",
                              "30 60 90 120 150 180 210 240 270 300 330 360", "4"}));
}

TEST_F(FormCondizioni, ANameCutIsLongerWithoutASave) {
    apri();
    vaiA("Descrizione");
    gui.type(std::string(60, 'x'));
    invio();
    EXPECT_EQ(testo("Descrizione"), std::string(50, 'x')) << "cut also where nothing is stored";
}

TEST_F(FormCondizioni, TheNumberOfInstalmentsIsNeverTheTypedOne) {
    apri();
    componi("Fine mese", "", {"30", "60"}, "Assegno");
    vaiA("NRrate");
    gui.type("9");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(ultima()[1], "2");
}

TEST_F(FormCondizioni, ATermThatIsGoneIsToldAndTheFieldsStay) {
    apri();
    scegli(3);
    vaiA("Descrizione");
    const Riga prima = campi();
    esegui("delete from CondizioniPagamento where IDPagamento = 3");
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), prima);
    EXPECT_EQ(testo("IDPagamento"), "N. 3");
    EXPECT_EQ(fuoco(), "Descrizione");
}

TEST_F(FormCondizioni, ATermThatSomebodyElseHoldsIsRefusedAtOnce) {
    apri();
    scegli(3);
    vaiA("Descrizione");
    ado::Connection altra;
    altra.Open(StringaAzienda);
    ado::Recordset tenuta;
    tenuta.Open("select * from CondizioniPagamento where IDPagamento = 3", altra, ado::CursorType::Keyset,
                ado::LockType::Pessimistic);
    tenuta["NRrate"] = 9;
    script.expectMessage("Lock request time out period exceeded.");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(testo("IDPagamento"), "N. 3");
    tenuta.CancelUpdate();
    invio();
    EXPECT_EQ(campi(), kVuota) << "a second try stores it";
}

TEST_F(FormCondizioni, AListThatIsGoneAfterTheSaveIsTold) {
    apri();
    scegli(3);
    vaiA("Scadenza1");
    gui.type("45");
    vaiA("Descrizione");
    esegui("drop table CondizioniPagamentoTipoIncasso");
    script.expectMessage("Invalid object name 'CondizioniPagamentoTipoIncasso'.");
    invio();
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(condizione("IDPagamento = 3")[4], "45 60 90 0 0 0 0 0 0 0 0 0") << "it is stored";
    EXPECT_EQ(campi(), kVuota);
}

} // namespace
} // namespace vabo
