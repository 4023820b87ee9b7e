#include "engine/values/CodePage.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

TEST(CodePages, EachByteIsACharacterAndIsWrittenAsItAgain) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    EXPECT_EQ(fromCodePage("\x80\xE0z\x9F\x81"), "€àzŸ\xC2\x81") << "the last one is a control character";
    EXPECT_EQ(toCodePage("€àzŸ\xC2\x81"), "\x80\xE0z\x9F\x81");
    EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
}

TEST(CodePages, WhatTheyHaveNotIsItsBestFitOrAQuestionMark) {
    EXPECT_EQ(toCodePage("Ж漢\xC2\x85\xEF\xBF\xBF"), "????");
    EXPECT_EQ(toCodePage("😀"), "??") << "two units";
    EXPECT_EQ(toCodePage("a\xFF"), "a?") << "no character at all";
    EXPECT_EQ(toCodePage("ĀāĐđŁŠŽſ"), "Aa\xD0"
                                      "dL\x8A\x8E?");
    EXPECT_EQ(toCodePage("！Ａ１～"), "!A1~");
    EXPECT_EQ(toCodePage("ΣβμƑʼ′−≠〈・"), "S\xDF\xB5\x83''-?<\xB7");
}

TEST(CodePages, ATextKeepsItsOtherCharacters) {
    EXPECT_EQ(inCodePage("plain"), "plain");
    EXPECT_EQ(inCodePage(""), "");
    EXPECT_EQ(inCodePage("città €5 “Ж” Łódź"), "città €5 “?” Lódz");
    EXPECT_EQ(inCodePage(std::string("a\0è", 4)), std::string("a\0è", 4));
}

} // namespace
} // namespace engine
