#pragma once

#include "plugin/framework/host/host_text.h"
#include "plugin/setup_document/string_helper.h"

#include <string>

/// The texts of the node layer on their way to the host and back. Where the memory for one is
/// exhausted, the call that needs it fails with `HostError` 0x8007000E.
namespace Meridax::Utils::Dcom::Utils {

inline std::wstring toHost(const std::string& text) {
    return Host::madeText([&] { return StringHelper::textToHost(text); });
}

inline std::string fromHost(const std::wstring& text) {
    return Host::madeText([&] { return StringHelper::hostToText(text); });
}

/// The way of the topmost texts of an imported tree, which is strict: invalid text becomes empty.
inline std::wstring toHostStrictly(const std::string& text) {
    return Host::madeText([&] { return StringHelper::utf8ToWide(text); });
}

}  // namespace Meridax::Utils::Dcom::Utils
