// The encoding of the files on drive C: UTF-8.

#include "platform/DriveCTexts.h"

namespace platform {

TEST_F(DriveCTexts, AreInUtf8) {
    EXPECT_EQ(read("Città;è\r\n"), "Città;è");
    EXPECT_EQ(written("POSTO\\città 5 €"), "POSTO\\città 5 €\r\n");
}

TEST_F(DriveCTexts, ThatAreBrokenAreReadWithSignsInTheirPlace) {
    EXPECT_EQ(read("a\xFF\xFE z\r\n"), "a\xEF\xBF\xBD\xEF\xBF\xBD z");
    EXPECT_EQ(read("\xC3\r\n"), "\xEF\xBF\xBD");
    EXPECT_EQ(read(std::string(65'535, 'x') + "è\r\n"), std::string(65'535, 'x') + "\xEF\xBF\xBD")
        << "cut at the end of 64 KB";
}

} // namespace platform
