#pragma once

#include "general_tables/AziendaAperta.h"

#include <QString>

#include <string>
#include <vector>

namespace vabo {

using Righe = std::vector<Riga>;
using Testi = std::vector<std::string>;

inline constexpr const char* kNulla = "NULL";

/// The payment terms of the first sample company. The form's lists go by name; keys are those of the sample.
class CondizioniAperte : public AziendaAperta {
protected:
    /// Everything of a term but its key, as the table has it: name, number of instalments, rule, advance, the twelve
    /// instalments separated by blanks, kind.
    Riga condizione(const std::string& dove) const {
        const Riga tutto = riga("select Descrizione, NRrate, IDDecorrenza, RataAnticipo, IdTipoRimessa, Scadenza1, "
                                "Scadenza2, Scadenza3, Scadenza4, Scadenza5, Scadenza6, Scadenza7, Scadenza8, "
                                "Scadenza9, Scadenza10, Scadenza11, Scadenza12 from CondizioniPagamento where " +
                                dove);
        std::string scadenze;
        for (std::size_t i = 5; i < tutto.size(); ++i) {
            scadenze += (i == 5 ? "" : " ") + tutto[i];
        }
        return {tutto[0], tutto[1], tutto[2], tutto[3], scadenze, tutto[4]};
    }
    Riga ultima() const { return condizione("IDPagamento = (select max(IDPagamento) from CondizioniPagamento)"); }
    /// Name, the four days and the three months.
    Riga regola(const std::string& dove) const {
        return riga("select Descrizione, GiornoScadenza, GiornoScadenza1, GiornoScadenza2, GiornoScadenza3, Mese1, "
                    "Mese2, Mese3 from CondizioniPagamentoDecorrenza where " +
                    dove);
    }
    Riga ultimaRegola() const {
        return regola("IDDecorrenza = (select max(IDDecorrenza) from CondizioniPagamentoDecorrenza)");
    }
    int quanti(const std::string& tabella) const { return std::stoi(valore("select count(*) from " + tabella)); }
    /// The rows written through a recordset. The table's name in them is the statement's or the catalog's, by driver,
    /// and so is the case of its columns.
    static Testi scritture(const support::StatementRecorder& recorder) {
        Testi testi;
        for (const std::string& testo : recorder.texts()) {
            if (testo.starts_with("UPDATE [") || testo.starts_with("INSERT INTO [")) {
                testi.push_back(testo);
            }
        }
        return testi;
    }
};

} // namespace vabo
