#include "cli/studio_entry.h"

#include <exception>

/// The one name that the library of the studio exports.
extern "C" __attribute__((visibility("default"))) Rotavue::Workbench::PictureStudio*
rotavueMakeStudio(std::string& failure) {
    try {
        return Rotavue::Workbench::makeOffscreenStudio().release();
    } catch (const std::exception& error) {
        failure = error.what();
        return nullptr;
    }
}

static_assert(std::is_same_v<decltype(rotavueMakeStudio), Rotavue::Cli::StudioEntry>);
