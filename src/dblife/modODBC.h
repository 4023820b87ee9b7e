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

/// A data source as it is asked for. User and password aren't stored.
struct FonteOdbc {
    std::string NomeDsn = {}; ///< its first 30 characters count
    std::string Database = {}, Descrizione = {}, Server = {}, Utente = {}, Password = {};
};

/// Registers the database under the name. The result is that of the configuration: 1 when it was done, 0 when not, and
/// 0 where the registration ahead of it fails. Raises nothing.
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const FonteOdbc& fonte);
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const std::string& NomeDsn,
                          const std::string& Database, const std::string& Descrizione, const std::string& Server,
                          const std::string& Utente, const std::string& Password);

/// First the request to add, then the one to configure, of a SQL Server's database: so that an existing data source
/// gets the new values. Failures are skipped.
void RegistraDueVolte(const FonteOdbc& fonte);
/// The same with the server's name asked for each time.
void RegistraDueVolte(FonteOdbc fonte, const std::function<std::string()>& server);

} // namespace vabo
