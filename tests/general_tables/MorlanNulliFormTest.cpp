#include "MorlanFixture.h"

#include <array>
#include <iterator>
#include <set>
#include <sstream>

namespace vabo {
namespace {

/// A null in each column that the console reads. A comparison with null is false and raises nothing. Where a null is
/// assigned to a number or a box it raises "Invalid use of Null", which the load skips and the events show.
class MorlanNulli : public MorlanForm {
protected:
    std::vector<Riga> tabella(const std::string& nome) const {
        return posto.rows(support::kCompany, "select * from " + nome + " order by 1");
    }
    std::vector<std::string> trattamento() const {
        return {combo("DCBitem5").Text(), testo("Aliquota"), testo("Detrazione"), testo("Sigla")};
    }
    /// The names as a set, since their order on the form doesn't matter.
    static std::set<std::string> nomi(const std::string& elenco) {
        std::istringstream parole(elenco);
        return {std::istream_iterator<std::string>(parole), {}};
    }
};

struct Opzioni {
    const char* comando;
    const char* spuntate;
    std::array<int, 4> righe; ///< of DataGrid2, DataGrid4, DataGrid11 and DataGridPersonale
};

TEST_F(MorlanNulli, InAnOptionRowTheLoadGoesOnOrEndsAtThatRow) {
    constexpr std::array<int, 4> kTutte = {32, 10, 10, 12};
    constexpr std::array<int, 4> kSenzaFatture = {32, 10, 0, 12};
    constexpr std::array<int, 4> kSoloPersonale = {0, 0, 0, 12};
    const Opzioni casi[] = {
        {"update TabellaUilityConti set Lunghezza = 0 where id = 1",
         "Check1 Check2 Check3 Check4 Check5 Check6 Check9 Check10 Check12 Check13", kTutte},
        {"update TabellaUilityConti set Lunghezza = null where id = 9",
         "Check1 Check2 Check3 Check4 Check5 Check6 Check9 Check10 Check13", kTutte},
        {"update TabellaUilityConti set Lunghezza = null where id = 8",
         "Check1 Check2 Check3 Check4 Check5 Check6 Check9 Check12 Check13", kTutte},
        {"update TabellaUilityConti set Lunghezza = null where id = 7",
         "Check1 Check2 Check3 Check4 Check5 Check6 Check10 Check12 Check13", kTutte},
        {"update TabellaUilityConti set Lunghezza = null where id = 5", "Check6 Check9 Check10 Check12", kSenzaFatture},
        {"update datiGenerali set Contatore = null where Descrizione = 'Sede Amministrativa'", "Check10 Check12",
         kSoloPersonale},
        {"update datiGenerali set Contatore = null where id = 6", "Check6 Check9 Check10 Check12", kSenzaFatture},
        {"update datiGenerali set Contatore = null where id = 7", "Check2 Check6 Check9 Check10 Check12",
         kSenzaFatture},
        {"update datiGenerali set Contatore = null where id = 8", "Check2 Check3 Check6 Check9 Check10 Check12",
         kSenzaFatture},
        {"update datiGenerali set Contatore = null where id = 9", "Check1 Check2 Check3 Check6 Check9 Check10 Check12",
         kSenzaFatture},
        {"update datiGenerali set Contatore = null where id = 10",
         "Check1 Check2 Check3 Check4 Check6 Check9 Check10 Check12", kSenzaFatture},
        {"update datiGenerali set Contatore = null where id = 15",
         "Check1 Check2 Check3 Check4 Check5 Check6 Check9 Check10 Check12", kSenzaFatture},
    };
    apri();
    for (const Opzioni& caso : casi) {
        SCOPED_TRACE(caso.comando);
        esegui("update datiGenerali set Contatore = -1");
        esegui("update TabellaUilityConti set Lunghezza = 0 where id = 5");
        esegui("update TabellaUilityConti set Lunghezza = -1 where id in (7, 8)");
        esegui("update TabellaUilityConti set Lunghezza = 1 where id = 9");
        esegui(caso.comando);
        const auto generali = tabella("datiGenerali");
        const auto lunghezze = tabella("TabellaUilityConti");
        riapri();
        EXPECT_EQ(nomi(spuntate()), nomi(caso.spuntate));
        EXPECT_EQ((std::array<int, 4>{righe("DataGrid2"), righe("DataGrid4"), righe("DataGrid11"),
                                      righe("DataGridPersonale")}),
                  caso.righe);
        EXPECT_EQ(trattamento(), (std::vector<std::string>{"Imponibile 22%", "22,00", "100,00", "22"}));
        EXPECT_EQ(tabella("datiGenerali"), generali);
        EXPECT_EQ(tabella("TabellaUilityConti"), lunghezze);
    }
}

TEST_F(MorlanNulli, ABoxWritesOverANull) {
    esegui("update datiGenerali set Contatore = null where id = 15");
    esegui("update TabellaUilityConti set Lunghezza = null where id = 9");
    apri();
    for (const char* nome : {"Check13", "Check12"}) {
        controllo<controls::CheckBox>(nome).setValue(1);
    }
    EXPECT_EQ(valore("select Contatore from datiGenerali where id = 15"), "-1");
    EXPECT_EQ(valore("select Lunghezza from TabellaUilityConti where id = 9"), "1");
}

struct Trattamento {
    const char* comando;
    std::vector<std::string> campi;
};

TEST_F(MorlanNulli, InATreatmentLeavesTheBoxOfANumberAndEmptiesThatOfAText) {
    const Trattamento casi[] = {
        {"update IvaAliquotaStandard set idTipo = null", {"Imponibile 22%", "22,00", "100,00", "22"}},
        {"update IvaTrattamento set Descrizione = null where idautonumber = 6", {"", "22,00", "50,00", "22D"}},
        {"update IvaTrattamento set Aliquota = null where idautonumber = 6",
         {"Imponibile 22% detraibile 50%", "20,00", "50,00", "22D"}},
        {"update IvaTrattamento set quotadetrazione = null where idautonumber = 6",
         {"Imponibile 22% detraibile 50%", "22,00", "100,00", "22D"}},
        {"update IvaTrattamento set Sigla = null where idautonumber = 6",
         {"Imponibile 22% detraibile 50%", "22,00", "50,00", ""}},
    };
    apri();
    for (const Trattamento& caso : casi) {
        SCOPED_TRACE(caso.comando);
        esegui("update IvaAliquotaStandard set idTipo = 6");
        esegui("update IvaTrattamento set Descrizione = 'Imponibile 22% detraibile 50%', Aliquota = 22, "
               "quotadetrazione = 50, Sigla = '22D' where idautonumber = 6");
        esegui(caso.comando);
        riapri();
        EXPECT_EQ(trattamento(), caso.campi);
    }
}

TEST_F(MorlanNulli, ATreatmentWithANullNumberCannotBePicked) {
    for (const char* colonna : {"Aliquota", "quotadetrazione"}) {
        SCOPED_TRACE(colonna);
        esegui("update IvaTrattamento set Aliquota = 10, quotadetrazione = 100 where idautonumber = 3");
        esegui(std::string("update IvaTrattamento set ") + colonna + " = null where idautonumber = 3");
        apri();
        scheda(4);
        const auto prima = tabella("IvaAliquotaStandard");
        script.expectMessage("Type mismatch");
        prendi("DCBitem5", "Imponibile 10%");
        EXPECT_TRUE(script.allShown());
        EXPECT_EQ(tabella("IvaAliquotaStandard"), prima);
        gui.forms().unload("Avvio_Morlan");
        PilaForm = {"Avvio_Azienda", "Avvio_Morlan"};
        CimaForm = 1;
    }
}

TEST_F(MorlanNulli, ATreatmentWithoutASiglaIsNotOnOffer) {
    esegui("update IvaTrattamento set Sigla = null where idautonumber = 3");
    apri();
    EXPECT_LT(combo("DCBitem5").findText("Imponibile 10%"), 0);
    EXPECT_EQ(combo("DCBitem5").count(), 9);
}

TEST_F(MorlanNulli, AStandardRowOfNullsIsWrittenByTheNextPick) {
    esegui("update IvaAliquotaStandard set idTipo = null, Aliquota = null, Sigla = null, Detrazione = null");
    apri();
    scheda(4);
    prendi("DCBitem5", "Imponibile 10%");
    EXPECT_EQ(posto.rows(support::kCompany, "select idTipo, Aliquota, Sigla, Detrazione from IvaAliquotaStandard"),
              (std::vector<Riga>{{"3", "10,00", "10", "100,00"}}));
}

TEST_F(MorlanNulli, AnAccountWithoutNameOrCodeStandsInTheListsWithoutText) {
    apri();
    const int prima = combo("DCBItem1").count();
    const int fatture = combo("DCBItems3").count();
    esegui("update conti set NomeConto = null where IdConto = 1077");
    riapri();
    EXPECT_EQ(combo("DCBItem1").count(), prima);
    EXPECT_EQ(combo("DCBItem1").itemText(0), "");
    EXPECT_EQ(combo("DCBItems3").count(), fatture);
    for (const char* colonna : {"Contoreport", "IDProgetto"}) {
        esegui(std::string("update conti set NomeConto = 'Fatture', Contoreport = '1', IDProgetto = 10000001 where "
                           "IdConto = 1077 update conti set ") +
               colonna + " = null where IdConto = 1077");
        riapri();
        EXPECT_EQ(combo("DCBItem1").count(), prima - 1) << colonna;
        EXPECT_EQ(combo("DCBItems3").count(), fatture) << colonna;
    }
    for (const char* colonna : {"idchiave", "idmastro"}) {
        esegui(std::string("update conti set IDProgetto = 10000001, idchiave = '1', idmastro = 2 where IdConto = 1077 "
                           "update conti set ") +
               colonna + " = null where IdConto = 1077");
        riapri();
        EXPECT_EQ(combo("DCBItem1").count(), prima) << colonna;
        EXPECT_EQ(combo("DCBItems3").count(), fatture - 1) << colonna;
    }
}

} // namespace
} // namespace vabo
