#include "host_kit/session/field.h"

#include "host_kit/namespaces.h"
#include "host_kit/session/session_error.h"
#include "plugin/framework/unicode.h"

#include <cmath>
#include <limits>
#include <utility>

namespace Rotavue::HostKit {

namespace {

constexpr std::int64_t Least32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t Greatest32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t GreatestUnsigned32 = std::numeric_limits<std::uint32_t>::max();

/// What the value is, in words for an error.
std::string described(const Json& value) {
    if (value.is_string()) return "the text " + inQuotes(value.get_ref<const std::string&>());
    if (value.is_number() || value.is_boolean() || value.is_null()) return value.dump();
    return value.is_array() ? "a list" : "an object";
}

/// The low 64 bits of a whole number that stands as a floating-point one. They are taken from its
/// magnitude: a small negative number has no neighbour below two to the 64th power.
std::int64_t cutWhole(double number) {
    constexpr double TwoTo64 = 18446744073709551616.0;
    const auto magnitude = static_cast<std::uint64_t>(std::fmod(std::abs(number), TwoTo64));
    return static_cast<std::int64_t>(number < 0 ? 0 - magnitude : magnitude);
}

/// The number where it lies within the bounds; a value outside them where it does not.
std::int64_t heldWithin(const Json& value, std::int64_t least, std::int64_t greatest) {
    const double number = value.get<double>();
    if (number < static_cast<double>(least)) return least - 1;
    if (number > static_cast<double>(greatest)) return greatest + 1;
    return value.is_number_float() ? static_cast<std::int64_t>(number) : value.get<std::int64_t>();
}

}  // namespace

Field::Field(const Json& value, std::string pointer, bool patch)
    : token_(std::move(pointer)), value_(&value), patch_(patch) {}

Field::Field(const Field& parent, std::string token, const Json& value, bool patch)
    : parent_(&parent), token_(std::move(token)), value_(&value), patch_(patch) {}

bool Field::isWhole() const {
    if (!value_->is_number_float()) return value_->is_number();
    const double number = value_->get<double>();
    return std::floor(number) == number;
}

bool Field::boolean() const {
    if (!value_->is_boolean()) refuse("true or false");
    return value_->get<bool>();
}

double Field::number() const {
    if (!value_->is_number()) refuse("a number");
    return value_->get<double>();
}

const std::string& Field::utf8() const {
    if (!value_->is_string()) refuse("a text");
    return value_->get_ref<const std::string&>();
}

std::wstring Field::text() const {
    return Api::wideFromUtf8(utf8());
}

std::int64_t Field::whole(std::int64_t least, std::int64_t greatest) const {
    const std::int64_t number = isWhole() ? heldWithin(*value_, least, greatest) : least - 1;
    if (number < least || number > greatest) {
        refuse("a whole number from " + std::to_string(least) + " to " + std::to_string(greatest));
    }
    return number;
}

std::int32_t Field::integer() const {
    return static_cast<std::int32_t>(whole(Least32, Greatest32));
}

std::uint32_t Field::color() const {
    return static_cast<std::uint32_t>(whole(Least32, GreatestUnsigned32));
}

std::int64_t Field::cutNumber() const {
    if (!isWhole()) refuse("a whole number");
    if (value_->is_number_float()) return cutWhole(value_->get<double>());
    return value_->get<std::int64_t>();
}

std::vector<double> Field::numbers() const {
    if (!value_->is_array()) refuse("a list of numbers");
    std::vector<double> result;
    result.reserve(value_->size());
    for (std::size_t i = 0; i < value_->size(); ++i) {
        const Json& number = (*value_)[i];
        result.push_back(number.is_number() ? number.get<double>() : item(i).number());
    }
    return result;
}

void Field::needItems(std::size_t count, std::string_view allowed) const {
    if (!value_->is_array() || value_->size() != count) refuse(allowed);
}

Field Field::member(std::string_view name, std::string_view allowed) const {
    if (!value_->is_object()) refuse("an object");
    const auto found = value_->find(name);
    if (found == value_->end()) {
        refuseBecause("the member " + inQuotes(name) + " is missing, which must be " +
                      std::string(allowed));
    }
    return Field(*this, std::string(name), *found, patch_);
}

std::string Field::pointer() const {
    if (parent_ == nullptr) return token_;
    return parent_->pointer() + (Json::json_pointer() / token_).to_string();
}

void Field::refuse(std::string_view allowed) const {
    refuseBecause("is " + described(*value_) + "; allowed: " + std::string(allowed));
}

void Field::refuseBecause(std::string_view wrong) const {
    throw SessionError(pointer(), wrong);
}

}  // namespace Rotavue::HostKit
