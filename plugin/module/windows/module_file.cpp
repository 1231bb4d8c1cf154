#include "plugin/module/windows/module_file.h"

#include <algorithm>
#include <array>

namespace Meridax::VisualControls::Rotavue {

std::wstring moduleFile(HINSTANCE module) {
    std::array<wchar_t, 2048 + 1> path{};
    const DWORD length = ::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), std::min<std::size_t>(length, path.size() - 1)};
}

}  // namespace Meridax::VisualControls::Rotavue
