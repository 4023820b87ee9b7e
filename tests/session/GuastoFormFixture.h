#pragma once

#include "ado/Connection.h"
#include "session/FormFixture.h"
#include "session/GuastoFixture.h"

#include <functional>
#include <string>

namespace vabo {

inline constexpr const char* kNonCaricabile = "Non è possibile caricare il DataBase";

/// The program's forms with a server that can fail.
class GuastoForm : public FormTest {
protected:
    /// As if the process started anew: only what is on the disk stays.
    void ricomincia() {
        // In this order, since closing the form of the data sources opens the console.
        for (const char* form : {"FormRegistraAziendeNeiDns", "Avvio_Morlan", "Avvio_Azienda", "About", "Avvio"}) {
            if (gui.forms().isLoaded(form)) {
                gui.forms().unload(form);
            }
        }
        support::Gui::handleEvents();
        AzzeraVariabili();
    }
    /// How many statements `lavoro` sends.
    static int inviateDurante(const std::function<void()>& lavoro) {
        int inviate = 0;
        ado::setStatementRecorder([&](const std::string& /*testo*/) { ++inviate; });
        lavoro();
        ado::setStatementRecorder({});
        return inviate;
    }
    /// Ends the server when statement number `fatale`, counted from 1, is sent.
    void spegniAllIstruzione(int fatale, const std::function<void()>& lavoro) {
        int inviate = 0;
        ado::setStatementRecorder([&](const std::string& /*testo*/) {
            if (++inviate == fatale) {
                guasto.avviene(Guasto::Spento);
            }
        });
        lavoro();
        ado::setStatementRecorder({});
        ASSERT_GE(inviate, fatale);
    }

    ServerGuasto guasto{workstation};
};

} // namespace vabo
