#pragma once

#include "app/Forms.h"
#include "session/SessionFixture.h"
#include "support/AzzeraVariabili.h"
#include "support/Gui.h"

#include <string>
#include <vector>

/// The program's forms on the sample workstation, as after the start of the process.
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

    std::vector<std::string> log; ///< of recorded forms, which it outlives
    support::Gui gui;
};
