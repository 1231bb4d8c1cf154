#pragma once

#include "host_kit/session/json_document.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Rotavue::HostKit {

/// A value of a session file together with where it stands. Its readers give the value in the
/// wanted form or raise a `SessionError` that says what is wrong and what is allowed. A field must
/// not outlive the one that it was reached from.
class Field {
public:
    /// The value at a place that has been walked to before. In a patch, null takes away the member
    /// of an object; inside a list it does not.
    Field(const Json& value, std::string pointer, bool patch = false);

    bool takesAway() const { return patch_ && value_->is_null(); }

    bool isNull() const { return value_->is_null(); }
    bool isText() const { return value_->is_string(); }
    bool isNumber() const { return value_->is_number(); }
    bool isBoolean() const { return value_->is_boolean(); }
    bool isObject() const { return value_->is_object(); }
    bool isWhole() const;

    bool boolean() const;
    double number() const;
    const std::string& utf8() const;
    std::wstring text() const;

    /// A whole number within the bounds, be it written as 2, 2.0 or 2e0.
    std::int64_t whole(std::int64_t least, std::int64_t greatest) const;

    /// One of 32 bits.
    std::int32_t integer() const;

    /// A colour, with or without sign.
    std::uint32_t color() const;

    /// The low 64 bits of a whole number of any size.
    std::int64_t cutNumber() const;

    std::vector<double> numbers() const;

    /// Calls `take` with the name and the field of each member of an object, or with the field of
    /// each item of a list.
    template <class Take>
    void eachMember(Take take) const;
    template <class Take>
    void eachItem(Take take) const;

    /// A list that must have just so many items.
    void needItems(std::size_t count, std::string_view allowed) const;
    Field item(std::size_t index) const {
        return Field(*this, std::to_string(index), (*value_)[index], false);
    }

    /// A member of an object; refuses where it is missing, naming it with what it must be.
    Field member(std::string_view name, std::string_view allowed) const;

    /// True for an object with that member.
    bool has(std::string_view name) const { return value_->contains(name); }

    /// The number of items or members.
    std::size_t size() const { return value_->size(); }

    /// Calls `take` with the member of an object where it is there.
    template <class Take>
    void ifThere(std::string_view name, Take take) const;

    /// The value itself, and where it stands.
    const Json& json() const { return *value_; }
    std::string pointer() const;

    /// Raises the error that this value is not what is allowed.
    [[noreturn]] void refuse(std::string_view allowed) const;

    /// Raises an error in words of the caller's.
    [[noreturn]] void refuseBecause(std::string_view wrong) const;

private:
    Field(const Field& parent, std::string token, const Json& value, bool patch);

    const Field* parent_ = nullptr;
    std::string token_;  ///< of the member or item; for the first field a whole pointer
    const Json* value_;
    bool patch_ = false;
};

template <class Take>
void Field::eachMember(Take take) const {
    if (!value_->is_object()) refuse("an object");
    for (const auto& [name, member] : value_->items())
        take(name, Field(*this, name, member, patch_));
}

template <class Take>
void Field::eachItem(Take take) const {
    if (!value_->is_array()) refuse("a list");
    for (std::size_t i = 0; i < value_->size(); ++i)
        take(item(i));
}

template <class Take>
void Field::ifThere(std::string_view name, Take take) const {
    const auto found = value_->find(name);
    if (found != value_->end()) take(Field(*this, std::string(name), *found, patch_));
}

}  // namespace Rotavue::HostKit
