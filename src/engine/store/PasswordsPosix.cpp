#include "engine/store/Passwords.h"

#include <crypt.h>
#include <memory>
#include <stdexcept>

namespace engine {
namespace {

constexpr const char* kSha512Method = "$6$";

std::string crypted(const std::string& password, const std::string& setting) {
    const auto work = std::make_unique<crypt_data>();
    const char* hash = crypt_r(password.c_str(), setting.c_str(), work.get());
    if (hash == nullptr || hash[0] == '*') {
        throw std::runtime_error("a password can't be hashed");
    }
    return hash;
}

} // namespace

std::string hashPassword(const std::string& password) {
    std::string setting(CRYPT_GENSALT_OUTPUT_SIZE, '\0');
    if (crypt_gensalt_rn(kSha512Method, 0, nullptr, 0, setting.data(), static_cast<int>(setting.size())) == nullptr) {
        throw std::runtime_error("no salt for a password");
    }
    return crypted(password, setting.c_str());
}

bool passwordMatches(const std::string& password, const std::string& hash) {
    const bool hashable = password.size() < CRYPT_MAX_PASSPHRASE_SIZE && password.find('\0') == std::string::npos;
    return hashable && crypted(password, hash) == hash;
}

} // namespace engine
