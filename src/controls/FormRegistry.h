#pragma once

#include "controls/Form.h"
#include "platform/Forms.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace controls {

/// The forms by name: a single instance each, created on first use. Names are compared exactly.
class FormRegistry : public QObject, public platform::FormHost {
    Q_OBJECT
public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    FormRegistry();
    ~FormRegistry() override;

    void add(std::string name, Factory factory);
    /// The names of all forms, loaded or not.
    std::vector<std::string> names() const;

    bool show(std::string_view name) override;
    bool makeVisible(std::string_view name) override;
    void hide(std::string_view name) override;
    void unload(std::string_view name) override;
    bool isLoaded(std::string_view name) const override;
    void mark(std::string_view name, std::string_view word) override;

    /// The form of that name; null where it isn't loaded.
    Form* loaded(std::string_view name) const;
    /// The word that was noted for the form of that name, empty where there is none.
    std::string markOf(std::string_view name) const;
    /// The form that became active last and is still visible.
    Form* active() const { return active_; }

private:
    struct Gone {
        void operator()(Form* form) const;
    };
    using Holder = std::unique_ptr<Form, Gone>;

    Form* load(std::string_view name);
    void place(Form& form) const;
    void activate(Form& form);
    void followWindows();

    std::map<std::string, Factory, std::less<>> factories_;
    std::map<std::string, Holder, std::less<>> forms_;
    std::map<std::string, QByteArray, std::less<>> places_; ///< place and size of unloaded forms with takeScreen
    std::set<std::string, std::less<>> wantedAgain_;        ///< forms shown during their own Unload
    std::map<std::string, std::string, std::less<>> marks_;
    QPointer<Form> active_;
};

} // namespace controls
