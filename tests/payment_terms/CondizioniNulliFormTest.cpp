// The form of the payment terms: rows that lack a value, and rules of one name.

#include "CondizioniForm.h"

#include <QAbstractItemView>

#include <set>

namespace vabo {
namespace {

/// The table again, with every column nullable, and one term that is null in the column.
void conNullo(const std::function<void(const std::string&)>& esegui, const std::string& colonna) {
    std::string colonne;
    for (int i = 1; i <= 12; ++i) {
        colonne += ", Scadenza" + std::to_string(i) + " int null";
    }
    esegui("drop table CondizioniPagamento");
    esegui("create table CondizioniPagamento (IDPagamento int null, Descrizione nvarchar(50) null, NRrate int null, "
           "IDDecorrenza int null, RataAnticipo decimal(18,2) null, IdTipoRimessa int null" +
           colonne + ")");
    for (const char* chiave : {"1", "2"}) {
        const std::string giorni = std::string(chiave) == "1" ? "10" : "20";
        std::string valori;
        for (int i = 1; i <= 12; ++i) {
            valori += ", " + giorni;
        }
        esegui(std::string("insert into CondizioniPagamento values (") + chiave + ", 'Nome " + chiave + "', " + chiave +
               ", " + chiave + ", " + chiave + ", " + chiave + valori + ")");
    }
    esegui("update CondizioniPagamento set " + colonna + " = null where IDPagamento = 2");
}

TEST_F(FormCondizioni, ANullAheadOfTheAmountIsToldAndTheTermShownStays) {
    for (const char* colonna : {"IDPagamento", "Descrizione", "NRrate"}) {
        SCOPED_TRACE(colonna);
        conNullo([this](const std::string& sql) { esegui(sql); }, colonna);
        apri();
        scegli(1);
        const Riga prima = campi();
        EXPECT_EQ(prima[5], "Nome 1");
        vaiA("DataGrid1");
        script.expectMessage("Invalid use of Null");
        // By its place, since it may have no key.
        griglia().selectRow(griglia().currentIndex().row() == 0 ? 1 : 0);
        gui.press(Qt::Key_Space);
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(campi(), prima);
        EXPECT_EQ(testo("IDPagamento"), "N. 1");
        EXPECT_EQ(fuoco(), "DataGrid1");
        gui.click(kCondizioni, "Chiudi");
    }
}

TEST_F(FormCondizioni, ANullBehindItLeavesItsFieldAsItWas) {
    for (const std::string colonna : {"RataAnticipo", "Scadenza1", "Scadenza7", "Scadenza12"}) {
        SCOPED_TRACE(colonna);
        conNullo([this](const std::string& sql) { esegui(sql); }, colonna);
        apri();
        scegli(1);
        scegli(2);
        for (int i = 1; i <= 12; ++i) {
            EXPECT_EQ(testo(scadenza(i)), colonna == scadenza(i) ? "10" : "20") << i;
        }
        EXPECT_EQ(testo("RataAnticipo"), colonna == "RataAnticipo" ? "1" : "2");
        EXPECT_EQ(tipo(), "Bonifico bancario");
        gui.click(kCondizioni, "Chiudi");
    }
}

TEST_F(FormCondizioni, ANullNameInAListIsSkippedForTheKindAndToldForTheRule) {
    esegui("update CondizioniPagamentoTipoIncasso set Descrizione = null where IdTipoRimessa = 1");
    apri();
    scegli(9);
    scegli(3);
    EXPECT_EQ(tipo(), "Assegno");
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5) << "the list is whole again";
    esegui("update CondizioniPagamentoDecorrenza set Descrizione = null where IDDecorrenza = 2");
    pagina.control<controls::DataControl>("Decorrenza").Refresh();
    scegli(9);
    const Riga prima = campi(), nona = condizione("IDPagamento = 9"), terza = condizione("IDPagamento = 3");
    script.expectMessage("Invalid use of Null");
    scegli(3);
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(campi(), prima) << "the term shown stays";
    EXPECT_EQ(testo("IDPagamento"), "N. 9");
    EXPECT_EQ(pagina.combo("IDDecorrenza").count(), 8) << "the list of rules is whole again";
    EXPECT_EQ(pagina.combo("IdTipoRimessa").count(), 5);
    vaiA("Scadenza1");
    gui.type("45");
    vaiA("Descrizione");
    invio();
    EXPECT_EQ(condizione("IDPagamento = 9")[4].substr(0, 3), "45 ") << "and is the one that is stored";
    EXPECT_EQ(condizione("IDPagamento = 9")[2], nona[2]);
    EXPECT_EQ(condizione("IDPagamento = 3"), terza);
}

TEST_F(FormCondizioni, OfTwoRulesWithOneNameTheOneOfTheTermIsKeptAndTheOnePickedIsTaken) {
    esegui("update CondizioniPagamentoDecorrenza set Descrizione = 'Fine mese' where IDDecorrenza = 5");
    esegui("update CondizioniPagamento set IDDecorrenza = 5 where IDPagamento = 9");
    apri();
    for (const int prima : {14, 3, 9}) { // from another rule, from the namesake and from itself
        scegli(prima);
        scegli(9);
        EXPECT_EQ(decorrenza(), "Fine mese");
        vaiA("Descrizione");
        invio();
        EXPECT_EQ(condizione("IDPagamento = 9")[2], "5") << prima;
    }
    auto& combo = pagina.combo("IDDecorrenza");
    const int primo = combo.findText("Fine mese");
    std::set<std::string> scelte;
    for (const int riga : {primo + 1, primo}) {
        scegli(14);
        combo.setFocus();
        gui.press(Qt::Key_Down);
        combo.view()->setCurrentIndex(combo.model()->index(riga, 0));
        QTest::keyClick(combo.view(), Qt::Key_Return);
        support::Gui::handleEvents();
        const std::string chiave = combo.BoundText();
        EXPECT_TRUE(chiave == "2" || chiave == "5");
        scelte.insert(chiave);
        vaiA("Descrizione");
        invio();
        EXPECT_EQ(condizione("IDPagamento = 14")[2], chiave);
    }
    EXPECT_EQ(scelte.size(), 2U);
}

} // namespace
} // namespace vabo
