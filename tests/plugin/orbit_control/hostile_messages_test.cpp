#include "tests/plugin/orbit_control/attached_plugin.h"

#include <array>
#include <map>

/// Arguments that nobody means, to a control that shows a measurement.
namespace Meridax::VisualControls::Rotavue {
namespace {

using Api::ListArguments;
using Api::MessageCode;
using Api::nullObject;
using Api::number;
using Api::object;
using enum MessageCode;

constexpr std::uint32_t Success = 0;
constexpr std::uint32_t InvalidArgument = 0x80070057;
constexpr std::uint32_t InvalidPointer = 0x80004003;
constexpr std::array Extremes{Smallest, -1, 0, Largest};

class HostileMessages : public AttachedPlugin {
protected:
    HostileMessages() {
        send(DataWindow, {});  // makes the list of requests, which is kept
        sound_ = frame();
    }

    /// The message ends as it has to, and the next frame of a host that means well is whole.
    void expectEnd(std::uint32_t status, MessageCode code, const ListArguments* list) {
        SCOPED_TRACE(testing::Message() << "message " << static_cast<std::uint32_t>(code));
        const std::int64_t held = host.references();  // the arguments among them
        const auto message = [&] {
            plugin->message(static_cast<std::uint32_t>(code), list, nullptr);
        };
        if (status == Success) {
            EXPECT_NO_THROW(message());
        } else {
            expectHostError(status, message);
        }
        host.description.canvas = {};
        send(PointerEntered, {});
        rest();
        EXPECT_EQ(frame(), sound_);
        EXPECT_EQ(host.references(), held);
    }

    void expectEnd(std::uint32_t status, MessageCode code, const ListArguments& list) {
        expectEnd(status, code, &list);
    }

    void expectPointersToEndWell() {
        for (const std::int32_t x : Extremes) {
            for (const std::int32_t y : Extremes) {
                SCOPED_TRACE(testing::Message() << x << ", " << y);
                expectEnd(Success, PointerMoved, {number(0xFFFF), number(x), number(y)});
                for (const MessageCode wheel : {WheelForward, WheelBackward})
                    expectEnd(Success, wheel, {number(0xFFFF), number(x), number(y)});
                for (const MessageCode button : {ButtonPressed, ButtonReleased})
                    for (const std::int64_t which : {0, 255})
                        expectEnd(Success, button,
                                  {number(which), number(0xFFFF), number(x), number(y)});
            }
        }
    }

    void remember() { sound_ = frame(); }

private:
    Lines sound_;
};

TEST_F(HostileMessages, PointerMayBeAnywhere) {
    expectPointersToEndWell();
}

TEST_F(HostileMessages, PointerMayBeAnywhereOverLimitsThatCanBeEdited) {
    host.description.setup[L"useManualMagnitudeLimits"] = L"True";
    send(MessageCode::Setup, {object(host.document()), object(host.node()), number(0)});
    remember();
    expectPointersToEndWell();
}

TEST_F(HostileMessages, FrameMayHaveAnyEdges) {
    for (const std::int32_t left : Extremes)
        for (const std::int32_t top : Extremes)
            for (const std::int32_t right : Extremes)
                for (const std::int32_t bottom : Extremes) {
                    SCOPED_TRACE(testing::Message()
                                 << left << ", " << top << ", " << right << ", " << bottom);
                    expectEnd(Success, Draw, frameWithin(left, top, right, bottom));
                }
    expectEnd(Success, Draw, frameWithin(300, 300, 0, 0));      // swapped
    expectEnd(Success, Draw, frameWithin(150, 150, 150, 150));  // empty
}

TEST_F(HostileMessages, SlotThatIsNotThereIsAnInvalidPointer) {
    for (const std::int32_t index : {Smallest, -1, 1, Largest})
        expectEnd(InvalidPointer, ChannelsChanged, {number(index)});
    expectEnd(Success, ChannelsChanged, {number(0)});
}

TEST_F(HostileMessages, TextOfAMegabyteIsPassedOver) {
    const std::wstring text(1'000'000, L'x');
    const Api::Argument widget = object(host.widget(L"Nothing"));
    send(FillProperties, {object(host.panel())});
    const Api::Argument tickCount = object(host.widget(L"TickCount"));
    const ListArguments known{text, tickCount};
    EXPECT_NO_THROW(send(ReadProperty, known)) << "the widget's own name counts";
    EXPECT_NO_THROW(send(ReadProperty, {text, widget}));
    EXPECT_NO_THROW(send(PropertyEvent, {text, nullObject(), number(Largest)}));
    expectHostError(InvalidPointer, [&] { send(ReadProperty, {text, nullObject()}); });
    EXPECT_FALSE(frame().empty());
}

TEST_F(HostileMessages, NullObjectIsAnInvalidPointerWhereItIsUsed) {
    for (const MessageCode code : {ChannelCheck, GroupCheck, BuildProperties, FillProperties})
        expectEnd(InvalidPointer, code, {nullObject()});
    ListArguments noCanvas = frameWithin(0, 0, 300, 300);
    noCanvas.elements[0] = nullObject();
    expectEnd(InvalidPointer, Draw, noCanvas);
    expectEnd(Success, GroupChanged, {nullObject()});
    expectEnd(Success, MessageCode::Setup, {nullObject(), nullObject(), number(0)});
}

TEST_F(HostileMessages, ListThatIsTooShortIsAnInvalidArgument) {
    const ListArguments drawn = frameWithin(0, 0, 300, 300);
    const std::map<MessageCode, std::size_t> needed{{Attach, 2},
                                                    {ChannelCheck, 1},
                                                    {WheelForward, 3},
                                                    {WheelBackward, 3},
                                                    {ButtonPressed, 4},
                                                    {ButtonReleased, 4},
                                                    {PointerMoved, 3},
                                                    {GroupCheck, 1},
                                                    {GroupChanged, 1},
                                                    {MessageCode::Setup, 3},
                                                    {BuildProperties, 1},
                                                    {FillProperties, 1},
                                                    {ReadProperty, 2},
                                                    {PropertyEvent, 3},
                                                    {Draw, 8},
                                                    {ChannelsChanged, 1}};
    for (const auto& [code, count] : needed) {
        for (std::size_t given = 0; given < count; ++given) {
            ListArguments list = drawn;
            if (code == Attach) list = {object(host.app()), object(host.control())};
            list.elements.resize(given);
            SCOPED_TRACE(given);
            expectEnd(InvalidArgument, code, list);
        }
        expectEnd(InvalidArgument, code, nullptr);
    }
}

TEST_F(HostileMessages, MessageWithoutArgumentsTakesAnyList) {
    const ListArguments drawn = frameWithin(0, 0, 300, 300);
    for (const MessageCode code :
         {InterfaceQuery, RefusedQuery, DataWindow, Close, PointerEntered, PointerLeft, CanCopy,
          Copy, MessageCode{1}, MessageCode{46}, MessageCode{0xFFFFFFFF}}) {
        expectEnd(Success, code, nullptr);
        expectEnd(Success, code, {});
        expectEnd(Success, code, drawn);
    }
}

}  // namespace
}  // namespace Meridax::VisualControls::Rotavue
