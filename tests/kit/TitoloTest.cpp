#include "kit/Titolo.h"

#include "platform/Workstation.h"

#include <gtest/gtest.h>

namespace {

TEST(Titolo, TheVersionStandsBehindTheName) {
    const platform::Workstation before = platform::workstation();
    platform::Workstation machine = before;
    machine.versionMajor = 4;
    machine.versionMinor = 0;
    machine.versionRevision = 21;
    platform::setWorkstation(machine);
    EXPECT_EQ(vabo::NumeroDiVersione(), "4.0.21");
    EXPECT_EQ(vabo::ConVersione("Nome"), "Nome - Ver.Nr. 4.0.21");
    EXPECT_EQ(vabo::ConVersione(vabo::kTitolo), "Tlv - Aldane Works Software Solutions - Ver.Nr. 4.0.21");
    platform::setWorkstation(before);
}

} // namespace
