#include "os/Passwords.h"

#include "os/PasswordHash.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Known {
    const char* password;
    const char* setting;
    const char* hash;
};

// Made with the C library's crypt. Every system has to make the same, or an instance can't move between them.
const Known kKnown[] = {
    {"", "$6$abcdefghij./XYZ1",
     "$6$abcdefghij./XYZ1$6HiCsrGXgN1S.U75MdBgxn8M.E16wu/OQ7wCE918AehGkHshuCUtj6heQo1CLlajKfBgRQSltuP9DvvadNDCo1"},
    {"a", "$6$abcdefghij./XYZ1",
     "$6$abcdefghij./XYZ1$Nt0lD2Q3mtWDqqrp4y/.GCfW0uw026PuhAHcMeNhNA1IHxPLGqF6UP0dY3Tx0boArr5tyMKPG8.ebY6xXd00.0"},
    {"Campione-2024", "$6$abcdefghij./XYZ1",
     "$6$abcdefghij./XYZ1$of62vUAeJGbeZzUKvVamvBiUR1o52wHY8D263SOgP3MwozFNMfor2HrGBF6cHqBOQ3SIu.i4MNUL5duUTHHmP1"},
    {"perch\xc3\xa9 cos\xc3\xac", "$6$abcdefghij./XYZ1",
     "$6$abcdefghij./XYZ1$m1ej1OKpKPgZu00FBuAohlU.eOdAcOrE/J2VCfjYjbaGV2mujZbqoQAo01jdfXNB/Zy8a/SEDuoOEC7JMi7gb0"},
    {"0123456789012345678901234567890123456789012345678901234567890123456789", "$6$abcdefghij./XYZ1",
     "$6$abcdefghij./XYZ1$qEP7AmN76EfY37YfsgO.VWqNum8g0u/QgE1lAWa2dIbjsIYlihhOf2P76V05bUBcQi.1Skicb51yC.HMk0D.10"},
    {"x", "$6$ab", "$6$ab$jnZj29NS/hK2GaouP6AGMIBwD6owZFRejcn9QRdlwSjZaVr.fR9dH2TXrKL/PaacUXwtGfI.4O9zxvy2k6fbE1"},
};

TEST(Passwords, HaveTheSameHashOnEverySystem) {
    for (const Known& known : kKnown) {
        EXPECT_EQ(os::hashed(known.password, known.setting), known.hash) << known.password;
        EXPECT_TRUE(os::passwordMatches(known.password, known.hash)) << known.password;
        EXPECT_FALSE(os::passwordMatches(std::string(known.password) + "1", known.hash)) << known.password;
    }
}

TEST(Passwords, HaveASaltOfTheirOwn) {
    const std::string one = os::hashPassword("primavera");
    const std::string other = os::hashPassword("primavera");
    EXPECT_NE(one, other);
    EXPECT_TRUE(os::passwordMatches("primavera", one));
    EXPECT_TRUE(os::passwordMatches("primavera", other));
    EXPECT_FALSE(os::passwordMatches("Primavera", one));
}

TEST(Passwords, AreProvedOnceAndRefusedEveryTime) {
    const std::string hash = os::hashPassword("primavera");
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_TRUE(os::passwordMatches("primavera", hash));
        EXPECT_FALSE(os::passwordMatches("estate24", hash));
    }
}

TEST(Passwords, ThatCanNotBeHashedNeverMatch) {
    const std::string longest(os::kLongestPassword, 'x');
    const std::string hash = os::hashPassword(longest);
    EXPECT_TRUE(os::passwordMatches(longest, hash));
    EXPECT_FALSE(os::passwordMatches(longest + "x", hash));
    EXPECT_FALSE(os::passwordMatches(std::string("a\0b", 3), os::hashPassword("a")));
}

TEST(Passwords, WithAnUnknownMethodAreAnError) {
    EXPECT_THROW(os::passwordMatches("x", "$?$abc$def"), std::runtime_error);
}

} // namespace
