#pragma once

// The three rules of failure: skip the failing statement (salta, vera), show the error and end the process (oFine), or
// go on with a step of recovery (riesce). A procedure names its rule in its first lines; nothing else catches errors.

#include "platform/Process.h"

#include <exception>
#include <functional>
#include <string>

namespace vabo {

/// The error's own description, for the skipped log and for boxes.
std::string Descrizione(const std::exception& errore);

namespace regole {
void Saltato(const std::exception& errore); ///< logs to the category vabo.skipped, which is off by default
[[noreturn]] void Fine(const std::exception& errore);
} // namespace regole

/// A failing statement is skipped and the next one runs.
template<typename Istruzione>
void salta(Istruzione&& istruzione) {
    try {
        istruzione();
    } catch (const std::exception& errore) {
        regole::Saltato(errore);
    }
}

/// A failing test counts as true.
template<typename Prova>
bool vera(Prova&& prova) {
    try {
        return static_cast<bool>(prova());
    } catch (const std::exception& errore) {
        regole::Saltato(errore);
        return true;
    }
}

/// Whether a statement succeeded; where it failed the caller goes on with its step of recovery.
template<typename Istruzione>
bool riesce(Istruzione&& istruzione) {
    try {
        istruzione();
        return true;
    } catch (const std::exception& errore) {
        regole::Saltato(errore);
        return false;
    }
}

/// Arguments for a procedure that runs under its caller's rule: skip what fails, or let errors reach the caller.
inline constexpr auto kSaltando = [](auto&& istruzione) { salta(istruzione); };
inline constexpr auto kSenzaRegola = [](auto&& istruzione) { istruzione(); };

/// Shows an error's own description in a box and ends the process.
template<typename Procedura>
void oFine(Procedura&& procedura) {
    try {
        procedura();
    } catch (const std::exception& errore) {
        regole::Fine(errore);
    }
}

} // namespace vabo
