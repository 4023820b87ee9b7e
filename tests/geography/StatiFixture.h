#pragma once

#include "geography/GrigliaForm.h"

namespace vabo {

/// The form of states.
class StatiForm : public GrigliaForm {
protected:
    StatiForm() : GrigliaForm("stati", "stati") { ado::setToday(ado::Date::of(2026, 6, 30)); }
    ~StatiForm() override { ado::setToday({}); }

    std::string area() const { return combo(); }
    /// Name, area, both dates and currency, as they stand on the screen.
    Riga campi() const {
        return {testo("DescStato"), area(), testo("DataIstituzioneStato"), testo("DataSoppressioneStato"),
                testo("IsoValuta")};
    }
    /// By the name, from wherever the focus is: leaving the currency or the date of end leads elsewhere.
    void ripartiDa(const std::string& nome) const {
        for (const char* tappa : {"DescStato", "DescStato", nome.c_str()}) {
            vaiA(tappa);
        }
    }
    /// From the name on, as the keyboard enters a state, up to the Enter that leaves the currency.
    void scrivi(const Riga& valori) const {
        vaiA("DescStato");
        for (const std::string& valore : valori) {
            campo(valore);
        }
    }

    /// Name, both dates, currency and area, as they stand in the table.
    Riga stato(const std::string& nome) const {
        return riga("select DescStato, DataIstituzioneStato, DataSoppressioneStato, IsoValuta, Area from stati where "
                    "DescStato = '" +
                    nome + "'");
    }
};

inline const Riga kStatoVuoto = {"Seleziona", "Seleziona", "", "", ""};
inline const Riga kKosovo = {"Repubblica del Kosovo", "Balcani", "170208", "", "EUR"};

inline constexpr const char* kNulla = "NULL";
inline constexpr const char* kStatoDoppio = "Stato con questo nome già inserito";

} // namespace vabo
