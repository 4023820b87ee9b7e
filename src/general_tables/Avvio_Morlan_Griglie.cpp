#include "controls/DataGrid.h"
#include "general_tables/Avvio_Morlan.h"
#include "kit/IsEmptyValue.h"
#include "kit/Regole.h"
#include "ui_Avvio_Morlan.h"

#include <initializer_list>

namespace vabo {

namespace {

/// A column's caption, where it doesn't keep its field's name, and its width in twips; of width 0 it isn't seen.
struct Colonna {
    int numero;
    const char* didascalia;
    int larghezza;
};
constexpr const char* kNomeDelCampo = nullptr;

void Imposta(controls::DataGrid& griglia, std::initializer_list<Colonna> colonne) {
    for (int numero = 0; numero < griglia.ColumnCount(); ++numero) {
        griglia.Columns(numero).setLocked(true);
    }
    for (const Colonna& colonna : colonne) {
        controls::DataGrid::Column vista = griglia.Columns(colonna.numero);
        if (colonna.didascalia != kNomeDelCampo) {
            vista.setCaption(colonna.didascalia);
        }
        vista.setWidth(colonna.larghezza);
    }
}

// The position counts from 1 and the move from the first row: the grid comes to stand one row below the chosen one.
void Avanza(controls::DataControl& dati, long posizione) {
    if (!IsEmptyValue(static_cast<double>(posizione))) {
        salta([&] { dati.Recordset().Move(posizione); });
    }
}

} // namespace

void Avvio_Morlan::ImpostaGrigliaContiUtili() {
    Imposta(*ui_->DataGrid2, {{0, kNomeDelCampo, 0},
                              {1, "Descrizione", 4000},
                              {2, "Conto", 3000},
                              {3, "Progetto", 700},
                              {4, kNomeDelCampo, 0},
                              {5, kNomeDelCampo, 0},
                              {6, kNomeDelCampo, 0},
                              {7, kNomeDelCampo, 0},
                              {8, "Piano dei conti", 4000}});
}

void Avvio_Morlan::ImpostaGrigliaAltriConti() {
    Imposta(*ui_->DataGrid4, {{0, kNomeDelCampo, 0},
                              {1, kNomeDelCampo, 4000},
                              {2, kNomeDelCampo, 0},
                              {3, kNomeDelCampo, 4000},
                              {4, kNomeDelCampo, 0},
                              {5, kNomeDelCampo, 0},
                              {6, kNomeDelCampo, 4000}});
    Avanza(*ui_->tipo_anagrafica, PosizioneGriglia);
}

void Avvio_Morlan::ImpostaGrigliaContiIva() {
    Imposta(*ui_->DataGrid11, {{0, kNomeDelCampo, 0},
                               {1, "Descrizione", 1000},
                               {2, "Conto", 2300},
                               {3, "Progetto", 800},
                               {4, kNomeDelCampo, 0},
                               {5, kNomeDelCampo, 0},
                               {6, kNomeDelCampo, 0},
                               {7, "M.C.S/C", 2300}});
    Avanza(*ui_->ContiIva, PosizioneGriglia);
}

void Avvio_Morlan::ImpostaGrigliaPersonale() {
    Imposta(*ui_->DataGridPersonale, {{0, kNomeDelCampo, 0},
                                      {1, "Descrizione", 3500},
                                      {2, "Conto", 4500},
                                      {3, "Progetto", 0},
                                      {4, kNomeDelCampo, 0},
                                      {5, kNomeDelCampo, 0},
                                      {6, kNomeDelCampo, 0},
                                      {7, kNomeDelCampo, 4500}});
    Avanza(*ui_->elencoP, PosizioneGriglia);
}

} // namespace vabo
