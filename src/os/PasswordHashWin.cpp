// SHA-512-crypt on the system's SHA-512. The method is published with the C library of other systems, which make the
// same hashes; so an instance can be moved between systems.

#include "os/PasswordHash.h"

#include <windows.h>

#include <bcrypt.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

namespace os {
namespace {

constexpr std::string_view kMethod = "$6$";
constexpr std::string_view kLetters = "./0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::size_t kSaltLetters = 16;
constexpr std::size_t kDigestBytes = 64;
constexpr int kRounds = 5000;

using Digest = std::array<unsigned char, kDigestBytes>;

void check(NTSTATUS status) {
    if (status < 0) {
        throw std::runtime_error("a password can't be hashed");
    }
}

BCRYPT_ALG_HANDLE algorithm() {
    static const BCRYPT_ALG_HANDLE opened = [] {
        BCRYPT_ALG_HANDLE handle = nullptr;
        check(BCryptOpenAlgorithmProvider(&handle, BCRYPT_SHA512_ALGORITHM, nullptr, 0));
        return handle;
    }();
    return opened;
}

std::string_view bytesOf(const Digest& digest) {
    return {reinterpret_cast<const char*>(digest.data()), digest.size()};
}

class Hash {
public:
    Hash() { check(BCryptCreateHash(algorithm(), &handle_, nullptr, 0, nullptr, 0, 0)); }
    ~Hash() { BCryptDestroyHash(handle_); }
    Hash(const Hash&) = delete;
    Hash& operator=(const Hash&) = delete;

    Hash& operator<<(std::string_view bytes) {
        // The function only reads, but its declaration doesn't say so.
        auto* first = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
        check(BCryptHashData(handle_, first, static_cast<ULONG>(bytes.size()), 0));
        return *this;
    }
    Digest end() {
        Digest digest{};
        check(BCryptFinishHash(handle_, digest.data(), kDigestBytes, 0));
        return digest;
    }

private:
    BCRYPT_HASH_HANDLE handle_ = nullptr;
};

/// The digest over and over, up to a length.
std::string stretched(const Digest& digest, std::size_t length) {
    std::string bytes;
    while (bytes.size() < length) {
        bytes += bytesOf(digest).substr(0, length - bytes.size());
    }
    return bytes;
}

/// The digest of a text that is repeated.
Digest ofRepeated(std::string_view text, std::size_t times) {
    Hash hash;
    for (std::size_t i = 0; i < times; ++i) {
        hash << text;
    }
    return hash.end();
}

Digest firstDigest(std::string_view password, std::string_view salt) {
    const Digest other = (Hash() << password << salt << password).end();
    Hash hash;
    hash << password << salt << stretched(other, password.size());
    for (std::size_t rest = password.size(); rest > 0; rest >>= 1U) {
        hash << (rest % 2 == 1 ? bytesOf(other) : password);
    }
    return hash.end();
}

Digest digestOf(std::string_view password, std::string_view salt) {
    constexpr std::size_t kLeastSalts = 16;
    Digest digest = firstDigest(password, salt);
    const std::string longPassword = stretched(ofRepeated(password, password.size()), password.size());
    const std::string longSalt = stretched(ofRepeated(salt, kLeastSalts + digest[0]), salt.size());
    for (int round = 0; round < kRounds; ++round) {
        const bool odd = round % 2 == 1;
        Hash hash;
        hash << (odd ? std::string_view(longPassword) : bytesOf(digest));
        if (round % 3 != 0) {
            hash << longSalt;
        }
        if (round % 7 != 0) {
            hash << longPassword;
        }
        hash << (odd ? bytesOf(digest) : std::string_view(longPassword));
        digest = hash.end();
    }
    return digest;
}

/// Three bytes make four letters. Their order turns by one place with each group; the last byte stands alone.
std::string lettersOf(const Digest& digest) {
    constexpr std::size_t kGroups = 21;
    constexpr unsigned kLetterBits = 6;
    std::string text;
    const auto add = [&](unsigned bits, int letters) {
        for (; letters > 0; --letters, bits >>= kLetterBits) {
            text += kLetters[bits % kLetters.size()];
        }
    };
    std::array<std::size_t, 3> from = {0, kGroups, 2 * kGroups};
    for (std::size_t group = 0; group < kGroups; ++group) {
        add((static_cast<unsigned>(digest[from[0]]) << 16U) | (static_cast<unsigned>(digest[from[1]]) << 8U) |
                digest[from[2]],
            4);
        from = {from[1] + 1, from[2] + 1, from[0] + 1};
    }
    add(digest[kDigestBytes - 1], 2);
    return text;
}

/// The salt of a setting or of a hash.
std::string_view saltOf(std::string_view setting) {
    const bool known = setting.starts_with(kMethod) && !setting.substr(kMethod.size()).starts_with("rounds=");
    if (!known) {
        throw std::runtime_error("a password can't be hashed");
    }
    setting.remove_prefix(kMethod.size());
    return setting.substr(0, std::min(setting.find('$'), kSaltLetters));
}

} // namespace

std::string newSetting() {
    std::array<unsigned char, kSaltLetters> random{};
    check(BCryptGenRandom(nullptr, random.data(), static_cast<ULONG>(random.size()), BCRYPT_USE_SYSTEM_PREFERRED_RNG));
    std::string setting(kMethod);
    for (const unsigned char byte : random) {
        setting += kLetters[byte % kLetters.size()];
    }
    return setting;
}

std::string hashed(const std::string& password, const std::string& setting) {
    const std::string_view salt = saltOf(setting);
    return std::string(kMethod).append(salt).append("$").append(lettersOf(digestOf(password, salt)));
}

} // namespace os
