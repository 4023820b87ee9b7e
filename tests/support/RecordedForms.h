#pragma once

#include "platform/Forms.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// The form host while this object lives. It has no windows, but records the calls in order ("show About"). Every form
/// exists except those named to `miss`.
class RecordedForms : public platform::FormHost {
public:
    RecordedForms() { platform::setFormHost(this); }
    RecordedForms(const RecordedForms&) = delete;
    RecordedForms& operator=(const RecordedForms&) = delete;
    ~RecordedForms() override { platform::setFormHost(nullptr); }

    bool show(std::string_view name) override { return asked("show", name); }
    bool makeVisible(std::string_view name) override { return asked("makeVisible", name); }
    void hide(std::string_view name) override { asked("hide", name); }
    void unload(std::string_view name) override { asked("unload", name); }
    bool isLoaded(std::string_view /*name*/) const override { return false; }
    void mark(std::string_view name, std::string_view word) override {
        calls_.push_back("mark " + std::string(name) + " " + std::string(word));
    }

    void miss(const std::string& name) { missing_.insert(name); }
    const std::vector<std::string>& calls() const { return calls_; }
    void clear() { calls_.clear(); }

private:
    bool asked(std::string_view verb, std::string_view name) {
        calls_.push_back(std::string(verb) + " " + std::string(name));
        return !missing_.contains(std::string(name));
    }

    std::set<std::string> missing_;
    std::vector<std::string> calls_;
};

} // namespace support
