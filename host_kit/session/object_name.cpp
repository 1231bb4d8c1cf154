#include "host_kit/session/object_name.h"

#include "host_kit/namespaces.h"
#include "plugin/framework/unicode.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Rotavue::HostKit {

namespace {

using Object = Host::Ref<Host::IHostObject>;

template <class Interface>
Object asObject(const Host::Ref<Interface>& object) {
    return Object::share(object.get());
}

/// The group's index; -1 for a text that is none.
std::int32_t groupIndex(const std::string& digits) {
    std::int32_t index = -1;
    std::from_chars(digits.data(), digits.data() + digits.size(), index);
    return std::to_string(index) == digits ? index : -1;
}

bool always(const HostDescription&, const std::string&) {
    return true;
}

bool hasChannel(const HostDescription& description, const std::string& id) {
    return description.channels.contains(id);
}

bool hasGroup(const HostDescription& description, const std::string& digits) {
    const auto index = static_cast<std::uint32_t>(groupIndex(digits));
    return index < description.assigned.groups.size();
}

}  // namespace

struct ObjectName::Row {
    std::string_view kind;
    bool named;  ///< a colon and which one follow
    bool (*isDescribed)(const HostDescription&, const std::string& which);
    Object (*find)(MemoryHost&, const std::string& which);
};

const ObjectName::Row* ObjectName::rowOf(std::string_view kind) {
    static constexpr std::array<Row, 9> Rows{{
        {"app", false, always, [](auto& host, auto&) { return asObject(host.app()); }},
        {"control", false, always, [](auto& host, auto&) { return asObject(host.control()); }},
        {"canvas", false, always, [](auto& host, auto&) { return asObject(host.canvas()); }},
        {"document", false, always, [](auto& host, auto&) { return asObject(host.document()); }},
        {"node", false, always, [](auto& host, auto&) { return asObject(host.node()); }},
        {"panel", false, always, [](auto& host, auto&) { return asObject(host.panel()); }},
        {"channel", true, hasChannel,
         [](auto& host, auto& id) { return asObject(host.channel(id)); }},
        {"group", true, hasGroup,
         [](auto& host, auto& digits) { return host.group(groupIndex(digits)); }},
        {"widget", true, always,
         [](auto& host, auto& name) { return host.widget(Api::wideFromUtf8(name)); }},
    }};
    const auto isKind = [kind](const Row& row) { return row.kind == kind; };
    const auto found = std::find_if(Rows.begin(), Rows.end(), isKind);
    return found != Rows.end() ? &*found : nullptr;
}

std::optional<ObjectName> ObjectName::parse(std::string_view text) {
    const std::size_t colon = text.find(':');
    const Row* row = rowOf(text.substr(0, colon));
    const bool named = colon != std::string_view::npos;
    if (row == nullptr || row->named != named) return std::nullopt;
    return ObjectName(*row, std::string(named ? text.substr(colon + 1) : ""));
}

std::string_view ObjectName::allowed() {
    return "app, control, canvas, document, node, panel, channel:ID and group:INDEX as described, "
           "widget:NAME";
}

bool ObjectName::isDescribedBy(const HostDescription& description) const {
    return row_->isDescribed(description, which_);
}

Object ObjectName::in(MemoryHost& host) const {
    return row_->find(host, which_);
}

}  // namespace Rotavue::HostKit
