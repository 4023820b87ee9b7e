// After a registration in the form another program can connect to the databases.

#include "dblife/Isql.h"
#include "dblife/RegistraFormFixture.h"
#include "platform/DataSources.h"
#include "session/LinguaClient.h"
#include "support/Capabilities.h"

#include <gmock/gmock.h>

namespace {

using namespace vabo;

class IsqlRegistra : private ConServerDiRete, public RegistraForm {
protected:
    void SetUp() override { VABO_NEEDS(support::systemCapabilities().driverManagersClient); }
};

TEST_F(IsqlRegistra, ReadsEachDatabaseOnceTheFormHasRegisteredIt) {
    LeggiLinguaClient("");
    apri();
    platform::setDataSources(nullptr); // the machine's own registry, which has none of them yet
    ASSERT_THAT(platform::dataSources().names(), testing::Each(testing::Not(testing::StartsWith("Tlv_"))));
    gui.click(kForm, "cmdCancel");
    aspettaConsole();
    aspettaOgniDatabase(workstation, server);
}

} // namespace
