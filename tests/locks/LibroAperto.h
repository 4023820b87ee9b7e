#pragma once

#include "general_tables/AziendaAperta.h"
#include "locks/Avanzamento.h"
#include "locks/BloccoProgetto.h"
#include "locks/BloccoSede.h"
#include "locks/Modello.h"

#include <memory>
#include <string>
#include <vector>

namespace vabo {

/// Nobody looks.
class SenzaBarra : public Avanzamento {
public:
    void Porta(double /*parte*/) override {}
    void Comincia(long /*passi*/) override {}
    void Avanza() override {}
};

/// A sample company with a ledger of the test's own, in which any column may be null.
class LibroAperto : public AziendaAperta {
protected:
    static constexpr int kProgetto = 10000003, kAltroProgetto = 10000004;
    static constexpr int kSede = 4, kAltraSede = 5;
    static constexpr const char* kBilancio = "2023-12-31";

    LibroAperto() : lato(posto.engineSession(support::kCompany)) { scrivi(libro::kTabella); }

    void scrivi(const std::string& testo) const {
        const auto blocco = lato->execute(testo);
        while (blocco->nextResult()) {
        }
    }
    /// The ledger holds these rows and no other.
    void metti(const libro::Libro& righe) const {
        scrivi("delete from partitadoppia");
        if (!righe.empty()) {
            scrivi(libro::inserimento(righe));
        }
    }
    /// All rows of the ledger, every column.
    std::vector<std::string> letto() const { return lettura(libro::kSelezione); }
    std::vector<std::string> lettura(const std::string& testo) const {
        std::vector<std::string> righe;
        const auto blocco = lato->execute(testo);
        blocco->nextResult();
        const int colonne = static_cast<int>(blocco->columns().size());
        while (const engine::ResultRow* letta = blocco->nextRow()) {
            std::string& riga = righe.emplace_back();
            for (int i = 0; i < colonne; ++i) {
                riga += (i == 0 ? "" : "|") + (letta->isNull(i) ? "NULL" : std::string(letta->text(i)));
            }
        }
        return righe;
    }
    /// The accounts as the sample has them.
    static libro::Conti contiDelCampione() {
        return {.hq1 = 1166,
                .hq2 = 1167,
                .c1 = 1051,
                .c2 = 1058,
                .c5 = 1059,
                .c18 = 1060,
                .c19 = 1040,
                .c27 = 1250,
                .c29 = 1251};
    }
    static void bloccaProgetto(const std::string& data, int progetto = kProgetto) {
        SenzaBarra barra;
        AggiornaDataDefinitiva(progetto, data, barra);
    }
    static void bloccaSede(const std::string& data, int sede = kSede) {
        SenzaBarra barra;
        BloccaSede(sede, data, barra);
    }

    /// The accounts' groups are read by nine logins a lock and count for nothing: without them it takes a tenth.
    static void senzaGruppi() { StringaAzienda = "Provider=Nessuno;"; }

    std::unique_ptr<engine::Session> lato; ///< beside the program's own connections
};

} // namespace vabo
