#pragma once

#include "app/Forms.h"
#include "session/SessionFixture.h"
#include "support/AzzeraVariabili.h"
#include "support/Gui.h"

#include <string>
#include <vector>

/// The program's forms with the sample workstation, as at the start of the process.
class FormTest : public SessionTest {
protected:
    FormTest() {
        vabo::AzzeraVariabili();
        app::registerForms(gui.forms());
    }
    void noUsers(const std::string& database = support::kCompany) const {
        workstation.run(database, "delete from AbilitazioneAccessi");
    }
    std::string companyName(const std::string& database = support::kCompany) const {
        return controlValue("select NomeAzienda from link_programma where dbname = '" + database + "'");
    }

    std::vector<std::string> log; ///< of recorded forms; declared before them, so that it is destroyed later
    support::Gui gui;
};
