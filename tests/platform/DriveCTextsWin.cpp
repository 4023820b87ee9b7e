// The encoding of the files on drive C: the system's code page, which for all of western Europe is 1252.

#include "platform/DriveCTexts.h"

#include <windows.h>

namespace platform {

TEST_F(DriveCTexts, AreInTheCodePageOfTheSystem) {
    wchar_t number[8] = {};
    GetLocaleInfoEx(LOCALE_NAME_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, number, 8);
    if (std::wstring(number) != L"1252") {
        GTEST_SKIP() << "The system's code page isn't 1252.";
    }
    EXPECT_EQ(read("Citt\xE0;\xE8 \x80\r\n"), "Città;è €");
    EXPECT_EQ(written("POSTO\\città 5 €"), "POSTO\\citt\xE0 5 \x80\r\n");
}

TEST_F(DriveCTexts, KeepWhatTheCodePageHasOfALine) {
    const std::string bytes = written("Ā 日\U0001F600");
    EXPECT_EQ(bytes, "A ???\r\n");
    EXPECT_EQ(drive.firstLine("C:\\x.txt"), "A ???");
}

} // namespace platform
