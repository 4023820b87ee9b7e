// The four lists of the company's data: nulls in their rows, and texts that stand in none.

#include "fiscal/AziendaForm.h"

namespace vabo {
namespace {

TEST_F(AziendaForm, ANullNameIsAnEmptyRowOfItsListAndTheOthersCanBePicked) {
    esegui("insert into comuni values (null, 'XX', '00001', 1)");
    esegui("insert into stati (DescStato) values (null)");
    esegui("update CondizioniPagamento set Descrizione = null where IDPagamento = 3");
    apri();
    for (const char* elenco : {"DataCombo1", "DataCombo2", "DCPagamento1", "DCPagamento2"}) {
        EXPECT_GE(pagina.combo(elenco).findText("", Qt::MatchExactly), 0) << elenco;
    }
    EXPECT_EQ(std::to_string(pagina.combo("DataCombo1").count()), valore("select count(*) from comuni"));
    pagina.pick("DataCombo1", "Aosta");
    EXPECT_EQ(testi({"cap", "statooprovincia"}), (Riga{"11100", "AO"}));
    pagina.pick("DCPagamento1", "Bonifico bancario a 60 Fine mese");
    salva();
    EXPECT_EQ(colonna("IdIncasso"), "5");
}

TEST_F(AziendaForm, ATownWhoseStateHasNoNameLeavesTheNameAndBringsTheKey) {
    esegui("insert into stati (DescStato) values (null)");
    const std::string senza = valore("select IdStato from stati where DescStato is null");
    esegui("insert into comuni values ('Altrove', 'XX', '00001', " + senza + ")");
    apri();
    ASSERT_EQ(testo("DataCombo2"), "Italia");
    pagina.pick("DataCombo1", "Altrove");
    EXPECT_EQ(testi({"DataCombo2", "cap", "statooprovincia"}), (Riga{"Italia", "00001", "XX"}));
    salva();
    EXPECT_EQ(colonna("IdStato"), senza);
}

TEST_F(AziendaForm, ControlCharactersTypedIntoAListAreTakenBackAndReachNoStatement) {
    apri();
    const Testi nomi = {"DataCombo1", "DataCombo2", "DCPagamento1", "DCPagamento2"};
    const Riga prima = testi(nomi);
    for (const std::string& ostile : {std::string("\x01\x1b\x7f"), std::string("a\tb"), std::string(4'000, '\'')}) {
        for (const std::string& nome : nomi) {
            SCOPED_TRACE(nome + " " + ostile.substr(0, 10));
            vaiA(nome);
            const support::StatementRecorder recorder;
            pagina.combo(nome).lineEdit()->setText(QString::fromStdString(ostile));
            vaiA("Indirizzo");
            EXPECT_EQ(testi(nomi), prima);
            EXPECT_TRUE(recorder.holding(ostile).empty());
        }
    }
}

} // namespace
} // namespace vabo
