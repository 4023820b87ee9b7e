#pragma once

// The three rules of failure: skip the statement (salta, vera), tell and end (oFine), go to a step of recovery
// (riesce). A procedure names its rule in its first lines; nothing else catches.

#include "platform/Process.h"

#include <exception>
#include <functional>
#include <string>

namespace vabo {

/// The error's own description, for the skipped log and for boxes.
std::string Descrizione(const std::exception& errore);

namespace regole {
void Saltato(const std::exception& errore); ///< tells the logging category vabo.skipped
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

/// Whether a statement went well; where it failed the caller goes to its step of recovery.
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

/// For a procedure that runs under the rule of its caller: skip what fails, or let it rise.
inline constexpr auto kSaltando = [](auto&& istruzione) { salta(istruzione); };
inline constexpr auto kSenzaRegola = [](auto&& istruzione) { istruzione(); };

/// The error's own description in a box, then the end of the process.
template<typename Procedura>
void oFine(Procedura&& procedura) {
    try {
        procedura();
    } catch (const std::exception& errore) {
        regole::Fine(errore);
    }
}

} // namespace vabo
