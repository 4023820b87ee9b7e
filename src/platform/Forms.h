#pragma once

#include <string_view>

namespace platform {

/// What modules without widgets do with forms, which they know by name only.
class FormHost {
public:
    virtual ~FormHost() = default;
    /// Loads the form on first use and shows it. False where there is no form of that name.
    virtual bool show(std::string_view name) = 0;
    /// Shows the form again; loads it where it was unloaded.
    virtual bool makeVisible(std::string_view name) = 0;
    virtual void hide(std::string_view name) = 0;
    virtual void unload(std::string_view name) = 0;
    virtual bool isLoaded(std::string_view name) const = 0;
    /// Notes a word for the form, loaded or not, by which it may know who asks for it. It stays until the next one.
    virtual void mark(std::string_view name, std::string_view word) = 0;
};

FormHost& formHost();
void setFormHost(FormHost* host);

} // namespace platform
