#include "plugin/framework/bridge.h"
#include "plugin/framework/message_codes.h"
#include "tests/plugin/framework/doubles/clipboard_steps.h"
#include "tests/plugin/framework/doubles/list_arguments.h"
#include "tests/plugin/orbit_control/full_frame.h"
#include "tests/plugin/setup_document/entry_node.h"

#include <functional>
#include <map>
#include <memory>
#include <set>

/// A host that comes back to the control from inside one of its own answers.
namespace Meridax::VisualControls::Rotavue {
namespace {

/// Does something once, when the n-th call (of that operation, where one is given) has been
/// answered and before the control hears of it.
class Interruption : public HostKit::CallWatcher {
public:
    Interruption(std::int64_t n, std::function<void()> act) : left_(n), act_(std::move(act)) {}

    Interruption(HostKit::Operation operation, std::function<void()> act)
        : left_(1), operation_(operation), act_(std::move(act)) {}

    void onReturn(const HostKit::Call& call) override {
        if (operation_ && call.operation != *operation_) return;
        if (operation_) lines.push_back(toText(call));
        if (--left_ == 0) act_();
    }

    bool happened() const { return left_ <= 0; }

    Lines lines;  ///< the calls of the operation

private:
    std::int64_t left_;
    std::optional<HostKit::Operation> operation_;
    std::function<void()> act_;
};

class Reentrance : public FullFrame {
protected:
    void watch(Interruption& interruption) { host.gate.watch(&interruption, HostKit::allGroups()); }

    /// What is interrupted: a frame, where nothing else is said.
    std::function<void()> run = [this] { draw(); };

    /// How a run ends that was interrupted.
    enum class End { Whole, MayMissAnObject };

    /// A run that is interrupted after its n-th call. What the interruption raises is a failure of
    /// its own and never reaches the run.
    void runInterrupted(std::int64_t n, const std::function<void()>& act, End end) {
        Interruption interruption(n, [&] {
            host.gate.watch(nullptr, {});
            EXPECT_NO_THROW(act()) << "inside, after call " << n;
        });
        watch(interruption);
        try {
            run();
        } catch (const Host::HostError& error) {
            EXPECT_EQ(end, End::MayMissAnObject) << "after call " << n;
            EXPECT_EQ(error.status, 0x80004003U) << "after call " << n;
            ++missed;
        }
        host.gate.watch(nullptr, {});
        EXPECT_TRUE(interruption.happened()) << n;
    }

    int missed = 0;  ///< the runs that ended at an object that had gone

    /// The places in a run where it is interrupted: between any two operations that follow each
    /// other somewhere in it, and every sixty-fourth call besides.
    std::vector<std::int64_t> places() {
        const Lines calls = callsOf(run);
        const auto operationOf = [](const std::string& line) {
            return line.substr(0, line.find('('));
        };
        std::set<std::pair<std::string, std::string>> seen;
        std::vector<std::int64_t> found;
        for (std::size_t i = 0; i + 1 < calls.size(); ++i) {
            const bool isNew =
                seen.emplace(operationOf(calls[i]), operationOf(calls[i + 1])).second;
            if (isNew || i % 64 == 0) found.push_back(static_cast<std::int64_t>(i) + 1);
        }
        return found;
    }

    /// Interrupts a run at each of its places and mends the host again; then a frame is what it
    /// was.
    void interruptEverywhere(const std::function<void()>& act, const std::function<void()>& mend,
                             End end = End::Whole) {
        const Lines whole = callsOf([&] { draw(); }, drawing());
        const std::int64_t held = host.references();
        const std::vector<std::int64_t> all = places();
        mend();
        host.takeCalls();
        ASSERT_GT(all.size(), leastPlaces);
        for (const std::int64_t n : all) {
            runInterrupted(n, act, end);
            ++interrupted;
            mend();
            ASSERT_EQ(host.references(), held) << "after call " << n;
            host.description.canvas = {};
            ASSERT_EQ(callsOf([&] { draw(); }, drawing()), whole) << "after call " << n;
            ASSERT_FALSE(HasFailure()) << "after call " << n;
        }
    }

    /// One of each message that reaches the control, by their codes, but the draw. The setup that
    /// is saved is the one that is loaded, the widget that is read the one that was filled.
    std::map<int, std::function<void()>> otherMessages() {
        return {
            {3, [this] { EXPECT_FALSE(control.acceptsChannel(host.channel("orbit"))); }},
            {6, [this] { control.requestData(first, second); }},
            {8, [this] { control.onMouseWheel({}, 65, 245, true); }},
            {9, [this] { control.onMouseWheel({}, 65, 245, false); }},
            {10, [this] { control.onMouseUp(0, {}, 65, 245); }},
            {11, [this] { control.onMouseDown(0, {}, 65, 245); }},
            {12, [this] { control.onMouseMove({}, 65, 245); }},
            {18, [this] { control.onClose(); }},
            {24, [this] { EXPECT_TRUE(control.acceptsGroup(host.group(0))); }},
            {25, [this] { control.onMouseEnter(); }},
            {26, [this] { control.onMouseLeave(); }},
            {29, [this] { control.onGroupChanged(host.group(0)); }},
            {30, [this] { EXPECT_TRUE(control.canCopyToClipboard()); }},
            {31, [this] { EXPECT_FALSE(control.clipboardText().empty()); }},
            {33, [this] { saveAndLoad(); }},
            {34, [this] { control.buildProperties(host.panel()); }},
            {35, [this] { control.fillProperties(host.panel()); }},
            {36, [this] { readWidgets(); }},
            {37, [this] { control.onPropertyEvent(L"TickCount", host.widget(L"TickCount"), 0); }},
            {45, [this] { control.onChannelsChanged(0); }},
        };
    }

    /// In an order in which each finds what it is about: limits to edit, a panel that is filled.
    void sendEveryOtherMessage() {
        key.graph.setManualLimits(1);
        const auto messages = otherMessages();
        for (const int code :
             {6, 45, 12, 11, 10, 8, 9, 26, 25, 34, 35, 36, 37, 3, 24, 29, 30, 31, 33, 18}) {
            EXPECT_NO_THROW(messages.at(code)()) << "message " << code;
            ++sent[code];
        }
    }

    Host::Ref<Host::IHostPropertyControl> widget(const std::wstring& name) {
        return host.widget(name).offered<Host::IHostPropertyControl>();
    }

    void readWidgets() {
        control.readProperty(L"TickCount", widget(L"TickCount"));
        control.readProperty(L"Nothing", widget(L"Nothing"));
        expectHostError(0x80004003, [this] { control.readProperty(L"Nothing", nullptr); });
    }

    void saveAndLoad() {
        Tests::EntryNode setup;
        setup.writing = true;
        control.persistSetup(setup);
        setup.writing = false;
        control.persistSetup(setup);
    }

    /// What the messages have changed.
    void takeMessagesBack() {
        control.onMouseEnter();
        control.onMouseMove({}, 0, 0);
        key.graph.setManualLimits(0);
        key.propertyRoot = nullptr;
        key.dataRequestList = nullptr;
    }

    /// Sends all of them, the draw too, between any two calls of something that has more than so
    /// many places for it.
    void sendEveryMessageBetween(std::function<void()> calls, std::size_t least) {
        host.description.assigned.slots = {{1}};
        host.description.host.editText = {true, L"2"};
        run = std::move(calls);
        leastPlaces = least;
        const auto act = [this] {
            sendEveryOtherMessage();
            draw();
            ++sent[42];
        };
        interruptEverywhere(act, [this] { takeMessagesBack(); });
        expectEachSent(21);
    }

    void expectEachSent(std::size_t messages) {
        EXPECT_EQ(sent.size(), messages);
        for (const auto& [code, times] : sent)
            EXPECT_EQ(times, interrupted) << "message " << code;
    }

    std::size_t leastPlaces = 100;
    int interrupted = 0;      ///< the places at which a run was
    std::map<int, int> sent;  ///< how often each message came back
    Host::DataPosition first;
    Host::DataPosition second;
};

TEST_F(Reentrance, AnotherFrameMayBeDrawnBetweenAnyTwoCallsOfADraw) {
    Api::DrawContext other = context();
    other.width = 200;
    other.height = 400;
    const auto settings = [&](std::int32_t graphType, std::int32_t tickCount, bool singleAxis) {
        key.graph.setGraphType(graphType);
        key.graph.setTickCount(tickCount);
        key.graph.setSingleAxis(singleAxis);
    };
    interruptEverywhere(
        [&] {
            settings(1, 40, false);
            control.draw(other);
            settings(0, 0, true);
        },
        [&] { settings(0, 5, true); });
}

TEST_F(Reentrance, AssignmentMayGoBetweenAnyTwoCallsOfADraw) {
    const HostKit::Assignment assigned = host.description.assigned;
    interruptEverywhere([&] { host.description.assigned = {}; },
                        [&] { host.description.assigned = assigned; }, End::MayMissAnObject);
    EXPECT_GT(missed, 0);
}

TEST_F(Reentrance, DataMayGoBetweenAnyTwoCallsOfADraw) {
    std::map<std::string, HostKit::ChannelDescription> whole;
    for (const char* id : {"orbit", "tacho", "0", "1", "2", "3", "4"})
        whole[id] = channel(id);
    const auto empty = [&] {
        for (const auto& [id, described] : whole) {
            channel(id) = {};
            channel(id).array = !described.array;
            channel(id).arraySize = 0;
            channel(id).asynchronous = true;
        }
        host.description.host.acquiring = !host.description.host.acquiring;
    };
    const auto mend = [&] {
        for (const auto& [id, described] : whole)
            channel(id) = described;
        host.description.host.acquiring = true;
    };
    interruptEverywhere(empty, mend, End::MayMissAnObject);
    EXPECT_GT(missed, 0);
}

TEST_F(Reentrance, EveryOtherMessageMayComeBetweenAnyTwoCallsOfADraw) {
    host.description.assigned.slots = {{1}};
    host.description.host.editText = {true, L"2"};
    interruptEverywhere([&] { sendEveryOtherMessage(); }, [&] { takeMessagesBack(); });
    expectEachSent(20);
}

TEST_F(Reentrance, EveryMessageMayComeBetweenAnyTwoCallsOfACopy) {
    const std::wstring text = control.clipboardText();
    sendEveryMessageBetween([&] { EXPECT_EQ(control.clipboardText(), text); }, 50);
}

TEST_F(Reentrance, EveryMessageMayComeBetweenAnyTwoCallsOfADataRequest) {
    sendEveryMessageBetween([this] { control.requestData(first, second); }, 10);
}

TEST_F(Reentrance, EveryMessageMayComeBetweenAnyTwoCallsOfThePanel) {
    const auto panel = [this] {
        control.buildProperties(host.panel());
        control.fillProperties(host.panel());
    };
    sendEveryMessageBetween(panel, 20);
}

TEST_F(Reentrance, AnotherHostMayBeHandedInBetweenAnyTwoCallsOfADraw) {
    HostKit::MemoryHost other;
    interruptEverywhere(
        [&] {
            control.hostApp = other.app();
            control.hostControl = other.control();
        },
        [&] {
            control.hostApp = host.app();
            control.hostControl = host.control();
        });
    EXPECT_EQ(other.references(), 0);
}

/// What a host needs to make a bridge of its own and to let it attach and draw.
class ReentrantBridge : public Reentrance {
protected:
    Host::Ref<Api::IMeridaxPlugin> makePlugin() {
        return Api::VisualControlBridge::create({maker_, clipboard_, living})
            .offered<Api::IMeridaxPlugin>();
    }

    static void send(Api::IMeridaxPlugin& plugin, Api::MessageCode code,
                     const Api::ListArguments& list) {
        plugin.message(static_cast<std::uint32_t>(code), &list, nullptr);
    }

    Api::LiveObjects living;
    const Api::ListArguments attach{Api::object(host.app()), Api::object(host.control())};
    const Api::ListArguments frame{
        Api::object(host.canvas()), Api::number(0), Api::number(0), Api::number(300),
        Api::number(300),           Api::number(0), Api::number(0), Api::number(0)};

private:
    const Api::ControlMaker maker_ = [] { return std::make_unique<RotavueVisualControl>(); };
    Api::ClipboardSteps clipboard_;
};

TEST_F(ReentrantBridge, MayBeReleasedBetweenAnyTwoCallsOfADraw) {
    const std::int64_t before = host.references();
    int released = 0;
    for (const std::int64_t n : places()) {
        auto plugin = makePlugin();
        Api::IMeridaxPlugin& borrowed = *plugin;
        send(borrowed, Api::MessageCode::Attach, attach);
        Interruption release(n, [&] { plugin = nullptr; });
        watch(release);
        send(borrowed, Api::MessageCode::Draw, frame);
        host.gate.watch(nullptr, {});
        ASSERT_EQ(living.any(), !release.happened()) << "it ends with the message, at call " << n;
        if (release.happened()) ++released;
    }
    EXPECT_GT(released, 100);
    EXPECT_EQ(host.references(), before);
}

TEST_F(Reentrance, FrameDrawnInsideTheRedrawRequestShowsThePointer) {
    key.graph.setManualLimits(1);
    draw();
    Lines lines;
    Interruption redraw(HostKit::operation("IHostVisualControl.invalidate"),
                        [&] { lines = callsOf([&] { draw(); }, drawing()); });
    watch(redraw);
    control.onMouseMove({}, 65, 245);
    // 0x2D5DF1, the colour of what is hovered: the label of xMin, whose box begins at 60, 240. The
    // limit of the frame before is 1.1 times the greatest value, a y of 40.
    const auto hovered = std::ranges::find(lines, "IHostFont.SetColor(2973169)");
    ASSERT_NE(hovered, lines.end());
    EXPECT_EQ(*(hovered + 1), R"(IHostCanvas.TextRect(60, 240, 84, 256, "-44", 256))");
}

TEST_F(ReentrantBridge, DrawsInsideTheMessageToAHostThatIsTooOld) {
    host.description.host.version = {2, 99, 0};
    const auto plugin = makePlugin();
    Lines lines;
    Interruption modal(HostKit::operation("IHostApp.showMessage"), [&] {
        lines = callsOf([&] { send(*plugin, Api::MessageCode::Draw, frame); }, drawing());
    });
    watch(modal);
    send(*plugin, Api::MessageCode::Attach, attach);
    host.gate.watch(nullptr, {});
    EXPECT_TRUE(modal.happened());
    EXPECT_EQ(lines, callsOf([&] { send(*plugin, Api::MessageCode::Draw, frame); }, drawing()));
    EXPECT_FALSE(lines.empty());
}

TEST_F(Reentrance, EditorThatIsOpenKeepsItsLabelWhateverIsDrawnMeanwhile) {
    key.graph.setManualLimits(1);
    key.graph.setAutoScaleType(1);
    draw();
    control.onMouseMove({}, 65, 245);  // xMin
    host.description.host.editText = {true, L"-4"};
    Interruption meanwhile(HostKit::operation("IHostVisualControl.editText"), [&] {
        control.onMouseMove({}, 50, 65);  // yMax
        draw();
    });
    watch(meanwhile);
    control.onMouseUp(0, {}, 65, 245);
    EXPECT_TRUE(meanwhile.happened());
    EXPECT_EQ(key.graph.xMin(), -4.0);
    EXPECT_EQ(key.graph.yMax(), 1.1 * 40.0);
}

TEST_F(Reentrance, RequestInsideARequestTakesTheListAsItStands) {
    host.description.assigned = {};
    host.description.host.lastPosition = {9, 0};
    assignChannel("c", L"");
    Interruption again(HostKit::operation("IHostVisualControl.requestData"),
                       [&] { control.requestData(first, second); });
    watch(again);
    control.requestData(first, second);
    EXPECT_EQ(again.lines,
              (Lines{
                  R"(IHostVisualControl.requestData([0, 0], [9, 0], 0, true, ["c"]))",
                  R"(IHostVisualControl.requestData([0, 0], [9, 0], 0, true, ["c", "c"]))",
              }));
    EXPECT_EQ(key.dataRequestList->getCount(), 0);
}

TEST_F(Reentrance, RequestListOfAnInnerRequestIsReplacedByTheOuterOnes) {
    Interruption inner(HostKit::operation("IHostApp.createChannelList"),
                       [&] { control.requestData(first, second); });
    watch(inner);
    control.requestData(first, second);
    EXPECT_EQ(inner.lines.size(), 2U);
    EXPECT_EQ(host.references(), 3) << "one list besides application and control";
}

TEST_F(Reentrance, SetupThatIsShownAgainFindsTheHistoryByTime) {
    host.description.assigned.slots = {{1}};
    host.description.assigned.groups[0].channels.pop_back();
    key.graph.setHistoryType(0);
    bool missing = false;
    std::int32_t type = 0;
    Interruption shown(HostKit::operation("IHostVisualControl.refreshSetup"), [&] {
        control.onChannelsChanged(0);
        missing = key.tachoMissing;
        type = key.graph.historyType();
    });
    watch(shown);
    control.onChannelsChanged(0);
    EXPECT_EQ(shown.lines.size(), 1U) << "the change inside changes nothing more";
    EXPECT_TRUE(missing);
    EXPECT_EQ(type, 1);
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
