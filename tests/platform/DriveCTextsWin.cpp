// The encoding of the files on drive C: the system's code page.

#include "platform/DriveCTexts.h"
#include "support/Capabilities.h"

namespace platform {

TEST_F(DriveCTexts, AreInTheCodePageOfTheSystem) {
    VABO_NEEDS(support::systemCapabilities().westernTextFiles);
    EXPECT_EQ(read("Citt\xE0;\xE8 \x80\r\n"), "Città;è €");
    EXPECT_EQ(written("POSTO\\città 5 €"), "POSTO\\citt\xE0 5 \x80\r\n");
}

TEST_F(DriveCTexts, KeepWhatTheCodePageHasOfALine) {
    const std::string bytes = written("Ā 日\U0001F600");
    EXPECT_EQ(bytes, "A ???\r\n");
    EXPECT_EQ(drive.firstLine("C:\\x.txt"), "A ???");
}

} // namespace platform
