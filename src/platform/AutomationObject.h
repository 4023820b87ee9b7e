#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct IDispatch;

namespace platform {

/// An object of another application, whose members are called by their names. Only on Windows.
/// What fails raises ado::Error: 429 where no such object can be made, 438 for an unknown member, else the number and
/// the words of the application.
class AutomationObject {
public:
    using Argument = std::variant<bool, int, std::string>;

    /// Whether there is a library of objects of that name that this process can load: one that is registered may be for
    /// processes of another kind.
    static bool isLibrary(const std::string& progId);

    /// Starts an application.
    explicit AutomationObject(const std::string& progId);

    void call(const std::string& member, const std::vector<Argument>& arguments = {}) const;
    void put(const std::string& property, const Argument& value) const;
    void put(const std::string& property, const AutomationObject& value) const;
    /// A property, or its part at an index, that is an object itself. Throws 424 where it is none.
    AutomationObject object(const std::string& property, const std::vector<Argument>& index = {}) const;
    int number(const std::string& property) const;
    /// Nothing where the property is null or empty.
    std::optional<std::string> text(const std::string& property) const;

private:
    struct Release {
        void operator()(IDispatch* object) const;
    };
    explicit AutomationObject(IDispatch* object) : object_(object) {}

    std::unique_ptr<IDispatch, Release> object_;
};

} // namespace platform
