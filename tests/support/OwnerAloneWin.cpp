#include "support/OwnerAlone.h"

#include <windows.h>

#include <aclapi.h>
#include <memory>

namespace support {

namespace {

struct LocalFreed {
    void operator()(void* memory) const { LocalFree(memory); }
};

} // namespace

bool isForOwnerAlone(const std::filesystem::path& path) {
    PSID owner = nullptr;
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const DWORD result =
        GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                              &owner, nullptr, &list, nullptr, &descriptor);
    const std::unique_ptr<void, LocalFreed> owned(descriptor);
    if (result != ERROR_SUCCESS || list == nullptr) { // without a list everybody has every right
        return false;
    }
    bool ofOwner = false;
    for (DWORD at = 0; at < list->AceCount; ++at) {
        void* entry = nullptr;
        if (GetAce(list, at, &entry) == 0) {
            return false;
        }
        const auto* allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
        if (allowed->Header.AceType != ACCESS_ALLOWED_ACE_TYPE) {
            continue;
        }
        auto* whom = const_cast<DWORD*>(&allowed->SidStart);
        if (EqualSid(whom, owner) != 0) {
            ofOwner = ofOwner || (allowed->Mask & FILE_ALL_ACCESS) == FILE_ALL_ACCESS;
        } else if (IsWellKnownSid(whom, WinLocalSystemSid) == 0) { // the system itself is kept out of nothing
            return false;
        }
    }
    return ofOwner;
}

} // namespace support
