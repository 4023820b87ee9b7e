#pragma once

#include "ado/ConnectionString.h"
#include "dblife/RegistraAziende.h"
#include "session/SessionFixture.h"
#include "support/RecordedDataSources.h"

#include <string>
#include <vector>

namespace vabo {

/// A server that refuses connections: nothing listens on that port of the loopback.
inline constexpr const char* kServerSpento = "127.0.0.1,9";

/// The calls of the registry for one data source: added, then configured.
inline std::vector<std::string> registrazione(const std::string& fonte, const std::string& database,
                                              const std::string& descrizione, const std::string& server) {
    const std::string perDao =
        "Description=" + descrizione + "|OemToAnsi=No|SERVER=" + server + "|Database=" + database;
    const std::string perOdbc =
        "DSN=" + fonte + "~Description=" + descrizione + "~SERVER=" + server + "~DBQ=" + database + "~";
    std::vector<std::string> chiamate;
    for (const char* richiesta : {"1", "2"}) {
        chiamate.push_back("register " + fonte + ", SQL Server: " + perDao);
        chiamate.push_back(std::string("configure ") + richiesta + ", SQL Server: " + perOdbc);
    }
    return chiamate;
}

/// Creates the registry of companies, which a company's own database doesn't have.
inline constexpr const char* kCreaRegistro =
    "create table link_programma (id int identity (1, 1) not null, NomeAzienda varchar(255) null, "
    "Stringa_connessione_sql nvarchar(255) null, Nserver nvarchar(250) null, dbname nvarchar(50) null, "
    "nRoot nvarchar(50) null, Npassw nvarchar(50) null)";
inline constexpr const char* kLeggiRegistro =
    "select Stringa_connessione_sql, Nserver, dbname, NomeAzienda, nRoot, Npassw from link_programma order by id";

/// The sample workstation with a registry of data sources that records its calls.
template<typename Base>
class ConFonti : public Base {
protected:
    /// The fields that reach the sample's first company.
    CampiAzienda campi() const {
        const ado::ConnectionString stringa(this->server);
        return {.Driver = "SQL Server",
                .Server = this->workstation.driveC().firstLine("C:\\vabo\\NomeServer.txt"),
                .Database = support::kCompany,
                .Utente = stringa.user(),
                .Password = stringa.password(),
                .Fonte = "Tlv_Server",
                .Azienda = "Onlus"};
    }
    std::string serverLocale() const { return this->workstation.driveC().firstLine("C:\\vabo\\NomeServerLocal.txt"); }
    /// All calls of the registry for one registration.
    std::vector<std::string> registrazioni(const CampiAzienda& campi, const std::string& fonte,
                                           const std::string& nomeAzienda) const {
        std::vector<std::string> tutte;
        for (const auto& una :
             {registrazione(fonte, campi.Database, "Dati " + campi.Azienda, campi.Server),
              registrazione("Tlv_Temp", "VaBoDatiTemp", "Dati " + campi.Azienda, serverLocale()),
              registrazione("Tlv_Azienda", "VaBoDatiAzienda", "Dati " + nomeAzienda, serverLocale())}) {
            tutte.insert(tutte.end(), una.begin(), una.end());
        }
        return tutte;
    }
    Rows registro(const char* database = support::kCompany) const {
        return this->workstation.rows(database, kLeggiRegistro);
    }

    support::RecordedDataSources fonti;
};

} // namespace vabo
