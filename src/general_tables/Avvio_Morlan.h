#pragma once

#include "controls/Form.h"
#include "general_tables/CaricaOpzioni.h"
#include "general_tables/SalvaConti.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace controls {
class CheckBox;
class DataCombo;
class DataGrid;
class Picker;
} // namespace controls
namespace Ui {
class Avvio_Morlan;
}

namespace vabo {

/// The general tables console: on six tabs the settings of a company database that the accounting program reads, and
/// buttons that open the other forms. Every click writes to the database at once; there is no saving and no undo.
class Avvio_Morlan : public controls::Form {
    Q_OBJECT
public:
    Avvio_Morlan();
    ~Avvio_Morlan() override;

protected:
    void Load() override;
    void Unload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// One of the four pickers of accounts. A pick in its list or Enter stores, Delete clears the account, Esc ends the
    /// change of the row that was chosen in the grid.
    struct Selettore {
        controls::Picker* conto;
        controls::DataGrid* griglia;
        QWidget* cornice; ///< visible only while a row is changed; null where there is no such frame
        double* riga;
        std::function<void(OrdineFatture)> salva;
    };

    // Frame and load
    void CollegaComandi();
    void MostraNomeDatabase();
    void CaricaOpzioni();

    // The boxes
    void CollegaCaselle();
    controls::CheckBox& Casella(std::string_view nome) const;
    void ScriviCasella(const Opzione& opzione);
    void TogliSpunta(controls::CheckBox& box);
    MostraCasella Mostra(std::string_view casella) const;
    void CaricaTassiEBadge();

    // The grids' layouts
    void ImpostaGrigliaContiUtili();
    void ImpostaGrigliaAltriConti();
    void ImpostaGrigliaContiIva();
    void ImpostaGrigliaPersonale();

    // The accounts
    void CollegaConti();
    void LasciaRiga(const Selettore& selettore);
    void CaricaContiUtili();
    void ScegliContoUtile();
    void SalvaUtile();
    void CaricaAltriConti();
    void MostraTabella(const char* etichetta);
    void GiraTabella();
    void ScegliAltroConto();
    void ProvaESalvaAltro();
    void SalvaAltro();
    void CaricaContiIva();
    void ScegliContoFattura();
    void MostraContoFattura(controls::DataGrid& griglia, controls::DataCombo& combo);
    void SalvaFattura(OrdineFatture ordine);
    void CaricaPersonale();
    void ScegliContoPersonale();
    void SalvaPersonale();

    // The standard VAT treatment
    using Regola = std::function<void(const std::function<void()>&)>;
    void CollegaTrattamento();
    void MostraTrattamento(const Regola& regola);
    void CaricaTrattamento();
    void ScegliTrattamento();
    std::vector<std::string> TestiTrattamento() const;
    void RimettiTrattamento();

    std::unique_ptr<Ui::Avvio_Morlan> ui_;
    std::vector<Selettore> selettori_;
    controls::Picker* contoUtile_ = nullptr;
    controls::Picker* altroConto_ = nullptr;
    controls::Picker* contoFattura_ = nullptr;
    controls::Picker* contoPersonale_ = nullptr;
    controls::Picker* trattamento_ = nullptr;

    std::map<const controls::CheckBox*, int> mostrate_; ///< the boxes as last stored or read
    bool daCodice_ = false;                             ///< a box is being set by code, not by the user
    std::vector<std::string> trattamentoMostrato_;      ///< as last stored or read

    double IdRiga = 0; ///< shared by the tabs 1, 2 and 5
    double IdContoUtile = 0;
    double IdContoAltri = 0;
    double IdContoFattura = 0; ///< shared by the tabs 4 and 5
    double IdRigaFattura = 0;
    int TabellaCorrente = 0;   ///< which table tab 2 shows, 0 to 3
    long PosizioneGriglia = 0; ///< of the chosen row in its grid, counted from 1
    double IdTrattamentoStandard = 0;
};

} // namespace vabo
