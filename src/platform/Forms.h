#pragma once

#include <string_view>

namespace platform {

/// What modules without widgets ask of the windows: forms are known by name alone.
class FormHost {
public:
    virtual ~FormHost() = default;
    /// Loads the form on first use and shows it. False when no form of that name is built.
    virtual bool show(std::string_view name) = 0;
    /// Makes it visible again, loading it where it was unloaded.
    virtual bool makeVisible(std::string_view name) = 0;
    virtual void hide(std::string_view name) = 0;
    virtual void unload(std::string_view name) = 0;
    virtual bool isLoaded(std::string_view name) const = 0;
};

FormHost& formHost();
void setFormHost(FormHost* host);

} // namespace platform
