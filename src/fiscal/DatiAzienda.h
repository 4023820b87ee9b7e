#pragma once

// The company's own row, without a screen.

#include <optional>
#include <string>

namespace vabo {

/// The fields of the company as they stand on the screen, and the three keys that belong to them.
struct CampiDatiAzienda {
    std::string nome, indirizzo;
    std::string comune; ///< the town of the list; empty where the text in the field isn't one of them
    std::string provincia, cap;
    double idStato = 0, idPagamento = 0, idIncasso = 0;
    std::string telefono, fax, posta, sito;
    std::string codiceFiscale, partitaIva;
    std::string cab, abi, cin, iban, bic, contoCorrente, intestatario, banca;
};

std::string ElencoAzienda();
std::string ElencoComuni();
std::string ElencoStatiPerNome();
/// The payment terms whose rule of commencement and kind of payment exist.
std::string ElencoCondizioniAzienda();

/// The description of a payment term; empty where it has none and where it can't be read.
std::string DescrizioneCondizione(double idPagamento);

/// The name of a state: its second column. None where there is no such state or it has no name. Raises.
std::optional<std::string> NomeStato(double idStato);

/// Writes the row, or the first one of an empty table. Most texts are left as they are where the field is empty, some
/// are emptied. The province is appended to the town as the row has it by then, so it grows with each save that writes
/// no town. Raises, and nothing is written then.
void SalvaAzienda(const CampiDatiAzienda& campi);

} // namespace vabo
