#include "workbench/export/plane_picture.h"

#include "workbench/bench/axis_limits.h"
#include "workbench/paint/painting_studio.h"
#include "workbench/scene/bearing_facts.h"
#include "workbench/scene/fact_words.h"
#include "workbench/scene/picture_facts.h"
#include "workbench/scene/scheme_colors.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace Rotavue::Workbench {

namespace {

bool isOn(const Settings& settings, const wchar_t* key) {
    const auto found = settings.find(key);
    return found != settings.end() && (found->second == L"1" || found->second == L"True");
}

Background backgroundOf(const Settings& settings) {
    return isOn(settings, L"graphType") ? Background::Circle : Background::Grid;
}

std::int32_t ticksOf(const Settings& settings) {
    const auto found = settings.find(L"tickCount");
    constexpr std::int32_t WhenLeftOut = 5;
    return found == settings.end()
               ? WhenLeftOut
               : static_cast<std::int32_t>(std::wcstol(found->second.c_str(), nullptr, 10));
}

}  // namespace

PlanePicture::PlanePicture(Plane& plane, Bench& bench)
    : plane_(plane),
      title_(bench.titleOf(plane)),
      host_(plane, bench.scheme() == LightNumber),
      settings_(plane.settings()) {
    control_.emplace(bench.module(), plane_.host());
    control_->assignmentChanged();
    control_->load(settings_);
    findLimits();
}

PlanePicture::LentHost::LentHost(Plane& plane, bool wasLight)
    : plane_(plane), wasLight_(wasLight), listener_(plane.host().listener()) {
    plane_.host().listen(nullptr);
    plane_.setLight(true);
}

PlanePicture::LentHost::~LentHost() {
    plane_.setLight(wasLight_);
    plane_.host().listen(listener_);
}

void PlanePicture::findLimits() {
    constexpr std::int32_t Side = 600;
    control_->draw(plane_.host().canvas(), Side, Side, LightNumber);
    const AxisLimits found = limitsIn(control_->save());
    const std::initializer_list<double> reaches{std::abs(found.xMin), std::abs(found.xMax),
                                                std::abs(found.yMin), std::abs(found.yMax)};
    limit_ = std::max(reaches);
    constexpr double Visible = 1e-3;
    alike_ = limit_ - std::min(reaches) <= Visible * limit_;
}

double PlanePicture::extent() const {
    // The plug-in's automatic limit is so many times the largest value.
    constexpr double AutomaticHeadroom = 1.1;
    return limitsIn(settings_).manual ? limit_ : limit_ / AutomaticHeadroom;
}

void PlanePicture::setLimit(double limit) {
    settings_ = withLimits(settings_, {-limit, limit, -limit, limit, true});
    control_->load(settings_);
    limit_ = limit;
    alike_ = true;
}

GraphScale PlanePicture::scaleWith(std::int32_t ticks) const {
    GraphScale scale = plainScale(limit_, backgroundOf(settings_), ticks);
    scale.decimals = plane_.original().decimals;
    return scale;
}

void PlanePicture::fit(const PictureArea& area) {
    constexpr int PlotMargins = 120;  // that the plug-in keeps free, both sides together
    const ScaleRoom room{.background = backgroundOf(settings_),
                         .plotSide = std::min(area.width, area.height) - PlotMargins,
                         .textHeight = area.textHeight};
    std::int32_t ticks = ticksOf(settings_);
    // Odd ones, so that a line of the grid runs through 0.
    while (ticks > 0 && limit_ > 0.0 && !fits(scaleWith(ticks), room))
        ticks -= ticks % 2 == 0 ? 1 : std::min(ticks, 2);
    if (ticks == ticksOf(settings_)) return;
    settings_[L"tickCount"] = std::to_wstring(ticks);
    control_->load(settings_);
}

PictureHeader PlanePicture::header() const {
    std::optional<GraphScale> scale;
    if (alike_ && limit_ > 0.0) scale = scaleWith(ticksOf(settings_));
    const Recording& recording = plane_.shown().recording;
    return pictureHeader(
        {.machine = recording.machine,
         .name = title_.name,
         .detail = title_.detail,
         .curves = plane_.drawnCurves(),
         .coupling = recording.coupling,
         .span = plane_.span(),
         .compensation = plane_.compensation(),
         .rest = restText(plane_.curveOptions().shaftCenter, plane_.drawnCurves())},
        scale);
}

void PlanePicture::draw(const Meridax::Host::Ref<Meridax::Host::IHostCanvas>& canvas,
                        const PictureArea& area) {
    control_->draw(canvas, area.width, area.height, LightNumber);
}

DrawnPicture PlanePicture::drawn(const PictureOrder& order, bool withHeader) {
    PaintingStudio studio;
    fit(studio.areaOf(order, withHeader ? header() : PictureHeader{}));
    DrawnPicture picture{order, withHeader ? header() : PictureHeader{}, {}};
    const PictureArea area = studio.areaOf(order, picture.strip);
    CanvasRecorder canvas(area.textHeight);
    draw(Host::Ref<Host::IHostCanvas>::share(&canvas), area);
    picture.drawing = canvas.drawing();
    return picture;
}

std::string paint(const DrawnPicture& picture, const ReadingProgress& progress) {
    constexpr double PartOfPainting = 0.4;
    PaintingStudio studio;
    const auto open = studio.open(picture.order, picture.strip);
    picture.drawing.drawOn(*open->canvas(), progress.between(0.0, PartOfPainting));
    return open->finish(progress.between(PartOfPainting, 1.0));
}

}  // namespace Rotavue::Workbench
