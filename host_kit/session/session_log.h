#pragma once

#include "host_kit/loader/message_values.h"
#include "host_kit/memory/call.h"
#include "host_kit/session/message_failure.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <ostream>
#include <string>

namespace Rotavue::HostKit {

/// Which message of a session a line is about.
struct SentMessage {
    std::size_t step;  ///< counted from 0 over all steps
    std::uint32_t code;
};

/// Writes the log of a session: one JSON object per line, in one form only, so that two logs of the
/// same happenings are the same bytes.
class SessionLog final : public CallWatcher {
public:
    explicit SessionLog(std::ostream& out) : out_(out) {}

    void onReturn(const Call& call) override;
    void clipboard(const std::wstring& text);
    void answered(const SentMessage& message, std::int32_t status, const MessageAnswer& answer);
    void threw(const SentMessage& message, const LogMembers& failure);
    void end(const std::map<std::wstring, std::wstring>& setup, std::int64_t references);

private:
    void write(const std::string& line);

    std::ostream& out_;
};

}  // namespace Rotavue::HostKit
