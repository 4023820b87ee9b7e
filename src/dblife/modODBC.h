#pragma once

// The registration of data sources. Other programs reach the databases by the data sources' fixed names.

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
    std::string NomeDsn = {}; ///< cut to its first 30 characters
    std::string Database = {}, Descrizione = {}, Server = {}, Utente = {}, Password = {};
};

/// Registers the database under the name, then sends the request to configure it. Returns the result of the latter, 1
/// for success and 0 for failure; 0 also where the registration fails. Raises nothing.
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const FonteOdbc& fonte);
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const std::string& NomeDsn,
                          const std::string& Database, const std::string& Descrizione, const std::string& Server,
                          const std::string& Utente, const std::string& Password);

/// Registers a SQL Server's database twice, with the request to add and with the one to configure, so that an existing
/// data source gets the new values too. Failures are skipped.
void RegistraDueVolte(const FonteOdbc& fonte);
/// The same, but `server` is called for the server's name before each of the two.
void RegistraDueVolte(FonteOdbc fonte, const std::function<std::string()>& server);

} // namespace vabo
