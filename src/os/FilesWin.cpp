#include "os/Files.h"
#include "os/Paths.h"

#include <windows.h>

#include <sddl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace os {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const char* what) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

struct LocalFreed {
    void operator()(void* memory) const { LocalFree(memory); }
};

class Handle {
public:
    Handle(HANDLE handle, const char* what) : handle_(handle) {
        if (handle_ == INVALID_HANDLE_VALUE || handle_ == nullptr) {
            fail(what);
        }
    }
    ~Handle() { close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE get() const { return handle_; }
    void close() {
        if (handle_ != nullptr) {
            CloseHandle(handle_);
            handle_ = nullptr;
        }
    }

private:
    HANDLE handle_;
};

HANDLE ownToken() {
    HANDLE token = nullptr;
    OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token);
    return token;
}

/// The user of this process, in the letters of a security descriptor.
std::wstring ownUser() {
    const Handle token(ownToken(), "open token");
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<std::byte> memory(size);
    if (GetTokenInformation(token.get(), TokenUser, memory.data(), size, &size) == 0) {
        fail("read token");
    }
    wchar_t* text = nullptr;
    if (ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(memory.data())->User.Sid, &text) == 0) {
        fail("name user");
    }
    const std::unique_ptr<wchar_t, LocalFreed> owned(text);
    return text;
}

/// Every right for the process's user, none for anybody else and nothing from the folder above; what is made in such a
/// folder has the same.
class OfOwnerAlone {
public:
    OfOwnerAlone() {
        const std::wstring rights = L"D:P(A;OICI;FA;;;" + ownUser() + L")";
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rights.c_str(), SDDL_REVISION_1, &descriptor,
                                                                 nullptr) == 0) {
            fail("describe rights");
        }
        descriptor_.reset(descriptor);
        attributes_.nLength = sizeof attributes_;
        attributes_.lpSecurityDescriptor = descriptor;
    }
    SECURITY_ATTRIBUTES* attributes() { return &attributes_; }

private:
    std::unique_ptr<void, LocalFreed> descriptor_;
    SECURITY_ATTRIBUTES attributes_{};
};

/// Repeats what fails because another program has the file open: one that looks for viruses does so for a moment.
template<typename Work>
bool insistently(Work work) {
    constexpr int kMostTries = 20;
    constexpr DWORD kPause = 25; // milliseconds
    for (int tries = 1; work() == 0; ++tries) {
        const DWORD error = GetLastError();
        const bool busy =
            error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!busy || tries == kMostTries) {
            return false;
        }
        Sleep(kPause);
    }
    return true;
}

HANDLE newFile(const fs::path& file) {
    OfOwnerAlone rights;
    return CreateFileW(file.c_str(), GENERIC_WRITE, 0, rights.attributes(), CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Whatever other programs do with the file.
HANDLE openedBeside(const fs::path& file, DWORD access) {
    constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CreateFileW(file.c_str(), access, kAll, nullptr, OPEN_EXISTING, 0, nullptr);
}

fs::path siblingIn(const fs::path& folder) {
    static constexpr const wchar_t* kDigits = L"0123456789abcdef";
    std::random_device random;
    std::wstring name = L".vabo-";
    for (int digit = 0; digit < 12; ++digit) {
        name += kDigits[random() % 16];
    }
    return folder / name;
}

/// A new file in the folder of the one to be replaced. It is removed where it doesn't replace that one.
class TemporarySibling {
public:
    explicit TemporarySibling(const fs::path& folder) : name_(siblingIn(folder)), file_(newFile(name_), "create") {}
    TemporarySibling(const TemporarySibling&) = delete;
    TemporarySibling& operator=(const TemporarySibling&) = delete;
    ~TemporarySibling() {
        file_.close();
        if (!kept_) {
            DeleteFileW(name_.c_str());
        }
    }

    void write(std::string_view bytes) const {
        while (!bytes.empty()) {
            constexpr std::size_t kMost = 1 << 30;
            DWORD written = 0;
            if (WriteFile(file_.get(), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), kMost)), &written,
                          nullptr) == 0) {
                fail("write");
            }
            bytes.remove_prefix(written);
        }
        if (FlushFileBuffers(file_.get()) == 0) {
            fail("sync");
        }
    }

    void takeThePlaceOf(const fs::path& file) {
        file_.close();
        constexpr DWORD kAtOnce = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        if (!insistently([&] { return MoveFileExW(name_.c_str(), file.c_str(), kAtOnce); })) {
            fail("rename");
        }
        kept_ = true;
    }

private:
    fs::path name_;
    Handle file_;
    bool kept_ = false;
};

/// Names of devices, which the system finds in every folder and with every ending.
bool isDevice(std::string_view name) {
    std::string stem(name.substr(0, name.find('.')));
    stem.resize(stem.find_last_not_of(' ') + 1);
    std::ranges::transform(stem, stem.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    constexpr std::array kAlone{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    const bool numbered = stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT"));
    return std::ranges::find(kAlone, stem) != kAlone.end() || (numbered && stem[3] >= '0' && stem[3] <= '9');
}

} // namespace

bool isFileName(std::string_view name) {
    constexpr std::size_t kLongest = 255;
    constexpr std::string_view kReserved = "<>:\"/\\|?*";
    const auto isReserved = [&](char c) {
        return static_cast<unsigned char>(c) < ' ' || kReserved.find(c) != std::string_view::npos;
    };
    return !name.empty() && std::ranges::none_of(name, isReserved) && !name.ends_with('.') && !name.ends_with(' ') &&
           !isDevice(name) && pathOf(name).native().size() <= kLongest;
}

std::optional<fs::path> entryOf(const fs::path& folder, std::string_view name) {
    if (!isFileName(name)) {
        return std::nullopt; // its signs would be a pattern
    }
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder / pathOf(name)).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    FindClose(search);
    return folder / found.cFileName;
}

// The rights are always the owner's alone: no caller gives others more on this system.
void replaceFile(const fs::path& file, std::string_view bytes, fs::perms /*permissions*/) {
    TemporarySibling sibling(file.parent_path());
    sibling.write(bytes);
    sibling.takeThePlaceOf(file);
}

void makeFileOfOwner(const fs::path& file) {
    const HANDLE made = newFile(file);
    if (made != INVALID_HANDLE_VALUE) {
        CloseHandle(made);
    }
}

// What the folder tells is older while a program has the file open.
std::optional<std::uintmax_t> sizeOf(const fs::path& file) {
    const HANDLE opened = openedBeside(file, FILE_READ_ATTRIBUTES);
    if (opened == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    LARGE_INTEGER size{};
    const BOOL told = GetFileSizeEx(opened, &size);
    CloseHandle(opened);
    return told != 0 ? std::optional(static_cast<std::uintmax_t>(size.QuadPart)) : std::nullopt;
}

void removeFile(const fs::path& file) {
    if (!insistently([&] { return DeleteFileW(file.c_str()); }) && GetLastError() != ERROR_FILE_NOT_FOUND &&
        GetLastError() != ERROR_PATH_NOT_FOUND) {
        throw fs::filesystem_error("cannot remove", file,
                                   std::error_code(static_cast<int>(GetLastError()), std::system_category()));
    }
}

// A name that isn't text could be told to nobody.
FolderContent contentOf(const fs::path& folder) {
    FolderContent content;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileExW((folder / L"*").c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                           nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        return content;
    }
    do {
        const auto has = [&](DWORD attributes) { return (found.dwFileAttributes & attributes) == attributes; };
        const std::wstring_view name = found.cFileName;
        const bool isText =
            WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, found.cFileName, -1, nullptr, 0, nullptr, nullptr) != 0;
        if (has(FILE_ATTRIBUTE_REPARSE_POINT) || !isText || name == L"." || name == L"..") {
            continue;
        }
        if (!has(FILE_ATTRIBUTE_DIRECTORY)) {
            content.files.push_back(folder / name);
        } else if (!has(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) {
            content.folders.push_back(folder / name);
        }
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    return content;
}

bool canBeRemoved(const fs::path& file) {
    const HANDLE opened = openedBeside(file, DELETE);
    if (opened == INVALID_HANDLE_VALUE) {
        return GetLastError() != ERROR_SHARING_VIOLATION;
    }
    CloseHandle(opened);
    return true;
}

std::error_code keepForOwner(const fs::path& file) {
    OfOwnerAlone rights;
    const BOOL kept = SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                       static_cast<PSECURITY_DESCRIPTOR>(rights.attributes()->lpSecurityDescriptor));
    return kept != 0 ? std::error_code() : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}

void makePrivateFolder(const fs::path& folder) {
    OfOwnerAlone rights;
    if (CreateDirectoryW(folder.c_str(), rights.attributes()) == 0) {
        fail("create folder");
    }
}

} // namespace os
