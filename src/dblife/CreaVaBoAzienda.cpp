#include "dblife/CreaVaBoAzienda.h"

#include "ado/Error.h"
#include "kit/Regole.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

#include <array>
#include <string>

namespace vabo {

namespace {

struct Opzione {
    const char* nome;
    const char* valore;
    const char* istruzione; ///< the same option, as it follows ALTER DATABASE … SET
};

constexpr std::array<Opzione, 18> kOpzioni = {{
    {"autoclose", "true", "AUTO_CLOSE ON"},
    {"bulkcopy", "true", "RECOVERY BULK_LOGGED"},
    {"trunc. log", "true", "RECOVERY SIMPLE"},
    {"torn page detection", "true", "TORN_PAGE_DETECTION ON"},
    {"read only", "false", "READ_WRITE"},
    {"dbo use", "false", "MULTI_USER"},
    {"single", "false", "MULTI_USER"},
    {"autoshrink", "true", "AUTO_SHRINK ON"},
    {"ANSI null default", "false", "ANSI_NULL_DEFAULT OFF"},
    {"recursive triggers", "false", "RECURSIVE_TRIGGERS OFF"},
    {"ANSI nulls", "false", "ANSI_NULLS OFF"},
    {"concat null yields null", "false", "CONCAT_NULL_YIELDS_NULL OFF"},
    {"cursor close on commit", "false", "CURSOR_CLOSE_ON_COMMIT OFF"},
    {"default to local cursor", "false", "CURSOR_DEFAULT GLOBAL"},
    {"quoted identifier", "false", "QUOTED_IDENTIFIER OFF"},
    {"ANSI warnings", "false", "ANSI_WARNINGS OFF"},
    {"auto create statistics", "true", "AUTO_CREATE_STATISTICS ON"},
    {"auto update statistics", "true", "AUTO_UPDATE_STATISTICS ON"},
}};

constexpr int kProceduraMancante = 2812;

void Esegui(const std::string& testo) {
    salta([&] { DbTemp.Execute(testo); });
}

void CreaDatabase(const std::string& nome, const std::string& fileDati, const std::string& fileLog) {
    Esegui("IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'" + nome + "')  CREATE DATABASE [" +
           nome + "]  ON (NAME = N'" + nome + "_dat', FILENAME = " + fileDati +
           " ,  FILEGROWTH = 10%) LOG ON (NAME = N'" + nome + "_log', FILENAME = " + fileLog +
           " , SIZE = 2, FILEGROWTH = 10%) COLLATE Latin1_General_CI_AS");
}

/// False where the server has no such procedure; any other error is skipped.
bool EseguiProcedura(const std::string& testo) {
    bool manca = false;
    salta([&] {
        try {
            DbTemp.Execute(testo);
        } catch (const ado::Error& errore) {
            manca = errore.nativeError() == kProceduraMancante;
            throw;
        }
    });
    return !manca;
}

/// Sets all options in the order of the table. Newer servers don't have sp_dboption any more and get statements
/// instead.
void ImpostaOpzioni(const std::string& nome, const std::string& inizioDellaPrima) {
    std::string inizio = inizioDellaPrima;
    bool conProcedura = true;
    for (const Opzione& opzione : kOpzioni) {
        conProcedura = conProcedura && EseguiProcedura(inizio + "sp_dboption N'" + nome + "', N'" + opzione.nome +
                                                       "', N'" + opzione.valore + "'");
        if (!conProcedura) {
            Esegui("ALTER DATABASE [" + nome + "] SET " + opzione.istruzione);
        }
        inizio = " ";
    }
}

void CreaTabelle() {
    Sql = "CREATE TABLE [link_programma] ("
          "  [id] [int] IDENTITY (1, 1) NOT NULL ,"
          "  [NomeAzienda] [varchar] (255)   NULL ,"
          "  [Stringa_connessione_sql] [nvarchar] (255)   NULL ,"
          "  [tlv_access] [nvarchar] (255)   NULL ,"
          "  [tlv_sql] [nvarchar] (255)   NULL ,"
          "  [wzzip] [nvarchar] (255)   NULL ,"
          "  [wzunzip] [nvarchar] (50)   NULL ,"
          "  [Nserver] [nvarchar] (250)   NULL ,"
          "  [dbname] [nvarchar] (50)   NULL ,"
          "  [nRoot] [nvarchar] (50)   NULL ,"
          "  [Npassw] [nvarchar] (50)   NULL,"
          "  [ultimo] bit not null default '0' , [nometerminale] [nvarchar] (255)  NULL,"
          "  [IndirizzoMdf] nvarchar(250) Null,"
          "  [IndirizzoLdf] nvarchar(250) Null"
          ") ";
    Esegui(Sql);
    Sql = "create table link_programmaTerminale "
          " (idAutonumber int NOT NULL IDENTITY (1, 1),"
          " Nometerminale nvarchar(255) null,"
          " ultimo int not null default 0,"
          " Version int not null default 0)";
    Esegui(Sql);
}

} // namespace

// Failing statements are skipped.
void CreaDatabaseControllo() {
    const std::string cartella = "C:\\vabo\\sedi\\";
    salta([] { DbTemp.Open(Leggi_ServerLocal()); });
    Esegui("sp_configure 'query timeout',0 RECONFIGURE");
    CreaDatabase("VaBoDatiTemp", "'" + cartella + "VaBoDatiTemp.mdf'", "'" + cartella + "VaBoDatiTemp.ldf'");
    ImpostaOpzioni("VaBoDatiTemp", " ");
    // No folder in these names: the server stores the control database in its own folder.
    CreaDatabase("VaBoDatiAzienda", "N'VaBoDatiAzienda.mdf'", "N'VaBoDatiAzienda.ldf'");
    ImpostaOpzioni("VaBoDatiAzienda", "  ");
    salta([] { DbTemp.Close(); });
    salta([] { DbTemp.Open(Leggi_ServerLocal() + "DATABase=vabodatiazienda"); });
    CreaTabelle();
    salta([] { DbTemp.Close(); });
}

} // namespace vabo
