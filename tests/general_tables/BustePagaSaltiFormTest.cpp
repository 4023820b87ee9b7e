// The form of the accounts of pay slips: what stops a save, and what it skips.

#include "BustePagaFixture.h"
#include "kit/Regole.h"
#include "support/SomebodyElse.h"

namespace vabo {
namespace {

class BustePagaSalti : public BustePagaForm {};

/// Another user, who holds the row of a type.
class Altro {
public:
    explicit Altro(int tipo) {
        connessione_.Open(StringaAzienda);
        riga_.Open("select * from TipoAnagraficaCPartite where id = " + std::to_string(tipo), connessione_,
                   ado::CursorType::Keyset, ado::LockType::Pessimistic);
        riga_["IdIrpef"] = 1;
    }
    Altro(const Altro&) = delete;
    Altro& operator=(const Altro&) = delete;
    ~Altro() { riga_.CancelUpdate(); }

private:
    ado::Connection connessione_;
    ado::Recordset riga_;
};

TEST_F(BustePagaSalti, AnAccountWithoutAGroupLeavesTheFormerGroup) {
    esegui("update conti set IdGruppoVabo = null where IdConto in (1185, 1187, 1183) update TipoAnagraficaCPartite set "
           "IdGInpsE = 7, IdGInailE = 8, IdGAltriFondiE = 9 where id = 4");
    apri();
    prendi(7, 1183);
    salva();
    EXPECT_EQ(letti("IdCInpsE, IdGInpsE, IdCInailE, IdGInailE, IdCAltriFondiE, IdGAltriFondiE, IdCIrapE", 4),
              (Riga{"1185", "7", "1187", "8", "1183", "9", "0"}));
}

TEST_F(BustePagaSalti, AnAccountThatIsGoneHasTheGroupZero) {
    esegui("update TipoAnagraficaCPartite set IdCInpsE = 77 where id = 4");
    apri();
    salva();
    EXPECT_EQ(letti("IdCInpsE, IdGInpsE", 4), (Riga{"77", "0"}));
}

TEST_F(BustePagaSalti, ARowThatIsGoneIsToldAndEndsTheSave) {
    apri();
    esegui("delete from TipoAnagraficaCPartite where id = 4");
    const auto prima = tutte();
    script.expectMessage("Either BOF or EOF is True, or the current record has been deleted. Requested operation "
                         "requires a current record.");
    const support::StatementRecorder recorder;
    salva();
    EXPECT_EQ(recorder.texts(), Riga{"select * from TipoAnagraficaCPartite where id =4"});
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(tutte(), prima);
    scegli(5);
    salva();
    EXPECT_EQ(letti("IdCIrapE", 5), Riga{"0"}) << "the recordset was given back";
}

TEST_F(BustePagaSalti, ARowThatSomebodyElseHoldsStaysAsItIsInSilence) {
    apri();
    prendi(0, 1099);
    const auto prima = tutte();
    {
        const Altro altro(4);
        salva();
        EXPECT_EQ(conto(0), "203.05.0001 Debiti v/partner");
        EXPECT_EQ(pagina.currentRow("DataGrid1"), "5") << "as after a save";
    }
    EXPECT_EQ(tutte(), prima);
    salva();
    EXPECT_EQ(letti("IdIrpef, IdCIrapE", 4), (Riga{"1099", "0"}));
}

TEST_F(BustePagaSalti, TheRowIsHeldForTheSaveOnly) {
    apri();
    EXPECT_NO_THROW(Altro(4));
    bool tenuta = false;
    {
        const support::SomebodyElse nelFrattempo([&](const std::string& testo) {
            if (testo.starts_with("SELECT  IdGruppoVabo")) {
                tenuta = tenuta || !riesce([] { const Altro altro(4); });
            }
        });
        salva();
    }
    EXPECT_TRUE(tenuta);
    EXPECT_NO_THROW(Altro(4));
}

TEST_F(BustePagaSalti, ARowThatTheServerRefusesStaysAsItIsInSilenceAndIsGivenBack) {
    apri();
    esegui("update TipoAnagraficaCPartite set IdIrpef = id where id > 5 create unique index ux_irpef on "
           "TipoAnagraficaCPartite (IdIrpef)");
    const auto prima = tutte();
    prendi(0, 1081);
    salva();
    EXPECT_EQ(tutte(), prima) << "another type has that account";
    EXPECT_EQ(pagina.currentRow("DataGrid1"), "5") << "as after a save";
    prendi(0, 1100);
    salva();
    EXPECT_EQ(letti("IdIrpef, IdCIrapE", 4), (Riga{"1100", "0"}));
}

TEST_F(BustePagaSalti, WithoutTheChartNamesAreMissingAndTheAccountsAreStoredWithTheFormerGroups) {
    esegui("update TipoAnagraficaCPartite set IdGInpsE = 7, IdGInailE = 8 where id = 5");
    apri();
    prendi(7, 1183);
    esegui("drop table conti");
    scegli(5);
    EXPECT_EQ(pagina.text("Titolo"), "Collaboratori");
    EXPECT_EQ(conti(), Riga(kSelettori));
    salva();
    EXPECT_EQ(righe(5), (Riga{"1081", "1082", "1083", "1090", "1091", "1186", "7", "1187", "8", "1183", "NULL", "0",
                              "0", "0", "0"}));
    EXPECT_EQ(pagina.rows("DataGrid1"), 0);
}

/// A column that the table lacks when the row is saved.
struct Mancante {
    const char* colonna;
    const char* conLei; ///< the column that isn't written either
    int righe;          ///< that the grid shows after it: the list is read again
};
std::ostream& operator<<(std::ostream& out, const Mancante& mancante) {
    return out << mancante.colonna;
}

class BustePagaSenzaColonna : public BustePagaForm, public testing::WithParamInterface<Mancante> {};

TEST_P(BustePagaSenzaColonna, EachColumnIsWrittenForItself) {
    const auto& [mancante, conLei, quante] = GetParam();
    apri();
    prendi(7, 1183);
    prendi(8, 1087);
    const std::pair<std::string, std::string> valori[] = {
        {"IdIrpef", "1080"},  {"IdIrpefReg", "1082"},     {"IdIrpefCom", "1083"},   {"IdInpsP", "1089"},
        {"IdInailP", "1091"}, {"IdCInpsE", "1185"},       {"IdGInpsE", "45"},       {"IdCInailE", "1187"},
        {"IdGInailE", "45"},  {"IdCAltriFondiE", "1183"}, {"IdGAltriFondiE", "44"}, {"IdAltriFondiP", "1087"},
        {"IdCIrapE", "0"},    {"IdGIrapE", "0"},          {"IdIrapP", "0"}};
    std::string colonne;
    std::string sette;
    for (const auto& [nome, valore] : valori) {
        if (nome != mancante) {
            colonne += ", " + nome + " int null";
            sette += ", 7";
        }
    }
    esegui("drop table TipoAnagraficaCPartite");
    esegui("create table TipoAnagraficaCPartite (id int not null primary key" + colonne + ")");
    esegui("insert into TipoAnagraficaCPartite values (4" + sette + ")");
    salva();
    for (const auto& [nome, scritto] : valori) {
        if (nome != mancante) {
            EXPECT_EQ(valore("select " + nome + " from TipoAnagraficaCPartite"), nome == conLei ? "7" : scritto)
                << nome;
        }
    }
    EXPECT_EQ(pagina.rows("DataGrid1"), quante);
}

INSTANTIATE_TEST_SUITE_P(Di, BustePagaSenzaColonna,
                         testing::Values(Mancante{"IdIrpef", "", 0}, Mancante{"IdIrpefReg", "", 0},
                                         Mancante{"IdIrpefCom", "", 0}, Mancante{"IdInpsP", "", 0},
                                         Mancante{"IdInailP", "", 0}, Mancante{"IdCInpsE", "IdGInpsE", 0},
                                         Mancante{"IdGInpsE", "", 0}, Mancante{"IdCInailE", "IdGInailE", 0},
                                         Mancante{"IdGInailE", "", 0}, Mancante{"IdCAltriFondiE", "", 1},
                                         Mancante{"IdGAltriFondiE", "", 1}, Mancante{"IdAltriFondiP", "", 1},
                                         Mancante{"IdCIrapE", "", 0}, Mancante{"IdGIrapE", "", 0},
                                         Mancante{"IdIrapP", "", 0}),
                         [](const auto& test) { return std::string(test.param.colonna); });

} // namespace
} // namespace vabo
