#include "locks/Libro.h"

#include <cstdio>

namespace vabo::libro {

namespace {

std::string numero(const Numero& valore) {
    return valore ? std::to_string(*valore) : "NULL";
}

std::string importo(const Numero& centesimi) {
    constexpr int kLunghezza = 32;
    char testo[kLunghezza];
    if (!centesimi) {
        return "NULL";
    }
    std::snprintf(testo, sizeof testo, "%d.%02d", *centesimi / 100, *centesimi % 100);
    return testo;
}

std::vector<std::string> colonne(const Riga& riga) {
    const auto momento = [](const Momento& valore) { return valore.value_or("NULL"); };
    return {std::to_string(riga.id), numero(riga.numero),    numero(riga.sede),      momento(riga.transazione),
            momento(riga.report),    numero(riga.conto),     numero(riga.progetto),  numero(riga.competenza),
            riga.descrizione,        importo(riga.depositi), importo(riga.prelievi), numero(riga.valuta),
            importo(riga.depositi),  numero(riga.seziva),    numero(riga.definito)};
}

/// The columns that go between quotes.
bool traApici(std::size_t colonna, const std::string& valore) {
    return (colonna == 3 || colonna == 4 || colonna == 8) && valore != "NULL";
}

} // namespace

std::string testo(const Riga& riga) {
    std::string unito;
    for (const std::string& colonna : colonne(riga)) {
        unito += (unito.empty() ? "" : "|") + colonna;
    }
    return unito;
}

std::vector<std::string> testi(const Libro& libro) {
    std::vector<std::string> righe;
    for (const Riga& riga : libro) {
        righe.push_back(testo(riga));
    }
    return righe;
}

std::string inserimento(const Libro& libro) {
    std::string valori;
    for (const Riga& riga : libro) {
        valori += valori.empty() ? "(" : ", (";
        const std::vector<std::string> tutte = colonne(riga);
        for (std::size_t i = 0; i < tutte.size(); ++i) {
            valori += i == 0 ? "" : ", ";
            valori += traApici(i, tutte[i]) ? "'" + tutte[i] + "'" : tutte[i];
        }
        valori += ")";
    }
    return "insert into partitadoppia values " + valori;
}

const char* const kTabella =
    "drop table partitadoppia; create table partitadoppia (idautonumber int not null primary key, "
    "numerotransazione int null, idsede int null, datatransazione datetime null, datareport datetime null, idconto int "
    "null, idprogettorendiconto int null, idsedecompetenza int null, Descrizione nvarchar(255) null, importodepositi "
    "decimal(18,2) null, importoprelievi decimal(18,2) null, idvaluta int null, importovaluta decimal(18,2) null, "
    "seziva int null, definito smallint null)";

const char* const kSelezione = "select * from partitadoppia order by idautonumber";

} // namespace vabo::libro
