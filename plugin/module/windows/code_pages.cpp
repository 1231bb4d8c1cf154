#include "plugin/module/windows/platform_headers.h"
#include "plugin/setup_document/string_helper.h"

/// The text conversions of the setup layer by the platform's code pages.
namespace Meridax::Utils::Dcom::Utils::StringHelper {

namespace {

/// The process's own 8-bit page, in which the node layer and the host exchange texts.
constexpr UINT OwnPage = CP_ACP;

/// The wide text without its terminator; empty where the length cannot be told.
std::wstring widened(const char* text, UINT page, DWORD flags) {
    const int length = ::MultiByteToWideChar(page, flags, text, -1, nullptr, 0);
    if (length <= 0) return {};
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(page, flags, text, -1, wide.data(), length);
    wide.pop_back();
    return wide;
}

std::string narrowed(const wchar_t* text, UINT page) {
    const int length = ::WideCharToMultiByte(page, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (length <= 0) return {};
    std::string narrow(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(page, 0, text, -1, narrow.data(), length, nullptr, nullptr);
    narrow.pop_back();
    return narrow;
}

}  // namespace

std::wstring utf8ToWide(const std::string& text) {
    return widened(text.c_str(), CP_UTF8, MB_ERR_INVALID_CHARS);
}

std::string wideToUtf8(const std::wstring& text) {
    return narrowed(text.c_str(), CP_UTF8);
}

std::string bstrToUtf8(const wchar_t* text) {
    return text == nullptr ? std::string() : wideToUtf8(text);
}

std::wstring textToHost(const std::string& text) {
    return widened(text.c_str(), OwnPage, 0);
}

std::string hostToText(const std::wstring& text) {
    return narrowed(text.c_str(), OwnPage);
}

}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
