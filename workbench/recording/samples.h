#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "workbench/recording/pulse_angle.h"

namespace Rotavue::Workbench {

/// Walks over a list that has `[]` and gives values, not places of them.
template <class List>
class ValueIterator {
public:
    using iterator_concept = std::random_access_iterator_tag;
    using iterator_category = std::input_iterator_tag;
    using value_type = double;
    using difference_type = std::ptrdiff_t;
    using pointer = const double*;
    using reference = double;

    ValueIterator() = default;
    ValueIterator(const List* list, std::size_t place) : list_(list), place_(place) {}

    double operator*() const { return (*list_)[place_]; }
    double operator[](difference_type by) const { return *(*this + by); }
    ValueIterator& operator++() { return *this += 1; }
    ValueIterator& operator--() { return *this += -1; }
    ValueIterator operator++(int) { return std::exchange(*this, *this + 1); }
    ValueIterator operator--(int) { return std::exchange(*this, *this - 1); }
    ValueIterator& operator+=(difference_type by) {
        place_ += static_cast<std::size_t>(by);
        return *this;
    }
    ValueIterator& operator-=(difference_type by) { return *this += -by; }
    friend ValueIterator operator+(ValueIterator one, difference_type by) { return one += by; }
    friend ValueIterator operator+(difference_type by, ValueIterator one) { return one += by; }
    friend ValueIterator operator-(ValueIterator one, difference_type by) { return one -= by; }
    friend difference_type operator-(const ValueIterator& one, const ValueIterator& other) {
        return static_cast<difference_type>(one.place_ - other.place_);
    }
    friend bool operator==(const ValueIterator& one, const ValueIterator& other) {
        return one.place_ == other.place_;
    }
    friend auto operator<=>(const ValueIterator& one, const ValueIterator& other) {
        return one.place_ <=> other.place_;
    }

private:
    const List* list_ = nullptr;
    std::size_t place_ = 0;
};

/// The samples of one column of a recording, in the memory that they need: as they came, where
/// single precision holds each of them exactly (files of up to 24 bits do), and else as doubles; an
/// angle that pulses tell is not stored at all. A calibration of narrow samples is done where one
/// is asked for. Whoever reads them gets the same numbers in each form.
class Samples {
public:
    using value_type = double;
    using const_iterator = ValueIterator<Samples>;

    Samples() = default;
    Samples(std::vector<double> values) : values_(std::move(values)) {}
    Samples(std::initializer_list<double> values) : values_(std::vector<double>(values)) {}
    explicit Samples(std::vector<float> values) : values_(Narrow{.values = std::move(values)}) {}
    explicit Samples(PulseAngle angle) : values_(std::move(angle)) {}

    std::size_t size() const;
    bool empty() const { return size() == 0; }

    double operator[](std::size_t place) const {
        if (const auto* wide = std::get_if<Wide>(&values_)) return (*wide)[place];
        if (const auto* narrow = std::get_if<Narrow>(&values_)) return narrow->at(place);
        return std::get<PulseAngle>(values_)[place];
    }
    double front() const { return (*this)[0]; }
    double back() const { return (*this)[size() - 1]; }
    const_iterator begin() const { return {this, 0}; }
    const_iterator end() const { return {this, size()}; }
    bool operator==(const Samples& other) const;

    /// The bytes that they take.
    std::size_t memoryUse() const;

    /// The samples as doubles in one piece, where they are held so; else null.
    const std::vector<double>* wide() const { return std::get_if<Wide>(&values_); }

    /// Writes those from `first` on, as many as `values` has room for.
    void copyTo(std::size_t first, std::span<double> values) const;

    /// (sample - rest) / sensitivity takes the place of each sample.
    void calibrate(double rest, double sensitivity);

    /// Takes one number from each sample.
    void lower(double by);

    /// Takes a number from one sample. A narrow one keeps the precision of its file: it is rounded
    /// to single precision.
    void lowerOne(std::size_t place, double by);

    /// The samples as doubles, to be changed; they are held so from now on.
    std::vector<double>& edit();

private:
    using Wide = std::vector<double>;

    struct Narrow {
        double at(std::size_t place) const {
            return (static_cast<double>(values[place]) - rest) / sensitivity - lowered;
        }

        bool isCalibrated() const { return rest != 0.0 || sensitivity != 1.0 || lowered != 0.0; }
        void copyTo(std::size_t first, std::span<double> into) const;

        std::vector<float> values;
        double rest = 0.0;
        double sensitivity = 1.0;
        double lowered = 0.0;
    };

    std::variant<Wide, Narrow, PulseAngle> values_;
};

/// Samples that somebody else holds, all of them or a part in one piece, whatever form they have.
/// They must stay as they are while the view is used.
class SampleView {
public:
    using value_type = double;
    using const_iterator = ValueIterator<SampleView>;

    static constexpr std::size_t BlockLength = 1024;

    SampleView() = default;
    SampleView(const Samples& samples)
        : wide_(samples.wide() ? samples.wide()->data() : nullptr),
          samples_(&samples),
          size_(samples.size()) {}
    SampleView(const std::vector<double>& values) : wide_(values.data()), size_(values.size()) {}
    SampleView(std::span<const double> values) : wide_(values.data()), size_(values.size()) {}

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    double operator[](std::size_t place) const {
        return wide_ ? wide_[place] : (*samples_)[first_ + place];
    }
    double front() const { return (*this)[0]; }
    double back() const { return (*this)[size_ - 1]; }
    const_iterator begin() const { return {this, 0}; }
    const_iterator end() const { return {this, size_}; }

    /// A part of these; it must lie inside.
    SampleView part(std::size_t first, std::size_t count) const;

    /// One or more samples from `first` on: where they lie, if they are doubles, else written into
    /// the room.
    std::span<const double> blockAt(std::size_t first, std::span<double> room) const;

    /// Hands each sample to `take`, in order. That is quicker than asking for one after the other
    /// where each has to be found.
    template <class Take>
    void forEach(Take take) const {
        std::array<double, BlockLength> room;
        for (std::size_t first = 0; first < size_;) {
            const std::span<const double> block = blockAt(first, room);
            for (const double value : block)
                take(value);
            first += block.size();
        }
    }

private:
    const double* wide_ = nullptr;
    const Samples* samples_ = nullptr;
    std::size_t first_ = 0;  ///< of `samples_`, where they are not wide
    std::size_t size_ = 0;
};

}  // namespace Rotavue::Workbench
