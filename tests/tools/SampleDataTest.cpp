#include "engine/errors/Error.h"
#include "provision/Scripts.h"
#include "provision/Sql.h"
#include "tools/SampleWorkstation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

using testing::ElementsAre;
using testing::Gt;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr auto kAurora = provision::kFirstDatabase;
constexpr auto kPonte = provision::kSecondDatabase;
constexpr std::string_view kControl = "vabodatiazienda";

const SampleWorkstation& sample() {
    return SampleWorkstation::shared();
}

int errorOf(std::string_view database, const std::string& statement) {
    try {
        const auto session = sample().session(database);
        provision::run(*session, "BEGIN TRANSACTION");
        provision::run(*session, statement);
        provision::run(*session, "ROLLBACK TRANSACTION");
    } catch (const engine::Error& error) {
        return error.number();
    }
    return 0;
}

} // namespace

TEST(SampleData, FillsEveryTableOfBothCompanies) {
    struct Expected {
        const char* table;
        std::int64_t least, leastOfSecond;
    };
    const Expected tables[] = {
        {"ZoneGeografiche", 15, 15},
        {"stati", 200, 200},
        {"Comuni", 107, 107},
        {"Sede", 1, 1},
        {"ElencoSedi", 6, 4},
        {"sedecentrale", 1, 0},
        {"DirectoryHQ", 1, 0},
        {"Directorybackup", 1, 0},
        {"DirectorySede", 1, 1},
        {"AbilitazioneAccessi", 4, 4},
        {"progetti", 13, 6},
        {"gruppivabo", 40, 40},
        {"conti", 300, 280},
        {"partitadoppia", 200, 20},
        {"contatorepd", 1, 1},
        {"datiGenerali", 16, 16},
        {"TabellaUilityConti", 9, 8},
        {"TabellaContiUtili", 30, 30},
        {"tipoanagrafica", 8, 8},
        {"bustetabellacontiutili", 8, 8},
        {"tabellacontiutiliTransfersHQ", 2, 2},
        {"tabellacontiutilicontributi", 4, 4},
        {"ivaTabellaContiUtili", 8, 8},
        {"TipoAnagraficaCPartite", 4, 4},
        {"IvaTrattamento", 10, 10},
        {"IvaAliquotaStandard", 1, 0},
        {"IvaSezionale", 3, 2},
        {"DatiAzienda", 1, 1},
        {"CondizioniPagamentoTipoIncasso", 5, 5},
        {"CondizioniPagamentoDecorrenza", 8, 8},
        {"CondizioniPagamento", 14, 14},
    };
    for (const Expected& expected : tables) {
        const std::string select = "SELECT COUNT(*) FROM " + std::string(expected.table);
        EXPECT_GE(sample().number(kAurora, select), expected.least) << expected.table;
        EXPECT_GE(sample().number(kPonte, select), expected.leastOfSecond) << expected.table;
    }
}

TEST(SampleData, EntersBothCompaniesAndNoTerminal) {
    EXPECT_THAT(sample().texts(kControl, "SELECT dbname FROM link_programma ORDER BY id"),
                ElementsAre("VaBoDatiAurora", "VaBoDatiPonte"));
    EXPECT_EQ(sample().number(kControl, "SELECT COUNT(*) FROM link_programmaTerminale"), 0);
    EXPECT_EQ(sample().text(kControl,
                            "SELECT NomeAzienda + '|' + Stringa_connessione_sql + '|' + tlv_sql + '|' + Nserver + "
                            "'|' + nRoot + '|' + Npassw + '|' + IndirizzoMdf FROM link_programma WHERE id = 1"),
              "Associazione Aurora|VaBoDati|tlv_locale_sql.mdb|POSTO_7\\sqlexpress|sa|Campione-2024|"
              "C:\\vabo\\Server\\VaBoDati\\VaBoDatiAurora.mdf");
}

TEST(SampleData, LeavesTheTemporaryDatabaseToTheConsole) {
    EXPECT_THAT(
        sample().texts("master", "SELECT name FROM master.dbo.sysdatabases WHERE name LIKE 'vabodati%' ORDER BY name"),
        ElementsAre("VaBoDatiAurora", "VaBoDatiAzienda", "VaBoDatiPonte"));
}

TEST(SampleData, HasTheLaterColumnsInTheFirstCompanyOnly) {
    const std::map<std::string, std::string> columns = {
        {"descrizione", "IvaSezionale"}, {"AreaAttivita", "IvaSezionale"}, {"RataAnticipo", "CondizioniPagamento"}};
    for (const auto& [column, table] : columns) {
        const std::string select = "SELECT " + column + " FROM " + table;
        EXPECT_EQ(errorOf(kAurora, select), 0) << column;
        EXPECT_EQ(errorOf(kPonte, select), 207) << column;
    }
}

TEST(SampleData, LetsTheSecondCompanyGrowTheLaterColumns) {
    for (const std::string_view statement : provision::batches(provision::script("additions.sql"))) {
        EXPECT_EQ(errorOf(kPonte, std::string(statement)), 0);
        EXPECT_EQ(errorOf(kAurora, std::string(statement)), 2705);
    }
}

TEST(SampleData, HasItalyAsItsFirstStateAndEveryStateInItalian) {
    EXPECT_EQ(
        sample().text(kAurora, "SELECT DescStato + IsoValuta + Sigla + Sigla3 + Area FROM stati WHERE IdStato = 1"),
        "ItaliaEURITITAEuropa meridionale");
    EXPECT_EQ(sample().text(kAurora, "SELECT IsoValuta FROM stati WHERE DescStato = 'Kenya'"), "KES");
    EXPECT_EQ(sample().number(kAurora, "SELECT CodiceNumerico FROM stati WHERE DescStato = 'Svizzera'"), 756);
    EXPECT_EQ(sample().number(kAurora, "SELECT COUNT(*) FROM stati WHERE DescStato IS NULL"), 0);
    EXPECT_THAT(sample().texts(kAurora, "SELECT DescStato FROM stati WHERE DataSoppressioneStato IS NOT NULL"),
                SizeIs(2));
    EXPECT_THAT(sample().texts(kAurora, "SELECT Area FROM stati WHERE NOT EXISTS (SELECT * FROM ZoneGeografiche WHERE "
                                        "ZoneGeografiche.Descrizione = stati.Area) AND NOT Area IS NULL"),
                IsEmpty());
}

TEST(SampleData, HasTheSecondColumnOfStatesForTheirName) {
    const auto session = sample().session(kAurora);
    const auto batch = session->execute("select * from stati");
    ASSERT_TRUE(batch->nextResult());
    const auto& columns = batch->columns();
    ASSERT_THAT(columns, SizeIs(9));
    EXPECT_EQ(columns[1].name, "DescStato");
    EXPECT_EQ(columns[4].name, "IsoValuta");
    EXPECT_EQ(columns[8].name, "Area");
}

TEST(SampleData, KeepsPostalCodesAsNumbersWithoutLeadingZeros) {
    EXPECT_EQ(sample().text(kAurora, "SELECT DES_PROVIN + COD_CAP FROM Comuni WHERE DES_COMUNE = 'Roma'"), "RM100");
    EXPECT_EQ(sample().text(kAurora, "SELECT COD_CAP FROM Comuni WHERE DES_COMUNE = 'L''Aquila'"), "67100");
    EXPECT_EQ(sample().number(kAurora, "SELECT COUNT(DISTINCT DES_PROVIN) FROM Comuni"), 107);
}

TEST(SampleData, HasUsersWhoMayAndWhoMayNot) {
    for (const auto database : {kAurora, kPonte}) {
        EXPECT_THAT(sample().texts(database,
                                   "SELECT NomeUtente + '|' + ISNULL(PaswUtente, '') + '|' + CONVERT(nvarchar(1), "
                                   "Administrator) + CONVERT(nvarchar(1), Disabilita) FROM AbilitazioneAccessi "
                                   "ORDER BY idautonumber"),
                    ElementsAre("amministratore|primavera|10", "contabile|estate24|00", "nuovo_utente||00",
                                "disabilitato|autunno|01"));
    }
}

TEST(SampleData, HasAChartOfHeadingsAndAccountsInFourClasses) {
    for (int master = 1; master <= 4; ++master) {
        const std::string select = "SELECT COUNT(*) FROM conti WHERE idmastro = " + std::to_string(master);
        EXPECT_THAT(sample().number(kAurora, select + " AND idchiave LIKE '%.0'"), Gt(2)) << master;
        EXPECT_THAT(sample().number(kAurora, select + " AND NOT idchiave LIKE '%.0'"), Gt(20)) << master;
    }
    EXPECT_THAT(sample().number(kAurora, "SELECT COUNT(*) FROM conti WHERE IDProgetto > 10000001"), Gt(60));
    EXPECT_THAT(sample().texts(kAurora,
                               "SELECT NomeConto FROM conti WHERE IdGruppoVabo IS NOT NULL AND NOT EXISTS (SELECT * "
                               "FROM gruppivabo WHERE gruppivabo.idgruppo = conti.IdGruppoVabo)"),
                IsEmpty());
    EXPECT_THAT(
        sample().texts(kAurora, "SELECT NomeConto FROM conti WHERE IdGruppoVabo IS NULL AND NOT idchiave LIKE '%.0'"),
        ElementsAre("Insussistenze dell'attivo"));
}

TEST(SampleData, PointsSystemAccountsAtAccountsAndCopiesTheirGroups) {
    for (const char* const table :
         {"TabellaContiUtili", "tipoanagrafica", "bustetabellacontiutili", "tabellacontiutiliTransfersHQ",
          "tabellacontiutilicontributi", "ivaTabellaContiUtili"}) {
        const std::string name = table;
        EXPECT_EQ(sample().number(kAurora,
                                  "SELECT COUNT(*) FROM " + name +
                                      " AS T WHERE T.idconto IS NOT NULL AND NOT EXISTS "
                                      "(SELECT * FROM conti WHERE conti.IdConto = T.idconto AND conti.IdGruppoVabo = "
                                      "T.idconto1 AND NOT conti.idchiave LIKE '%.0')"),
                  0)
            << name;
        EXPECT_THAT(sample().number(kAurora, "SELECT COUNT(*) FROM " + name + " WHERE idconto IS NOT NULL"), Gt(1))
            << name;
    }
    EXPECT_EQ(
        sample().number(kAurora,
                        "SELECT COUNT(*) FROM TabellaContiUtili WHERE ID IN (1, 2, 5, 18, 19, 27, 29) AND idconto IS "
                        "NOT NULL"),
        7);
}

TEST(SampleData, NumbersTheOptionRowsAsTheyAreLookedUp) {
    EXPECT_EQ(sample().text(kAurora, "SELECT Descrizione FROM datiGenerali WHERE id = 8"), "Gestione Note di Debito");
    EXPECT_EQ(sample().text(kAurora, "SELECT Descrizione FROM datiGenerali WHERE id = 15"),
              "Usa C/Transitorio Economico");
    EXPECT_EQ(sample().number(kAurora, "SELECT Contatore FROM datiGenerali WHERE Descrizione = 'Sede Amministrativa'"),
              0);
    EXPECT_EQ(sample().number(kAurora, "SELECT Lunghezza FROM TabellaUilityConti WHERE id = 4"), 4);
}

TEST(SampleData, HasTermsWhoseRulesAndKindsExist) {
    EXPECT_THAT(sample().texts(
                    kAurora, "SELECT Descrizione FROM CondizioniPagamento AS C WHERE NOT EXISTS (SELECT * FROM "
                             "CondizioniPagamentoDecorrenza AS D WHERE D.IDDecorrenza = C.IDDecorrenza) OR NOT EXISTS "
                             "(SELECT * FROM CondizioniPagamentoTipoIncasso AS T WHERE T.IdTipoRimessa = "
                             "C.IdTipoRimessa)"),
                IsEmpty());
}

TEST(SampleData, HasTermsOfOneToTwelveInstalmentsAndOneForEachRule) {
    EXPECT_THAT(sample().texts(kAurora, "SELECT DISTINCT NRrate FROM CondizioniPagamento ORDER BY NRrate"),
                ElementsAre("1", "2", "3", "4", "5", "6", "12"));
    EXPECT_THAT(sample().texts(kAurora, "SELECT Descrizione FROM CondizioniPagamentoDecorrenza AS D WHERE NOT EXISTS "
                                        "(SELECT * FROM CondizioniPagamento AS C WHERE C.IDDecorrenza = "
                                        "D.IDDecorrenza)"),
                IsEmpty());
}

TEST(SampleData, DescribesTermsByKindDaysAndRule) {
    EXPECT_EQ(
        sample().text(kAurora,
                      "SELECT T.Descrizione + ' a ' + CONVERT(nvarchar(5), C.Scadenza1) + '-' + CONVERT(nvarchar(5), "
                      "C.Scadenza2) + '-' + CONVERT(nvarchar(5), C.Scadenza3) + ' ' + D.Descrizione FROM "
                      "(CondizioniPagamento AS C INNER JOIN CondizioniPagamentoTipoIncasso AS T ON C.IdTipoRimessa = "
                      "T.IdTipoRimessa) INNER JOIN CondizioniPagamentoDecorrenza AS D ON C.IDDecorrenza = "
                      "D.IDDecorrenza WHERE C.NRrate = 3"),
        sample().text(kAurora, "SELECT Descrizione FROM CondizioniPagamento WHERE NRrate = 3"));
}

TEST(SampleData, HasAnOrdinaryRateAndRowsThatCanNotBeTheStandard) {
    EXPECT_EQ(sample().number(kAurora, "SELECT Aliquota FROM IvaTrattamento WHERE idautonumber = 2"), 22);
    EXPECT_THAT(sample().number(kAurora, "SELECT COUNT(*) FROM IvaTrattamento WHERE Sigla LIKE 'IV%'"), Gt(1));
    EXPECT_THAT(sample().number(kAurora, "SELECT COUNT(*) FROM IvaTrattamento WHERE idautonumber > 1 AND Aliquota = 0"),
                Gt(1));
    EXPECT_EQ(sample().text(kAurora, "SELECT Aliquota FROM IvaAliquotaStandard"), "22,00");
}

TEST(SampleData, HasKeysThatRefuseTheSameRowTwice) {
    for (const char* const statement :
         {"INSERT INTO conti (IdConto) VALUES (1001)", "INSERT INTO TabellaUilityConti (id) VALUES (5)",
          "INSERT INTO DirectoryHQ (IdAutonumber) VALUES (1)", "INSERT INTO Sede (idsede) VALUES (1)"}) {
        EXPECT_EQ(errorOf(kAurora, statement), 2627) << statement;
    }
    for (const char* const statement :
         {"INSERT INTO stati (IdStato) VALUES (999)", "INSERT INTO progetti (ID) VALUES (999)",
          "INSERT INTO datiGenerali (id) VALUES (999)"}) {
        EXPECT_EQ(errorOf(kAurora, statement), 544) << statement;
    }
}

TEST(SampleData, GrowsTheChartToTheAccountsOfThePlan) {
    const SampleWorkstation grown(0, 2000);
    EXPECT_EQ(grown.number(kAurora, "SELECT COUNT(*) FROM conti"), 2000);
    EXPECT_EQ(grown.number(kPonte, "SELECT COUNT(*) FROM conti"), 2000);
    for (int master = 1; master <= 4; ++master) {
        EXPECT_THAT(grown.number(kAurora, "SELECT COUNT(*) FROM conti WHERE IDProgetto = 10000001 AND idmastro = " +
                                              std::to_string(master)),
                    Gt(400))
            << master;
    }
    EXPECT_EQ(grown.number(kAurora,
                           "SELECT COUNT(*) FROM conti WHERE IdConto > 100000 AND (idchiave LIKE '%.0' OR NOT EXISTS "
                           "(SELECT * FROM gruppivabo WHERE gruppivabo.idgruppo = conti.IdGruppoVabo))"),
              0);
}
