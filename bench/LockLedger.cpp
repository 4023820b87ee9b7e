#include "LockLedger.h"

#include "provision/Sql.h"

#include <algorithm>
#include <chrono>

namespace bench {

namespace {

constexpr std::string_view kColumns =
    "numerotransazione, idsede, datatransazione, datareport, idconto, idprogettorendiconto, idsedecompetenza, "
    "Descrizione, importodepositi, importoprelievi, idvaluta, importovaluta, seziva, definito";
constexpr long kRowsPerPart = 20'000;
constexpr std::int64_t kAmount = 12'550;

constexpr const char* kTables = R"(
CREATE TABLE partitadoppia (idautonumber int IDENTITY(1,1) NOT NULL PRIMARY KEY, numerotransazione int NOT NULL,
    idsede int NOT NULL, datatransazione datetime NOT NULL, datareport datetime NULL, idconto int NULL,
    idprogettorendiconto int NULL, idsedecompetenza int NULL, Descrizione nvarchar(255) NULL,
    importodepositi decimal(18,2) NULL, importoprelievi decimal(18,2) NULL, idvaluta int NOT NULL DEFAULT 1001,
    importovaluta decimal(18,2) NULL, seziva int NOT NULL DEFAULT 0, definito smallint NOT NULL DEFAULT 0);
CREATE INDEX perTransazione ON partitadoppia (numerotransazione, idsede);
CREATE INDEX perProgetto ON partitadoppia (idprogettorendiconto, datatransazione);
CREATE INDEX perCompetenza ON partitadoppia (idsedecompetenza, datatransazione);
CREATE INDEX perConto ON partitadoppia (idconto);
CREATE INDEX perSeziva ON partitadoppia (seziva);
CREATE TABLE contatorepd (id int NOT NULL PRIMARY KEY, iddate datetime NULL);
CREATE TABLE progetti (ID int NOT NULL PRIMARY KEY, iddate datetime NULL);
CREATE TABLE ElencoSedi (IdSede int NOT NULL PRIMARY KEY, idDatainvio datetime NULL);
CREATE TABLE TabellaContiUtili (ID int NOT NULL PRIMARY KEY, idconto int NULL);
CREATE TABLE tabellacontiutiliTransfersHQ (Id int NOT NULL PRIMARY KEY, idconto int NULL);
CREATE TABLE conti (IdConto int NOT NULL PRIMARY KEY, IdGruppoVabo int NULL);
INSERT INTO contatorepd VALUES (1, '20231231');
INSERT INTO progetti VALUES (10000001, NULL), (10000002, NULL), (10000003, NULL);
INSERT INTO ElencoSedi VALUES (1, NULL), (2, NULL), (3, NULL);
INSERT INTO TabellaContiUtili VALUES (1, 11), (2, 12), (5, 13), (18, 14), (19, 15), (27, 16), (29, 17);
INSERT INTO tabellacontiutiliTransfersHQ VALUES (1, 18), (2, 19);
INSERT INTO conti VALUES (11, 1), (12, 1), (13, 2))";

/// The rows run in threes of projects and branches; among those of the locked ones three in ten are definitive in any
/// case: on an account of the system, of a VAT section, without value in another currency.
void writeRow(provision::RowWriter& writer, long row, long rows) {
    using namespace std::chrono;
    const long transaction = row / 2;
    const long kind = transaction / 3 % 10;
    const sys_days day = sys_days(2023y / 1 / 1) + days(730 * row / rows);
    writer.integer(transaction + 1).integer(1 + transaction % 3).date(day).date(day + days(row % 4 * 10));
    writer.integer(kind == 0 ? 11 : 100 + row % 200).integer(kLockedProject - 1 + transaction % 3);
    writer.integer(kLockedBranch - 1 + transaction % 3).text("Pagamento con bonifico");
    const bool withoutValue = kind == 2;
    writer.cents(withoutValue || row % 2 == 0 ? kAmount : 0).cents(withoutValue || row % 2 == 1 ? kAmount : 0);
    writer.integer(withoutValue ? 1002 : 1001).cents(0).integer(kind == 1 ? 1 : 0).integer(0).endRow();
}

} // namespace

void layLedger(engine::Session& session, long rows) {
    provision::run(session, kTables);
    for (long done = 0; done < rows;) {
        provision::Transaction transaction(session);
        provision::RowWriter writer(session, "partitadoppia", kColumns);
        for (const long end = std::min(rows, done + kRowsPerPart); done < end; ++done) {
            writeRow(writer, done, rows);
        }
        writer.finish();
        transaction.commit();
    }
}

} // namespace bench
