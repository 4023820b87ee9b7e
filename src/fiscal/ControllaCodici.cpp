#include "fiscal/ControllaCodici.h"

#include "kit/IsEmptyValue.h"
#include "platform/Dialogs.h"

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace vabo {

namespace {

constexpr qsizetype kPosizioniCodice = 16;
constexpr qsizetype kPosizioniPartita = 11;
constexpr std::size_t kLettere = 26;

constexpr std::u16string_view kAlfabeto = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
/// Of the letters; a digit in an odd position has the value of the letter at its place, 0 that of A.
constexpr std::array<std::size_t, kLettere> kValoriDispari = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                                              20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};

bool IsLetteraMaiuscola(QChar carattere) {
    return carattere >= 'A' && carattere <= 'Z';
}

/// The value of a character of the fiscal code; none for one that isn't in the alphabet, and past the end of the code.
/// Positions count from 1.
std::optional<std::size_t> Valore(const QString& codice, qsizetype posizione) {
    if (posizione > codice.size()) {
        return std::nullopt;
    }
    const std::size_t indice = kAlfabeto.find(codice[posizione - 1].unicode());
    if (indice == std::u16string_view::npos) {
        return std::nullopt;
    }
    const std::size_t posto = indice % kLettere;
    return posizione % 2 == 0 ? posto : kValoriDispari[posto];
}

Flag EsitoCodice(const QString& codice) {
    std::size_t somma = 0;
    for (qsizetype posizione = 1; posizione < kPosizioniCodice; ++posizione) {
        const std::optional<std::size_t> valore = Valore(codice, posizione);
        if (!valore) {
            return kFalso;
        }
        somma += *valore;
    }
    const QChar atteso = kAlfabeto[somma % kLettere];
    return codice.mid(kPosizioniCodice - 1, 1) == atteso ? kVero : kFalso;
}

/// A digit's number; none for any other character.
std::optional<int> Cifra(QChar carattere) {
    return carattere >= '0' && carattere <= '9' ? std::optional(carattere.unicode() - '0') : std::nullopt;
}

/// `partita` has eleven characters.
Flag EsitoPartita(const QString& partita) {
    int somma = 0;
    for (qsizetype posizione = 1; posizione < kPosizioniPartita; ++posizione) {
        const int cifra = Cifra(partita[posizione - 1]).value_or(0);
        const int doppio = 2 * cifra;
        somma += posizione % 2 == 0 ? doppio / 10 + doppio % 10 : cifra;
    }
    const int controllo = (10 - somma % 10) % 10;
    return Cifra(partita[kPosizioniPartita - 1]) == controllo ? kVero : kFalso;
}

void Avvisa(Flag esito) {
    if (esito != kVero) {
        platform::dialogs().message("Codice fiscale formalmente ERRATO");
    }
}

} // namespace

void ControllaCodiceFiscale(const std::string& codice, Flag& esito) {
    if (IsEmptyValue(codice)) {
        return;
    }
    const QString caratteri = QString::fromStdString(codice);
    const QString posizioni = caratteri.left(kPosizioniCodice);
    if (std::none_of(posizioni.begin(), posizioni.end(), IsLetteraMaiuscola)) {
        if (caratteri.size() != kPosizioniPartita) {
            Avvisa(esito);
            return;
        }
        // A VAT number is checked as one and then, for want of a twelfth character, refused all the same.
        std::string partita = codice;
        ControllaPartitaIva(partita, esito);
    }
    esito = EsitoCodice(caratteri);
    Avvisa(esito);
}

void ControllaPartitaIva(std::string& codice, Flag& esito) {
    if (IsEmptyValue(codice)) {
        return;
    }
    QString caratteri = QString::fromStdString(codice);
    if (caratteri.size() < kPosizioniPartita) {
        caratteri = caratteri.rightJustified(kPosizioniPartita, '0');
        codice = caratteri.toStdString();
    }
    const QString partita = caratteri.left(kPosizioniPartita);
    // Letters, and all that sorts behind A, are refused here; other characters count as 0.
    if (std::all_of(partita.begin(), partita.end(), [](QChar carattere) { return carattere < 'A'; })) {
        esito = EsitoPartita(partita);
    }
    Avvisa(esito);
}

} // namespace vabo
