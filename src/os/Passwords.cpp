#include "os/Passwords.h"

#include "os/PasswordHash.h"

#include <map>
#include <mutex>

namespace os {
namespace {

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
    return hashed(password, newSetting());
}

bool passwordMatches(const std::string& password, const std::string& hash) {
    const bool hashable = password.size() <= kLongestPassword && password.find('\0') == std::string::npos;
    if (!hashable) {
        return false;
    }
    if (proven().contains(password, hash)) {
        return true;
    }
    const bool matches = hashed(password, hash) == hash;
    if (matches) {
        proven().add(password, hash);
    }
    return matches;
}

} // namespace os
