#include "ado/Error.h"
#include "general_tables/AziendaAperta.h"
#include "general_tables/Conti.h"
#include "general_tables/RecordsetConsole.h"
#include "general_tables/SalvaConti.h"
#include "general_tables/TabelleConti.h"
#include "general_tables/TestiAttesi.h"

#include <functional>
#include <set>

namespace vabo {
namespace {

class ContiDiSistemaTest : public AziendaAperta {
protected:
    std::set<std::string> elenco(const std::string& testo) const {
        std::set<std::string> conti;
        for (const Riga& r : posto.rows(support::kCompany, testo)) {
            conti.insert(r.front());
        }
        return conti;
    }
    std::set<std::string> attesi(const std::string& condizione) const {
        return elenco("select IdConto from conti where " + condizione);
    }
};

TEST_F(ContiDiSistemaTest, TheTextsOfGridsAndListsLetterForLetter) {
    EXPECT_EQ(TestoContiUtili(), kTestoContiUtili);
    EXPECT_EQ(TestoContiIva(), kTestoContiIva);
    EXPECT_EQ(TestoContiPersonale(), kTestoContiPersonale);
    for (int tabella = 0; tabella < 4; ++tabella) {
        EXPECT_EQ(TestoAltriConti(tabella), kTestiAltriConti.at(tabella));
        EXPECT_EQ(TestoAltriContiRipiego(tabella), kTestiDiRipiego.at(tabella));
    }
    EXPECT_EQ(ElencoContiUtili(), kElencoContiUtili);
    EXPECT_EQ(ElencoAltriConti(), kElencoAltriConti);
    EXPECT_EQ(ElencoContiPersonale(), kElencoContiPersonale);
    EXPECT_EQ(ElencoContiFatture(), kElencoContiFatture);
}

TEST_F(ContiDiSistemaTest, EachSourceGivesTheRowsOfItsTable) {
    const std::pair<std::string, std::string> sorgenti[] = {
        {TestoContiUtili(), "TabellaContiUtili"},           {TestoContiIva(), "ivaTabellaContiUtili"},
        {TestoContiPersonale(), "bustetabellacontiutili"},  {TestoAltriConti(0), "tipoanagrafica"},
        {TestoAltriConti(1), "bustetabellacontiutili"},     {TestoAltriConti(2), "tabellacontiutiliTransfersHQ"},
        {TestoAltriConti(3), "tabellacontiutilicontributi"}};
    for (const auto& [testo, tabella] : sorgenti) {
        EXPECT_EQ(std::to_string(posto.rows(support::kCompany, testo).size()),
                  valore("select count(*) from " + tabella))
            << testo;
    }
}

TEST_F(ContiDiSistemaTest, TheFallbackSourceIsRefusedWhole) {
    for (int tabella = 0; tabella < 4; ++tabella) {
        ado::Recordset rs;
        try {
            rs.Open(TestoAltriContiRipiego(tabella), DbAzienda);
            ADD_FAILURE() << "table " << tabella << " gave rows";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.nativeError(), 105);
        }
    }
}

TEST_F(ContiDiSistemaTest, AListLeavesOutTheAccountsOfAnotherTable) {
    const std::string base = "IDProgetto = 10000001 and not Contoreport like '%.0'";
    const auto usati = [](const std::string& tabella) {
        return " and not exists (select idconto from " + tabella + " where " + tabella + ".idconto = conti.IdConto)";
    };
    EXPECT_EQ(elenco(ElencoContiUtili()), attesi(base + usati("tipoanagrafica")));
    EXPECT_EQ(elenco(ElencoAltriConti()), attesi(base + usati("tabellacontiutili")));
    EXPECT_EQ(elenco(ElencoContiPersonale()), attesi(base + usati("TabellaContiUtiliTransfersHq")));
    EXPECT_FALSE(elenco(ElencoContiUtili()).contains("1075"));
    EXPECT_TRUE(elenco(ElencoContiUtili()).contains("1051"));
    EXPECT_FALSE(elenco(ElencoAltriConti()).contains("1051"));
}

TEST_F(ContiDiSistemaTest, TheListOfInvoicesIsNotHeldToTheGeneralProject) {
    esegui("update conti set idmastro = 2, IDProgetto = 10000002, idchiave = '2.1' where IdConto = 1051");
    EXPECT_TRUE(elenco(ElencoContiFatture()).contains("1051"));
    esegui("update conti set idmastro = 4 where IdConto = 1051");
    EXPECT_FALSE(elenco(ElencoContiFatture()).contains("1051"));
    esegui("update conti set idmastro = 3, idchiave = '2.0' where IdConto = 1051");
    EXPECT_FALSE(elenco(ElencoContiFatture()).contains("1051"));
}

TEST_F(ContiDiSistemaTest, ADescriptionThatSpeaksOfEconomyTakesEconomicAccountsAlone) {
    esegui("update conti set idmastro = 2 where IdConto = 1075");
    esegui("update conti set idmastro = 4 where IdConto = 1224");
    EXPECT_FALSE(ContoAmmesso("Interessi (conto ECONOmico)", 1075));
    EXPECT_TRUE(ContoAmmesso("Interessi (conto ECONOmico)", 1224));
    EXPECT_TRUE(ContoAmmesso("Cassa", 1075));
    EXPECT_FALSE(ContoAmmesso("economico", 0));
    EXPECT_TRUE(ContoAmmesso("Cassa", 0));
}

TEST_F(ContiDiSistemaTest, AStoreCopiesTheGroupOfTheAccount) {
    const support::StatementRecorder recorder;
    SalvaContoUtile(3, 1051);
    EXPECT_EQ(recorder.texts().front(), "Select * from tabellacontiutili where id = 3");
    EXPECT_EQ(riga("select idconto, idconto1 from TabellaContiUtili where ID = 3"), (Riga{"1051", "19"}));
    esegui("update conti set IdGruppoVabo = 20 where IdConto = 1051");
    EXPECT_EQ(valore("select idconto1 from TabellaContiUtili where ID = 3"), "19");
    SalvaContoUtile(3, 1051);
    EXPECT_EQ(valore("select idconto1 from TabellaContiUtili where ID = 3"), "20");
}

TEST_F(ContiDiSistemaTest, NoAccountIsStoredAsZeroWithGroupZero) {
    SalvaContoUtile(3, 0);
    EXPECT_EQ(riga("select idconto, idconto1 from TabellaContiUtili where ID = 3"), (Riga{"0", "0"}));
}

TEST_F(ContiDiSistemaTest, TheFourTablesOfTheSecondTabHaveTheirStatements) {
    const char* const testi[] = {"Select * from tipoanagrafica where idtipoanagrafica = 2",
                                 "Select * from bustetabellacontiutili  where id = 2",
                                 "Select * from tabellacontiutiliTransfersHQ  where id = 2",
                                 "Select * from tabellacontiutilicontributi  where id = 2"};
    const char* const chiavi[] = {"IdTipoAnagrafica", "Id", "Id", "Id"};
    for (int tabella = 0; tabella < 4; ++tabella) {
        const support::StatementRecorder recorder;
        SalvaAltroConto(tabella, 2, 1224);
        EXPECT_EQ(recorder.texts().front(), testi[tabella]);
        EXPECT_EQ(riga(std::string("select idconto, idconto1 from ") + kAltriConti[tabella].nome + " where " +
                       chiavi[tabella] + " = 2"),
                  (Riga{"1224", "50"}));
    }
}

TEST_F(ContiDiSistemaTest, ARowThatIsNotThereStopsTheSecondTabAndIsSilentOnTheOthers) {
    EXPECT_THROW(SalvaAltroConto(0, 999, 1051), ado::Error);
    EXPECT_NO_THROW(SalvaContoUtile(999, 1051));
    EXPECT_NO_THROW(SalvaContoPersonale(999, 1051));
}

TEST_F(ContiDiSistemaTest, AStoreClosesEverySharedRecordset) {
    const std::function<void()> salvataggi[] = {[] { SalvaContoUtile(3, 1051); }, [] { SalvaAltroConto(0, 2, 1051); },
                                                [] { SalvaContoPersonale(3, 1051); }};
    for (const auto& salva : salvataggi) {
        RsCondivisi(2).Open("select * from datiGenerali", DbAzienda);
        salva();
        EXPECT_FALSE(RsCondivisi(2).IsOpen());
        EXPECT_FALSE(RsCaselle().IsOpen());
    }
}

TEST_F(ContiDiSistemaTest, AStoreThatFailsGivesItsRecordsetBack) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1051");
    EXPECT_THROW(SalvaAltroConto(0, 2, 1051), ado::Error);
    EXPECT_FALSE(RsCaselle().IsOpen());
    EXPECT_EQ(riga("select idconto, idconto1 from tipoanagrafica where IdTipoAnagrafica = 2"), (Riga{"1076", "25"}));
    SalvaAltroConto(0, 2, 1052);
    EXPECT_EQ(riga("select idconto, idconto1 from tipoanagrafica where IdTipoAnagrafica = 2"), (Riga{"1052", "19"}));
}

TEST_F(ContiDiSistemaTest, ANullGroupLeavesTheOldOneWhereErrorsAreSkipped) {
    esegui("update conti set IdGruppoVabo = null where IdConto = 1224");
    SalvaContoPersonale(3, 1224);
    EXPECT_EQ(riga("select idconto, idconto1 from BusteTabellaContiUtili where Id = 3"), (Riga{"1224", "26"}));
}

TEST_F(ContiDiSistemaTest, AnInvoiceAccountGoesOutInThreeStatementsWhoseOrderDiffers) {
    const std::string conto = "update ivaTabellaContiUtili set idconto=1051 where id=10";
    const std::string gruppo = "update ivaTabellaContiUtili set idconto1=19 where id=10";
    const std::string progetto = "update ivaTabellaContiUtili set idProgetto = 10000001  where id=10";
    {
        const support::StatementRecorder recorder;
        SalvaContoFattura(10, 1051, OrdineFatture::Invio);
        EXPECT_TRUE(recorder.sentInOrder({conto, gruppo, progetto}));
    }
    EXPECT_EQ(riga("select idconto, idconto1, idProgetto from ivaTabellaContiUtili where ID = 10"),
              (Riga{"1051", "19", "10000001"}));
    const support::StatementRecorder recorder;
    SalvaContoFattura(10, 1051, OrdineFatture::Elenco);
    EXPECT_TRUE(recorder.sentInOrder({conto, progetto, gruppo}));
}

} // namespace
} // namespace vabo
