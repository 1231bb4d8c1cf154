#include "plugin/orbit_graph/number_format.h"

#include <algorithm>
#include <array>
#include <cwchar>

namespace Meridax::VisualControls::Rotavue {

std::wstring valueFormat(std::int32_t decimals) {
    return L"%." + std::to_wstring(std::clamp(decimals, 0, MostDecimals)) + L"f";
}

std::wstring formatValue(const std::wstring& format, double value) {
    // The longest text: a sign, the 309 digits of the largest double, the point, `MostDecimals`.
    std::array<wchar_t, 1 + 309 + 1 + MostDecimals + 1> text;
    const int length = std::swprintf(text.data(), text.size(), format.c_str(), value);
    return length < 0 ? std::wstring()
                      : std::wstring(text.data(), static_cast<std::size_t>(length));
}

}  // namespace Meridax::VisualControls::Rotavue
