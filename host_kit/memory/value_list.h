#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace Rotavue::HostKit {

/// Numbers that several channels may hold at once and nobody changes. Whoever keeps numbers in a
/// form of their own derives from it, and a channel shows them without a copy.
class ValueList {
public:
    virtual ~ValueList() = default;

    virtual std::size_t size() const = 0;

    /// The number at a place below `size`; any thread may ask.
    virtual double at(std::size_t place) const = 0;
};

/// The numbers of a vector.
class VectorList final : public ValueList {
public:
    explicit VectorList(std::vector<double> values) : values_(std::move(values)) {}

    std::size_t size() const override { return values_.size(); }
    double at(std::size_t place) const override { return values_[place]; }

private:
    std::vector<double> values_;
};

}  // namespace Rotavue::HostKit
