#pragma once

#include <memory>
#include <stdexcept>

class QGuiApplication;

namespace Rotavue::Workbench {

/// What keeps pictures from being painted at all, in words for the user.
class PaintError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Qt, started to paint pictures and nothing else: without a display, without the settings that a
/// user has made for a desktop, with the one font that pictures use. One at a time, in a program
/// that has no other GUI application; everything of workbench/paint needs one or the other.
///
/// Numbers keep their decimal point: starting Qt sets the locale of the C library, and this sets
/// its numbers back.
class OffscreenGui {
public:
    /// Throws PaintError where the font is missing.
    OffscreenGui();
    ~OffscreenGui();

private:
    std::unique_ptr<QGuiApplication> application_;
};

}  // namespace Rotavue::Workbench
