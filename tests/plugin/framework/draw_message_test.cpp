#include "plugin/framework/color_scheme.h"
#include "tests/plugin/framework/doubles/bridge_fixture.h"

#include <gtest/gtest.h>

#include <limits>

/// Message 42: the area, the canvas and the colours of a frame.
namespace Meridax::VisualControls::Api {
namespace {

class DrawMessage : public BridgeFixture {
protected:
    ListArguments frame(std::int64_t scheme) {
        return {object(host.canvas()), number(10), number(20), number(410),
                number(320),           number(-1), number(-1), number(scheme)};
    }
};

TEST_F(DrawMessage, PassesTheAreaOfTheControl) {
    EXPECT_EQ(send(MessageCode::Draw, frame(0)), 0);
    EXPECT_EQ(record.calls, std::vector<std::string>{"draw 10 20 400 300"});
    EXPECT_EQ(record.lastContext.canvas, host.canvas());
    EXPECT_EQ(result.text, "none");
}

TEST_F(DrawMessage, ElementsFiveAndSixAreNotRead) {
    const ListArguments arguments = frame(0);
    send(MessageCode::Draw, arguments);
    EXPECT_EQ(arguments.fetched, (std::vector<std::int32_t>{0, 1, 2, 3, 4, 7}));
}

TEST_F(DrawMessage, SevenElementsFailAfterTheFirstFiveWereRead) {
    ListArguments arguments = frame(0);
    arguments.elements.resize(7);
    EXPECT_EQ(thrownBy(MessageCode::Draw, &arguments), 0x80070057U);
    EXPECT_EQ(arguments.fetched, (std::vector<std::int32_t>{0, 1, 2, 3, 4}));
    EXPECT_TRUE(record.calls.empty());
}

TEST_F(DrawMessage, CanvasMayBeNull) {
    ListArguments arguments = frame(0);
    arguments.elements[0] = nullObject();
    EXPECT_EQ(send(MessageCode::Draw, arguments), 0);
    EXPECT_FALSE(record.lastContext.canvas);
}

TEST_F(DrawMessage, CanvasIsReleasedAfterTheCall) {
    send(MessageCode::Draw, frame(0));
    record.lastContext = {};
    EXPECT_EQ(host.references(), 0);
}

TEST_F(DrawMessage, EdgesTooFarApartWrapAround) {
    ListArguments arguments = frame(0);
    arguments.elements[1] = number(std::numeric_limits<std::int32_t>::min());
    arguments.elements[3] = number(std::numeric_limits<std::int32_t>::max());
    send(MessageCode::Draw, arguments);
    // 2^31 - 1 + 2^31 is -1 in 32 bits.
    EXPECT_EQ(record.calls, std::vector<std::string>{"draw -2147483648 20 -1 300"});
}

struct Scheme {
    std::int32_t number;
    bool light;
};

class SchemeNumber : public DrawMessage, public testing::WithParamInterface<Scheme> {};

TEST_P(SchemeNumber, ChoosesTheFiveColours) {
    send(MessageCode::Draw, frame(GetParam().number));
    const DrawContext& context = record.lastContext;
    const bool light = GetParam().light;
    EXPECT_EQ(context.backgroundColor, light ? 0xFFFFFFU : 0x000000U);
    EXPECT_EQ(context.gridColor, light ? 0xD9D9D9U : 0x3A3A3AU);
    EXPECT_EQ(context.textColor, light ? 0x000000U : 0xC0C0C0U);
    EXPECT_EQ(context.axisColor, light ? 0x333333U : 0x9A9A9AU);
    EXPECT_EQ(context.borderColor, light ? 0xBFBFBFU : 0x1D1D1DU);
}

// Light for 1 and above 100, on purpose not in between.
INSTANTIATE_TEST_SUITE_P(Numbers, SchemeNumber,
                         testing::Values(Scheme{0, false}, Scheme{1, true}, Scheme{2, false},
                                         Scheme{100, false}, Scheme{101, true}, Scheme{-1, false},
                                         Scheme{std::numeric_limits<std::int32_t>::max(), true},
                                         Scheme{std::numeric_limits<std::int32_t>::min(), false}));

}  // namespace
}  // namespace Meridax::VisualControls::Api
