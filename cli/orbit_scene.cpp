#include "cli/orbit_scene.h"

#include "workbench/analysis/analysis_error.h"
#include "workbench/analysis/bearing_properties.h"
#include "workbench/analysis/raw_channels.h"
#include "workbench/analysis/signal_check.h"
#include "workbench/analysis/turn_window.h"
#include "workbench/scene/bearing_facts.h"
#include "workbench/scene/curve_colors.h"
#include "workbench/scene/derived_curves.h"
#include "workbench/scene/fact_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <span>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

using namespace Workbench;

std::uint32_t colorOf(std::size_t index, const RenderOptions& options) {
    if (index < options.colors.size()) return options.colors[index];
    const bool light = options.picture.colors.background != 0;
    return usualCurveColor(index, light);
}

std::string nameOf(const Recording& recording, bool alone) {
    const std::string& point = recording.machine.point;
    return alone && !point.empty() ? point : recording.file.stem().string();
}

bool hasAny(const std::vector<CurveRequest>& requests, CurveKind kind) {
    return std::any_of(requests.begin(), requests.end(),
                       [&](const CurveRequest& one) { return one.kind == kind; });
}

[[noreturn]] void refuse(const Recording& recording, const std::string& why) {
    throw std::runtime_error(recording.file.string() + ": " + why);
}

std::size_t positionIn(std::span<const Recording> recordings, const RenderOptions& options) {
    const auto shortest = std::min_element(
        recordings.begin(), recordings.end(),
        [](const Recording& a, const Recording& b) { return a.sampleCount() < b.sampleCount(); });
    const std::size_t last = shortest->sampleCount() - 1;
    if (!options.at) return last;
    const double sample = std::round(*options.at * shortest->sampleRate);
    if (sample > static_cast<double>(last)) {
        refuse(*shortest, "--at " + shortNumber(*options.at, 9) + ": the last sample is at " +
                              shortNumber(static_cast<double>(last) / shortest->sampleRate, 9) +
                              " s");
    }
    return static_cast<std::size_t>(sample);
}

}  // namespace

OrbitScene::OrbitScene(const RenderOptions& options) : show_(options.show) {
    std::vector<Recording> recordings = readAll(options);
    checkAgreement(recordings);
    machine_ = recordings.front().machine;
    coupling_ = recordings.front().coupling;
    hasSpeed_ = recordings.front().hasTacho();
    if (options.clearance && machine_.clearanceWidth <= 0.0) {
        refuse(recordings.front(), "no clearance is known: --clearance-width tells it");
    }
    for (const Recording& recording : recordings) {
        names_.push_back(nameOf(recording, recordings.size() == 1));
        note(recording, recording.notes);
        note(recording, checkProbes(recording));
    }
    chooseSpan(recordings, options);
    const std::size_t position = positionIn(recordings, options);
    measureSpan(recordings.front(), position);
    const double sampleRate = recordings.front().sampleRate;
    addDerived(recordings, options);
    if (hasAny(show_, CurveKind::Raw)) addRaw(std::move(recordings), options);
    showStored(host_.description, sampleRate, position);
}

std::vector<Recording> OrbitScene::readAll(const RenderOptions& options) {
    RunOutRemover runOut(options.compensation, options.recording);
    if (options.compensation) compensation_ = options.compensation->form;
    rest_ = restText(options.shaftCenter, show_);
    std::vector<Recording> recordings;
    for (const std::string& file : options.recordings) {
        recordings.push_back(runOut.remove(readRecording(file, options.recording)));
        completeClearance(recordings.back().machine);
    }
    notes_ = runOut.notes();
    return recordings;
}

PictureSubject OrbitScene::subject() const {
    return {.machine = machine_,
            .name = names_.front(),
            .curves = show_,
            .coupling = coupling_,
            .span = span_,
            .compensation = compensation_ ? compensationText(*compensation_) : "",
            .rest = rest_};
}

void OrbitScene::note(const Recording& recording, const std::vector<std::string>& notes) {
    for (const std::string& note : notes)
        notes_.push_back(recording.file.string() + ": " + note);
}

void OrbitScene::checkAgreement(const std::vector<Recording>& recordings) const {
    const Recording& first = recordings.front();
    for (const Recording& other : recordings) {
        if (bearingProperties(other.machine) != bearingProperties(first.machine)) {
            refuse(other, "its probe angles, clearance or rotation are not those of " +
                              first.file.string() + ": one picture shows one bearing");
        }
        if (other.sampleRate != first.sampleRate || other.machine.unit != first.machine.unit) {
            refuse(other, "its sample rate or unit is not that of " + first.file.string());
        }
    }
}

void OrbitScene::chooseSpan(const std::vector<Recording>& recordings,
                            const RenderOptions& options) {
    const auto bare = std::find_if(recordings.begin(), recordings.end(),
                                   [](const Recording& one) { return !one.hasTacho(); });
    if (options.revolutions && bare != recordings.end()) {
        refuse(*bare, "it has no keyphasor, which --revolutions needs; --time does without");
    }
    span_.byTurns = !options.milliseconds && bare == recordings.end();
    span_.turns = options.revolutions.value_or(options.usualRevolutions);
    span_.milliseconds = options.milliseconds.value_or(options.usualMilliseconds);
}

void OrbitScene::refuseGap(const Recording& recording, std::size_t first, std::size_t last) const {
    if (!hasAny(show_, CurveKind::Raw) && !hasAny(show_, CurveKind::SubSync)) return;
    for (std::size_t i = first; i <= last; ++i)
        if (std::isfinite(recording.x[i] + recording.y[i])) return;
    refuse(recording, "there is no value of both probes from " +
                          shortNumber(static_cast<double>(first) / recording.sampleRate, 6) +
                          " to " +
                          shortNumber(static_cast<double>(last) / recording.sampleRate, 6) + " s");
}

void OrbitScene::measureSpan(const Recording& recording, std::size_t position) {
    span_.time = static_cast<double>(position) / recording.sampleRate;
    if (!span_.byTurns) {
        const auto count =
            static_cast<std::size_t>(span_.milliseconds / 1000.0 * recording.sampleRate);
        const std::size_t first = position - std::min(position, count);
        refuseGap(recording, first, position);
        if (recording.hasTacho())
            span_.speed = meanSpeed(recording.angle, recording.sampleRate, first, position);
        return;
    }
    const TurnWindow window =
        turnWindow(recording.angle, recording.sampleRate, position, span_.turns);
    span_.turnsThere = window.turns;
    span_.speed = window.speed;
    refuseGap(recording, window.first, window.last);
    const bool asked = std::any_of(show_.begin(), show_.end(), [](const CurveRequest& request) {
        return isOfShownTurns(request.kind);
    });
    if (asked && window.turns < span_.turns) {
        note(recording, {std::to_string(window.turns) + " whole turns lie before " +
                         shortNumber(span_.time, 6) + " s, " + std::to_string(span_.turns) +
                         " were to be shown"});
    }
}

std::string OrbitScene::curveName(std::size_t recording, const CurveRequest& request) const {
    if (show_.size() == 1 && request.kind != CurveKind::Reference) return names_[recording];
    if (names_.size() == 1 || request.kind == CurveKind::Reference) return wordsOf(request);
    return names_[recording] + ' ' + wordsOf(request);
}

void OrbitScene::addDerived(const std::vector<Recording>& recordings,
                            const RenderOptions& options) {
    if (show_ == std::vector{CurveRequest{}}) return;
    const CurveOptions curveOptions{
        .reference = options.recording, .speed = options.speed, .shaftCenter = options.shaftCenter};
    std::size_t color = hasAny(show_, CurveKind::Raw) ? recordings.size() : 0;
    for (std::size_t i = 0; i < recordings.size(); ++i) {
        const ShaftTrack track(recordings[i]);
        note(recordings[i], track.notes());
        DerivedCurves derived(recordings[i], track, span_, curveOptions);
        for (const CurveRequest& request : show_) {
            const bool drawnBefore = request.kind == CurveKind::Reference && i > 0;
            if (request.kind == CurveKind::Raw || drawnBefore) continue;
            const ChannelStyle style{curveName(i, request), colorOf(color++, options)};
            try {
                assignDerived(host_.description, derived.make(request, style));
            } catch (const AnalysisError& error) {
                refuse(recordings[i], error.what());
            }
            curveNames_.push_back(style.name);
        }
        note(recordings[i], derived.notes());
    }
}

void OrbitScene::addRaw(std::vector<Recording> recordings, const RenderOptions& options) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < recordings.size(); ++i) {
        names.push_back(curveName(i, {}));
        const RawOrbitStyle style{names.back(), colorOf(i, options)};
        assignRawOrbit(host_.description, rawOrbit(std::move(recordings[i]), style));
    }
    curveNames_.insert(curveNames_.begin(), names.begin(), names.end());
}

}  // namespace Rotavue::Cli
