#pragma once

#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/ref.h"
#include "workbench/recording/reading_watch.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// Pictures for programs that do without Qt until there is something to paint: nothing in this
/// header needs it.
namespace Rotavue::Workbench {

enum class PictureFormat : std::uint8_t { Png, Svg, Pdf };

/// Largest picture, in pixels of the file, each way.
inline constexpr int LargestSide = 8192;

/// The colours of what a host paints round the plug-in's area, in the host's encoding.
struct PictureColors {
    std::uint32_t background = 0xFFFFFF;
    std::uint32_t text = 0x000000;
    std::uint32_t quiet = 0x333333;  ///< of what stands beside the first words
    std::uint32_t line = 0xBFBFBF;   ///< between the strip and the plug-in's area
};

/// What stands in a strip at the upper edge, over the margin that the plug-in keeps free above its
/// plot as far as that goes, or above the area for a picture with a readout. Empty for no strip.
struct PictureHeader {
    std::string title;               ///< UTF-8
    std::vector<std::string> facts;  ///< short ones, in the order of their weight
};

struct PictureOrder {
    PictureFormat format = PictureFormat::Png;
    int width = 800;       ///< pixels, with the strip
    int height = 600;      ///< likewise
    double scale = 1.0;    ///< pixels of a PNG file for each of those, each way
    int fileWidth = 0;     ///< pixels of a PNG file, with a part of one of those; 0: width * scale
    int fileHeight = 0;    ///< likewise
    int textHeight = 0;    ///< pixels; 0: what suits the size
    bool readout = false;  ///< the plug-in will write at the upper edge of its area
    PictureColors colors = {};
};

/// How much of a picture is the plug-in's, and the height of its texts there.
struct PictureArea {
    int width = 0;
    int height = 0;
    int textHeight = 0;
};

/// A picture in the making: the strip is painted at once, the area by whoever draws on the canvas.
class OpenPicture {
public:
    virtual ~OpenPicture() = default;

    /// The canvas of the area, with its own (0, 0); it lives as long as this object and is drawn on
    /// until `finish`.
    virtual Meridax::Host::Ref<Meridax::Host::IHostCanvas> canvas() = 0;

    /// Ends the painting and gives the bytes of the file. Called once. The same painting gives the
    /// same bytes: no file holds a date. Raises `std::runtime_error` where they cannot be made,
    /// and `ReadingCancelled`.
    virtual std::string finish(const ReadingProgress& progress) = 0;
    std::string finish() { return finish(ReadingProgress()); }
};

/// Where pictures are painted.
class PictureStudio {
public:
    virtual ~PictureStudio() = default;

    /// What a strip leaves to the plug-in.
    virtual PictureArea areaOf(const PictureOrder& order, const PictureHeader& header) = 0;

    /// Begins a picture. Raises `std::runtime_error` for a size that is not from 1 to `LargestSide`
    /// and for one that leaves the plug-in no area.
    virtual std::unique_ptr<OpenPicture> open(const PictureOrder& order,
                                              const PictureHeader& header) = 0;
};

/// A studio of its own, without a display, for programs that have no GUI application. One at a
/// time. Raises `std::runtime_error` where the font is missing.
std::unique_ptr<PictureStudio> makeOffscreenStudio();

}  // namespace Rotavue::Workbench
