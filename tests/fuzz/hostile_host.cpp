#include "tests/fuzz/hostile_host.h"

#include "host_kit/session/session_error.h"
#include "plugin/framework/host/host_error.h"
#include "plugin/framework/message_codes.h"
#include "tests/fuzz/hostile_values.h"
#include "tests/fuzz/known_sessions.h"

#include <array>
#include <exception>
#include <iterator>

namespace Rotavue::Fuzz {

namespace {

using HostKit::MessageList;
using HostKit::MessageValue;
using Meridax::VisualControls::Api::MessageCode;

/// A host that is called more often than this fails from then on: an input ends within a second.
constexpr std::size_t MostCalls = 30'000;
constexpr int DeepestMessage = 3;
constexpr std::size_t MostChannels = 7;

/// The first byte of an input is a session's number from 1, or stands for the host made up here.
const HostKit::Session* sessionOf(std::size_t number) {
    const auto& sessions = knownSessions();
    return number >= 1 && number <= sessions.size() ? &sessions[number - 1] : nullptr;
}

/// What a message's arguments should be, a letter each: `valueFor` tells which.
struct MessageShape {
    MessageCode code;
    std::string_view arguments;
};

using enum MessageCode;
constexpr std::array<MessageShape, 32> Shapes{{
    {InterfaceQuery, ""},
    {Attach, "av"},
    {ChannelCheck, "h"},
    {DataWindow, ""},
    {RefusedQuery, ""},
    {WheelForward, "ixx"},
    {WheelBackward, "ixx"},
    {ButtonReleased, "bixx"},
    {ButtonPressed, "bixx"},
    {ButtonPressed, "bixx"},
    {PointerMoved, "ixx"},
    {PointerMoved, "ixx"},
    {Close, ""},
    {GroupCheck, "g"},
    {PointerEntered, ""},
    {PointerLeft, ""},
    {GroupChanged, "g"},
    {CanCopy, ""},
    {Copy, ""},
    {Copy, ""},
    {Setup, "dnm"},
    {Setup, "dnm"},
    {BuildProperties, "p"},
    {FillProperties, "p"},
    {ReadProperty, "tw"},
    {PropertyEvent, "twi"},
    {ChannelsChanged, "b"},
    {ChannelsChanged, "b"},
    {Draw, "cxxxxiib"},
    {Draw, "cxxxxiib"},
    {Draw, "cxxxxiib"},
    {Draw, "cxxxxiib"},
}};

void describeUsualChannel(HostKit::ChannelDescription& channel, std::int32_t elements) {
    channel.name = L"Shaft";
    channel.unit = L"um";
    channel.sampleCount = 32;
    channel.arraySize = elements;
    channel.array = elements > 1;
    channel.sampleRate = 1000.0;
    channel.axes = {{0.0, 15.0}};
    for (std::int32_t component = 0; component < 6; ++component)
        for (std::int32_t i = 0; i < 32 * elements; ++i)
            channel.values[component].push_back((i * 37 + component * 11) % 101 - 50);
}

}  // namespace

HostileHost::HostileHost(ByteSource bytes)
    : bytes_(bytes),
      session_(sessionOf(bytes_.byte())),
      module_("linked"),
      reader_(host_),
      control_(module_.makeControl()) {
    session_ != nullptr ? session_->describe(reader_) : describeUsualHost();
    module_.supplyClipboard(&clipboard_);
    host_.gate.watch(this, HostKit::allGroups());
}

void HostileHost::describeUsualHost() {
    constexpr std::array<const wchar_t*, 6> Kinds{L"Raw",       L"Average", L"Harmonic",
                                                  L"Reference", L"SubSync", L""};
    for (std::size_t i = 0; i < Kinds.size(); ++i) {
        HostKit::ChannelDescription& channel = host_.description.channels[std::to_string(i)];
        describeUsualChannel(channel, i >= 1 && i <= 3 ? 4 : 1);
        channel.properties[L"OrbitType"] = Kinds[i];
    }
    host_.description.assigned.groups = {{{"0", "6"}, {}}};
    host_.description.assigned.channels = {"1", "2", "3", "4", "5"};
    host_.description.assigned.slots = {{1}};
}

HostileHost::~HostileHost() {
    module_.supplyClipboard(nullptr);
}

void HostileHost::run() {
    if (bytes_.flag()) attach();
    while (!bytes_.empty() && calls_ < MostCalls)
        step();
}

std::int64_t HostileHost::leftBehind() {
    control_ = nullptr;
    return host_.references();
}

// Where a host may come back into the plug-in, it does now and then. The bytes that say so come
// from the end of the input: what its front spells stays what it is, however many calls there are.
void HostileHost::onCall(HostKit::Operation operation) {
    if (++calls_ > MostCalls) {
        throw Meridax::Host::HostError(Meridax::Host::Status::Unspecified);
    }
    const bool modal = HostKit::rowOf(operation).group == HostKit::CallGroup::Control;
    if (depth_ >= DeepestMessage || bytes_.empty()) return;
    if (!modal && calls_ % 64 != 0) return;
    if (bytes_.last() % 16 < (modal ? 8 : 1)) step();
}

void HostileHost::step() {
    switch (bytes_.below(28)) {
        case 0:
            return changeFacts();
        case 1:
            return changeChannel();
        case 2:
            return changeProperties();
        case 3:
            return changeValues();
        case 4:
            return changeAssignment();
        case 5:
        case 6:
            return changeSetup();
        case 7:
            return changeWidget();
        case 8:
            return changeCanvas();
        case 9:
            return planFault();
        case 10:
            return planNulls();
        case 11:
            return replaceControl();
        case 12:  // the seeds of the sessions know this number
        case 13:
        case 14:
        case 15:
            return playNext();
        default:
            return sendAny();
    }
}

void HostileHost::playNext() {
    if (session_ == nullptr || next_ == session_->steps().size()) return;
    std::visit([this](const auto& step) { play(step); }, session_->steps()[next_++]);
}

void HostileHost::play(const HostKit::MessageStep& message) {
    if (!message.nullList) return send(message.code, message.listIn(host_));
    sendList(message.code, nullptr);
}

// The host is no longer what the patch was checked against.
void HostileHost::play(const HostKit::PatchStep& patch) {
    try {
        reader_.readPatch(HostKit::Field(*patch.patch, "", true));
    } catch (const HostKit::SessionError&) {
    }
}

void HostileHost::play(const HostKit::WidgetStep& widget) {
    host_.setWidget(widget.name, widget.value);
}

void HostileHost::play(const HostKit::FailStep& fail) {
    host_.gate.fail(fail.fault);
}

void HostileHost::play(const HostKit::ReleaseStep&) {
    control_ = module_.makeControl();
}

void HostileHost::sendAny() {
    const std::size_t choice = bytes_.below(Shapes.size() + 1);
    if (choice == Shapes.size()) return send(bytes_.raw<std::uint32_t>(), listFor("oooooooo"));
    send(static_cast<std::uint32_t>(Shapes[choice].code), listFor(Shapes[choice].arguments));
}

void HostileHost::attach() {
    send(static_cast<std::uint32_t>(Attach), {host_.app(), host_.control()});
}

void HostileHost::send(std::uint32_t code, const MessageList& list) {
    sendList(code, &list);
}

void HostileHost::sendList(std::uint32_t code, const MessageList* list) {
    // The control may be let go of while the message is under way; the plug-in outlives it.
    const auto control = control_.get();
    HostKit::MessageAnswer answer;
    ++depth_;
    try {
        control->message(code, list, &answer);
    } catch (const Meridax::Host::HostError&) {
    } catch (const std::exception&) {
    }
    --depth_;
}

MessageList HostileHost::listFor(std::string_view shape) {
    const std::size_t form = bytes_.below(16);
    std::vector<MessageValue> values;
    for (const char kind : form == 1 ? shape.substr(shape.size() / 2) : shape)
        values.push_back(valueFor(kind));
    if (form == 2) values.push_back(anyValue());
    return MessageList(std::move(values), form == 3 ? integer(bytes_) : 0);
}

MessageValue HostileHost::valueFor(char kind) {
    switch (kind) {
        case 'a':
            return host_.app();
        case 'v':
            return host_.control();
        case 'c':
            return host_.canvas();
        case 'd':
            return host_.document();
        case 'n':
            return host_.node();
        case 'p':
            return host_.panel();
        case 'h':
            return host_.channel(channelId());
        case 'g':
            return host_.group(static_cast<std::int32_t>(bytes_.below(4)));
        case 't':
            return widgetName(bytes_);
        case 'w':
            return host_.widget(widgetName(bytes_));
        case 'm':
            return bytes_.flag() ? 0xFFFF : 0;
        case 'b':
            return static_cast<std::int32_t>(bytes_.below(4));
        case 'x':  // mostly within a plot
            return static_cast<std::int32_t>(bytes_.byte()) * 2;
        case 'i':
            return integer(bytes_);
        default:
            return anyValue();
    }
}

MessageValue HostileHost::anyValue() {
    constexpr std::string_view Kinds = "avcdnphgtwixx";
    const std::size_t choice = bytes_.below(Kinds.size() + 2);
    if (choice < Kinds.size()) return valueFor(Kinds[choice]);
    return choice == Kinds.size() ? MessageValue(nullptr) : MessageValue(text(bytes_));
}

void HostileHost::changeFacts() {
    HostKit::HostFacts& facts = host_.description.host;
    facts.acquiring = bytes_.flag();
    facts.wholeDataset = bytes_.flag();
    facts.blockSize = integer(bytes_);
    facts.sampleRate = number(bytes_);
    facts.currentPosition = {integer(bytes_), integer(bytes_)};
    facts.firstPosition = {integer(bytes_), integer(bytes_)};
    facts.lastPosition = {integer(bytes_), integer(bytes_)};
    facts.acquiredSampleCount = integer(bytes_);
    facts.editText = {bytes_.flag(), text(bytes_)};
    facts.version.major = bytes_.below(8) == 0 ? 2 : 4;  // one that is told so when it attaches
}

void HostileHost::changeChannel() {
    HostKit::ChannelDescription& channel = host_.description.channels[channelId()];
    channel.asynchronous = bytes_.flag();
    channel.array = bytes_.flag();
    channel.arraySize = integer(bytes_);
    channel.storageKind = static_cast<std::int32_t>(bytes_.below(3));
    channel.sampleCount = integer(bytes_);
    channel.writePosition = integer(bytes_);
    channel.sampleCounter = integer(bytes_);
    channel.bufferSize = integer(bytes_);
    channel.rateDivider = integer(bytes_);
    channel.sampleRate = number(bytes_);
    channel.scale = {number(bytes_), number(bytes_)};
    channel.decimals = integer(bytes_);
    channel.displayValue = number(bytes_);
    channel.axes = {{number(bytes_), number(bytes_)}};
    if (bytes_.below(8) == 0) channel.axes.reset();
}

void HostileHost::changeProperties() {
    HostKit::ChannelDescription& channel = host_.description.channels[channelId()];
    channel.name = text(bytes_);
    channel.unit = text(bytes_);
    for (std::size_t count = bytes_.below(4); count > 0; --count) {
        const std::wstring name = propertyName(bytes_);
        channel.properties[name] = text(bytes_);
    }
}

void HostileHost::changeValues() {
    HostKit::ChannelDescription& channel = host_.description.channels[channelId()];
    std::vector<double>& values = channel.values[static_cast<std::int32_t>(bytes_.below(7))];
    for (std::size_t count = bytes_.below(16); count > 0; --count) {
        const std::size_t place = bytes_.byte();
        if (place >= values.size()) values.resize(place + 1);
        values[place] = number(bytes_);
    }
    if (bytes_.flag()) channel.timestamps = values;
}

void HostileHost::changeAssignment() {
    HostKit::Assignment& assigned = host_.description.assigned;
    assigned = {};
    for (std::size_t count = bytes_.below(5); count > 0; --count)
        assigned.channels.push_back(channelItem());
    for (std::size_t count = bytes_.below(3); count > 0; --count) {
        HostKit::GroupDescription& group = assigned.groups.emplace_back();
        for (std::size_t members = bytes_.below(4); members > 0; --members)
            group.channels.push_back(channelItem());
        const std::wstring name = propertyName(bytes_);
        group.properties[name] = text(bytes_);
    }
    for (std::size_t count = bytes_.below(3); count > 0; --count)
        assigned.slots.push_back({static_cast<std::int32_t>(bytes_.below(3))});
}

void HostileHost::changeSetup() {
    const std::wstring key = settingKey(bytes_);
    host_.description.setup[key] = text(bytes_);
}

void HostileHost::changeWidget() {
    const std::wstring name = widgetName(bytes_);
    const std::size_t kind = bytes_.below(3);
    if (kind == 0) host_.setWidget(name, bytes_.flag());
    if (kind == 1) host_.setWidget(name, std::int64_t{integer(bytes_)});
    if (kind == 2) host_.setWidget(name, number(bytes_));
}

void HostileHost::changeCanvas() {
    HostKit::CanvasMetrics& canvas = host_.description.canvas;
    canvas = {integer(bytes_), integer(bytes_), integer(bytes_)};
    const std::wstring hidden = widgetName(bytes_);
    if (bytes_.flag()) host_.description.panel.hidden.insert(hidden);
}

void HostileHost::planFault() {
    HostKit::Fault fault{.call = 1 + bytes_.byte()};
    const std::size_t operation = bytes_.byte();
    if (operation < HostKit::OperationCount) {
        fault.operation = static_cast<HostKit::Operation>(operation);
    }
    host_.gate.fail(fault);
}

void HostileHost::planNulls() {
    if (bytes_.flag()) return host_.gate.nullObject(1 + bytes_.byte());
    HostKit::Operations nulls;
    if (bytes_.flag()) nulls.set(bytes_.below(HostKit::OperationCount));
    host_.gate.setNulls(nulls);
}

void HostileHost::replaceControl() {
    control_ = module_.makeControl();
    if (bytes_.flag()) attach();
}

std::string HostileHost::channelId() {
    const std::size_t choice = bytes_.below(MostChannels);
    const auto& ids = host_.description.channels.ids();
    if (choice >= ids.size()) return std::to_string(choice);
    return *std::next(ids.begin(), static_cast<std::ptrdiff_t>(choice));
}

HostKit::ChannelItem HostileHost::channelItem() {
    if (bytes_.below(8) == 0) return std::nullopt;
    return channelId();
}

}  // namespace Rotavue::Fuzz
