#include "payment_terms/Didascalie.h"

#include <algorithm>

namespace vabo {

namespace {

constexpr std::array kCodici = {"IT", "EN", "ES", "PO", "FR"};

constexpr Testi5 kCondizioni = {"Condizioni di pagamento", "Terms of payment", "Condiciones de pago",
                                "Termos de pagamento", "Conditions de paiement"};
constexpr Testi5 kDescrizione = {"Descrizione:", "Description:", "Descripción:", "Descrição:", "Description:"};
constexpr Testi5 kScadenze = {"Scadenze", "Dead-dates", "Fechas límite", "Expiraçãos", "Délais"};
constexpr Testi5 kEscluso = {"Escluso", "Excluding", "Excluyendo", "Excluindo", "Exclusion"};

constexpr std::array<Didascalia, 8> kEtichetteCondizioni = {
    {{"Label21", kCondizioni},
     {"DataGrid1Didascalia", kCondizioni},
     {"DescrizioneEtichetta", kDescrizione},
     {"Etichetta43", {"Tipo rimessa", "Kind of Payment", "Tipo de pago", "Tipo pagamento", "Type paiement"}},
     {"IDDecorrenzaEtichetta",
      {"Decorrenza - Dbl Click per modificare", "Commencement - Dbl Click to change",
       "Comienzo - DBL Haga clic para cambiar", "Início - DBL Clique para editar",
       "Début - DBL Cliquez pour modifier"}},
     {"Label1", {"Rata Anticipata", "Advanced Installment", "Cuota Avanzada", "Rata precoce", "Rata précoce"}},
     {"NRrateEtichetta", {"Numero rate", "Total Payments", "Pagos totales", "Total pagamentos", "Total des paiements"}},
     {"Scadenza1Etichetta", kScadenze}}};

// The kind's key and the rule's name.
constexpr std::array<Intestazione, 2> kColonneCondizioni = {
    {{18, {"Tipo Pagamento", "Payment Kind", "Tipo de Pago", "Tipo de pagamento", "Type de paiement"}},
     {4, kScadenze}}};

constexpr std::array<Didascalia, 4> kEtichetteDecorrenze = {
    {{"DescrizioneEtichetta", kDescrizione},
     {"Etichetta4", {"Giorno Scadenza:", "Exp. Date:", "Fecha caducidad:", "Dia Prazo:", "Jour Date limite:"}},
     {"Label1", {"Mesi esclusi", "Months excluded", "Meses excluidos", "Meses excluídos", "Mois exclus"}},
     {"Label21",
      {"Decorrenze Condizioni di pagamento", "Occurrences Payment Terms", "Citas Condiciones de pago",
       "Ocorrências condições de pagamento", "Occurrences conditions de paiement"}}}};

constexpr std::array<Intestazione, 4> kColonneDecorrenze = {
    {{1, kScadenze}, {6, kEscluso}, {7, kEscluso}, {8, kEscluso}}};

} // namespace

const std::span<const Didascalia> kDidascalieCondizioni = kEtichetteCondizioni;
const std::span<const Didascalia> kDidascalieDecorrenze = kEtichetteDecorrenze;
const std::span<const Intestazione> kIntestazioniCondizioni = kColonneCondizioni;
const std::span<const Intestazione> kIntestazioniDecorrenze = kColonneDecorrenze;

Lingua LinguaDi(const std::string& codice) {
    const auto* trovato = std::find(kCodici.begin(), kCodici.end(), codice);
    return trovato == kCodici.end() ? Lingua::IT : static_cast<Lingua>(trovato - kCodici.begin());
}

const char* Nella(Lingua lingua, const Testi5& testi) {
    return testi[static_cast<std::size_t>(lingua)];
}

} // namespace vabo
