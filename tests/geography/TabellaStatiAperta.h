#pragma once

#include "general_tables/AziendaAperta.h"
#include "geography/TabellaStati.h"

namespace vabo {

using Testi = std::vector<std::string>;

inline constexpr const char* kNulla = "NULL";

inline const CampiStato kKosovo = {.nome = "Repubblica del Kosovo",
                                   .area = "Balcani",
                                   .istituzione = "17/02/2008",
                                   .soppressione = "",
                                   .isoValuta = "EUR"};

/// The table of states of the first sample company.
class TabellaStatiAperta : public AziendaAperta {
protected:
    double chiave(const std::string& nome) const {
        return std::stod(valore("select IdStato from stati where DescStato = '" + nome + "'"));
    }
    /// Name, both dates, currency and area.
    Riga stato(const std::string& dove) const {
        return riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta, Area from stati where " +
                    dove);
    }
    Riga nuovo() const { return stato("IdStato = (select max(IdStato) from stati)"); }
    int quanti(const std::string& tabella) const { return std::stoi(valore("select count(*) from " + tabella)); }
};

} // namespace vabo
