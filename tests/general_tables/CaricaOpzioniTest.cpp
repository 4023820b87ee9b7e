#include "general_tables/CaricaOpzioni.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "general_tables/RecordsetConsole.h"

#include <functional>
#include <optional>

namespace vabo {
namespace {

constexpr int kNessunErrore = 0;

/// The result of one function: the value that it set the box to, where it did, and the error that ended it.
struct Lettura {
    std::optional<int> casella = std::nullopt;
    int errore = kNessunErrore;
    bool operator==(const Lettura&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Lettura& lettura) {
    return out << "box " << (lettura.casella ? std::to_string(*lettura.casella) : "untouched") << ", error "
               << lettura.errore;
}

/// One stored number: its row and column, and the function that reads it.
struct Numero {
    const char* casella;
    const char* colonna;
    const char* riga; ///< table and condition
    const char* istruzione;
    std::function<void(const MostraCasella&)> leggi;
};

const std::vector<Numero>& numeri() {
    const auto opzione = [](const char* casella) {
        return [casella](const MostraCasella& mostra) { CaricaOpzione(OpzioneDi(casella), mostra); };
    };
    static const std::vector<Numero> elenco = {
        {"Check6", "Contatore", "datiGenerali where Descrizione = 'Sede Amministrativa'",
         "select * from datiGenerali where descrizione ='Sede Amministrativa'", CaricaSedeAmministrativa},
        {"Check9", "Lunghezza", "TabellaUilityConti where id = 7", "select * from TabellaUilityConti where id = 7",
         CaricaSoloDiLoco},
        {"Check7", "Lunghezza", "TabellaUilityConti where id = 5", "select * from TabellaUilityConti where id = 5",
         CaricaBudgetOng},
        {"Check2", "Contatore", "datiGenerali where id = 6", "select * from datiGenerali where id = 6",
         opzione("Check2")},
        {"Check3", "Contatore", "datiGenerali where id = 7", "select * from datiGenerali where id = 7",
         opzione("Check3")},
        {"Check1", "Contatore", "datiGenerali where id = 8", "select * from datiGenerali where id = 8",
         opzione("Check1")},
        {"Check4", "Contatore", "datiGenerali where id = 9", "select * from datiGenerali where id = 9",
         opzione("Check4")},
        {"Check5", "Contatore", "datiGenerali where id = 10", "select * from datiGenerali where id = 10",
         opzione("Check5")},
        {"Check13", "Contatore", "datiGenerali where id = 15", "select * from datiGenerali where id = 15",
         opzione("Check13")},
    };
    return elenco;
}

class CaricaOpzioniTest : public AziendaAperta {
protected:
    static Lettura leggi(const std::function<void(const MostraCasella&)>& lettura) {
        Lettura esito;
        try {
            lettura([&](int casella) { esito.casella = casella; });
        } catch (const ado::Error& errore) {
            esito.errore = errore.number();
        }
        return esito;
    }
    void metti(const Numero& numero, const char* valore) const {
        const std::string riga = numero.riga;
        const auto dove = riga.find(' ');
        esegui("update " + riga.substr(0, dove) + " set " + numero.colonna + " = " + valore + riga.substr(dove));
    }
    std::vector<Riga> righe(const std::string& tabellaECondizione) const {
        return posto.rows(support::kCompany, "select * from " + tabellaECondizione);
    }
};

TEST_F(CaricaOpzioniTest, EachBoxShowsItsNumberNegatedAndReadsItOnce) {
    for (const Numero& numero : numeri()) {
        SCOPED_TRACE(numero.casella);
        for (const auto& [salvato, mostrato] : {std::pair{"-1", 1}, {"0", 0}, {"-2", 2}, {"3", -3}}) {
            metti(numero, salvato);
            const support::StatementRecorder recorder;
            EXPECT_EQ(leggi(numero.leggi), (Lettura{.casella = mostrato}));
            EXPECT_EQ(recorder.texts(), std::vector<std::string>{numero.istruzione});
            EXPECT_FALSE(RsOpzioni().IsOpen());
            RilasciaRecordset(kPostoOpzioni);
        }
    }
}

// Null times -1 is null, which a box doesn't accept. Only one of the functions checks for null before.
TEST_F(CaricaOpzioniTest, ANullNumberGoesIntoNoBox) {
    for (const Numero& numero : numeri()) {
        SCOPED_TRACE(numero.casella);
        metti(numero, "null");
        const auto prima = righe(numero.riga);
        const bool chiesto = std::string(numero.casella) == "Check9";
        EXPECT_EQ(leggi(numero.leggi), (Lettura{.errore = chiesto ? kNessunErrore : ado::kInvalidUseOfNull}));
        EXPECT_EQ(RsOpzioni().IsOpen(), !chiesto);
        EXPECT_EQ(righe(numero.riga), prima);
        RilasciaRecordset(kPostoOpzioni);
    }
}

TEST_F(CaricaOpzioniTest, ANumberThatNoBoxCanHoldOverflows) {
    for (const Numero& numero : numeri()) {
        SCOPED_TRACE(numero.casella);
        metti(numero, "40000");
        EXPECT_EQ(leggi(numero.leggi), (Lettura{.errore = ado::kOverflow}));
        RilasciaRecordset(kPostoOpzioni);
    }
}

TEST_F(CaricaOpzioniTest, AMissingNumberedRowOfDatiGeneraliLeavesItsBoxAndIsNotCreated) {
    esegui("delete from datiGenerali");
    for (const char* casella : {"Check2", "Check3", "Check1", "Check4", "Check5", "Check13"}) {
        SCOPED_TRACE(casella);
        EXPECT_EQ(leggi([&](const MostraCasella& mostra) { CaricaOpzione(OpzioneDi(casella), mostra); }), Lettura{});
        EXPECT_FALSE(RsOpzioni().IsOpen());
    }
    EXPECT_TRUE(righe("datiGenerali").empty());
}

TEST_F(CaricaOpzioniTest, AMissingAdministrativeSeatIsCreatedAndItsBoxLeft) {
    esegui("delete from datiGenerali where Descrizione = 'Sede Amministrativa'");
    EXPECT_EQ(leggi(CaricaSedeAmministrativa), Lettura{});
    EXPECT_EQ(riga("select Descrizione, Contatore from datiGenerali where Descrizione = 'Sede Amministrativa'"),
              (Riga{"Sede Amministrativa", "0"}));
    EXPECT_FALSE(RsOpzioni().IsOpen());
}

TEST_F(CaricaOpzioniTest, ASeatWhoseDescriptionIsNullIsMissing) {
    esegui("update datiGenerali set Descrizione = null where Descrizione = 'Sede Amministrativa'");
    EXPECT_EQ(leggi(CaricaSedeAmministrativa), Lettura{});
    EXPECT_EQ(valore("select count(*) from datiGenerali where Descrizione = 'Sede Amministrativa'"), "1");
}

TEST_F(CaricaOpzioniTest, AMissingRowOfTheSynchronismIsCreatedWithoutANumber) {
    esegui("delete from TabellaUilityConti where id = 7");
    EXPECT_EQ(leggi(CaricaSoloDiLoco), Lettura{});
    EXPECT_EQ(righe("TabellaUilityConti where id = 7"),
              (std::vector<Riga>{{"7", "NULL", "Esporta solo registrazioni di loco"}}));
    EXPECT_FALSE(RsOpzioni().IsOpen());
}

TEST_F(CaricaOpzioniTest, AMissingBudgetRowIsCreatedAndItsSecondCloseFails) {
    esegui("delete from TabellaUilityConti where id = 5");
    EXPECT_EQ(leggi(CaricaBudgetOng), (Lettura{.casella = 0, .errore = ado::kObjectClosed}));
    EXPECT_EQ(righe("TabellaUilityConti where id = 5"), (std::vector<Riga>{{"5", "0", "Budget Ong Automatico"}}));
}

TEST_F(CaricaOpzioniTest, ABudgetBoxThatChangesTakesTheRecordsetSoThatItsCloseFails) {
    for (const int casella : {1, 0}) {
        metti(numeri()[2], casella == 1 ? "-1" : "0");
        EXPECT_EQ(leggi([&](const MostraCasella&) {
                      CaricaBudgetOng([](int valore) { SalvaOpzione(OpzioneDi("Check7"), valore); });
                  }),
                  (Lettura{.errore = ado::kObjectClosed}));
        EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 5"), casella == 1 ? "-1" : "0");
    }
}

TEST_F(CaricaOpzioniTest, AnErrorRaises) {
    DbAzienda.Close();
    for (const Numero& numero : numeri()) {
        EXPECT_EQ(leggi(numero.leggi), (Lettura{.errore = ado::kConnectionUnusable})) << numero.casella;
    }
    EXPECT_THROW(LeggiTassiDiCambio(), ado::Error);
    EXPECT_THROW(UsaBadge(), ado::Error);
}

TEST_F(CaricaOpzioniTest, TheSourceOfTheRatesIsOneOfThree) {
    const std::pair<const char*, TassiDiCambio> casi[] = {
        {"-1", TassiDiCambio::InforEuro}, {"-2", TassiDiCambio::BancaDItalia}, {"0", TassiDiCambio::Nessuno},
        {"1", TassiDiCambio::Nessuno},    {"2", TassiDiCambio::Nessuno},       {"null", TassiDiCambio::Nessuno}};
    for (const auto& [salvato, atteso] : casi) {
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + salvato + " where id = 8");
        const auto prima = righe("TabellaUilityConti");
        const support::StatementRecorder recorder;
        EXPECT_EQ(LeggiTassiDiCambio(), atteso) << salvato;
        EXPECT_EQ(recorder.texts(), std::vector<std::string>{"select * from TabellaUilityConti where id = 8"});
        EXPECT_EQ(righe("TabellaUilityConti"), prima);
    }
}

TEST_F(CaricaOpzioniTest, AMissingRowOfTheRatesIsCreatedWithNone) {
    esegui("delete from TabellaUilityConti where id = 8");
    EXPECT_EQ(LeggiTassiDiCambio(), TassiDiCambio::Nessuno);
    EXPECT_EQ(righe("TabellaUilityConti where id = 8"), (std::vector<Riga>{{"8", "0", "Usa InforEuro"}}));
}

} // namespace
} // namespace vabo
