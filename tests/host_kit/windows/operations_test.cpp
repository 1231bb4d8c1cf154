#include "plugin/module/windows/interfaces/host_string.h"
#include "tests/host_kit/windows/com_host.h"

#include <gtest/gtest.h>

namespace Rotavue::HostKit {
namespace {

using Binary::ComRef;
using Binary::HostString;

class OperationsTest : public testing::Test {
protected:
    OperationsTest() { host.record(); }

    MemoryHost host;
};

TEST_F(OperationsTest, NumbersAndTextsComeBackBehindTheArguments) {
    ChannelDescription& channel = host.description.channels["x"];
    channel.name = L"Gr\u00F6\u00DFe";
    channel.color = 0xFF0080C0;
    channel.sampleRate = 2.5;
    const auto object = handedOut(host.channel("x"));
    ULONG color = 0;
    double rate = 0;
    HostString name;
    HostString unit;
    EXPECT_EQ(callSlot<&Host::IHostChannel::getColor>(object, &color), 0U);
    EXPECT_EQ(callSlot<&Host::IHostChannel::getSampleRate>(object, &rate), 0U);
    EXPECT_EQ(callSlot<&Host::IHostChannel::getName>(object, name.put()), 0U);
    EXPECT_EQ(callSlot<&Host::IHostChannel::getUnit>(object, unit.put()), 0U);
    EXPECT_EQ(color, 0xFF0080C0U);
    EXPECT_EQ(rate, 2.5);
    EXPECT_EQ(name.copy(), L"Gr\u00F6\u00DFe");
    EXPECT_EQ(unit.get(), nullptr);
}

TEST_F(OperationsTest, TruthIsMinusOneAndPositionsHaveTheBlockFirst) {
    host.description.host.currentPosition = {7, -3};
    const auto app = handedOut(host.app());
    const auto data = handedOut(host.data());
    VARIANT_BOOL acquiring = 0;
    Host::DataPosition position;
    EXPECT_EQ(callSlot<&Host::IHostApp::isAcquiring>(app, &acquiring), 0U);
    EXPECT_EQ(callSlot<&Host::IHostData::getCurrentPosition>(data, &position), 0U);
    EXPECT_EQ(acquiring, -1);
    EXPECT_EQ(position, (Host::DataPosition{7, -3}));
}

TEST_F(OperationsTest, APositionAsAnArgumentHasTheBlockInTheLowHalf) {
    const auto control = handedOut(host.control());
    const auto list = handedOut(host.app()->createChannelList());
    host.takeCalls();
    // 2 * 2^32 + 1 is block 1, offset 2; -1 is block -1, offset -1.
    EXPECT_EQ(
        callSlot<&Host::IHostVisualControl::requestData>(
            control, LONGLONG{0x200000001}, LONGLONG{-1}, LONG{0}, VARIANT_BOOL{-1}, list.get()),
        0U);
    EXPECT_EQ(
        host.takeCalls(),
        std::vector<std::string>{"IHostVisualControl.requestData([1, 2], [-1, -1], 0, true, [])"});
}

TEST_F(OperationsTest, TheTextOfTheCallerIsReplaced) {
    host.description.host.editText = {true, L"new"};
    const auto control = handedOut(host.control());
    HostString text(L"old");
    VARIANT_BOOL accepted = 0;
    EXPECT_EQ(callSlot<&Host::IHostVisualControl::editText>(control, LONG{1}, LONG{2}, text.put(),
                                                            &accepted),
              0U);
    EXPECT_EQ(text.copy(), L"new");
    EXPECT_EQ(accepted, -1);
}

TEST_F(OperationsTest, APolygonIsAnArrayOfIntegersFromZero) {
    const auto canvas = handedOut(host.canvas());
    const auto draw = [&](VARTYPE type, LONG lowerBound) {
        SAFEARRAY* const points = ::SafeArrayCreateVector(type, lowerBound, 2);
        const std::uint32_t status = callSlot<&Host::IHostCanvas::Polygon>(canvas, points, LONG{1});
        ::SafeArrayDestroy(points);
        return status;
    };
    EXPECT_EQ(draw(VT_I4, 0), 0U);
    EXPECT_EQ(draw(VT_I4, 1), 0x80070057U);
    EXPECT_EQ(draw(VT_R8, 0), 0x80070057U);
    EXPECT_EQ(callSlot<&Host::IHostCanvas::Polygon>(canvas, nullptr, LONG{1}), 0x80070057U);
    EXPECT_EQ(host.takeCalls(), std::vector<std::string>{"IHostCanvas.Polygon([0, 0], 1)"});
}

TEST_F(OperationsTest, AFailureBecomesItsStatusAndLeavesItsDetails) {
    const auto app = handedOut(host.app());
    const auto details = std::make_shared<Host::ErrorDetails>(Host::ErrorDetails{L"it", L"broke"});
    host.gate.fail({operation("IHostApp.getData"), 1, 0x80004005, details});
    IDispatch* data = nullptr;
    EXPECT_EQ(callSlot<&Host::IHostApp::getData>(app, &data), 0x80004005U);
    EXPECT_EQ(data, nullptr);
    ComRef<IErrorInfo> info;
    ASSERT_EQ(::GetErrorInfo(0, info.put()), S_OK);
    HostString source;
    HostString description;
    info.get()->GetSource(source.put());
    info.get()->GetDescription(description.put());
    EXPECT_EQ(source.copy(), L"it");
    EXPECT_EQ(description.copy(), L"broke");
}

TEST_F(OperationsTest, AFailureWithoutDetailsTakesTheOldOnesAway) {
    const auto app = handedOut(host.app());
    const auto details = std::make_shared<Host::ErrorDetails>(Host::ErrorDetails{L"it", L"broke"});
    host.gate.fail({operation("IHostApp.getData"), 1, 0x80004005, details});
    host.gate.fail({operation("IHostApp.getData"), 2, 0x80004005});
    IDispatch* data = nullptr;
    callSlot<&Host::IHostApp::getData>(app, &data);
    callSlot<&Host::IHostApp::getData>(app, &data);
    ComRef<IErrorInfo> info;
    EXPECT_EQ(::GetErrorInfo(0, info.put()), S_FALSE);
}

TEST_F(OperationsTest, NoPlaceForTheResultIsAnInvalidPointer) {
    const auto app = handedOut(host.app());
    EXPECT_EQ(callSlot<&Host::IHostApp::getData>(app, nullptr), 0x80004003U);
    EXPECT_EQ(host.takeCalls(), std::vector<std::string>{});
}

TEST_F(OperationsTest, ASlotThatNobodyCallsIsNotImplemented) {
    const auto app = handedOut(host.app());
    const auto* const table = *reinterpret_cast<const Binary::Entry* const*>(app.get());
    using Reserved = HRESULT(STDMETHODCALLTYPE*)(IDispatch*);
    EXPECT_EQ(reinterpret_cast<Reserved>(table[6 + 2])(app.get()), E_NOTIMPL);
}

}  // namespace
}  // namespace Rotavue::HostKit
