#include "host_kit/session/session.h"

#include "host_kit/session/step_reader.h"

#include <utility>

namespace Rotavue::HostKit {

namespace {

MessageValue valueIn(MemoryHost& host, const Argument& argument) {
    if (const auto* number = std::get_if<std::int64_t>(&argument)) return *number;
    if (const auto* text = std::get_if<std::wstring>(&argument)) return *text;
    if (const auto* name = std::get_if<ObjectName>(&argument)) return name->in(host);
    return nullptr;
}

}  // namespace

MessageList MessageStep::listIn(MemoryHost& host) const {
    std::vector<MessageValue> values;
    for (const Argument& argument : arguments)
        values.push_back(valueIn(host, argument));
    return MessageList(std::move(values), lowerBound);
}

Session::Session(std::string_view text) : document_(parseJson(text)) {
    const Field whole(document_, "");
    MemoryHost rehearsal;
    HostReader reader(rehearsal);
    reader.readSession(whole);
    whole.member("steps", "a list of steps").eachItem([&](const Field& step) {
        steps_.push_back(readStep(step, reader));
    });
}

void Session::describe(HostReader& reader) const {
    reader.readSession(Field(document_, ""));
}

}  // namespace Rotavue::HostKit
