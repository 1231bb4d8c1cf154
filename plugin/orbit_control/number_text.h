#pragma once

#include <algorithm>
#include <string>

namespace Meridax::VisualControls::Rotavue {

/// The text of a number with every comma turned into a decimal point.
inline std::wstring commasToPoints(std::wstring text) {
    std::ranges::replace(text, L',', L'.');
    return text;
}

}  // namespace Meridax::VisualControls::Rotavue
