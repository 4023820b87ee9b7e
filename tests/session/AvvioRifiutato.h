#pragma once

#include "session/ProgrammaRifiutato.h"

namespace vabo {

/// The first requests of the two halves of the start.
inline constexpr int kLoad = 1, kActivate = 26;

/// A temporary database that can't be opened is created again, which sets its options; all else is as usual.
inline constexpr const char* kConOpzioni = "silent; rows of company 2, language IT, program 1; list right; fields done";

class Avviato : public Programma {
public:
    Avviato() : Programma("Avvio") {}
};

/// The start up to the login, which is an empty form here. The outcomes are those of the requests from `primo` on.
inline support::Operation<Avviato> avvio(int primo, support::Lines una, support::Lines sempre) {
    return {.tables = {"vabodatiazienda.dbo.link_programmaTerminale", "VaBoDatiTemp.dbo.LinguaClient",
                       "VaBoDatiTemp.dbo.Version", "sources", "options"},
            .reach =
                [](Avviato& programma) {
                    programma.prepara();
                    programma.gui.forms().add("About", [] { return std::make_unique<controls::Form>("About"); });
                },
            .act = [](Avviato& programma) { programma.mostra("Avvio"); },
            .once = std::move(una),
            .fromThere = std::move(sempre),
            .first = primo,
            .toTheEnd = primo == kActivate};
}

} // namespace vabo
