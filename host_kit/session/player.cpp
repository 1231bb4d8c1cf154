#include "host_kit/session/player.h"

#include "host_kit/session/message_failure.h"

#include <utility>

namespace Rotavue::HostKit {

namespace {

constexpr std::uint32_t DrawCode = 42;

std::optional<std::size_t> lastDrawIn(const std::vector<Step>& steps) {
    std::optional<std::size_t> last;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const auto* message = std::get_if<MessageStep>(&steps[i]);
        if (message != nullptr && message->code == DrawCode) last = i;
    }
    return last;
}

FrameEdges edgesIn(const MessageStep& draw) {
    const auto edge = [&draw](std::size_t position) {
        if (position >= draw.arguments.size()) return 0;
        const auto* number = std::get_if<std::int64_t>(&draw.arguments[position]);
        return number != nullptr ? static_cast<std::int32_t>(*number) : 0;
    };
    return {edge(1), edge(2), edge(3), edge(4), edge(7)};
}

}  // namespace

Player::Player(const Session& session, std::shared_ptr<Module> module, std::ostream& out,
               LogOptions options)
    : session_(session),
      module_(std::move(module)),
      options_(std::move(options)),
      reader_(host_),
      log_(out),
      lastDraw_(lastDrawIn(session.steps())) {}

Player::~Player() {
    leaveModule();
}

void Player::play() {
    session_.describe(reader_);
    module_->supplyClipboard(&clipboard_);
    control_ = module_->makeControl();
    host_.gate.watch(&log_, options_.groups);
    for (step_ = 0; step_ < session_.steps().size(); ++step_) {
        std::visit([this](const auto& step) { playStep(step); }, session_.steps()[step_]);
    }
    leaveModule();
    log_.end(host_.description.setup, host_.references());
}

void Player::leaveModule() {
    control_ = nullptr;
    if (module_) module_->supplyClipboard(nullptr);
    module_.reset();
}

void Player::playStep(const MessageStep& message) {
    const MessageList list = message.listIn(host_);
    const bool pictured = options_.picture && step_ == lastDraw_;
    if (pictured) host_.drawAlsoOn(options_.picture(edgesIn(message)));
    send(message, list);
    if (pictured) host_.drawAlsoOn(nullptr);
}

void Player::send(const MessageStep& message, const MessageList& list) {
    const SentMessage sent{step_, message.code};
    MessageAnswer answer;
    std::int32_t status = 0;
    std::optional<LogMembers> failure;
    try {
        status = control_->message(message.code, message.nullList ? nullptr : &list, &answer);
    } catch (...) {
        failure = currentFailure();
    }
    if (const auto text = clipboard_.takeText()) log_.clipboard(*text);
    failure ? log_.threw(sent, *failure) : log_.answered(sent, status, answer);
}

void Player::playStep(const PatchStep& patch) {
    reader_.readPatch(Field(*patch.patch, "", true));
}

void Player::playStep(const WidgetStep& widget) {
    host_.setWidget(widget.name, widget.value);
}

void Player::playStep(const FailStep& fail) {
    host_.gate.fail(fail.fault);
}

void Player::playStep(const ReleaseStep&) {
    control_ = nullptr;
    control_ = module_->makeControl();
}

}  // namespace Rotavue::HostKit
