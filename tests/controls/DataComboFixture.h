#pragma once

#include "DataFixture.h"
#include "RecordedForm.h"
#include "controls/DataCombo.h"
#include "support/Gui.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A form with a combo over the fruits and a field after it.
class DataComboFixture : public DataFixture {
protected:
    /// Shows the form, whose combo `connect` has connected, with the focus in the combo.
    void open(const std::function<void(RecordedForm&, controls::DataCombo&)>& connect) {
        gui.forms().add("F", [this, connect] {
            auto form = std::make_unique<RecordedForm>("F", log);
            auto* layout = new QVBoxLayout(form.get());
            auto* list = new controls::DataCombo;
            auto* field = new QLineEdit;
            list->setObjectName("combo");
            field->setObjectName("field");
            list->ListField = "NOME";
            list->BoundColumn = "id";
            list->setRowSource(&source);
            layout->addWidget(list);
            layout->addWidget(field);
            connect(*form, *list);
            return form;
        });
        source.Refresh();
        gui.forms().show("F");
        gui.waitForFront("F");
        combo().ReFill();
        combo().setFocus();
    }
    controls::DataCombo& combo() { return gui.find<controls::DataCombo>("F", "combo"); }

    /// Types, and returns the search list that opens.
    QAbstractItemView& search(const std::string& letters) {
        gui.type(letters);
        QAbstractItemView* found = combo().completer()->popup();
        support::Gui::waitFor("the search", [&] { return found->isVisible(); });
        return *found;
    }

    std::vector<std::string> log;
    support::Gui gui;
};
