#include "general_tables/Opzioni.h"

#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "general_tables/RecordsetConsole.h"

#include <stdexcept>

namespace vabo {
namespace {

class OpzioniTest : public AziendaAperta {
protected:
    std::string colonna(const Opzione& opzione) const {
        return opzione.tabella == Opzione::Tabella::DatiGenerali ? "Contatore" : "Lunghezza";
    }
    /// The value in the option's row, "" where there is none.
    std::string salvato(const Opzione& opzione) const {
        const auto righe = posto.rows(support::kCompany, testoDi(opzione));
        return righe.empty() ? std::string() : righe.front().front();
    }
    std::string testoDi(const Opzione& opzione) const {
        std::string testo = TestoOpzione(opzione);
        return "select " + colonna(opzione) + testo.substr(std::string("select *").size());
    }
    void elimina(const Opzione& opzione) const {
        esegui("delete" + TestoOpzione(opzione).substr(std::string("select *").size()));
    }
};

struct CasoOpzione {
    const char* casella;
    const char* testo;
    const char* spuntata;
    const char* descrizione;
};

constexpr CasoOpzione kCasi[] = {
    {"Check1", "select * from datiGenerali where id = 8", "-1", "Gestione Note di Debito"},
    {"Check2", "select * from datiGenerali where id = 6", "-1", "NULL"},
    {"Check3", "select * from datiGenerali where id = 7", "-1", "Inserimento Automatico Scadenziari"},
    {"Check4", "select * from datiGenerali where id = 9", "-1", "Gestione Previsionali"},
    {"Check5", "select * from datiGenerali where id = 10", "-1", "Riapertura Oneri progetto a Fine Es."},
    {"Check6", "select * from datiGenerali where descrizione ='Sede Amministrativa'", "-1", "Sede Amministrativa"},
    {"Check13", "select * from datiGenerali where id = 15", "-1", "Usa C/Transitorio Economico"},
    {"Check7", "select * from TabellaUilityConti where id = 5", "-1", "Budget Ong Automatico"},
    {"Check9", "select * from TabellaUilityConti where id = 7", "-1", "Esporta solo registrazioni di loco"},
    {"Check10", "select * from TabellaUilityConti where id = 8", "-1", "Usa InforEuro"},
    {"Check11", "select * from TabellaUilityConti where id = 8", "-2", "Usa InforEuro"},
    {"Check12", "select * from TabellaUilityConti where id = 9", "1", "Usa Badge"},
};

TEST_F(OpzioniTest, EachBoxSendsItsStatementAndStoresItsValues) {
    for (const CasoOpzione& caso : kCasi) {
        SCOPED_TRACE(caso.casella);
        const Opzione& opzione = OpzioneDi(caso.casella);
        const support::StatementRecorder recorder;
        SalvaOpzione(opzione, true);
        EXPECT_EQ(recorder.texts().front(), caso.testo);
        EXPECT_EQ(recorder.count(caso.testo), 1);
        EXPECT_EQ(salvato(opzione), caso.spuntata);
        SalvaOpzione(opzione, false);
        EXPECT_EQ(salvato(opzione), "0");
    }
}

TEST_F(OpzioniTest, AMissingRowIsCreatedWithItsDescription) {
    for (const CasoOpzione& caso : kCasi) {
        SCOPED_TRACE(caso.casella);
        const Opzione& opzione = OpzioneDi(caso.casella);
        const bool generali = opzione.tabella == Opzione::Tabella::DatiGenerali;
        const std::string tabella = generali ? "datiGenerali" : "TabellaUilityConti";
        elimina(opzione);
        SalvaOpzione(opzione, true);
        EXPECT_EQ(riga("select Descrizione, " + colonna(opzione) + " from " + tabella +
                       " where id = (select max(id) from " + tabella +
                       (generali ? ")" : " where id = " + std::to_string(opzione.riga) + ")")),
                  (Riga{caso.descrizione, caso.casella == std::string("Check6") ? "NULL" : caso.spuntata}));
    }
}

TEST_F(OpzioniTest, ANumberedRowOfDatiGeneraliIsNeverRepaired) {
    const Opzione& opzione = OpzioneDi("Check1");
    elimina(opzione);
    const int prima = std::stoi(valore("select count(*) from datiGenerali"));
    SalvaOpzione(opzione, true);
    SalvaOpzione(opzione, false);
    EXPECT_EQ(valore("select count(*) from datiGenerali"), std::to_string(prima + 2));
    EXPECT_EQ(salvato(opzione), "");
}

TEST_F(OpzioniTest, TheAdministrativeSeatIsFoundAgainByItsDescription) {
    const Opzione& opzione = OpzioneDi("Check6");
    elimina(opzione);
    SalvaOpzione(opzione, true);
    EXPECT_EQ(salvato(opzione), "NULL") << "the row that is made gets its description alone";
    SalvaOpzione(opzione, true);
    EXPECT_EQ(salvato(opzione), "-1");
    SalvaOpzione(opzione, false);
    EXPECT_EQ(valore("select count(*) from datiGenerali where Descrizione = 'Sede Amministrativa'"), "1");
    EXPECT_EQ(salvato(opzione), "0");
}

TEST_F(OpzioniTest, TheBudgetBoxTakesOverTheRecordsetOfTheLoad) {
    RsOpzioni().Open("select * from datiGenerali where id = 6", DbAzienda, ado::CursorType::Keyset,
                     ado::LockType::Pessimistic);
    SalvaOpzione(OpzioneDi("Check7"), true);
    EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 5"), "-1");
    EXPECT_FALSE(RsOpzioni().IsOpen());
}

TEST_F(OpzioniTest, TheBudgetBoxWritesFirstWhatTheLoadHasBegun) {
    esegui("delete from TabellaUilityConti where id = 5");
    RsOpzioni().Open("select * from TabellaUilityConti where id = 5", DbAzienda, ado::CursorType::Keyset,
                     ado::LockType::Pessimistic);
    RsOpzioni().AddNew();
    RsOpzioni()["id"] = 5;
    SalvaOpzione(OpzioneDi("Check7"), true);
    EXPECT_EQ(posto.rows(support::kCompany, "select Lunghezza, Descrizione from TabellaUilityConti where id = 5"),
              (std::vector<Riga>{{"-1", "NULL"}}));
}

TEST_F(OpzioniTest, TheBudgetBoxWritesWhateverEditTheSharedRecordsetHolds) {
    RsOpzioni().Open("select * from datiGenerali where id = 6", DbAzienda, ado::CursorType::Keyset,
                     ado::LockType::Pessimistic);
    RsOpzioni()["Contatore"] = 4;
    SalvaOpzione(OpzioneDi("Check7"), true);
    EXPECT_EQ(valore("select Contatore from datiGenerali where id = 6"), "4");
    EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 5"), "-1");
}

TEST_F(OpzioniTest, TheBudgetBoxClosesEverySharedRecordset) {
    RsCondivisi(2).Open("select * from datiGenerali", DbAzienda);
    SalvaOpzione(OpzioneDi("Check7"), false);
    EXPECT_FALSE(RsCondivisi(2).IsOpen());
}

TEST_F(OpzioniTest, OnlyTheNumberedRowsOfDatiGeneraliGoThroughASharedRecordset) {
    for (const CasoOpzione& caso : kCasi) {
        SCOPED_TRACE(caso.casella);
        const Opzione& opzione = OpzioneDi(caso.casella);
        const bool condiviso = std::string(caso.testo).starts_with("select * from datiGenerali where id");
        SalvaOpzione(opzione, false);
        RsCaselle().Open("select * from datiGenerali where id = 1", DbAzienda);
        if (condiviso && std::string(caso.casella) != "Check5") {
            EXPECT_THROW(SalvaOpzione(opzione, true), ado::Error) << "it is open";
        } else {
            SalvaOpzione(opzione, true);
        }
        EXPECT_EQ(salvato(opzione), condiviso ? "0" : caso.spuntata);
        EXPECT_FALSE(RsCaselle().IsOpen());
    }
}

TEST_F(OpzioniTest, NoOptionStandsBehindAnUnknownBox) {
    EXPECT_THROW(OpzioneDi("Check8"), std::logic_error);
    EXPECT_THROW(OpzioneDi(""), std::logic_error);
}

TEST_F(OpzioniTest, ABoxOfANumberedRowWritesWhileTheLoadReads) {
    RsOpzioni().Open("select * from datiGenerali where id = 6", DbAzienda, ado::CursorType::Keyset,
                     ado::LockType::Pessimistic);
    SalvaOpzione(OpzioneDi("Check2"), false);
    EXPECT_TRUE(RsOpzioni().IsOpen());
    EXPECT_EQ(valore("select Contatore from datiGenerali where id = 6"), "0");
}

TEST_F(OpzioniTest, ErrorsAreIgnoredWhereTheBoxIgnoresThemAndRaisedElsewhere) {
    DbAzienda.Close();
    for (const Opzione& opzione : kOpzioni) {
        SCOPED_TRACE(std::string(opzione.casella));
        const bool muta = opzione.casella == "Check5" || opzione.casella == "Check7" || opzione.casella == "Check9";
        if (muta) {
            EXPECT_NO_THROW(SalvaOpzione(opzione, true));
        } else {
            EXPECT_THROW(SalvaOpzione(opzione, true), ado::Error);
        }
    }
}

TEST_F(OpzioniTest, ARowHeldByAnotherConsoleIsRefusedAndNotWaitedFor) {
    const auto altro = posto.engineSession(support::kCompany);
    const auto presa = altro->hold("select * from datiGenerali where id = 8");
    EXPECT_THROW(SalvaOpzione(OpzioneDi("Check1"), false), ado::Error);
    EXPECT_EQ(salvato(OpzioneDi("Check1")), "-1");
}

TEST_F(OpzioniTest, TheBadgeCountsOnlyAsExactlyOne) {
    const std::pair<const char*, bool> casi[] = {
        {"1", true}, {"-1", false}, {"0", false}, {"2", false}, {"null", false}};
    for (const auto& [lunghezza, usa] : casi) {
        esegui(std::string("update TabellaUilityConti set Lunghezza = ") + lunghezza + " where id = 9");
        const auto prima = posto.rows(support::kCompany, "select * from TabellaUilityConti");
        const support::StatementRecorder recorder;
        EXPECT_EQ(UsaBadge(), usa) << lunghezza;
        EXPECT_EQ(recorder.texts(), std::vector<std::string>{"select * from TabellaUilityConti where id = 9"});
        EXPECT_EQ(posto.rows(support::kCompany, "select * from TabellaUilityConti"), prima);
    }
}

TEST_F(OpzioniTest, AMissingBadgeRowIsCreatedAndStaysFalseOnThisPass) {
    elimina(OpzioneDi("Check12"));
    EXPECT_FALSE(UsaBadge());
    EXPECT_EQ(riga("select id, Lunghezza, Descrizione from TabellaUilityConti where id = 9"),
              (Riga{"9", "0", "Usa Badge"}));
}

TEST_F(OpzioniTest, OneCustomerGetsTheBadgeFromTheSecondPassOn) {
    for (const char* nome : {"VaboDatiDornavel", "VABODATIDORNAVEL_2"}) {
        elimina(OpzioneDi("Check12"));
        NomeDatabase = nome;
        EXPECT_FALSE(UsaBadge()) << nome;
        EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 9"), "1") << nome;
        EXPECT_TRUE(UsaBadge()) << nome;
    }
}

} // namespace
} // namespace vabo
