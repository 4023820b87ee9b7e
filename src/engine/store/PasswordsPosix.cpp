#include "engine/store/Passwords.h"

#include <crypt.h>
#include <map>
#include <memory>
#include <mutex>
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

/// The passwords that this process has proved, by their hash. Hashing is slow on purpose, and a program logs in with
/// every connection that it opens; a new password has a new hash.
class Proven {
public:
    bool contains(const std::string& password, const std::string& hash) const {
        const std::scoped_lock guard(mutex_);
        const auto found = passwords_.find(hash);
        return found != passwords_.end() && found->second == password;
    }
    void add(const std::string& password, const std::string& hash) {
        const std::scoped_lock guard(mutex_);
        passwords_.insert_or_assign(hash, password);
    }

private:
    mutable std::mutex mutex_; // sessions of several threads log in
    std::map<std::string, std::string> passwords_;
};

Proven& proven() {
    static Proven passwords;
    return passwords;
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
    if (!hashable) {
        return false;
    }
    if (proven().contains(password, hash)) {
        return true;
    }
    const bool matches = crypted(password, hash) == hash;
    if (matches) {
        proven().add(password, hash);
    }
    return matches;
}

} // namespace engine
