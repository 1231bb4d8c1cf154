#include "host_kit/loader/module.h"

namespace Rotavue::HostKit {

namespace {

constexpr const char* ModuleFileName = "Rotavue64.vc";

}  // namespace

ModuleChoice chooseModule(const std::optional<std::filesystem::path>& named) {
    if (named) return *named;
    if (const auto registered = registeredModule()) return {*registered, true};
    return programFolder() / ModuleFileName;
}

}  // namespace Rotavue::HostKit
