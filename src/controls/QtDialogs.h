#pragma once

#include "platform/Dialogs.h"

namespace controls {

/// The boxes as windows, above the active form. Their buttons are Italian; their texts are shown as they are.
class QtDialogs : public platform::Dialogs {
public:
    void message(const std::string& text, platform::Icon icon) override;
    bool question(const std::string& text) override;
    bool confirm(const std::string& text) override;
    std::string input(const std::string& prompt, const std::string& title, const std::string& proposed) override;
    /// Only folders of drive C can be picked.
    std::string folder(const std::string& title) override;
};

} // namespace controls
