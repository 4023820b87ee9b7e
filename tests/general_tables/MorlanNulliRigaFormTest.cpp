#include "MorlanFixture.h"

#include <cctype>
#include <ostream>

namespace vabo {
namespace {

/// A null in a row of the grids that is chosen and stored.
class MorlanNulliRiga : public MorlanForm {
protected:
    std::string nomeDi(const std::string& id) const {
        return valore("select NomeConto from conti where IdConto = " + id);
    }
};

/// One of the four grids, with the row that is chosen in it.
struct Griglia {
    int scheda;
    const char* nome;
    const char* riga;
    const char* descrizione; ///< the field that repeats the row's description, where there is one
    const char* selettore;
    const char* tabella;
    const char* chiave;
    int giri = 0; ///< clicks of the button that turns to the next table
};
constexpr Griglia kUtili = {1, "DataGrid2", "4", "Descrizione", "DCBItem1", "TabellaContiUtili", "ID"};
constexpr Griglia kAltri = {2, "DataGrid4", "2", "tipoanagrafe", "DCBitem2", "tipoanagrafica", "IdTipoAnagrafica"};
constexpr Griglia kPaghe = {2, "DataGrid4", "2", "tipoanagrafe", "DCBitem2", "bustetabellacontiutili", "Id", 1};
constexpr Griglia kTrasferimenti = {
    2, "DataGrid4", "2", "tipoanagrafe", "DCBitem2", "tabellacontiutiliTransfersHQ", "Id", 2};
constexpr Griglia kContributi = {2, "DataGrid4", "4", "tipoanagrafe", "DCBitem2", "tabellacontiutilicontributi", "Id",
                                 3};
constexpr Griglia kFatture = {4, "DataGrid11", "3", nullptr, "DCBItems3", "ivaTabellaContiUtili", "ID"};
constexpr Griglia kBuste = {5, "DataGridPersonale", "3", nullptr, "DCBitems4", "bustetabellacontiutili", "Id"};

/// A null, and the result of choosing its row and pressing Enter.
struct Scelta {
    const char* comando;
    const Griglia& griglia;
    const char* descritta;
    const char* mostrato; ///< the account's number is used as its name
    const char* scatola;  ///< the box that Enter shows, "" for none
    const char* conto;
    const char* gruppo;
};
std::ostream& operator<<(std::ostream& out, const Scelta& scelta) {
    return out << scelta.comando;
}

class MorlanNulliNellaRiga : public MorlanNulliRiga, public testing::WithParamInterface<Scelta> {};

TEST_P(MorlanNulliNellaRiga, ItCanBeChosenAndStored) {
    const Scelta& scelta = GetParam();
    const Griglia& g = scelta.griglia;
    const std::string mostrato = std::isdigit(*scelta.mostrato) != 0 ? nomeDi(scelta.mostrato) : scelta.mostrato;
    esegui(scelta.comando);
    apri();
    scheda(g.scheda);
    for (int i = 0; i < g.giri; ++i) {
        gui.click("Avvio_Morlan", "Command18");
    }
    scegli(g.nome, g.riga);
    if (g.descrizione != nullptr) {
        EXPECT_EQ(testo(g.descrizione), scelta.descritta);
    }
    EXPECT_EQ(combo(g.selettore).Text(), mostrato);
    EXPECT_EQ(fuoco(), g.selettore);
    if (*scelta.scatola != '\0') {
        script.expectMessage(scelta.scatola);
    }
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(script.allShown());
    EXPECT_EQ(conto(g.tabella, g.chiave, std::stoi(g.riga)), (Riga{scelta.conto, scelta.gruppo}));
}

constexpr const char* kBanca = "Banca della sede centrale";
constexpr const char* kEstero = "Fornitori estero";
constexpr const char* kNullo = "Invalid use of Null";

// Failing statements are skipped.
INSTANTIATE_TEST_SUITE_P(
    ContiUtili, MorlanNulliNellaRiga,
    testing::Values(
        Scelta{"update TabellaContiUtili set Description = null where ID = 4", kUtili, "", "1150", "", "1150", "39"},
        Scelta{"update TabellaContiUtili set IdConto = null where ID = 4", kUtili, kBanca, "", "", "0", "0"},
        Scelta{"update TabellaContiUtili set idconto1 = null where ID = 4", kUtili, kBanca, "1150", "", "1150", "39"},
        Scelta{"update TabellaContiUtili set IdProgetto = null where ID = 4", kUtili, kBanca, "1150", "", "1150", "39"},
        Scelta{"update conti set NomeConto = null where IdConto = 1150", kUtili, kBanca, "", "", "1150", "39"},
        Scelta{"update conti set IdGruppoVabo = null where IdConto = 1150", kUtili, kBanca, "1150", "", "1150", "39"},
        Scelta{"update conti set idmastro = null where IdConto = 1150", kUtili, kBanca, "1150", "", "1150", "39"},
        Scelta{"update gruppivabo set dettagli = null where idgruppo = 39", kUtili, kBanca, "1150", "", "1150", "39"},
        Scelta{"update progetti set Type = null, Number = null", kUtili, kBanca, "1150", "", "1150", "39"}));

// Errors are shown. Where name and account are null, the former ones stay.
INSTANTIATE_TEST_SUITE_P(
    AltriConti, MorlanNulliNellaRiga,
    testing::Values(Scelta{"update tipoanagrafica set TipoAnagrafe = null where IdTipoAnagrafica = 2", kAltri, "",
                           "1076", "", "1076", "25"},
                    Scelta{"update tipoanagrafica set idconto = null where IdTipoAnagrafica = 2", kAltri, kEstero,
                           "Seleziona", "", "0", "0"},
                    Scelta{"update tipoanagrafica set idconto1 = null where IdTipoAnagrafica = 2", kAltri, kEstero,
                           "1076", "", "1076", "25"},
                    Scelta{"update conti set NomeConto = null where IdConto = 1076", kAltri, kEstero, "Seleziona", "",
                           "1076", "25"},
                    Scelta{"update conti set IdGruppoVabo = null where IdConto = 1076", kAltri, kEstero, "1076", kNullo,
                           "1076", "25"},
                    Scelta{"update gruppivabo set dettagli = null where idgruppo = 25", kAltri, kEstero, "1076", "",
                           "1076", "25"}));

constexpr const char* kNetto = "Netto in busta";
constexpr const char* kInviati = "Trasferimenti inviati alla sede centrale";
constexpr const char* kCrediti = "Crediti verso finanziatori pubblici";

// The other three tables of that grid.
INSTANTIATE_TEST_SUITE_P(
    AltreTabelle, MorlanNulliNellaRiga,
    testing::Values(Scelta{"update bustetabellacontiutili set description = null where Id = 2", kPaghe, "", "1094", "",
                           "1094", "28"},
                    Scelta{"update bustetabellacontiutili set idconto = null where Id = 2", kPaghe, kNetto, "Seleziona",
                           "", "0", "0"},
                    Scelta{"update bustetabellacontiutili set idconto1 = null where Id = 2", kPaghe, kNetto, "1094", "",
                           "1094", "28"},
                    Scelta{"update tabellacontiutiliTransfersHQ set description = null where Id = 2", kTrasferimenti,
                           "", "1167", "", "1167", "41"},
                    Scelta{"update tabellacontiutiliTransfersHQ set idconto = null where Id = 2", kTrasferimenti,
                           kInviati, "Seleziona", "", "0", "0"},
                    Scelta{"update tabellacontiutiliTransfersHQ set idconto1 = null where Id = 2", kTrasferimenti,
                           kInviati, "1167", "", "1167", "41"},
                    Scelta{"update tabellacontiutilicontributi set description = null where Id = 4", kContributi, "",
                           "1133", "", "1133", "36"},
                    Scelta{"update tabellacontiutilicontributi set idconto = null where Id = 4", kContributi, kCrediti,
                           "Seleziona", "", "0", "0"},
                    Scelta{"update tabellacontiutilicontributi set idconto1 = null where Id = 4", kContributi, kCrediti,
                           "1133", "", "1133", "36"}));

// A null name isn't greater than zero: the picker and the account stay as they were.
INSTANTIATE_TEST_SUITE_P(
    Fatture, MorlanNulliNellaRiga,
    testing::Values(
        Scelta{"update ivaTabellaContiUtili set Description = null where ID = 3", kFatture, "", "1086", "", "1086",
               "26"},
        Scelta{"update ivaTabellaContiUtili set idconto = null where ID = 3", kFatture, "", "Seleziona", "", "0", "0"},
        Scelta{"update ivaTabellaContiUtili set idconto1 = null where ID = 3", kFatture, "", "1086", "", "1086", "26"},
        Scelta{"update ivaTabellaContiUtili set idProgetto = null where ID = 3", kFatture, "", "1086", "", "1086",
               "26"},
        Scelta{"update conti set NomeConto = null where IdConto = 1086", kFatture, "", "Seleziona", "", "0", "0"},
        Scelta{"update conti set IdGruppoVabo = null where IdConto = 1086", kFatture, "", "1086", kNullo, "1086", "26"},
        Scelta{"update gruppivabo set dettagli = null where idgruppo = 26", kFatture, "", "1086", "", "1086", "26"},
        Scelta{"update progetti set Description = null", kFatture, "", "1086", "", "1086", "26"}));

INSTANTIATE_TEST_SUITE_P(
    Buste, MorlanNulliNellaRiga,
    testing::Values(
        Scelta{"update bustetabellacontiutili set description = null where Id = 3", kBuste, "", "1080", "", "1080",
               "26"},
        Scelta{"update bustetabellacontiutili set idconto = null where Id = 3", kBuste, "", "Seleziona", "", "0", "0"},
        Scelta{"update bustetabellacontiutili set idconto1 = null where Id = 3", kBuste, "", "1080", "", "1080", "26"},
        Scelta{"update conti set NomeConto = null where IdConto = 1080", kBuste, "", "Seleziona", "", "0", "0"},
        Scelta{"update bustetabellacontiutili set IdProgetto = null where Id = 3", kBuste, "", "1080", "", "1080",
               "26"},
        Scelta{"update gruppivabo set dettagli = null where idgruppo = 26", kBuste, "", "1080", "", "1080", "26"},
        Scelta{"update progetti set Description = null", kBuste, "", "1080", "", "1080", "26"},
        Scelta{"update conti set IdGruppoVabo = null where IdConto = 1080", kBuste, "", "1080", "", "1080", "26"}));

TEST_F(MorlanNulliRiga, ARowWhoseKeyCountsAsNothingIsNotChosen) {
    const Griglia griglie[] = {kUtili, kAltri, kFatture, kBuste};
    for (const Griglia& g : griglie) {
        esegui(std::string("update ") + g.tabella + " set " + g.chiave + " = 0 where " + g.chiave + " = " + g.riga);
    }
    apri();
    for (const Griglia& g : griglie) {
        SCOPED_TRACE(g.nome);
        scheda(g.scheda);
        const std::string prima = combo(g.selettore).Text();
        scegli(g.nome, "0");
        EXPECT_EQ(fuoco(), g.nome);
        EXPECT_EQ(combo(g.selettore).Text(), prima);
    }
    EXPECT_FALSE(visibile("Frame6"));
    EXPECT_FALSE(visibile("Frame2"));
}

TEST_F(MorlanNulliRiga, AnAccountWithoutAMasterIsNoEconomicOne) {
    esegui("update conti set idmastro = null where IdConto = 1038");
    apri();
    scheda(1);
    scegli("DataGrid2", "8");
    const support::StatementRecorder recorder;
    gui.press(Qt::Key_Return);
    EXPECT_TRUE(visibile("Frame6"));
    EXPECT_TRUE(recorder.holding("tabellacontiutili").empty());
}

} // namespace
} // namespace vabo
