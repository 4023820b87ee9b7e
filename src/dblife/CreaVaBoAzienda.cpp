#include "dblife/CreaVaBoAzienda.h"

#include "kit/Regole.h"
#include "session/ApriDbSede.h"
#include "session/variabili.h"

#include <array>
#include <string>
#include <utility>

namespace vabo {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 18> kOpzioni = {{
    {"autoclose", "true"},
    {"bulkcopy", "true"},
    {"trunc. log", "true"},
    {"torn page detection", "true"},
    {"read only", "false"},
    {"dbo use", "false"},
    {"single", "false"},
    {"autoshrink", "true"},
    {"ANSI null default", "false"},
    {"recursive triggers", "false"},
    {"ANSI nulls", "false"},
    {"concat null yields null", "false"},
    {"cursor close on commit", "false"},
    {"default to local cursor", "false"},
    {"quoted identifier", "false"},
    {"ANSI warnings", "false"},
    {"auto create statistics", "true"},
    {"auto update statistics", "true"},
}};

void Esegui(const std::string& testo) {
    salta([&] { DbTemp.Execute(testo); });
}

void CreaDatabase(const std::string& nome, const std::string& fileDati, const std::string& fileLog) {
    Esegui("IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'" + nome + "')  CREATE DATABASE [" +
           nome + "]  ON (NAME = N'" + nome + "_dat', FILENAME = " + fileDati +
           " ,  FILEGROWTH = 10%) LOG ON (NAME = N'" + nome + "_log', FILENAME = " + fileLog +
           " , SIZE = 2, FILEGROWTH = 10%) COLLATE Latin1_General_CI_AS");
}

void ImpostaOpzioni(const std::string& nome, const std::string& inizioDellaPrima) {
    std::string inizio = inizioDellaPrima;
    for (const auto& [opzione, valore] : kOpzioni) {
        Esegui(inizio + "sp_dboption N'" + nome + "', N'" + opzione + "', N'" + valore + "'");
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
    // Without a folder: the server places the control database itself.
    CreaDatabase("VaBoDatiAzienda", "N'VaBoDatiAzienda.mdf'", "N'VaBoDatiAzienda.ldf'");
    ImpostaOpzioni("VaBoDatiAzienda", "  ");
    salta([] { DbTemp.Close(); });
    salta([] { DbTemp.Open(Leggi_ServerLocal() + "DATABase=vabodatiazienda"); });
    CreaTabelle();
    salta([] { DbTemp.Close(); });
}

} // namespace vabo
