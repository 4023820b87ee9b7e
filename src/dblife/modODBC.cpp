#include "dblife/modODBC.h"

#include "kit/Regole.h"
#include "platform/DataSources.h"

#include <QString>

#include <algorithm>

namespace vabo {

namespace {

constexpr const char* kDriverAccess = "Microsoft Access Driver (*.mdb)";
constexpr const char* kDriverSqlServer = "SQL Server";
constexpr qsizetype kLunghezzaNome = 30;

std::string Driver(std::int32_t tipo) {
    if (tipo == kTipoAccess) {
        return kDriverAccess;
    }
    return tipo == kTipoSqlServer ? kDriverSqlServer : "";
}

std::string NomeTagliato(const std::string& nome) {
    return QString::fromStdString(nome).left(kLunghezzaNome).toStdString();
}

/// Control characters become blanks: they separate the attributes, so a value could add attributes of its own.
std::string Valore(std::string testo) {
    const auto controllo = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; };
    std::ranges::replace_if(testo, controllo, ' ');
    return testo;
}

std::string Chiuso(const std::string& attributo) {
    return attributo + '\0';
}

} // namespace

// Both calls are needed: the entry keeps the values of both, and only the first one writes the key Database.
std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const FonteOdbc& fonte) {
    const std::string nome = Valore(NomeTagliato(fonte.NomeDsn));
    const std::string descrizione = "Description=" + Valore(fonte.Descrizione);
    const std::string server = "SERVER=" + Valore(fonte.Server);
    const std::string database = Valore(fonte.Database);
    const std::string perOdbc =
        Chiuso("DSN=" + nome) + Chiuso(descrizione) + Chiuso(server) + Chiuso("DBQ=" + database);
    const std::string perDao = descrizione + "\rOemToAnsi=No\r" + server + "\rDatabase=" + database;
    if (!riesce([&] { platform::dataSources().registerDatabase(nome, kDriverSqlServer, true, perDao); })) {
        return 0;
    }
    return platform::dataSources().configure(richiesta, Driver(tipo), perOdbc);
}

std::int32_t RegistraOdbc(std::int16_t richiesta, std::int32_t tipo, const std::string& NomeDsn,
                          const std::string& Database, const std::string& Descrizione, const std::string& Server,
                          const std::string& Utente, const std::string& Password) {
    return RegistraOdbc(richiesta, tipo,
                        {.NomeDsn = NomeDsn,
                         .Database = Database,
                         .Descrizione = Descrizione,
                         .Server = Server,
                         .Utente = Utente,
                         .Password = Password});
}

void RegistraDueVolte(const FonteOdbc& fonte) {
    RegistraDueVolte(fonte, [&] { return fonte.Server; });
}

void RegistraDueVolte(FonteOdbc fonte, const std::function<std::string()>& server) {
    for (const std::int16_t richiesta : {kAggiungi, kConfigura}) {
        salta([&] {
            fonte.Server = server();
            RegistraOdbc(richiesta, kTipoSqlServer, fonte);
        });
    }
}

} // namespace vabo
