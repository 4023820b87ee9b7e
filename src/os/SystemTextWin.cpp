#include "os/SystemText.h"

#include <windows.h>

namespace os {

namespace {

/// That of the other programs: this one's own is UTF-8.
UINT systemCodePage() {
    DWORD number = CP_ACP;
    GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t*>(&number), sizeof number / sizeof(wchar_t));
    return number;
}

std::wstring wide(UINT codePage, std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0)),
                        L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), length, result.data(), static_cast<int>(result.size()));
    return result;
}

std::string narrow(UINT codePage, const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string result(
        static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(codePage, 0, text.data(), length, result.data(), static_cast<int>(result.size()), nullptr,
                        nullptr);
    return result;
}

} // namespace

std::string fromSystemText(std::string_view bytes) {
    return narrow(CP_UTF8, wide(systemCodePage(), bytes));
}

std::string toSystemText(std::string_view utf8) {
    return narrow(systemCodePage(), wide(CP_UTF8, utf8));
}

} // namespace os
