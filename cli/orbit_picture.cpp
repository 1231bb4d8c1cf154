#include "cli/orbit_picture.h"

#include "cli/setup_texts.h"
#include "cli/usage_error.h"
#include "workbench/analysis/raw_channels.h"

#include <algorithm>
#include <array>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

/// Odd ones, so that a line of the grid runs through 0; the most that there is room for is taken.
constexpr std::array<std::int32_t, 4> UsualTicks{5, 3, 1, 0};

/// The room that the plug-in keeps free round its square plot, both sides together.
constexpr int PlotMargins = 120;

/// What the plug-in's automatic scale leaves free: its limit is so many times the largest value.
constexpr double AutomaticHeadroom = 1.1;

}  // namespace

OrbitPicture::OrbitPicture(const RenderOptions& options, ShownScene& shown, PictureStudio& studio)
    : options_(options), shown_(shown), scene_(shown.scene()), studio_(studio) {}

PictureArea OrbitPicture::areaWith(const PictureHeader& header) const {
    return studio_.areaOf(options_.picture, options_.header ? header : PictureHeader{});
}

bool OrbitPicture::namesFit(const PictureArea& area) const {
    constexpr double CharacterWidth = 0.6;  // of the text height
    constexpr std::size_t Between = 5;      // the unit's brackets, comma and blanks
    std::size_t characters = 0;
    for (const std::string& name : scene_.curveNames())
        characters += name.size() + scene_.machine().unit.size() + Between;
    return static_cast<double>(characters) * CharacterWidth * area.textHeight <= area.height;
}

GraphScale OrbitPicture::scaleFor(const PictureArea& area) const {
    const double limit = shown_.limit();
    const ScaleRoom room{.background = options_.background,
                         .plotSide = std::min(area.width, area.height) - PlotMargins,
                         .textHeight = area.textHeight};
    const auto scaleWith = [&](std::int32_t ticks) {
        if (limit <= 0.0) return GraphScale{.ticks = ticks};
        const GraphScale plain = plainScale(limit, room.background, ticks);
        if (options_.limits != LimitChoice::Round) return plain;
        GraphScale round = roundScale(limit / AutomaticHeadroom, room.background, ticks);
        // The readout has as many digits as the axes.
        if (options_.pointer) round.decimals = std::max(round.decimals, plain.decimals);
        return round;
    };
    if (options_.ticks) return scaleWith(*options_.ticks);
    const auto ticks =
        std::find_if(UsualTicks.begin(), UsualTicks.end() - 1,
                     [&](std::int32_t count) { return fits(scaleWith(count), room); });
    return scaleWith(*ticks);
}

std::string OrbitPicture::paint() {
    // The strip is as high as its lines, and the scale that stands in it needs the area below.
    const PictureArea roughly = areaWith(pictureHeader(scene_.subject(), GraphScale{}));
    const GraphScale scale = scaleFor(roughly);
    const bool known = scale.limit > 0.0;
    const PictureHeader header = pictureHeader(
        scene_.subject(), known && shown_.limitsAreAlike() ? std::optional(scale) : std::nullopt);
    const bool manual = known && options_.limits != LimitChoice::Auto;
    setAxisDecimals(scene_.host().description, scale.decimals);
    shown_.control().load(settingsFor(options_, scene_,
                                      {.ticks = scale.ticks,
                                       .limit = manual ? std::optional(scale.limit) : std::nullopt,
                                       .legendInRow = namesFit(areaWith(header))}));
    return drawn(header);
}

std::string OrbitPicture::drawn(const PictureHeader& header) {
    HostKit::DrivenControl& control = shown_.control();
    const PictureArea area = areaWith(header);
    const auto frame = [&] {
        auto picture = studio_.open(options_.picture, options_.header ? header : PictureHeader{});
        control.draw(picture->canvas(), area.width, area.height, options_.scheme);
        return picture;
    };
    auto picture = frame();
    if (options_.pointer) {
        // The first frame has laid out what the pointer can be on.
        const PicturePoint place = pointerIn(area);
        control.enterPointer();
        control.movePointer(place.x, place.y);
        picture.reset();
        picture = frame();
    }
    return picture->finish();
}

PicturePoint OrbitPicture::pointerIn(const PictureArea& area) const {
    const PicturePoint place = *options_.pointer;
    const int top = options_.picture.height - area.height;
    if (place.y >= top) return {place.x, place.y - top};
    throw UsageError("--pointer", std::to_string(place.x) + ',' + std::to_string(place.y),
                     "a place below the strip, Y from " + std::to_string(top) + ", or --no-header");
}

}  // namespace Rotavue::Cli
