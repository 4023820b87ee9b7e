#pragma once

#include "controls/Form.h"

#include <functional>
#include <string>
#include <vector>

class RecordedForm;

/// What a test does in the events of a form.
struct FormEvents {
    std::function<void(RecordedForm&)> load{}, activate{}, unload{};
};

/// A form that records its events and runs the test's functions in them.
class RecordedForm : public controls::Form {
public:
    using Events = FormEvents;

    RecordedForm(const char* name, std::vector<std::string>& log, Events events = {})
        : Form(name), log_(log), events_(std::move(events)) {}
    ~RecordedForm() override { log_.push_back("deleted"); }

    using Form::chain;
    using Form::Hide;
    using Form::on;
    using Form::Refresh;
    using Form::setHelpContext;
    using Form::takeScreen;
    using Form::UnloadMe;

protected:
    void Load() override { happen("Load", events_.load); }
    void Activate() override { happen("Activate", events_.activate); }
    void Unload() override { happen("Unload", events_.unload); }

private:
    void happen(const char* event, const std::function<void(RecordedForm&)>& act) {
        log_.push_back(Name() + "." + event);
        if (act) {
            act(*this);
        }
    }

    std::vector<std::string>& log_;
    Events events_;
};
