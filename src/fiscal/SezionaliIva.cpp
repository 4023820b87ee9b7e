#include "fiscal/SezionaliIva.h"

#include "ado/Conversions.h"
#include "ado/Text.h"
#include "kit/ApriScrivibile.h"
#include "kit/Colonne.h"
#include "kit/ErrorHandling.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "platform/Dialogs.h"
#include "rights/Permesso.h"
#include "state/variabili.h"

#include <array>
#include <span>

namespace vabo {

namespace {

constexpr int kPostoSezionali = 9;

constexpr int kSedeDeiSezionali = 1;

constexpr std::array kContatoriAcquisti = {"ultimaFatturaAcquisti", "Ultimaresoacquisti"};
constexpr std::array kContatoriVendite = {"ultimaFatturavendite", "Ultimaresivendite"};
constexpr std::array kProgressivi = {"ultimoprogressivoAcquisti", "Ultimoprogressivovendite"};
constexpr std::array kImporti = {"importodefinitivo1",  "importodefinitivo2",  "importodefinitivo3",
                                 "importodefinitivo4",  "importodefinitivo5",  "importodefinitivo6",
                                 "importodefinitivo7",  "importodefinitivo8",  "importodefinitivo9",
                                 "importodefinitivo10", "importodefinitivo11", "importodefinitivo12"};
constexpr std::array kRiporto = {"importodefinitivoAnno"};
constexpr std::array kPagine = {"UltimaPaginaAcquisti", "UltimaPaginaVendite"};

using Nomi = std::span<const char* const>;

template<typename Regola>
void Azzera(Regola&& regola, ado::Recordset& rs, Nomi colonne) {
    for (const char* colonna : colonne) {
        regola([&] { rs[colonna] = 0; });
    }
}

std::string SenzaSpazi(const std::string& testo) {
    return std::string(ado::trimmed(testo, " "));
}

ado::Date FineAnno(const ado::Value& data) {
    return ado::Date::of(ado::toDate(data).year(), 12, 31);
}

/// What a new section takes from the first one.
struct Modello {
    ado::Value dataAcquisti, dataAcquistiDef, dataVendite, dataVenditeDef, liquidazione;
};

// Failing statements are skipped.
Modello LeggiModello(ado::Recordset& rs) {
    Modello modello;
    salta([&] { ApriScrivibile(rs, "select * from IvaSezionale order by id", DbAzienda); });
    salta([&] { rs.MoveFirst(); });
    salta([&] { modello.dataAcquisti = rs["UltimaDataAcquisti"]; });
    salta([&] { modello.dataAcquistiDef = rs["UltimaDataAcquistir"]; });
    salta([&] { modello.dataVendite = rs["UltimaDatavendite"]; });
    salta([&] { modello.dataVenditeDef = rs["UltimaDatavenditer"]; });
    salta([&] { modello.liquidazione = rs["Liquidazione"]; });
    salta([&] { rs.Close(); });
    return modello;
}

// The area alone is skipped where it can't be written.
void ScriviSezionale(ado::Recordset& rs, const CampiSezionale& campi, const Modello& modello) {
    ScriviColonne(kSenzaRegola, rs,
                  {{"id", campi.numero},
                   {"idsede", kSedeDeiSezionali},
                   {"UltimaDataAcquisti", modello.dataAcquisti},
                   {"UltimaDataAcquistir", modello.dataAcquistiDef},
                   {"UltimaDatavendite", modello.dataVendite},
                   {"UltimaDatavenditer", modello.dataVenditeDef},
                   {"Liquidazione", modello.liquidazione}});
    for (const Nomi colonne : {Nomi(kContatoriAcquisti), Nomi(kContatoriVendite), Nomi(kProgressivi), Nomi(kImporti),
                               Nomi(kRiporto), Nomi(kPagine)}) {
        Azzera(kSenzaRegola, rs, colonne);
    }
    ScriviColonne(kSenzaRegola, rs, {{"Descrizione", SenzaSpazi(campi.descrizione)}});
    ScriviColonne(kSaltando, rs, {{"AreaAttivita", SenzaSpazi(campi.areaAttivita)}});
}

// Failing statements are skipped. A row that can't be stored is left as it was: with its edit pending the move to the
// next row would store it again, and fail for ever.
void RiportaRiga(ado::Recordset& rs) {
    for (const char* data : {"UltimaDataAcquistir", "UltimaDatavenditer"}) {
        salta([&] { rs[data] = FineAnno(rs[data]); });
    }
    salta([&] { rs["importodefinitivoAnno"] = rs["importodefinitivo12"]; });
    for (const Nomi colonne : {Nomi(kImporti), Nomi(kProgressivi), Nomi(kPagine)}) {
        Azzera(kSaltando, rs, colonne);
    }
    if (!riesce([&] { AggiornaRecord(rs); })) {
        salta([&] { rs.CancelUpdate(); });
    }
}

} // namespace

std::string ElencoSezionali() {
    return "select idautonumber,id,descrizione ,AreaAttivita, ultimadataacquistir As DataAcquistiDef, "
           "Ultimadatavenditer as DataVenditeDef,IvaSezionale.liquidazione from IvaSezionale   ORDER BY "
           "ivasezionale.id";
}

void AggiungiColonneSezionali() {
    AggiungiColonne(DbAzienda,
                    {"alter table Ivasezionale add    descrizione nvarchar(255) not null default 'Sezionale Iva' ",
                     "alter table Ivasezionale add    AreaAttivita nvarchar(255)  null  "});
}

bool SalvaSezionale(const CampiSezionale& campi) {
    if (IsEmptyValue(campi.areaAttivita) || IsEmptyValue(campi.descrizione) || IsEmptyValue(campi.numero)) {
        return false;
    }
    const Restituzione restituzione(kPostoSezionali);
    ado::Recordset& rs = RsCondivisi(kPostoSezionali);
    ApriScrivibile(rs, "select * from ivasezionale where Id=" + campi.numero, DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
    }
    ScriviColonne(kSenzaRegola, rs,
                  {{"id", campi.numero},
                   {"Descrizione", SenzaSpazi(campi.descrizione)},
                   {"AreaAttivita", SenzaSpazi(campi.areaAttivita)}});
    rs.Update();
    rs.Close();
    return true;
}

bool AggiungiSezionale(const CampiSezionale& campi, double chiave) {
    if (IsEmptyValue(campi.descrizione)) {
        platform::dialogs().message("Inserire la descrizione");
        return false;
    }
    if (IsEmptyValue(campi.numero)) {
        return false;
    }
    if (!platform::dialogs().question("Sei sicuro?")) {
        return true;
    }
    const Restituzione restituzione(kPostoSezionali);
    ado::Recordset& rs = RsCondivisi(kPostoSezionali);
    const Modello modello = LeggiModello(rs);
    ApriScrivibile(rs, "select * from IvaSezionale where idautonumber = " + ado::plainNumber(chiave), DbAzienda);
    if (rs.EOF()) {
        rs.AddNew();
    }
    ScriviSezionale(rs, campi, modello);
    AggiornaRecord(rs);
    ChiudiRecordset();
    return true;
}

bool CambiaLiquidazione(std::int32_t mesi) {
    if (!platform::dialogs().question("Sei sicuro")) {
        return false;
    }
    DbAzienda.Execute("Update ivasezionale set liquidazione = " + std::to_string(mesi));
    DbAzienda.Execute("Update contatorepd set liquidazione = " + std::to_string(mesi) +
                      " where id = " + ado::plainNumber(IdSede));
    ChiudiRecordset();
    return true;
}

bool AzzeraContatori(Registro registro, double chiave) {
    if (IsEmptyValue(chiave)) {
        platform::dialogs().message("Selezionare il Sezionale da annullare");
        return false;
    }
    const std::string sezionale = ado::plainNumber(chiave);
    if (!platform::dialogs().question("Azzero i contatori del Sezionale " + sezionale + "\nSei sicuro")) {
        return false;
    }
    const bool acquisti = registro == Registro::Acquisti;
    const Restituzione restituzione(kPostoSezionali);
    ado::Recordset& rs = RsCondivisi(kPostoSezionali);
    ApriScrivibile(rs, " select * from ivasezionale where id = " + sezionale, DbAzienda);
    if (!rs.EOF()) {
        rs.MoveFirst();
        rs[acquisti ? "UltimaDataAcquisti" : "UltimaDatavendite"] =
            FineAnno(rs[acquisti ? "UltimaDataAcquistir" : "UltimaDatavenditer"]);
        Azzera(kSenzaRegola, rs, acquisti ? kContatoriAcquisti : kContatoriVendite);
        AggiornaRecord(rs);
    }
    ChiudiRecordset();
    return true;
}

// Without a rule until the rows are open.
bool RiportaAnno() {
    if (!platform::dialogs().question("Azzero tutti i campi delle liquidazioni mensili,\nMemorizzo il riporto "
                                      "annuale,\nAzzero i contatori dei Registri Iva!\nSei sicuro")) {
        return false;
    }
    const Restituzione restituzione(kPostoSezionali);
    ado::Recordset& rs = RsCondivisi(kPostoSezionali);
    ApriScrivibile(rs, " select * from ivasezionale ", DbAzienda);
    for (bool altra = !rs.EOF(); altra; altra = riesce([&] { rs.MoveNext(); }) && !rs.EOF()) {
        RiportaRiga(rs);
    }
    ChiudiRecordset();
    return true;
}

bool EliminaSezionale(double chiave) {
    if (!Permesso(DirittiUtente.A_Cancella) || IsEmptyValue(chiave) ||
        !platform::dialogs().question("Sei sicuro di voler cancellare ?")) {
        return false;
    }
    const std::string sezionale = ado::plainNumber(chiave);
    const Restituzione restituzione(kPostoSezionali);
    ado::Recordset& rs = RsCondivisi(kPostoSezionali);
    rs.Open("Select * from partitadoppia where sezIva = " + sezionale, DbAzienda);
    if (rs.EOF()) {
        DbAzienda.Execute("delete from IvaSezionale where idautonumber = " + sezionale);
    } else {
        platform::dialogs().message("Il sezionale è stato usato, non è possibile cancellarlo");
    }
    ChiudiRecordset();
    return true;
}

} // namespace vabo
