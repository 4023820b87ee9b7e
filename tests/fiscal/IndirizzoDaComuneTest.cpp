// What the municipality of a name fills of an address.

#include "fiscal/IndirizzoDaComune.h"

#include "general_tables/AziendaAperta.h"

#include <optional>

namespace vabo {
namespace {

/// The municipalities of the sample, read as a form reads them.
class IndirizzoDaComune : public AziendaAperta {
protected:
    void leggi() {
        if (comuni.IsOpen()) {
            comuni.Close();
        }
        comuni.Open("SELECT * from comuni order by des_comune", DbAzienda, ado::CursorType::Static,
                    ado::LockType::Optimistic);
    }
    /// The municipality Prova alone, with that postal code as it enters a statement.
    void soloProva(const std::string& codCap) {
        esegui("delete from comuni");
        esegui("insert into comuni (des_comune, des_provin, cod_cap, idstato) values ('Prova', 'PV', " + codCap +
               ", 7)");
        leggi();
    }
    Indirizzo riempi(const std::string& nome, const std::string& cap = {}, const std::string& provincia = {}) {
        Indirizzo indirizzo{.cap = cap, .provincia = provincia, .idStato = {}};
        RiempiIndirizzo(comuni, nome, indirizzo);
        return indirizzo;
    }

    ado::Recordset comuni;
};

TEST_F(IndirizzoDaComune, ATownFillsCodeProvinceAndState) {
    leggi();
    const Indirizzo indirizzo = riempi("Bologna", "10121", "TO");
    EXPECT_EQ(indirizzo.cap, "40121");
    EXPECT_EQ(indirizzo.provincia, "BO");
    EXPECT_EQ(indirizzo.idStato, 1.0);
    EXPECT_EQ(comuni.RecordCount(), 1) << "the filter stays";
}

TEST_F(IndirizzoDaComune, ATownThatIsNotThereChangesNothing) {
    leggi();
    for (const char* nome : {"Atlantide", "", "Bologn", "Bologna (BO)"}) {
        const Indirizzo indirizzo = riempi(nome, "101", "TO");
        EXPECT_EQ(indirizzo.cap, "101") << nome;
        EXPECT_EQ(indirizzo.provincia, "TO");
        EXPECT_EQ(indirizzo.idStato, std::nullopt);
        EXPECT_TRUE(comuni.EOF());
    }
}

/// The code of the town, the one in the field, and the one there afterwards.
struct Cap {
    const char* codice;
    const char* prima;
    const char* dopo;
};

TEST_F(IndirizzoDaComune, ACodeOfTheSameAreaStaysAndAnyOtherGivesWay) {
    for (const Cap& caso :
         {Cap{"'40121'", "", "40121"},      Cap{"'40121'", "40199", "40199"}, Cap{"'40121'", "401999", "401999"},
          Cap{"'40121'", "40299", "40121"}, Cap{"'40121'", "41121", "40121"}, Cap{"'40121'", "40", "40121"},
          Cap{"'40121'", "x", "40121"},     Cap{"'9121'", "", "09121"},       Cap{"'9121'", "09199", "09199"},
          Cap{"'9121'", "91219", "09121"},  Cap{"'100'", "", "00100"},        Cap{"'100'", "00155", "00155"},
          Cap{"'100'", "00255", "00100"},   Cap{"'100'", "10099", "00100"},   Cap{"'10'", "", "00010"},
          Cap{"'10'", "00055", "00055"},    Cap{"'1'", "", "00001"},          Cap{"'0'", "", "00000"},
          Cap{"'0'", "5", "00000"},         Cap{"'000'", "", "00000"},        Cap{"'99,6'", "00155", "00155"},
          Cap{"'99,4'", "00055", "00055"},  Cap{"'99,4'", "00155", "099,4"}}) {
        SCOPED_TRACE(std::string(caso.codice) + " " + caso.prima);
        soloProva(caso.codice);
        EXPECT_EQ(riempi("Prova", caso.prima).cap, caso.dopo);
    }
}

// The zeros go in front of the town's code, which may be longer than what they fill up.
TEST_F(IndirizzoDaComune, AShortCodeOfTheSameAreaGetsZerosAndTheCodeOfTheTown) {
    for (const Cap& caso :
         {Cap{"'9121'", "091", "009121"}, Cap{"'9121'", "0912", "09121"}, Cap{"'40121'", "401", "0040121"},
          Cap{"'40121'", "4012", "040121"}, Cap{"'100'", "001", "00100"}, Cap{"'100'", "0010", "0100"}}) {
        SCOPED_TRACE(std::string(caso.codice) + " " + caso.prima);
        soloProva(caso.codice);
        EXPECT_EQ(riempi("Prova", caso.prima).cap, caso.dopo);
    }
}

TEST_F(IndirizzoDaComune, ACodeThatIsNoNumberIsComparedAsItIs) {
    for (const Cap& caso : {Cap{"'SW1A'", "", "0SW1A"}, Cap{"'SW1A'", "SW1X9", "SW1X9"}, Cap{"'SW1A'", "SW", "0SW1A"},
                            Cap{"''", "", "00000"}, Cap{"''", "4", "00000"}, Cap{"'éà'", "éàx99", "000éà"}}) {
        SCOPED_TRACE(std::string(caso.codice) + " " + caso.prima);
        soloProva(caso.codice);
        EXPECT_EQ(riempi("Prova", caso.prima).cap, caso.dopo);
    }
}

TEST_F(IndirizzoDaComune, ATownWithoutACodeLeavesAWholeOneAndFillsAnEmptyOneWithZeros) {
    for (const Cap& caso : {Cap{"null", "40121", "40121"}, Cap{"null", "", "00000"}, Cap{"null", "4012", "0"},
                            Cap{"null", "401", "0"}, Cap{"null", "40", "0"}, Cap{"null", "4", "0"}}) {
        SCOPED_TRACE(caso.prima);
        soloProva(caso.codice);
        EXPECT_EQ(riempi("Prova", caso.prima).cap, caso.dopo);
    }
}

TEST_F(IndirizzoDaComune, WhatATownDoesNotHaveStaysAsItWas) {
    soloProva("'40121'");
    esegui("update comuni set des_provin = null");
    leggi();
    EXPECT_EQ(riempi("Prova", "", "TO").provincia, "TO");
    EXPECT_EQ(riempi("Prova").idStato, 7.0);
    esegui("update comuni set des_provin = '', idstato = null");
    leggi();
    EXPECT_EQ(riempi("Prova", "", "TO").provincia, "") << "an empty one is no null";
    EXPECT_EQ(riempi("Prova").idStato, std::nullopt);
    EXPECT_EQ(riempi("Prova").cap, "40121");
}

/// A name and the filter that it gives.
struct Nome {
    const char* nome;
    const char* filtro;
};

TEST_F(IndirizzoDaComune, PunctuationOfANameStandsForAnyText) {
    leggi();
    for (const Nome& caso :
         {Nome{"L'Aquila", "des_comune like 'L%Aquila'"},
          Nome{"Reggio nell'Emilia", "des_comune like 'Reggio nell%Emilia'"},
          Nome{"x' or 1=1 --", "des_comune like 'x% or 1%1 %%'"}, Nome{"''", "des_comune like '%%'"},
          Nome{"a;b", "des_comune like 'a;b'"}, Nome{"\"/\\&@+!?^$#()[]*%", "des_comune like '%%%%%%%%%%%%%%%%%'"}}) {
        riempi(caso.nome);
        EXPECT_EQ(comuni.Filter(), caso.filtro);
    }
    EXPECT_EQ(riempi("L'Aquila").provincia, "AQ");
    EXPECT_EQ(riempi("bologna").provincia, "BO") << "whatever its case";
}

TEST_F(IndirizzoDaComune, OfSeveralTownsTheFirstOneCounts) {
    leggi();
    EXPECT_EQ(riempi("'").provincia, "AG") << "Agrigento, the first of all";
    EXPECT_EQ(riempi("B'o").provincia, "BL") << "Belluno, before Benevento and others";
}

TEST_F(IndirizzoDaComune, NoNameBreaksTheFilter) {
    leggi();
    for (const std::string& nome :
         {std::string(4'000, 'x'), std::string(4'000, '\''), std::string("\x01\t\r\n"), std::string("\xff\xfe"),
          std::string("' --; drop table comuni /*"), std::string("_"), std::string("#1/1/2020#")}) {
        EXPECT_NO_THROW(riempi(nome));
    }
    EXPECT_EQ(riempi("Bologna").cap, "40121");
}

} // namespace
} // namespace vabo
