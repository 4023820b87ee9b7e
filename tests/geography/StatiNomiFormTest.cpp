// The form of states: names that are missing, taken or hostile.

#include "geography/StatiFixture.h"

namespace vabo {
namespace {

class StatiNomi : public StatiForm {};

TEST_F(StatiNomi, ANameThatIsMissingStoresNothingInSilence) {
    apri();
    const support::StatementRecorder recorder;
    for (const char* nome : {"Seleziona", "seleziona", "SELEZIONA", " ", "0"}) {
        scrivi({nome, "Balcani", "010203", "", "EUR"});
        EXPECT_EQ(campi(), kStatoVuoto) << nome;
        EXPECT_EQ(fuoco(), "DescStato");
    }
    EXPECT_EQ(recorder.texts(), Testi{});
}

TEST_F(StatiNomi, ADuplicateIsToldAndTheFieldsAreEmptied) {
    apri();
    gui.click("stati", "Command1");
    const int prima = quanti("stati");
    script.expectMessage(kStatoDoppio);
    const support::StatementRecorder recorder;
    scrivi({"KENYA", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{"SELECT * from stati order by DescStato"});
    EXPECT_EQ(campi(), kStatoVuoto);
    EXPECT_EQ(fuoco(), "DescStato");
    EXPECT_EQ(quanti("stati"), prima);
    EXPECT_EQ(pagina.rows("DataGrid1"), prima) << "no filter is left";
    script.expectMessage(kStatoDoppio);
    scrivi({"Kenya", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown()) << "the next state is still a new one";
}

TEST_F(StatiNomi, ADuplicateLeavesTheFocusWhereItWent) {
    apri();
    gui.click("stati", "Command1");
    scrivi({"Kenya", "Balcani", "", ""});
    gui.type("EUR");
    script.expectMessage(kStatoDoppio);
    gui.click("stati", "DataIstituzioneStato");
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), kStatoVuoto);
    EXPECT_EQ(fuoco(), "DataIstituzioneStato");
}

TEST_F(StatiNomi, AfterASaveTheNextStateIsNew) {
    apri();
    scegli("Kenya");
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    script.expectMessage(kStatoDoppio);
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(quanti("stati where DescStato = 'Kenya'"), 1);
}

TEST_F(StatiNomi, RenamingAStateToAnothersNamePasses) {
    apri();
    scegli("Kenya");
    scrivi({"Italia", "Seleziona", "", "", "KES"});
    EXPECT_EQ(quanti("stati where DescStato = 'Italia'"), 2);
}

// Nothing has been chosen, stored or asked for by then.
TEST_F(StatiNomi, TheFirstStateTypedBehindTheOpeningIsNotLookedFor) {
    apri();
    scrivi({"Kenya", "Seleziona", "", "", "KES"});
    EXPECT_EQ(quanti("stati where DescStato = 'Kenya'"), 2);
}

TEST_F(StatiNomi, ANameThatSomebodyElseAddedMeanwhileIsNotSeen) {
    apri();
    gui.click("stati", "Command1");
    esegui("insert into stati (DescStato) values ('Repubblica del Kosovo')");
    scrivi(kKosovo);
    EXPECT_EQ(quanti("stati where DescStato = 'Repubblica del Kosovo'"), 2);
}

TEST_F(StatiNomi, AnApostropheInANewNameIsRefusedByTheFilterAndTheFieldsStay) {
    apri();
    gui.click("stati", "Command1");
    script.expectMessage(kFiltroRifiutato);
    const support::StatementRecorder recorder;
    scrivi({"Paese dell'Est", "Balcani", "010203", "", "EUR"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(recorder.texts(), Testi{});
    EXPECT_EQ(campi(), (Riga{"Paese dell'Est", "Balcani", "01/02/2003", "", "EUR"}));
    EXPECT_EQ(fuoco(), "DescStato");
    scrivi({"Paese di Est", "Balcani", "010203", "", "EUR"});
    EXPECT_EQ(stato("Paese di Est")[4], "Balcani") << "a name without it goes through";
}

TEST_F(StatiNomi, AnApostropheInAChosenStatesNamePasses) {
    apri();
    scegli("Kenya");
    scrivi({"Paese dell'Est", "Seleziona", "", "", "KES"});
    EXPECT_EQ(stato("Paese dell''Est").front(), "Paese dell'Est");
}

TEST_F(StatiNomi, ADoubledApostropheIsOneToTheFilterAndTwoToTheTable) {
    apri();
    gui.click("stati", "Command1");
    scrivi({"Paese dell''Est", "Seleziona", "", "", "KES"});
    EXPECT_EQ(stato("Paese dell''''Est").front(), "Paese dell''Est");
}

TEST_F(StatiNomi, ANameThatWidensTheFilterFindsOthers) {
    apri();
    gui.click("stati", "Command1");
    script.expectMessage(kStatoDoppio);
    scrivi({"x' or descstato='Kenya", "Seleziona", "", "", ""});
    EXPECT_TRUE(script.allShown());
}

// Typed or pasted into one field of a new state; the others are sound.
TEST_F(StatiNomi, WhateverIsTypedLeavesTheFormInOrder) {
    const std::string lungo(4'000, 'x');
    const Testi testi = {"\"", ";", "a;b", "--", "/* x", "*/", "\x01\x1b\x7f", "a\tb", "città ’ß€", lungo};
    apri();
    gui.click("stati", "Command1");
    for (const std::string& ostile : testi) {
        for (const char* campo : {"DescStato", "DataIstituzioneStato", "DataSoppressioneStato", "IsoValuta"}) {
            SCOPED_TRACE(ostile.substr(0, 20) + " in " + campo);
            const int prima = quanti("stati");
            pagina.control<controls::TextBox>("DescStato").setText("Prova");
            pagina.control<controls::TextBox>(campo).setText(ostile);
            const bool breve = ostile.size() <= 3;
            vaiA("IsoValuta");
            vaiA("DescStato");
            EXPECT_EQ(quanti("stati"), prima + 1);
            const Riga riga = this->riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta "
                                         "from stati where IdStato = (select max(IdStato) from stati)");
            const std::string nome = campo == std::string("DescStato") ? ostile : "Prova";
            EXPECT_EQ(riga[0], nome == lungo ? kNulla : nome);
            EXPECT_EQ(riga[1], kNulla);
            EXPECT_EQ(riga[2], kNulla);
            EXPECT_EQ(riga[3], campo != std::string("IsoValuta") ? "" : breve ? ostile : kNulla);
            EXPECT_EQ(campi(), kStatoVuoto);
            esegui("delete from stati where IdStato = (select max(IdStato) from stati)");
            gui.click("stati", "Command4");
            apri();
            gui.click("stati", "Command1");
        }
    }
}

/// An area that is typed, the box of the store, and whether it stands in the list of areas then.
struct AreaTipica {
    std::string area;
    bool nellaLista;
};

TEST_F(StatiNomi, WhateverAreaIsTypedTheStateIsStoredAndOnlyAStatementThatFailsLeavesTheListAsItWas) {
    const AreaTipica casi[] = {{"\"", true},           {";", true},
                               {"a;b", true},          {"--", true},
                               {"/* x", true},         {"l'Est", false},
                               {"'", false},           {"x'; delete from Comuni where idautonumber = 5 --", true},
                               {"\x01\x1b\x7f", true}, {"città ’ß€", true}};
    apri();
    gui.click("stati", "Command1");
    for (const auto& [area, nellaLista] : casi) {
        SCOPED_TRACE(area);
        const int prima = pagina.combo("DataCombo1").count();
        pagina.control<controls::TextBox>("DescStato").setText("Prova");
        vaiA("DataCombo1");
        pagina.combo("DataCombo1").lineEdit()->selectAll();
        pagina.combo("DataCombo1").lineEdit()->insert(QString::fromStdString(area));
        vaiA("IsoValuta");
        vaiA("DescStato");
        EXPECT_EQ(stato("Prova")[4], area);
        EXPECT_EQ(campi(), kStatoVuoto);
        EXPECT_EQ(pagina.combo("DataCombo1").count(), prima + (nellaLista ? 1 : 0));
        EXPECT_EQ(pagina.combo("DataCombo1").findText(QString::fromStdString(area), Qt::MatchExactly) >= 0, nellaLista);
        esegui("delete from stati where DescStato = 'Prova'");
        gui.click("stati", "Command4");
        apri();
        gui.click("stati", "Command1");
    }
    EXPECT_EQ(quanti("Comuni where idautonumber = 5"), 0) << "a second statement behind the area is run";
    pagina.control<controls::TextBox>("DescStato").setText("Prova");
    vaiA("DataCombo1");
    pagina.combo("DataCombo1").lineEdit()->selectAll();
    pagina.combo("DataCombo1").lineEdit()->insert(QString(4'000, 'x'));
    vaiA("IsoValuta");
    vaiA("DescStato");
    EXPECT_EQ(stato("Prova")[4], kNulla) << "too long for its column";
    EXPECT_EQ(campi(), kStatoVuoto);
}

} // namespace
} // namespace vabo
