#include "plugin/framework/host/code_points.h"
#include "plugin/setup_document/string_helper.h"

#include <optional>
#include <string_view>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

// Up to the first zero character, with U+FFFD for each unit at which no character begins.
template <class To, class From>
To tolerantCopy(const From& from) {
    To result;
    std::basic_string_view rest(from.c_str());
    while (!rest.empty()) {
        const std::optional<char32_t> next = Host::takeCodePoint(rest);
        Host::appendCodePoint(result, next.value_or(Host::ReplacementCodePoint));
    }
    return result;
}

}  // namespace

std::wstring utf8ToWide(const std::string& text) {
    std::wstring result;
    std::string_view rest(text.c_str());
    while (!rest.empty()) {
        const std::optional<char32_t> next = Host::takeCodePoint(rest);
        if (!next) return {};
        Host::appendCodePoint(result, *next);
    }
    return result;
}

std::string wideToUtf8(const std::wstring& text) {
    return tolerantCopy<std::string>(text);
}

std::string bstrToUtf8(const wchar_t* text) {
    return text == nullptr ? std::string() : wideToUtf8(text);
}

// The fixed page of the host's strings is UTF-8.

std::wstring textToHost(const std::string& text) {
    return tolerantCopy<std::wstring>(text);
}

std::string hostToText(const std::wstring& text) {
    return wideToUtf8(text);
}

}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
