#include "controls/DataGrid.h"
#include "general_tables/Avvio_Morlan.h"
#include "kit/Riposiziona.h"
#include "ui_Avvio_Morlan.h"

#include <array>

namespace vabo {

namespace {

constexpr const char* kNomeDelCampo = nullptr;

using Colonna = controls::ColumnLayout;

constexpr std::array<Colonna, 9> kContiUtili = {{{0, kNomeDelCampo, 0},
                                                 {1, "Descrizione", 4000},
                                                 {2, "Conto", 3000},
                                                 {3, "Progetto", 700},
                                                 {4, kNomeDelCampo, 0},
                                                 {5, kNomeDelCampo, 0},
                                                 {6, kNomeDelCampo, 0},
                                                 {7, kNomeDelCampo, 0},
                                                 {8, "Piano dei conti", 4000}}};

constexpr std::array<Colonna, 7> kAltriConti = {{{0, kNomeDelCampo, 0},
                                                 {1, kNomeDelCampo, 4000},
                                                 {2, kNomeDelCampo, 0},
                                                 {3, kNomeDelCampo, 4000},
                                                 {4, kNomeDelCampo, 0},
                                                 {5, kNomeDelCampo, 0},
                                                 {6, kNomeDelCampo, 4000}}};

constexpr std::array<Colonna, 8> kContiIva = {{{0, kNomeDelCampo, 0},
                                               {1, "Descrizione", 1000},
                                               {2, "Conto", 2300},
                                               {3, "Progetto", 800},
                                               {4, kNomeDelCampo, 0},
                                               {5, kNomeDelCampo, 0},
                                               {6, kNomeDelCampo, 0},
                                               {7, "M.C.S/C", 2300}}};

constexpr std::array<Colonna, 8> kPersonale = {{{0, kNomeDelCampo, 0},
                                                {1, "Descrizione", 3500},
                                                {2, "Conto", 4500},
                                                {3, "Progetto", 0},
                                                {4, kNomeDelCampo, 0},
                                                {5, kNomeDelCampo, 0},
                                                {6, kNomeDelCampo, 0},
                                                {7, kNomeDelCampo, 4500}}};

} // namespace

// A grid ends one row below the chosen one: the position counts from 1, the move from the first row.

void Avvio_Morlan::ImpostaGrigliaContiUtili() {
    ui_->DataGrid2->lay(kContiUtili);
}

void Avvio_Morlan::ImpostaGrigliaAltriConti() {
    ui_->DataGrid4->lay(kAltriConti);
    Riposiziona(*ui_->tipo_anagrafica, PosizioneGriglia);
}

void Avvio_Morlan::ImpostaGrigliaContiIva() {
    ui_->DataGrid11->lay(kContiIva);
    Riposiziona(*ui_->ContiIva, PosizioneGriglia);
}

void Avvio_Morlan::ImpostaGrigliaPersonale() {
    ui_->DataGridPersonale->lay(kPersonale);
    Riposiziona(*ui_->elencoP, PosizioneGriglia);
}

} // namespace vabo
