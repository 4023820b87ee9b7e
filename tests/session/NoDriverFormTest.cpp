// A workstation without a registered driver for the server.

#include "os/Paths.h"
#include "session/ApriDbSede.h"
#include "session/FormFixture.h"
#include "support/Capabilities.h"
#include "support/TemporaryFolder.h"

#include <memory>

namespace vabo {
namespace {

// The driver manager's text.
constexpr const char* kNoDriver = "Can't open lib 'SQL Server' : file not found";

/// Gives the driver manager an empty folder as its configuration, for the whole process, since it looks for it once.
class NoDriver : public FormTest {
protected:
    static void SetUpTestSuite() {
        registry_ = std::make_unique<support::TemporaryFolder>();
        qputenv("ODBCSYSINI", os::utf8Of(registry_->path()).c_str());
    }
    void SetUp() override { VABO_NEEDS(support::systemCapabilities().driversByEnvironment); }
    static void TearDownTestSuite() { registry_.reset(); }

private:
    static inline std::unique_ptr<support::TemporaryFolder> registry_;
};

TEST_F(NoDriver, TheStartSaysSoAndEnds) {
    const std::string address = *workstation.fileText("C:\\vabo\\IndirizzoServer.txt");
    script.expectMessage(kNoDriver);
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(*workstation.fileText("C:\\vabo\\IndirizzoServer.txt"), address);
    EXPECT_EQ(workstation.dataSources(), "");
}

TEST_F(NoDriver, TheTemporaryDatabaseStaysShutWithoutAWord) {
    EXPECT_FALSE(ApriDbTemp());
}

TEST_F(NoDriver, ACompanyAskedForByItsNumberCanNotBeLoaded) {
    NomeTerminale = support::kTerminalName;
    IdAziendaScelta = idOf(support::kCompany);
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio_Azienda"); }));
}

} // namespace
} // namespace vabo
