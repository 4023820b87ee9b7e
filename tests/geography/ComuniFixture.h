#pragma once

#include "geography/GrigliaForm.h"
#include "support/SomebodyElse.h"

namespace vabo {

/// The form of municipalities.
class ComuniForm : public GrigliaForm {
protected:
    ComuniForm() : GrigliaForm("frmComuni", "frmcomuni") {}

    /// Opens the form and waits until it has read its states.
    void apri() {
        GrigliaForm::apri();
        support::Gui::waitFor("the states", [this] { return combo() == "Seleziona"; });
    }
    /// Name, province, postal code and state, as they stand on the screen.
    Riga campi() const { return {testo("DES_COMUNE"), testo("DES_PROVIN"), testo("COD_CAP"), combo()}; }
    void metti(const std::string& nome, const std::string& valore) const {
        pagina.control<controls::TextBox>(nome).setText(valore);
    }
    /// From the name on, as the keyboard enters a municipality, up to the Enter that leaves the state. An empty value
    /// is passed over.
    void scrivi(const Riga& valori) const {
        vaiA("DES_COMUNE");
        for (const std::string& valore : valori) {
            campo(valore);
        }
    }
    /// Name, province, postal code and the key of the state, as they stand in the table.
    Riga comune(const std::string& nome) const {
        Riga una =
            riga("select DES_COMUNE, DES_PROVIN, COD_CAP, IdStato from Comuni where DES_COMUNE = '" + nome + "'");
        una.resize(4); // where it is missing, too, which is a failure already
        return una;
    }
    std::string idStato(const std::string& nome) const {
        return valore("select IdStato from stati where DescStato = '" + nome + "'");
    }
    /// What the data layer sends for a new row, whatever it calls the table.
    static std::string conNomeDellaTabella(const std::string& testo) {
        return QString::fromStdString(testo).replace("[comuni]", "[Comuni]").toStdString();
    }
};

inline const Riga kComuneVuoto = {"", "", "", "Seleziona"};
inline constexpr const char* kComuneDoppio = "Comune con questo nome già inserito";

inline constexpr const char* kElencoComuni =
    "SELECT Comuni.idautonumber,Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, Stati.DescStato "
    "FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by descstato,des_comune";
inline constexpr const char* kElencoComuniRiletto =
    "SELECT Comuni.idautonumber, Comuni.DES_COMUNE, Comuni.DES_PROVIN, Comuni.COD_CAP, Stati.IdStato, Stati.DescStato "
    "FROM Comuni LEFT JOIN Stati ON Comuni.IdStato = Stati.IdStato order by descstato,des_comune";
inline constexpr const char* kElencoStati = "SELECT * FROM stati order by descstato";

} // namespace vabo
