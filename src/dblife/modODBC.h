#pragma once

// The registration of a data source. Other programs reach the databases by the fixed names of their data sources.

#include <cstdint>
#include <functional>
#include <string>

namespace vabo {

inline constexpr std::int16_t kAggiungi = 1;  ///< request: add
inline constexpr std::int16_t kConfigura = 2; ///< request: configure

inline constexpr std::int32_t kTipoAccess = 1;    ///< "Microsoft Access Driver (*.mdb)"
inline constexpr std::int32_t kTipoSqlServer = 2; ///< "SQL Server"

/// Registers the database under the name, of which the first 30 characters count. The result is that of the
/// configuration: 1 when it was done, 0 when not, and 0 where the registration ahead of it fails. Raises nothing.
/// User and password aren't stored.
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const std::string& NomeDsn,
                          const std::string& Database, const std::string& Descrizione, const std::string& Server,
                          const std::string& Utente, const std::string& Password);

/// First the request to add, then the one to configure, of a SQL Server's database: so that an existing data source
/// gets the new values. The server's name is asked for each time. Failures are skipped.
void RegistraDueVolte(const std::string& NomeDsn, const std::string& Database, const std::string& Descrizione,
                      const std::function<std::string()>& Server, const std::string& Utente,
                      const std::string& Password);
void RegistraDueVolte(const std::string& NomeDsn, const std::string& Database, const std::string& Descrizione,
                      const std::string& Server, const std::string& Utente, const std::string& Password);

} // namespace vabo
