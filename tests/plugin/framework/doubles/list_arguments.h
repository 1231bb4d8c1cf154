#pragma once

#include "plugin/framework/host/host_error.h"
#include "plugin/framework/message_arguments.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace Meridax::VisualControls::Api {

using Argument = std::variant<Host::Ref<Host::IHostObject>, std::wstring, std::int64_t>;

/// The argument that an object is, whatever interface the reference has.
template <class Interface>
Argument object(const Host::Ref<Interface>& reference) {
    return Host::Ref<Host::IHostObject>::share(reference.get());
}

inline Argument nullObject() {
    return Host::Ref<Host::IHostObject>();
}

inline Argument number(std::int64_t value) {
    return value;
}

/// A host's argument list, with the awkward things that a host may do with it.
class ListArguments final : public MessageArguments {
public:
    ListArguments(std::initializer_list<Argument> list) : elements(list) {}

    std::unique_ptr<ArgumentList> copy() const override {
        ++copies;
        if (copyFailure != 0) throw Host::HostError(copyFailure);
        return copyIsNull ? nullptr : std::make_unique<Copy>(*this);
    }

    std::vector<Argument> elements;
    std::int32_t lowerBound = 0;
    std::uint32_t copyFailure = 0;  ///< the status with which copying fails
    bool copyIsNull = false;
    std::function<void()> onText;  ///< runs when a text is fetched

    mutable int copies = 0;
    mutable int living = 0;                     ///< copies that were not discarded yet
    mutable std::vector<std::int32_t> fetched;  ///< positions, in the order of the fetches

private:
    class Copy final : public ArgumentList {
    public:
        explicit Copy(const ListArguments& source) : source_(source), elements_(source.elements) {
            ++source_.living;
        }
        Copy(const Copy&) = delete;
        Copy& operator=(const Copy&) = delete;
        ~Copy() override { --source_.living; }

        std::int32_t lowerBound() const override { return source_.lowerBound; }
        std::int32_t upperBound() const override {
            return source_.lowerBound + static_cast<std::int32_t>(elements_.size()) - 1;
        }
        Host::Ref<Host::IHostObject> objectAt(std::int32_t position) const override {
            return payload<Host::Ref<Host::IHostObject>>(position);
        }
        std::wstring textAt(std::int32_t position) const override {
            if (source_.onText) source_.onText();
            return payload<std::wstring>(position);
        }
        std::int32_t integerAt(std::int32_t position) const override {
            return static_cast<std::int32_t>(payload<std::int64_t>(position));
        }
        std::uint16_t wordAt(std::int32_t position) const override {
            return static_cast<std::uint16_t>(payload<std::int64_t>(position));
        }
        std::uint8_t byteAt(std::int32_t position) const override {
            return static_cast<std::uint8_t>(payload<std::int64_t>(position));
        }

    private:
        template <class Kind>
        Kind payload(std::int32_t position) const {
            source_.fetched.push_back(position);
            const auto index = static_cast<std::size_t>(position - source_.lowerBound);
            const Kind* const value = std::get_if<Kind>(&elements_.at(index));
            return value == nullptr ? Kind{} : *value;
        }

        const ListArguments& source_;
        std::vector<Argument> elements_;
    };
};

}  // namespace Meridax::VisualControls::Api
