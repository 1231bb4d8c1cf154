#include "workbench/scene/slow_curves.h"

#include "workbench/scene/derived_curves.h"
#include "workbench/scene/shown_span.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>
#include <utility>

namespace Rotavue::Workbench {

namespace {

MadeCurve refusal(const CurveRequest& request, const std::string& why) {
    return {std::nullopt, {wordsOf(request) + ": " + why}};
}

MadeCurve make(const CurveMaterial& material, const CurveRequest& request,
               const ReadingWatch& watch) {
    // The control cuts a history at the cursor by itself; the other curves know no moment.
    const ShownSpan whole{.time = material.recording->duration()};
    DerivedCurves derived(*material.recording, *material.track, whole, material.options,
                          ReadingProgress(watch));
    try {
        MadeCurve curve;
        curve.channel = derived.make(request, {});
        curve.notes = derived.notes();
        return curve;
    } catch (const ReadingCancelled&) {
        throw;
    } catch (const std::bad_alloc&) {
        return refusal(request, "it takes more than fits into memory");
    } catch (const std::exception& error) {
        return refusal(request, error.what());
    }
}

}  // namespace

void SlowCurves::use(CurveMaterial material) {
    drop();
    entries_.clear();
    material_ = std::move(material);
}

const MadeCurve* SlowCurves::find(const CurveRequest& request) {
    auto found = std::find_if(entries_.begin(), entries_.end(),
                              [&](const Entry& entry) { return entry.request == request; });
    if (found == entries_.end()) {
        entries_.push_back({request, {}});
        found = entries_.end() - 1;
        if (isQuick(request)) found->made = make(material_, request, {});
        beginNext();
    }
    return found->made ? &*found->made : nullptr;
}

bool SlowCurves::isQuick(const CurveRequest& request) const {
    if (request.kind != CurveKind::Reference)
        return material_.recording->sampleCount() <= QuickSamples;
    std::error_code fault;
    const std::uintmax_t size = std::filesystem::file_size(request.file, fault);
    return fault || size <= QuickFile;
}

void SlowCurves::keepOnly(const std::vector<CurveRequest>& requests) {
    const auto isUnwanted = [&](const CurveRequest& request) {
        return std::find(requests.begin(), requests.end(), request) == requests.end();
    };
    if (current_ && isUnwanted(currentRequest_)) drop();
    std::erase_if(entries_, [&](const Entry& entry) { return isUnwanted(entry.request); });
    beginNext();
}

void SlowCurves::beginNext() {
    if (current_) return;
    const auto next = std::find_if(entries_.begin(), entries_.end(),
                                   [](const Entry& entry) { return !entry.made; });
    if (next == entries_.end()) return;
    currentRequest_ = next->request;
    current_ = std::make_unique<Task>(
        [material = material_, request = next->request](const ReadingWatch& watch) {
            return make(material, request, watch);
        });
}

bool SlowCurves::look() {
    if (!current_ || !current_->isDone()) return false;
    const std::unique_ptr<Task> task = std::move(current_);
    const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& one) {
        return one.request == currentRequest_;
    });
    entry->made = task->take();
    beginNext();
    return true;
}

const CurveRequest* SlowCurves::current() const {
    return current_ ? &currentRequest_ : nullptr;
}

double SlowCurves::part() const {
    return current_ ? current_->part() : 1.0;
}

void SlowCurves::cancel() {
    drop();
    for (Entry& entry : entries_)
        if (!entry.made)
            entry.made = refusal(entry.request, "cancelled; choose it anew to have it");
}

void SlowCurves::forgetUnmade() {
    drop();
    std::erase_if(entries_, [](const Entry& entry) { return !entry.made; });
}

// Nobody waits for what ends a moment later.
void SlowCurves::drop() {
    current_.reset();
}

}  // namespace Rotavue::Workbench
