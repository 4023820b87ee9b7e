// Amounts of any size.

#include "ado/Conversions.h"
#include "kit/IsEmptyValue.h"
#include "payment_terms/Importo.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdint>
#include <string>

namespace vabo {
namespace {

TEST(ImportiACaso, AnAmountWrittenOnceStaysTheSame) {
    EXPECT_TRUE(rc::check([] {
        const auto centesimi = *rc::gen::inRange<std::int64_t>(-100'000'000'000, 100'000'000'000);
        const std::string digitato = ado::formatFixed(static_cast<double>(centesimi) / 100, 2);
        const std::string una = ImportoScritto(digitato);
        RC_ASSERT(ImportoScritto(una) == una);
        if (!IsEmptyValue(digitato)) {
            RC_ASSERT(ado::formatFixed(ado::toDouble(una), 2) == digitato);
        }
    }));
}

TEST(ImportiACaso, APointOfTheKeypadIsWorthAComma) {
    EXPECT_TRUE(rc::check([] {
        const std::string intero = std::to_string(*rc::gen::inRange(0, 1'000'000));
        const auto cifre = *rc::gen::inRange<std::size_t>(1, 6);
        std::string decimali = std::to_string(*rc::gen::inRange(0, 100'000));
        decimali = (std::string(5, '0') + decimali).substr(decimali.size()).substr(0, cifre);
        RC_PRE(!IsEmptyValue(intero + "," + decimali));
        RC_ASSERT(ImportoNormale(intero + "." + decimali) == intero + "," + decimali);
    }));
}

} // namespace
} // namespace vabo
