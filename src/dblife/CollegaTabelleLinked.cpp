#include "dblife/CollegaTabelleLinked.h"

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "kit/Testi.h"
#include "platform/Forms.h"
#include "platform/LinkCatalogs.h"
#include "platform/Workstation.h"
#include "session/ApriDbSede.h"
#include "state/variabili.h"

#include <QString>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace vabo {

namespace {

constexpr const char* kForm = "FormRefreshLinks";
constexpr const char* kPersonalizzate = "\\Tlv_personalizzate.mdb";
constexpr const char* kDatabaseLocale = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=";

/// Tables of the company's local file that keep their link. They are compared with names in small letters, so the
/// entry with capitals never counts.
constexpr std::array<std::string_view, 14> kEccezioni = {
    "dbo_fattura",   "dbo_TotaliIva",       "dbo_stampabolla",  "dbo_chiusura",    "dbo_utile",
    "dbo_ordine",    "dbo_piedeordine",     "dbo_bolla",        "dbo_offerta",     "dbo_piedebolla",
    "dbo_totaliiva", "dbo_scadenzefattura", "dbo_piedefattura", "dbo_piedeofferta"};

VistaCollegamenti* vistaPresente = nullptr;

template<typename Passo>
void ConVista(Passo&& passo) {
    if (vistaPresente != nullptr) {
        salta([&] { passo(*vistaPresente); });
    }
}

void AggiornaVista() {
    ConVista([](VistaCollegamenti& vista) { vista.Aggiorna(); });
}

/// The text of a link to the company. User and password come with their keys, so the key of the user stands twice.
std::string TestoCollegamento() {
    std::string testo = "ODBC;DATABASE=" + NomeDatabase;
    testo += ";UID=" + LeggiUtenteServer();
    testo += ";PWD=" + LeggiPasswordServer();
    testo += ";DSN=Tlv_server";
    return testo;
}

std::string NomeMostrato(const ado::Value& nome) {
    QString testo = QString::fromStdString(ado::toText(nome));
    testo.remove(QStringLiteral("dbo_"));
    return Maiuscolo(testo.toStdString());
}

bool EServer(const ado::Value& tipo) {
    const std::string testo = Pezzo(tipo);
    return testo == "LINK" || testo == "PASS-THROUGH";
}

void Collega(platform::CatalogTable& tabella, std::span<const std::string_view> eccezioni) {
    const auto eccettuata = [&] { return std::ranges::count(eccezioni, Minuscolo(Pezzo(tabella.Name()))) > 0; };
    if (!eccezioni.empty() && vera(eccettuata)) {
        return;
    }
    // A text that can't be read leaves the one before it, which then decides.
    salta([&] { Appoggio = ado::toText(tabella.ProviderString()); });
    if (ado::matches(Minuscolo(Appoggio), "*tlv_temp*")) {
        return;
    }
    salta([&] { tabella.setProviderString(TestoCollegamento()); });
    salta([&] { Appoggio = ado::toText(tabella.ProviderString()); });
}

void Mostra(platform::CatalogTable& tabella, double parte) {
    salta([&] { tabella.RefreshProperties(); });
    ConVista([&](VistaCollegamenti& vista) { vista.MostraTabella(NomeMostrato(tabella.Name())); });
    ConVista([&](VistaCollegamenti& vista) { vista.MostraParte(parte); });
    AggiornaVista();
}

void CollegaFile(const std::string& percorso, std::span<const std::string_view> eccezioni) {
    std::unique_ptr<platform::LinkCatalog> catalogo;
    salta([&] { catalogo = platform::linkCatalogs().open(kDatabaseLocale + percorso); });
    if (!catalogo || vera([&] { return IsEmptyValue(catalogo->Count()); })) {
        return;
    }
    salta([&] { catalogo->Refresh(); });
    std::vector<std::shared_ptr<platform::CatalogTable>> tabelle;
    salta([&] { tabelle = catalogo->Tables(); });
    double fatte = 0;
    for (const auto& tabella : tabelle) {
        ++fatte;
        if (vera([&] { return EServer(tabella->Type()); })) {
            Collega(*tabella, eccezioni);
            Mostra(*tabella, fatte / static_cast<double>(tabelle.size()));
        }
    }
}

} // namespace

VistaCollegamenti::VistaCollegamenti() {
    vistaPresente = this;
}

VistaCollegamenti::~VistaCollegamenti() {
    if (vistaPresente == this) {
        vistaPresente = nullptr;
    }
}

void CollegaTabelle() {
    salta([] { platform::formHost().show(kForm); });
    AggiornaVista();
    CollegaFile(PercorsoFileLocale, kEccezioni);
    CollegaTabellePersonalizzate();
    salta([] { platform::formHost().unload(kForm); });
}

void CollegaTabellePersonalizzate() {
    const std::string percorso = CartellaFile + kPersonalizzate;
    if (vera([&] { return !platform::workstation().driveC.isFile(percorso); })) {
        return;
    }
    CollegaFile(percorso, {});
    salta([] { platform::formHost().unload(kForm); });
}

} // namespace vabo
