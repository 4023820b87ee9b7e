#pragma once

#include "controls/Form.h"
#include "general_tables/ContropartitePaga.h"

#include <memory>

namespace controls {
class Picker;
}
namespace Ui {
class TabelleBustePaga;
}

namespace vabo {

/// The accounts of pay slips: a grid of the types of subject, and nine pickers with the accounts of one of them. One
/// button stores them all.
class TabelleBustePaga : public controls::Form {
    Q_OBJECT
public:
    TabelleBustePaga();
    ~TabelleBustePaga() override;

protected:
    void Load() override;
    void Unload() override;

private:
    void CollegaSelettori();
    void AggiornaElenco();
    void LeggiRiga();
    void SalvaContropartite();
    double& ContoLetto(std::size_t indice);

    std::unique_ptr<Ui::TabelleBustePaga> ui_;
    std::array<controls::Picker*, kContropartite.size()> selettori_{};

    // Nothing clears these when another row is read.
    double idTipo_ = 0; ///< of the row read last
    /// The accounts that a save writes, as read with the row or picked after it. The last two are only picked.
    ContiPaga conti_{};
    /// The last two as read, which are only shown.
    std::array<double, kContropartite.size() - kLetteDoveScritte> mostrati_{};
};

} // namespace vabo
