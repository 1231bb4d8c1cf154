#pragma once

#include "host_kit/loader/message_values.h"
#include "host_kit/memory/fault_plan.h"
#include "host_kit/memory/memory_host.h"
#include "host_kit/session/host_reader.h"
#include "host_kit/session/json_document.h"
#include "host_kit/session/object_name.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Rotavue::HostKit {

/// An argument of a message: a null object, a number, a text or an object.
using Argument = std::variant<std::nullptr_t, std::int64_t, std::wstring, ObjectName>;

struct MessageStep {
    std::uint32_t code = 0;
    bool nullList = false;
    std::vector<Argument> arguments;
    std::int32_t lowerBound = 0;

    /// The arguments as a host sends them, its objects where they are named.
    MessageList listIn(MemoryHost& host) const;
};

/// A merge patch, kept as it stands in the session's document.
struct PatchStep {
    const Json* patch;
};

struct WidgetStep {
    std::wstring name;
    WidgetValue value;
};

struct FailStep {
    Fault fault;
};

struct ReleaseStep {};

using Step = std::variant<MessageStep, PatchStep, WidgetStep, FailStep, ReleaseStep>;

/// A session that was read and found good: every step of it can be played.
class Session {
public:
    /// Reads the text of a session file. Raises `SessionError` for what is no session.
    explicit Session(std::string_view text);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Describes the host as it is at the start.
    void describe(HostReader& reader) const;

    const std::vector<Step>& steps() const { return steps_; }

private:
    Json document_;
    std::vector<Step> steps_;
};

}  // namespace Rotavue::HostKit
