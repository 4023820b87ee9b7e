// What is done to sections that are there: the liquidation period, the carry, the deletion.

#include "ado/Error.h"
#include "fiscal/SezionaliAperti.h"
#include "kit/ApriScrivibile.h"

namespace vabo {
namespace {

constexpr const char* kFineAnno = "2024-12-31 00:00:00.000";
constexpr const char* kRiporto = "Azzero tutti i campi delle liquidazioni mensili,\nMemorizzo il riporto annuale,\n"
                                 "Azzero i contatori dei Registri Iva!\nSei sicuro";
constexpr const char* kCancellare = "Sei sicuro di voler cancellare ?";

/// The number of the error that a command raises.
template<typename Comando>
int errore(const Comando& comando) {
    try {
        comando();
    } catch (const ado::Error& e) {
        return e.number();
    }
    return 0;
}

TEST_F(SezionaliAperti, ALiquidationRefusedChangesNothing) {
    const support::StatementRecorder recorder;
    script.expectQuestion("Sei sicuro", false);
    EXPECT_FALSE(CambiaLiquidazione(1));
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, ALiquidationIsThatOfAllSectionsAndOfTheBranchsCounters) {
    IdSede = 5;
    esegui("insert into contatorepd (id, liquidazione) values (5, null)");
    const support::StatementRecorder recorder;
    script.expectQuestion("Sei sicuro", true);
    EXPECT_TRUE(CambiaLiquidazione(1));
    EXPECT_EQ(recorder.texts(), (Testi{"Update ivasezionale set liquidazione = 1",
                                       "Update contatorepd set liquidazione = 1 where id = 5"}));
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1");
    EXPECT_EQ(posto.rows(support::kCompany, "select id, liquidazione from contatorepd order by id"),
              (Righe{{"1", "3"}, {"5", "1"}}));
}

TEST_F(SezionaliAperti, ABranchWithoutCountersGetsNoneByALiquidation) {
    IdSede = 9;
    const Righe prima = posto.rows(support::kCompany, "select * from contatorepd");
    script.expectQuestion("Sei sicuro", true);
    EXPECT_TRUE(CambiaLiquidazione(1));
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1");
    EXPECT_EQ(posto.rows(support::kCompany, "select * from contatorepd"), prima);
}

TEST_F(SezionaliAperti, WithoutCountersTheLiquidationOfTheSectionsStays) {
    esegui("drop table contatorepd");
    script.expectQuestion("Sei sicuro", true);
    EXPECT_EQ(errore([] { CambiaLiquidazione(1); }), ado::kObjectMissing);
    EXPECT_EQ(ovunque("Liquidazione"), "1 1 1");
}

// The carry.

TEST_F(SezionaliAperti, ACarryRefusedChangesNothing) {
    const support::StatementRecorder recorder;
    script.expectQuestion(kRiporto, false);
    EXPECT_FALSE(RiportaAnno());
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, DecemberIsCarriedAndTheYearBeginsAnew) {
    const Righe contatoriPrima = contatori();
    const support::StatementRecorder recorder;
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
    EXPECT_EQ(recorder.texts().front(), " select * from ivasezionale ");
    EXPECT_EQ(ovunque("importodefinitivoAnno"), "77.80 0.00 0.00");
    for (const Riga& riga : importi()) {
        EXPECT_EQ(Riga(riga.begin(), riga.end() - 1), Riga(12, "0.00"));
    }
    EXPECT_EQ(progressivi(), Righe(3, Riga(4, "0")));
    EXPECT_EQ(contatori(), contatoriPrima);
    EXPECT_EQ(date(), (Righe{{"2024-06-28 00:00:00.000", kFineAnno, "2024-06-29 00:00:00.000", kFineAnno},
                             {"2024-06-15 00:00:00.000", kFineAnno, "2024-06-20 00:00:00.000", kFineAnno},
                             {"NULL", "NULL", "NULL", "NULL"}}));
    EXPECT_EQ(testate(), (Righe{{"1", "1", "Attività commerciale", "Botteghe", "3"},
                                {"2", "1", "Formazione", "Corsi", "3"},
                                {"10", "1", "Affitto sale", "Immobili", "3"}}));
}

TEST_F(SezionaliAperti, DecemberIsCarriedWhateverThePeriod) {
    for (const char* periodo : {"1", "3", "null", "0"}) {
        SCOPED_TRACE(periodo);
        esegui(
            std::string("update IvaSezionale set importodefinitivo9 = 5, importodefinitivo12 = 77.8, Liquidazione = ") +
            periodo);
        script.expectQuestion(kRiporto, true);
        EXPECT_TRUE(RiportaAnno());
        EXPECT_EQ(ovunque("importodefinitivoAnno"), "77.80 77.80 77.80");
    }
}

TEST_F(SezionaliAperti, TheYearOfTheDatesStaysAsItIs) {
    esegui("update IvaSezionale set UltimaDataAcquistir = '20200229 23:59:00', UltimaDatavenditer = '20211231' where "
           "idautonumber = 3");
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
    EXPECT_EQ(date()[2], (Riga{"NULL", "2020-12-31 00:00:00.000", "NULL", "2021-12-31 00:00:00.000"}));
}

TEST_F(SezionaliAperti, ASecondCarryLeavesACarryOfNothing) {
    for (const char* atteso : {"77.80 0.00 0.00", "0.00 0.00 0.00"}) {
        script.expectQuestion(kRiporto, true);
        EXPECT_TRUE(RiportaAnno());
        EXPECT_EQ(ovunque("importodefinitivoAnno"), atteso);
    }
}

TEST_F(SezionaliAperti, NullsAreCarriedAsNulls) {
    ricreaConNulli();
    esegui("insert into IvaSezionale (id, importodefinitivoAnno, UltimaDatavenditer) values (1, 5, '20240101'), (2, 6, "
           "null)");
    esegui("update IvaSezionale set importodefinitivo12 = -8.25 where id = 2");
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
    EXPECT_EQ(ovunque("importodefinitivoAnno"), "NULL -8.25");
    EXPECT_EQ(date(), (Righe{{"NULL", "NULL", "NULL", kFineAnno}, {"NULL", "NULL", "NULL", "NULL"}}));
    EXPECT_EQ(progressivi(), Righe(2, Riga(4, "0")));
}

TEST_F(SezionaliAperti, ARowThatSomebodyElseHoldsIsLeftOutOfTheCarry) {
    const Riga prima = tutto()[0];
    ado::Connection altrui;
    altrui.Open(StringaAzienda);
    ado::Recordset tenuta;
    ApriScrivibile(tenuta, "select * from IvaSezionale where idautonumber = 1", altrui);
    tenuta["AreaAttivita"] = "X";
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
    tenuta.CancelUpdate();
    EXPECT_EQ(tutto()[0], prima);
    EXPECT_EQ(importi()[1], Riga(13, "0.00"));
}

TEST_F(SezionaliAperti, ARowThatTheServerRefusesIsLeftOutOfTheCarry) {
    esegui("update IvaSezionale set importodefinitivo1 = id, idsede = case id when 10 then 2 else 1 end");
    esegui("create unique index unico on IvaSezionale (idsede, importodefinitivo1)");
    const Righe prima = tutto();
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
    EXPECT_EQ(ovunque("importodefinitivo1"), "0.00 2.00 0.00") << "a second zero is refused";
    EXPECT_EQ(tutto()[1], prima[1]);
}

TEST_F(SezionaliAperti, ACarryOfNoSectionAtAllDoesNothing) {
    esegui("delete from IvaSezionale");
    script.expectQuestion(kRiporto, true);
    EXPECT_TRUE(RiportaAnno());
}

TEST_F(SezionaliAperti, WithoutTheTableTheCarryFails) {
    esegui("drop table IvaSezionale");
    script.expectQuestion(kRiporto, true);
    EXPECT_EQ(errore([] { RiportaAnno(); }), ado::kObjectMissing);
}

// Deletion.

TEST_F(SezionaliAperti, ADeletionNeedsTheRight) {
    DirittiUtente.A_Cancella = kFalso;
    const support::StatementRecorder recorder;
    for (const double chiave : {0.0, 3.0}) {
        script.expectMessage("Utente non abilitato!\nContattare l'amministratore di sistema", platform::Icon::None);
        EXPECT_FALSE(EliminaSezionale(chiave)) << chiave;
    }
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, ADeletionNeedsASectionAndAYes) {
    const support::StatementRecorder recorder;
    EXPECT_FALSE(EliminaSezionale(0));
    script.expectQuestion(kCancellare, false);
    EXPECT_FALSE(EliminaSezionale(3));
    EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(SezionaliAperti, ASectionThatTheLedgerDoesNotKnowIsDeleted) {
    esegui("update partitadoppia set seziva = 10 where seziva = 3"); // the number isn't looked for
    const support::StatementRecorder recorder;
    script.expectQuestion(kCancellare, true);
    EXPECT_TRUE(EliminaSezionale(3));
    EXPECT_EQ(recorder.texts(), (Testi{"Select * from partitadoppia where sezIva = 3",
                                       "delete from IvaSezionale where idautonumber = 3"}));
    EXPECT_EQ(ovunque("idautonumber"), "1 2");
}

TEST_F(SezionaliAperti, ASectionWhoseKeyIsInTheLedgerStays) {
    const Righe prima = tutto();
    esegui("update partitadoppia set seziva = 3 where seziva = 1");
    const support::StatementRecorder recorder;
    script.expectQuestion(kCancellare, true);
    script.expectMessage("Il sezionale è stato usato, non è possibile cancellarlo", platform::Icon::None);
    EXPECT_TRUE(EliminaSezionale(3));
    EXPECT_EQ(recorder.texts(), Testi{"Select * from partitadoppia where sezIva = 3"});
    EXPECT_EQ(tutto(), prima);
}

TEST_F(SezionaliAperti, WithoutALedgerNothingIsDeleted) {
    esegui("drop table partitadoppia");
    script.expectQuestion(kCancellare, true);
    EXPECT_EQ(errore([] { EliminaSezionale(3); }), ado::kObjectMissing);
    EXPECT_EQ(ovunque("idautonumber"), "1 2 3");
}

TEST_F(SezionaliAperti, EveryCommandClosesTheSharedRecordsets) {
    const auto chiude = [&](const char* domanda, const auto& comando) {
        ApriScrivibile(RsCondivisi(20), "select * from stati", DbAzienda);
        script.expectQuestion(domanda, true);
        EXPECT_TRUE(comando());
        EXPECT_FALSE(RsCondivisi(20).IsOpen()) << domanda;
    };
    chiude("Sei sicuro", [] { return CambiaLiquidazione(1); });
    chiude("Azzero i contatori del Sezionale 2\nSei sicuro", [] { return AzzeraContatori(Registro::Acquisti, 2); });
    chiude(kRiporto, [] { return RiportaAnno(); });
    chiude(kCancellare, [] { return EliminaSezionale(99); });
}

} // namespace
} // namespace vabo
