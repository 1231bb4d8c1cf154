#pragma once

#include "host_kit/loader/platform.h"
#include "workbench/paint/picture_studio.h"

#include <memory>

namespace Rotavue::Cli {

/// The part of the program that paints. It lies in a library of its own beside the program, and
/// with it all of Qt: commands that paint nothing start ten times as fast without.
class StudioLibrary {
public:
    /// Raises `std::runtime_error` where the library cannot be loaded or there is no font.
    StudioLibrary();

    Workbench::PictureStudio& operator*() const { return *studio_; }
    Workbench::PictureStudio* operator->() const { return studio_.get(); }

private:
    std::unique_ptr<HostKit::SharedLibrary> library_;
    std::unique_ptr<Workbench::PictureStudio> studio_;
};

}  // namespace Rotavue::Cli
