#pragma once

#include "host_kit/loader/module.h"
#include "host_kit/memory/memory_clipboard.h"
#include "host_kit/memory/memory_host.h"
#include "host_kit/session/host_reader.h"
#include "host_kit/session/session.h"
#include "host_kit/session/session_log.h"
#include "plugin/framework/host/drawing/host_canvas.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>

namespace Rotavue::HostKit {

/// The edges of a frame and the number of its colour scheme, as message 42 carries them.
struct FrameEdges {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    std::int32_t scheme = 0;
};

/// Gives a canvas that paints what is drawn within these edges.
using PictureMaker = std::function<Host::Ref<Host::IHostCanvas>(const FrameEdges&)>;

/// What a log shows, and where the last frame goes.
struct LogOptions {
    CallGroups groups = defaultGroups();
    PictureMaker picture;  ///< asked at the last message 42; empty for no picture
};

/// Plays one session on one loaded module.
class Player {
public:
    Player(const Session& session, std::shared_ptr<Module> module, std::ostream& out,
           LogOptions options);
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// The host of this session, for those who let its calls fail or watch what it holds.
    MemoryHost& host() { return host_; }

    /// Sends all steps and writes the log. An error that a message throws is a line of it. Raises
    /// `LoadError` where the module makes no control.
    void play();

private:
    void playStep(const MessageStep& message);
    void playStep(const PatchStep& patch);
    void playStep(const WidgetStep& widget);
    void playStep(const FailStep& fail);
    void playStep(const ReleaseStep& release);

    void send(const MessageStep& message, const MessageList& list);
    void leaveModule();

    const Session& session_;
    std::shared_ptr<Module> module_;
    LogOptions options_;
    MemoryHost host_;
    HostReader reader_;
    MemoryClipboard clipboard_;
    SessionLog log_;
    Host::Ref<Api::IMeridaxPlugin> control_;
    std::size_t step_ = 0;
    std::optional<std::size_t> lastDraw_;
};

}  // namespace Rotavue::HostKit
