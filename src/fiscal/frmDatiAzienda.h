#pragma once

#include "controls/Form.h"
#include "state/variabili.h"

#include <memory>

namespace Ui {
class frmDatiAzienda;
}

namespace controls {
class DataCombo;
class TextBox;
} // namespace controls

namespace vabo {

struct CampiDatiAzienda;

/// The company's own data: one row, read when the form is loaded and stored by the button that also closes it. The town
/// fills the rest of the address, and the tax codes are checked when their fields are left.
class frmDatiAzienda : public controls::Form {
    Q_OBJECT
public:
    frmDatiAzienda();
    ~frmDatiAzienda() override;

protected:
    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    void CollegaOrdine();
    void CollegaElenchi();
    void CollegaCondizione(controls::DataCombo& combo, double& chiave, QWidget& successivo);
    void CollegaCodici();

    ado::Value Valore(const char* colonna) const;
    void MostraRecord();
    void MostraTesti();
    void MostraStato();
    static void MostraCondizione(controls::DataCombo& combo, double chiave);
    void PulisciCampi();
    CampiDatiAzienda Campi() const;
    void SalvaRecord();
    void RifiutaSenza(const char* avviso, QWidget& campo);

    static void LasciaCondizione(controls::DataCombo& combo, double chiave, QWidget& successivo);
    static void LasciaNumero(const controls::TextBox& campo, QWidget& successivo);
    void LasciaIntestatario();
    void ScegliFraIComuni();
    void LasciaComune();
    void ApriComuni();
    void ApriCondizioni();

    std::unique_ptr<Ui::frmDatiAzienda> ui_;
    double IdStato = 0; ///< 0 where none is set
    double IDPagamento = 0, IdIncasso = 0;
    Flag CampoMancante = kFalso;   ///< whether a save stopped for a field that is missing
    bool CondizioniAperte = false; ///< whether the form is to read the payment terms again
};

} // namespace vabo
