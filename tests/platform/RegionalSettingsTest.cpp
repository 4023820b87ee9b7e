#include "platform/RegionalSettings.h"

#include <gtest/gtest.h>

using Order = ado::RegionalSettings::DateOrder;

namespace {

struct Country {
    const char* locale;
    char decimal;
    char thousands;
    char date;
    Order order;
    const char* currency;
};

constexpr Country kCountries[] = {
    {"it_IT", ',', '.', '/', Order::DayMonthYear, "€"},  {"de_DE", ',', '.', '.', Order::DayMonthYear, "€"},
    {"en_US", '.', ',', '/', Order::MonthDayYear, "$"},  {"en_GB", '.', ',', '/', Order::DayMonthYear, "£"},
    {"fr_FR", ',', ' ', '/', Order::DayMonthYear, "€"},  {"de_CH", '.', '\'', '.', Order::DayMonthYear, "CHF"},
    {"sv_SE", ',', ' ', '-', Order::YearMonthDay, "kr"},
};

} // namespace

TEST(RegionalSettings, AreTheLocales) {
    for (const Country& country : kCountries) {
        const ado::RegionalSettings settings = platform::regionalSettingsOf(QLocale(country.locale));
        EXPECT_EQ(settings.decimalSeparator, country.decimal) << country.locale;
        EXPECT_EQ(settings.thousandsSeparator, country.thousands) << country.locale;
        EXPECT_EQ(settings.monetaryDecimalSeparator, country.decimal) << country.locale;
        EXPECT_EQ(settings.monetaryThousandsSeparator, country.thousands) << country.locale;
        EXPECT_EQ(settings.dateSeparator, country.date) << country.locale;
        EXPECT_EQ(settings.dateOrder, country.order) << country.locale;
        EXPECT_EQ(settings.currencySymbol, country.currency) << country.locale;
        EXPECT_EQ(settings.decimals, 2) << country.locale;
    }
}

TEST(RegionalSettings, OfASeparatorBeyondOneByteAreItalian) {
    const ado::RegionalSettings settings = platform::regionalSettingsOf(QLocale("ar_EG"));
    EXPECT_EQ(settings.decimalSeparator, ',');
    EXPECT_EQ(settings.thousandsSeparator, '.');
}

TEST(RegionalSettings, AreItalianWhereTheSystemHasNone) {
    EXPECT_EQ(platform::localeOr(QLocale::c()).name(), "it_IT");
    EXPECT_EQ(platform::localeOr(QLocale("POSIX")).name(), "it_IT");
    EXPECT_EQ(platform::localeOr(QLocale("fr_FR")).name(), "fr_FR");
}

TEST(RegionalSettings, InUseReachTheDataLayerAndQt) {
    platform::useLocale(QLocale("en_US"));
    EXPECT_EQ(ado::regionalSettings().decimalSeparator, '.');
    EXPECT_EQ(QLocale().name(), "en_US");
}

TEST(RegionalSettings, OfEveryTestAreItalian) {
    EXPECT_EQ(ado::regionalSettings().decimalSeparator, ',');
    EXPECT_EQ(QLocale().name(), "it_IT");
}
