#include "plugin/module/portable/module_path.h"

#include <dlfcn.h>

namespace Meridax::VisualControls::Rotavue {

namespace {

std::filesystem::path locate() noexcept {
    static const char somewhereInside = 0;
    Dl_info info{};
    if (::dladdr(&somewhereInside, &info) == 0 || info.dli_fname == nullptr) return {};
    std::error_code failure;
    return std::filesystem::absolute(info.dli_fname, failure).lexically_normal();
}

// A relative path holds for the working directory at load only.
const std::filesystem::path PathAtLoad = locate();

}  // namespace

const std::filesystem::path& modulePath() {
    return PathAtLoad;
}

}  // namespace Meridax::VisualControls::Rotavue
