#include "workbench/recording/samples.h"

#include <algorithm>

namespace Rotavue::Workbench {

// Most files are not calibrated, and the division is what costs.
void Samples::Narrow::copyTo(std::size_t first, std::span<double> into) const {
    const float* from = values.data() + first;
    if (isCalibrated()) {
        for (std::size_t i = 0; i < into.size(); ++i)
            into[i] = (static_cast<double>(from[i]) - rest) / sensitivity - lowered;
    } else {
        std::copy_n(from, into.size(), into.data());
    }
}

std::size_t Samples::size() const {
    if (const auto* wide = std::get_if<Wide>(&values_)) return wide->size();
    if (const auto* narrow = std::get_if<Narrow>(&values_)) return narrow->values.size();
    return std::get<PulseAngle>(values_).size();
}

std::size_t Samples::memoryUse() const {
    if (const auto* wide = std::get_if<Wide>(&values_)) return wide->capacity() * sizeof(double);
    if (const auto* narrow = std::get_if<Narrow>(&values_))
        return narrow->values.capacity() * sizeof(float);
    return std::get<PulseAngle>(values_).memoryUse();
}

bool Samples::operator==(const Samples& other) const {
    return std::equal(begin(), end(), other.begin(), other.end());
}

void Samples::copyTo(std::size_t first, std::span<double> values) const {
    if (const auto* angle = std::get_if<PulseAngle>(&values_)) return angle->copyTo(first, values);
    if (const auto* narrow = std::get_if<Narrow>(&values_)) return narrow->copyTo(first, values);
    std::copy_n(std::get<Wide>(values_).data() + first, values.size(), values.data());
}

void Samples::calibrate(double rest, double sensitivity) {
    auto* narrow = std::get_if<Narrow>(&values_);
    if (narrow && !narrow->isCalibrated()) {
        narrow->rest = rest;
        narrow->sensitivity = sensitivity;
        return;
    }
    for (double& value : edit())
        value = (value - rest) / sensitivity;
}

void Samples::lower(double by) {
    auto* narrow = std::get_if<Narrow>(&values_);
    if (narrow && narrow->lowered == 0.0) {
        narrow->lowered = by;
        return;
    }
    for (double& value : edit())
        value -= by;
}

void Samples::lowerOne(std::size_t place, double by) {
    auto* narrow = std::get_if<Narrow>(&values_);
    if (!narrow) {
        edit()[place] -= by;
        return;
    }
    const double lowered = static_cast<double>(narrow->values[place]) - by * narrow->sensitivity;
    narrow->values[place] = static_cast<float>(lowered);
}

std::vector<double>& Samples::edit() {
    if (!wide()) {
        std::vector<double> values(size());
        copyTo(0, values);
        values_ = std::move(values);
    }
    return std::get<Wide>(values_);
}

SampleView SampleView::part(std::size_t first, std::size_t count) const {
    SampleView part = *this;
    if (part.wide_) part.wide_ += first;
    part.first_ += first;
    part.size_ = count;
    return part;
}

std::span<const double> SampleView::blockAt(std::size_t first, std::span<double> room) const {
    if (wide_) return {wide_ + first, size_ - first};
    const std::span<double> block = room.first(std::min(room.size(), size_ - first));
    samples_->copyTo(first_ + first, block);
    return block;
}

}  // namespace Rotavue::Workbench
