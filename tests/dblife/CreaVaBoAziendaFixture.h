#pragma once

#include "state/variabili.h"
#include "support/DialogScript.h"
#include "support/TestWorkstation.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace vabo {

inline const std::vector<std::pair<std::string, std::string>> kOptions = {
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
};

inline const std::string kCreateTemporary =
    "IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiTemp')  CREATE DATABASE "
    "[VaBoDatiTemp]  ON (NAME = N'VaBoDatiTemp_dat', FILENAME = 'C:\\vabo\\sedi\\VaBoDatiTemp.mdf' ,  FILEGROWTH = "
    "10%) LOG ON (NAME = N'VaBoDatiTemp_log', FILENAME = 'C:\\vabo\\sedi\\VaBoDatiTemp.ldf' , SIZE = 2, FILEGROWTH = "
    "10%) COLLATE Latin1_General_CI_AS";
inline const std::string kCreateControl =
    "IF not EXISTS (SELECT name FROM master.dbo.sysdatabases WHERE name = N'VaBoDatiAzienda')  CREATE DATABASE "
    "[VaBoDatiAzienda]  ON (NAME = N'VaBoDatiAzienda_dat', FILENAME = N'VaBoDatiAzienda.mdf' ,  FILEGROWTH = 10%) LOG "
    "ON (NAME = N'VaBoDatiAzienda_log', FILENAME = N'VaBoDatiAzienda.ldf' , SIZE = 2, FILEGROWTH = 10%) COLLATE "
    "Latin1_General_CI_AS";
inline const std::string kCompanies =
    "CREATE TABLE [link_programma] (  [id] [int] IDENTITY (1, 1) NOT NULL ,  [NomeAzienda] [varchar] (255)   NULL ,  "
    "[Stringa_connessione_sql] [nvarchar] (255)   NULL ,  [tlv_access] [nvarchar] (255)   NULL ,  [tlv_sql] [nvarchar] "
    "(255)   NULL ,  [wzzip] [nvarchar] (255)   NULL ,  [wzunzip] [nvarchar] (50)   NULL ,  [Nserver] [nvarchar] (250) "
    "  NULL ,  [dbname] [nvarchar] (50)   NULL ,  [nRoot] [nvarchar] (50)   NULL ,  [Npassw] [nvarchar] (50)   NULL,  "
    "[ultimo] bit not null default '0' , [nometerminale] [nvarchar] (255)  NULL,  [IndirizzoMdf] nvarchar(250) Null,  "
    "[IndirizzoLdf] nvarchar(250) Null) ";
inline const std::string kTerminals =
    "create table link_programmaTerminale  (idAutonumber int NOT NULL IDENTITY (1, 1), Nometerminale nvarchar(255) "
    "null, ultimo int not null default 0, Version int not null default 0)";

inline std::vector<std::string> tutteLeIstruzioni() {
    std::vector<std::string> all = {"sp_configure 'query timeout',0 RECONFIGURE", kCreateTemporary};
    for (const auto& [option, value] : kOptions) {
        all.push_back(" sp_dboption N'VaBoDatiTemp', N'" + option + "', N'" + value + "'");
    }
    all.push_back(kCreateControl);
    std::string start = "  ";
    for (const auto& [option, value] : kOptions) {
        all.push_back(start + "sp_dboption N'VaBoDatiAzienda', N'" + option + "', N'" + value + "'");
        start = " ";
    }
    all.push_back(kCompanies);
    all.push_back(kTerminals);
    return all;
}

class CreaVaBoAzienda : public testing::Test {
protected:
    CreaVaBoAzienda() { NomeTerminale = support::kTerminalName; }
    std::string quantiDatabase(const std::string& name) const {
        return workstation.value("master", "select count(*) from sysdatabases where name = '" + name + "'");
    }
    std::string quanteRighe(const std::string& table) const {
        return workstation.value(support::kControlDatabase, "select count(*) from " + table);
    }
    support::TestWorkstation workstation;
    support::DialogScript noBox;
};

} // namespace vabo
