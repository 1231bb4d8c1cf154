#include "workbench/bench/plane.h"

#include "workbench/analysis/channel_text.h"
#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/turn_window.h"
#include "workbench/bench/run_out.h"
#include "workbench/scene/bearing_facts.h"
#include "workbench/scene/curve_colors.h"
#include "workbench/scene/derived_curves.h"

#include <algorithm>
#include <cwchar>
#include <stdexcept>
#include <utility>

namespace Rotavue::Workbench {

namespace {

using HostKit::ChannelDescription;

constexpr std::int32_t PlainSlot = 0;
constexpr std::int32_t GroupSlot = 1;
constexpr const char* OrbitId = "orbit1";

std::string idOf(std::size_t curve) {
    return "curve" + std::to_string(curve + 1);
}

std::wstring textOf(const Settings& settings, const wchar_t* key, const wchar_t* missing) {
    const auto found = settings.find(key);
    return found == settings.end() ? missing : found->second;
}

bool isOn(const std::wstring& text) {
    return text == L"1" || text == L"True";
}

std::shared_ptr<const PlaneSource> originalOf(const std::shared_ptr<const PlaneSource>& source) {
    return source->runOut ? source->runOut->original : source;
}

bool has(const std::vector<CurveRequest>& curves, CurveKind kind) {
    return std::any_of(curves.begin(), curves.end(),
                       [kind](const CurveRequest& curve) { return curve.kind == kind; });
}

}  // namespace

Settings usualSettings(const PlaneSource& source) {
    const MachineFacts& machine = source.recording.machine;
    return {
        {L"revolutions", L"8"},
        {L"tickCount", L"3"},  // whose numbers have room beside each other in a small tile
        {L"displayTime", L"100.000000000000000"},
        {L"historyType", source.recording.hasTacho() ? L"0" : L"1"},
        {L"displayType", source.recording.hasTacho() ? L"0" : L"1"},
        {L"clearanceColor", std::to_wstring(UsualClearanceColor)},
        {L"drawClearance", machine.clearanceWidth > 0.0 ? L"True" : L"False"},
    };
}

Plane::Plane(std::shared_ptr<const PlaneSource> source, HostKit::Module& module,
             const PlaneSetup& setup, bool light)
    : original_(originalOf(source)),
      shown_(std::move(source)),
      name_(original_->name()),
      curves_(setup.curves),
      options_(setup.options),
      light_(light),
      position_(original_->recording.sampleCount() - 1) {
    colors_.restore(curves_, setup.colors);
    takeRaw();
    control_ = std::make_unique<HostKit::DrivenControl>(module, host_);
    control_->load(setup.settings.value_or(usualSettings(*original_)));
    readBack();
    assign();
}

void Plane::takeRaw() {
    host_.description.assigned.groups.clear();
    assignRawOrbit(host_.description, shown_->raw);
    useShown();
}

void Plane::useShown() {
    slow_.use({{shown_, &shown_->recording}, {shown_, &shown_->track}, options_});
}

std::string Plane::compensation() const {
    return shown_->runOut ? compensationText(shown_->runOut->source.form) : std::string();
}

void Plane::show(std::shared_ptr<const PlaneSource> form) {
    shown_ = std::move(form);
    takeRaw();
    assign();
}

void Plane::setCurves(std::vector<CurveRequest> curves) {
    curves_ = std::move(curves);
    assign();
}

void Plane::setCurveOptions(CurveOptions options) {
    options_ = std::move(options);
    useShown();
    assign();
}

std::vector<std::size_t> Plane::colorNumbers() const {
    std::vector<std::size_t> numbers;
    for (const CurveRequest& curve : curves_)
        numbers.push_back(colors_.numberOf(curve));
    return numbers;
}

std::uint32_t Plane::colorOf(std::size_t curve) const {
    return usualCurveColor(colors_.numberOf(curves_[curve]), light_);
}

std::vector<CurveRequest> Plane::drawnCurves() const {
    std::vector<CurveRequest> drawn;
    for (std::size_t i = 0; i < curves_.size(); ++i) {
        const bool isThere = host_.description.channels.contains(idOf(i));
        if (curves_[i].kind == CurveKind::Raw || isThere) drawn.push_back(curves_[i]);
    }
    return drawn;
}

void Plane::setLight(bool light) {
    light_ = light;
    recolor();
}

void Plane::recolor() {
    for (std::size_t i = 0; i < curves_.size(); ++i) {
        const std::string id = curves_[i].kind == CurveKind::Raw ? OrbitId : idOf(i);
        HostKit::ChannelTable& channels = host_.description.channels;
        if (channels.contains(id)) channels[id].color = colorOf(i);
    }
}

std::string Plane::nameOf(const CurveRequest& request) const {
    return curves_.size() == 1 && request.kind != CurveKind::Reference ? name_ : wordsOf(request);
}

void Plane::assign() {
    HostKit::HostDescription& host = host_.description;
    ChannelDescription& orbit = host.channels[OrbitId];
    host.assigned.groups.clear();
    if (has(curves_, CurveKind::Raw)) {
        HostKit::GroupDescription group{.channels = {OrbitId},
                                        .properties = {{L"OrbitType", L"Raw"}}};
        if (shown_->recording.hasTacho()) group.channels.emplace_back("tacho1");
        host.assigned.groups.push_back(std::move(group));
        orbit.name = channelText(nameOf({}));
    }
    colors_.show(curves_);
    host.assigned.slots = {{host.assigned.groups.empty() ? PlainSlot : GroupSlot}};
    notesOfCurves_.assign(curves_.size(), {});
    dropCurves();
    slow_.keepOnly(curves_);
    for (std::size_t i = 0; i < curves_.size(); ++i)
        make(i);
    stretch_ = stretchOf(span(), shown_->track);
    listChannels();
    recolor();
    placeHost();
    control_->assignmentChanged();
    readBack();
}

void Plane::dropCurves() {
    HostKit::ChannelTable& channels = host_.description.channels;
    for (std::size_t i = 0; i < made_; ++i)
        channels.erase(idOf(i));
    made_ = curves_.size();
}

void Plane::make(std::size_t curve) {
    const CurveRequest& request = curves_[curve];
    if (request.kind == CurveKind::Raw) return;
    if (!isOfShownTurns(request.kind)) return takeSlow(curve);
    HostKit::ChannelTable& channels = host_.description.channels;
    const ShownSpan shown = span();
    DerivedCurves derived(shown_->recording, shown_->track, shown, options_);
    try {
        channels[idOf(curve)] =
            derived.make(request, {.name = nameOf(request), .color = colorOf(curve)});
        notesOfCurves_[curve] = derived.notes();
    } catch (const std::runtime_error& error) {
        channels.erase(idOf(curve));
        notesOfCurves_[curve] = {wordsOf(request) + ": " + error.what()};
    }
}

void Plane::takeSlow(std::size_t curve) {
    HostKit::ChannelTable& channels = host_.description.channels;
    const CurveRequest& request = curves_[curve];
    const MadeCurve* made = slow_.find(request);
    notesOfCurves_[curve] =
        made != nullptr ? made->notes : std::vector{wordsOf(request) + ": is being made"};
    if (made == nullptr || !made->channel) return channels.erase(idOf(curve));
    ChannelDescription& channel = channels[idOf(curve)];
    channel = *made->channel;
    channel.name = channelText(nameOf(request));
    channel.color = colorOf(curve);
}

void Plane::cancelCurves() {
    slow_.cancel();
    assign();
}

void Plane::suspendCurves() {
    slow_.forgetUnmade();
}

void Plane::resumeCurves() {
    for (const CurveRequest& curve : curves_)
        if (!isOfShownTurns(curve.kind)) slow_.find(curve);
}

bool Plane::showMadeCurves() {
    const bool any = slow_.look();
    if (any) assign();
    return any;
}

void Plane::listChannels() {
    HostKit::HostDescription& host = host_.description;
    host.assigned.channels.clear();
    for (std::size_t i = 0; i < curves_.size(); ++i)
        if (host.channels.contains(idOf(i))) host.assigned.channels.emplace_back(idOf(i));
    const bool any = !host.assigned.channels.empty() || !host.assigned.groups.empty();
    if (any) setAxisDecimals(host, original_->decimals);
}

void Plane::refreshShownTurns() {
    const auto followsCursor = [](const CurveRequest& curve) {
        return curve.kind != CurveKind::Raw && isOfShownTurns(curve.kind);
    };
    if (std::none_of(curves_.begin(), curves_.end(), followsCursor)) return;
    const TimeSpan stretch = stretchOf(span(), shown_->track);
    if (stretch.from == stretch_.from && stretch.to == stretch_.to) return;
    stretch_ = stretch;
    for (std::size_t i = 0; i < curves_.size(); ++i)
        if (followsCursor(curves_[i])) make(i);
    listChannels();
}

void Plane::placeHost() {
    const double rate = shown_->recording.sampleRate;
    if (state_ == HostState::Acquiring) {
        showAcquired(host_.description, rate, position_);
    } else {
        showStored(host_.description, rate, position_);
    }
}

void Plane::showMoment(double seconds, HostState state) {
    position_ = shown_->sampleAt(seconds);
    hasEnded_ = seconds * shown_->recording.sampleRate >= static_cast<double>(position_) + 1.0;
    state_ = state;
    refreshShownTurns();
    placeHost();
}

double Plane::time() const {
    return static_cast<double>(position_) / shown_->recording.sampleRate;
}

ShownSpan Plane::span() const {
    const Recording& recording = shown_->recording;
    ShownSpan span;
    span.byTurns = recording.hasTacho() && textOf(settings_, L"historyType", L"0") != L"1";
    span.turns =
        static_cast<int>(std::wcstol(textOf(settings_, L"revolutions", L"1").c_str(), nullptr, 10));
    span.milliseconds = std::wcstod(textOf(settings_, L"displayTime", L"0").c_str(), nullptr);
    span.time = time();
    span.sample = 1.0 / recording.sampleRate;
    if (!recording.hasTacho()) return span;
    if (span.byTurns) {
        const TurnWindow window =
            turnWindow(recording.angle, recording.sampleRate, position_, span.turns);
        span.turnsThere = window.turns;
        span.speed = window.speed;
    } else {
        span.speed = shown_->track.speedAt(span.time);
    }
    return span;
}

void Plane::load(const Settings& settings) {
    accepted_.reset();
    control_->load(settings);
    readBack();
    refreshShownTurns();
    placeHost();
}

void Plane::tryOut(const Settings& settings) {
    Settings accepted = acceptedSettings();
    load(settings);
    accepted_ = std::move(accepted);
}

void Plane::endTrial() {
    if (const auto accepted = std::exchange(accepted_, {})) load(*accepted);
}

Settings Plane::acceptedSettings() const {
    return accepted_ ? *accepted_ : control_->save();
}

bool Plane::readBack() {
    Settings now = control_->save();
    const bool changed = withoutFoundLimits(now) != withoutFoundLimits(settings_);
    settings_ = std::move(now);
    return changed;
}

std::vector<std::string> Plane::notes() const {
    std::vector<std::string> notes = shown_->notes;
    if (!shown_->recording.machine.rotation)
        notes.emplace_back(
            "the rotation is not given; the arrow of the picture points clockwise all the same");
    if (!shown_->recording.hasTacho())
        notes.emplace_back("there is no keyphasor; the picture has its badge T all the same");
    for (const auto& ofCurve : notesOfCurves_)
        notes.insert(notes.end(), ofCurve.begin(), ofCurve.end());
    return notes;
}

Settings withoutFoundLimits(Settings settings) {
    if (isOn(textOf(settings, L"useManualMagnitudeLimits", L"False"))) return settings;
    for (const wchar_t* key : {L"minXValue", L"maxXValue", L"minYValue", L"maxYValue"})
        settings.erase(key);
    return settings;
}

}  // namespace Rotavue::Workbench
