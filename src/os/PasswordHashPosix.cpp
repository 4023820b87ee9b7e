#include "os/PasswordHash.h"

#include <crypt.h>
#include <memory>
#include <stdexcept>

namespace os {

static_assert(kLongestPassword < CRYPT_MAX_PASSPHRASE_SIZE);

std::string newSetting() {
    constexpr const char* kSha512Method = "$6$";
    std::string setting(CRYPT_GENSALT_OUTPUT_SIZE, '\0');
    if (crypt_gensalt_rn(kSha512Method, 0, nullptr, 0, setting.data(), static_cast<int>(setting.size())) == nullptr) {
        throw std::runtime_error("no salt for a password");
    }
    return setting.c_str();
}

std::string hashed(const std::string& password, const std::string& setting) {
    const auto work = std::make_unique<crypt_data>();
    const char* hash = crypt_r(password.c_str(), setting.c_str(), work.get());
    if (hash == nullptr || hash[0] == '*') {
        throw std::runtime_error("a password can't be hashed");
    }
    return hash;
}

} // namespace os
