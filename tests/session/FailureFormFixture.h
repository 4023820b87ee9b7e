#pragma once

#include "ado/Connection.h"
#include "session/FailureFixture.h"
#include "session/FormFixture.h"

#include <functional>
#include <string>

namespace vabo {

inline constexpr const char* kNotLoadable = "Non è possibile caricare il DataBase";

/// The program's forms with a server that can fail.
class FailureForm : public FormTest {
protected:
    /// As if the process started anew: only what is on the disk stays.
    void restart() {
        // In this order, since closing the form of the data sources opens the console.
        for (const char* form : {"FormRegistraAziendeNeiDns", "Avvio_Morlan", "Avvio_Azienda", "About", "Avvio"}) {
            if (gui.forms().isLoaded(form)) {
                gui.forms().unload(form);
            }
        }
        support::Gui::handleEvents();
        AzzeraVariabili();
    }
    /// How many statements `work` sends.
    static int sentDuring(const std::function<void()>& work) {
        int sent = 0;
        ado::setStatementRecorder([&](const std::string& /*text*/) { ++sent; });
        work();
        ado::setStatementRecorder({});
        return sent;
    }
    /// Ends the server when statement number `fatal`, counted from 1, is sent.
    void endAtStatement(int fatal, const std::function<void()>& work) {
        int sent = 0;
        ado::setStatementRecorder([&](const std::string& /*text*/) {
            if (++sent == fatal) {
                failing.fail(Failure::Ended);
            }
        });
        work();
        ado::setStatementRecorder({});
        ASSERT_GE(sent, fatal);
    }

    FailingServer failing{workstation};
};

} // namespace vabo
