// A workstation without a registered driver for the server.

#include "session/ApriDbSede.h"
#include "session/FormFixture.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <memory>

namespace vabo {
namespace {

// The driver manager's text.
constexpr const char* kSenzaDriver = "Can't open lib 'SQL Server' : file not found";

/// Gives the driver manager an empty folder as its configuration, for the whole process, since it looks for it once.
class SenzaDriver : public FormTest {
protected:
    static void SetUpTestSuite() {
        registro_ = std::make_unique<support::TemporaryFolder>();
        qputenv("ODBCSYSINI", registro_->path().c_str());
    }
    static void TearDownTestSuite() { registro_.reset(); }

private:
    static inline std::unique_ptr<support::TemporaryFolder> registro_;
};

TEST_F(SenzaDriver, TheStartSaysSoAndEnds) {
    const std::string indirizzo = *workstation.fileText("C:\\vabo\\IndirizzoServer.txt");
    script.expectMessage(kSenzaDriver);
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio"); }));
    EXPECT_EQ(gui.visibleForms(), "");
    EXPECT_EQ(*workstation.fileText("C:\\vabo\\IndirizzoServer.txt"), indirizzo);
    EXPECT_FALSE(std::filesystem::exists(workstation.dataSourceFile()));
}

TEST_F(SenzaDriver, TheTemporaryDatabaseStaysShutWithoutAWord) {
    EXPECT_FALSE(ApriDbTemp());
}

TEST_F(SenzaDriver, ACompanyAskedForByItsNumberCanNotBeLoaded) {
    NomeTerminale = support::kTerminalName;
    IdAziendaScelta = idOf(support::kCompany);
    script.expectMessage("Non è possibile caricare il DataBase");
    EXPECT_TRUE(end.endedBy([&] { gui.forms().show("Avvio_Azienda"); }));
}

} // namespace
} // namespace vabo
