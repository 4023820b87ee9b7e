#include "os/Paths.h"
#include "support/DataSourceStore.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <sstream>
#include <system_error>
#include <type_traits>
#include <vector>

namespace support {

namespace fs = std::filesystem;

namespace {

constexpr const wchar_t* kSources = L"Software\\ODBC\\ODBC.INI";
constexpr const wchar_t* kList = L"ODBC Data Sources"; // the name and the driver of each
constexpr const char* kDriver = "Driver";

struct Closed {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, Closed>;
using Values = std::vector<std::pair<std::string, std::string>>;

void check(LSTATUS result, const char* what) {
    if (result != ERROR_SUCCESS) {
        throw std::system_error(static_cast<int>(result), std::system_category(), what);
    }
}

std::wstring wide(const std::string& utf8) {
    return os::pathOf(utf8).native();
}

Key key(HKEY above, const std::wstring& name) {
    HKEY made = nullptr;
    check(RegCreateKeyExW(above, name.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr), "make key");
    return Key(made);
}

void setText(const Key& in, const std::string& name, const std::string& value) {
    const std::wstring text = wide(value);
    check(RegSetValueExW(in.get(), wide(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
          "set value");
}

Values textsIn(const Key& in) {
    Values all;
    std::array<wchar_t, 512> name{};
    std::array<wchar_t, 4096> value{};
    while (true) {
        auto nameLength = static_cast<DWORD>(name.size());
        auto valueSize = static_cast<DWORD>((value.size() - 1) * sizeof(wchar_t));
        value.fill(L'\0');
        if (RegEnumValueW(in.get(), static_cast<DWORD>(all.size()), name.data(), &nameLength, nullptr, nullptr,
                          reinterpret_cast<BYTE*>(value.data()), &valueSize) != ERROR_SUCCESS) {
            return all;
        }
        all.emplace_back(os::utf8Of(name.data()), os::utf8Of(value.data()));
    }
}

std::vector<std::wstring> keysIn(const Key& in) {
    std::vector<std::wstring> all;
    std::array<wchar_t, 512> name{};
    while (true) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(in.get(), static_cast<DWORD>(all.size()), name.data(), &length, nullptr, nullptr, nullptr,
                          nullptr) != ERROR_SUCCESS) {
            return all;
        }
        all.emplace_back(name.data());
    }
}

/// The part of the registry that belongs to this process. A user's part for this process alone is what the registry
/// offers for programs that are being installed.
class OwnPart {
public:
    OwnPart() : above_(key(HKEY_CURRENT_USER, L"Software\\VaBo tests")) {}
    ~OwnPart() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        used_.clear();
        RegDeleteTreeW(above_.get(), name_.c_str());
    }
    OwnPart(const OwnPart&) = delete;
    OwnPart& operator=(const OwnPart&) = delete;

    void use(const fs::path& file) {
        inUse_ = file;
        check(RegOverridePredefKey(HKEY_CURRENT_USER, of(file).get()), "use key");
    }
    const fs::path& inUse() const { return inUse_; }
    const Key& of(const fs::path& file) {
        Key& found = used_[file];
        if (!found) {
            std::wstring name = file.native();
            std::ranges::replace(name, L'\\', L'|');
            found = key(key(above_.get(), name_).get(), name);
        }
        return found;
    }

private:
    std::wstring name_ = std::to_wstring(GetCurrentProcessId());
    Key above_;
    std::map<fs::path, Key> used_;
    fs::path inUse_;
};

OwnPart& own() {
    static OwnPart part;
    return part;
}

} // namespace

void useDataSourceFile(const fs::path& file) {
    own().use(file);
}

fs::path dataSourceFileInUse() {
    return own().inUse();
}

std::string dataSourceText(const fs::path& file) {
    const Key sources = key(own().of(file).get(), kSources);
    const Values list = textsIn(key(sources.get(), kList));
    std::string text;
    for (const std::wstring& name : keysIn(sources)) {
        if (name == kList) {
            continue;
        }
        const std::string section = os::utf8Of(name);
        text += "[" + section + "]\n";
        // The list has the driver's name, the section the driver's file.
        const auto listed = std::ranges::find(list, section, &Values::value_type::first);
        if (listed != list.end()) {
            text += std::string(kDriver) + "=" + listed->second + "\n";
        }
        for (const auto& [name, value] : textsIn(key(sources.get(), name))) {
            if (name != kDriver || listed == list.end()) {
                text.append(name).append("=").append(value).append("\n");
            }
        }
        text += "\n";
    }
    return text;
}

void putDataSources(const fs::path& file, const std::string& text) {
    RegDeleteTreeW(own().of(file).get(), kSources);
    const Key sources = key(own().of(file).get(), kSources);
    const Key list = key(sources.get(), kList);
    std::string section;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const auto equal = line.find('=');
        if (line.starts_with('[')) {
            section = line.substr(1, line.find(']') - 1);
        } else if (!line.starts_with('#') && equal != std::string::npos) {
            const std::string name = line.substr(0, equal);
            setText(key(sources.get(), wide(section)), name, line.substr(equal + 1));
            if (name == kDriver) {
                setText(list, section, line.substr(equal + 1));
            }
        }
    }
}

} // namespace support
