#include "os/Machine.h"
#include "os/Paths.h"

#include <windows.h>

#include <cerrno>
#include <cstdlib>
#include <process.h>

namespace os {

namespace fs = std::filesystem;

std::string hostName() {
    DWORD length = 0;
    GetComputerNameExW(ComputerNameDnsFullyQualified, nullptr, &length);
    std::wstring name(length, L'\0');
    if (GetComputerNameExW(ComputerNameDnsFullyQualified, name.data(), &length) == 0) {
        return {};
    }
    name.resize(length);
    return utf8Of(name);
}

std::int64_t processNumber() {
    return static_cast<std::int64_t>(GetCurrentProcessId());
}

fs::path programFile() {
    std::wstring name(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    while (length == name.size()) { // cut
        name.resize(2 * name.size());
        length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    }
    name.resize(length);
    return name;
}

// The library puts the arguments together without quotes, and the other program takes them apart at blanks.
std::error_code become(const fs::path& program, const std::vector<std::string>& arguments) {
    std::vector<std::wstring> copies{L'"' + program.filename().native() + L'"'};
    for (const std::string& argument : arguments) {
        copies.push_back(L'"' + pathOf(argument).native() + L'"');
    }
    std::vector<const wchar_t*> all;
    for (const std::wstring& argument : copies) {
        all.push_back(argument.c_str());
    }
    all.push_back(nullptr);
    _wexecv(program.c_str(), all.data());
    return {errno, std::generic_category()};
}

fs::path driveC() {
    const wchar_t* folder = _wgetenv(L"VABO_DRIVE_C");
    if (folder == nullptr || *folder == L'\0') {
        return L"C:\\";
    }
    return fs::absolute(folder).lexically_normal();
}

std::tm localTime(std::time_t time) {
    std::tm result{};
    localtime_s(&result, &time);
    return result;
}

void refuseTooLargeFiles() {
    // This system has no such limit.
}

} // namespace os
