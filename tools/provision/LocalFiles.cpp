#include "provision/LocalFiles.h"

#include "ado/LinkFile.h"
#include "provision/Companies.h"
#include "provision/Folders.h"

#include <array>
#include <span>
#include <string_view>

namespace provision {

namespace {

constexpr std::string_view kLink = "LINK";
constexpr std::string_view kPassThrough = "PASS-THROUGH";
constexpr std::string_view kOfExample = "ODBC;DATABASE=VaBoDati;UID=UID=sa;PWD=;DSN=Tlv_server";
constexpr std::string_view kTemporary = "ODBC;DATABASE=VaBoDatiTemp;UID=;PWD=;DSN=Tlv_Temp";

struct Table {
    std::string_view type, name, provider; ///< no provider: a table of the file itself
};

constexpr Table link(std::string_view name) {
    return {kLink, name, kOfExample};
}

constexpr std::array kOfCompany = {
    Table{"SYSTEM TABLE", "MSysObjects", {}},
    Table{"SYSTEM TABLE", "MSysQueries", {}},
    Table{"TABLE", "opzioni_stampa", {}},
    Table{"TABLE", "dbo_lavoro_bilancio", {}},
    Table{"VIEW", "elenco_conti", {}},
    link("dbo_AbilitazioneAccessi"),
    link("dbo_bustetabellacontiutili"),
    link("dbo_Comuni"),
    link("dbo_CondizioniPagamento"),
    link("dbo_CondizioniPagamentoDecorrenza"),
    link("dbo_CondizioniPagamentoTipoIncasso"),
    link("dbo_contatorepd"),
    link("dbo_conti"),
    link("dbo_DatiAzienda"),
    link("dbo_datiGenerali"),
    link("dbo_ElencoSedi"),
    link("dbo_gruppivabo"),
    link("dbo_IvaAliquotaStandard"),
    link("dbo_IvaSezionale"),
    link("dbo_ivaTabellaContiUtili"),
    link("dbo_IvaTrattamento"),
    link("dbo_partitadoppia"),
    link("dbo_progetti"),
    link("dbo_Sede"),
    link("dbo_stati"),
    link("dbo_TabellaContiUtili"),
    link("dbo_TabellaUilityConti"),
    link("dbo_tipoanagrafica"),
    link("dbo_TipoAnagraficaCPartite"),
    link("dbo_ZoneGeografiche"),
    // The documents' tables: the accounting program sets these links itself.
    link("dbo_Fattura"),
    link("dbo_PiedeFattura"),
    link("dbo_ScadenzeFattura"),
    link("dbo_TotaliIva"),
    link("dbo_Ordine"),
    link("dbo_PiedeOrdine"),
    link("dbo_Bolla"),
    link("dbo_PiedeBolla"),
    link("dbo_StampaBolla"),
    link("dbo_Offerta"),
    link("dbo_PiedeOfferta"),
    link("dbo_Chiusura"),
    link("dbo_Utile"),
    Table{kPassThrough, "saldi_per_conto", kOfExample},
    Table{kPassThrough, "saldi_per_sede", kOfExample},
    Table{kPassThrough, "dbo_bilancio_di_verifica", kOfExample},
    Table{kLink, "dbo_LinguaClient", kTemporary},
    Table{kLink, "dbo_Version", kTemporary},
    Table{kPassThrough, "stampa_corrente", kTemporary},
};

constexpr std::array kOfReports = {
    Table{"TABLE", "miei_modelli", {}},
    link("dbo_conti"),
    link("dbo_partitadoppia"),
    link("dbo_Fattura"),
    Table{kPassThrough, "donatori_per_anno", kOfExample},
    Table{kLink, "dbo_LinguaClient", kTemporary},
};

std::string inFiles(std::string_view name) {
    return std::string(folders::kFiles) + "\\" + std::string(name);
}

std::string reports() {
    return inFiles("Tlv_personalizzate.mdb");
}

void make(const std::filesystem::path& path, std::span<const Table> tables) {
    ado::LinkFile file = ado::LinkFile::create(path);
    for (const Table& table : tables) {
        const ado::Value provider = table.provider.empty() ? ado::Value(ado::Null{}) : ado::Value(table.provider);
        file.add(table.type, table.name, provider);
    }
}

} // namespace

std::vector<std::string> localFiles() {
    std::vector<std::string> all;
    for (const Company& company : companies()) {
        all.push_back(inFiles(company.localFile));
    }
    all.push_back(reports());
    return all;
}

void makeLocalFiles(const platform::DriveC& drive) {
    for (const Company& company : companies()) {
        make(drive.real(inFiles(company.localFile)), kOfCompany);
    }
    make(drive.real(reports()), kOfReports);
}

} // namespace provision
