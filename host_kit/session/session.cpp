#include "host_kit/session/session.h"

#include "host_kit/session/step_reader.h"

namespace Rotavue::HostKit {

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
