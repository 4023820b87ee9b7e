#include "ado/Error.h"
#include "platform/Automation.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class OneForm : public platform::FormHost {
public:
    bool show(std::string_view name) override { return name == "stati"; }
    bool makeVisible(std::string_view name) override { return name == "stati"; }
    void hide(std::string_view /*name*/) override {}
    void unload(std::string_view /*name*/) override {}
    bool isLoaded(std::string_view /*name*/) const override { return false; }
    void mark(std::string_view /*name*/, std::string_view /*word*/) override {}
};

class NullAutomation : public platform::Automation {
public:
    std::unique_ptr<platform::ReportApplication> createObject(const std::string& /*progId*/) override {
        return nullptr;
    }
};

} // namespace

TEST(Dialogs, RefuseToBeAskedBeforeThereAreAny) {
    EXPECT_THROW(platform::dialogs(), std::logic_error);
}

TEST(FormHost, RefusesToBeAskedBeforeThereIsOne) {
    EXPECT_THROW(platform::formHost(), std::logic_error);
    OneForm host;
    platform::setFormHost(&host);
    EXPECT_TRUE(platform::formHost().show("stati"));
    platform::setFormHost(nullptr);
    EXPECT_THROW(platform::formHost(), std::logic_error);
}

TEST(Automation, OfABareMachineCreatesNothing) {
    try {
        platform::automation().createObject("Access.Application");
        FAIL();
    } catch (const ado::Error& error) {
        EXPECT_EQ(error.number(), 429);
        EXPECT_EQ(error.description(), "ActiveX component can't create object");
    }
}

TEST(Automation, IsTheOneThatWasSet) {
    platform::setAutomation(std::make_unique<NullAutomation>());
    EXPECT_EQ(platform::automation().createObject("Access.Application"), nullptr);
    platform::setAutomation(nullptr);
    EXPECT_THROW(platform::automation().createObject("Access.Application"), ado::Error);
}
