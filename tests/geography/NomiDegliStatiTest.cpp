// The names of states: missing, taken, hostile, purged. The date that is left.

#include "ado/Error.h"
#include "geography/ControllaData.h"
#include "geography/TabellaStatiAperta.h"

namespace vabo {
namespace {

class NomiDegliStati : public TabellaStatiAperta {
protected:
    /// The list as the form has it.
    static std::unique_ptr<ado::Recordset> elenco() {
        auto rs = std::make_unique<ado::Recordset>();
        rs->Open(ElencoStati(), DbAzienda, ado::CursorType::Static, ado::LockType::Optimistic);
        return rs;
    }
};

TEST_F(NomiDegliStati, ANameIsMissingWhenItIsEmptyOrTheWordForNone) {
    for (const char* nome : {"", " ", "0", "000", "Seleziona", "seleziona", "SELEZIONA"}) {
        EXPECT_TRUE(NomeMancante(nome)) << nome;
    }
    for (const char* nome : {"  ", "Seleziona ", "Selezion", "Italia", "0.00"}) {
        EXPECT_FALSE(NomeMancante(nome)) << nome;
    }
}

TEST_F(NomiDegliStati, ADuplicateIsLookedForInTheListByTheNameAsTyped) {
    const auto rs = elenco();
    EXPECT_TRUE(GiaInserito(*rs, "Kenya"));
    EXPECT_EQ(rs->Filter(), "descstato='Kenya'");
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_TRUE(GiaInserito(*rs, "KENYA"));
    EXPECT_FALSE(GiaInserito(*rs, "Keny"));
    EXPECT_FALSE(GiaInserito(*rs, "Ken*"));
    EXPECT_FALSE(GiaInserito(*rs, "Ken%"));
    EXPECT_TRUE(GiaInserito(*rs, "x' or descstato='Kenya"));
    EXPECT_FALSE(GiaInserito(*rs, "d''Avorio"));
    esegui("update stati set DescStato = 'Costa d''Avorio' where DescStato = 'Kenya'");
    rs->Requery();
    EXPECT_TRUE(GiaInserito(*rs, "Costa d''Avorio")) << "a doubled apostrophe is one";
}

TEST_F(NomiDegliStati, ANameThatBreaksTheFilterIsAnErrorAndTheListStaysWhole) {
    const auto rs = elenco();
    const long tutti = rs->RecordCount();
    for (const char* nome : {"Costa d'Avorio", "'", "x' or", "x' --", "x'; delete from stati --", "x')"}) {
        SCOPED_TRACE(nome);
        try {
            GiaInserito(*rs, nome);
            ADD_FAILURE() << "nothing raised";
        } catch (const ado::Error& errore) {
            EXPECT_EQ(errore.number(), 3001);
        }
        EXPECT_EQ(rs->RecordCount(), tutti);
    }
    for (const std::string& nome : {std::string("a;b"), std::string("--"), std::string("/*"), std::string("\""),
                                    std::string("\x01\t\x7f"), std::string(4'000, 'x')}) {
        EXPECT_FALSE(GiaInserito(*rs, nome)) << nome;
    }
}

TEST_F(NomiDegliStati, ThePurgeTakesTheRowsWithoutANameAlone) {
    esegui("insert into stati (DescStato, IsoValuta) values (null, 'AAA'), (null, 'BBB'), ('', 'CCC')");
    const int prima = quanti("stati");
    const support::StatementRecorder recorder;
    EliminaStatiSenzaNome();
    EXPECT_EQ(recorder.texts(), Testi{"delete from stati where descstato is null"});
    EXPECT_EQ(quanti("stati"), prima - 2);
    EXPECT_EQ(quanti("stati where IsoValuta = 'CCC'"), 1);
}

TEST_F(NomiDegliStati, ThePurgeRaises) {
    esegui("drop table stati");
    EXPECT_THROW(EliminaStatiSenzaNome(), ado::Error);
}

TEST(LasciaData, ChangesTheTextOfAGoodDateAlone) {
    struct Caso {
        const char* scritto;
        DataLasciata esito;
        const char* resta;
    };
    const Caso casi[] = {
        {"01/02/2003", DataLasciata::Scritta, "01/02/2003"},
        {"01022003", DataLasciata::Scritta, "01/02/2003"},
        {"0102", DataLasciata::Scritta, "0102"},
        {"01/02", DataLasciata::Scritta, "0102"},
        {"", DataLasciata::Vuota, ""},
        {" ", DataLasciata::Vuota, " "},
        {"/", DataLasciata::Vuota, "/"},
        {"0", DataLasciata::Vuota, "0"},
        {"00/00", DataLasciata::Vuota, "00/00"},
        {"32/01/2003", DataLasciata::Rifiutata, "32/01/2003"},
        {"00/01/2003", DataLasciata::Rifiutata, "00/01/2003"},
        {"x", DataLasciata::Rifiutata, "x"},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.scritto);
        std::string testo = caso.scritto;
        EXPECT_EQ(LasciaData(testo), caso.esito);
        EXPECT_EQ(testo, caso.resta);
    }
}

} // namespace
} // namespace vabo
