#include "workbench/recording/header_keys.h"

#include <gtest/gtest.h>

namespace Rotavue::Workbench {
namespace {

TEST(HeaderKeys, TakeNamesAndUnit) {
    SourceHead head;
    takeHeaderKey("Machine Name", "Pump 3", head);
    takeHeaderKey("Point Name", "DE", head);
    takeHeaderKey("Y-Axis Unit", "mil", head);
    takeHeaderKey("X-Axis Unit", "ms", head);
    EXPECT_EQ(head.machine, "Pump 3");
    EXPECT_EQ(head.point, "DE");
    EXPECT_EQ(head.unit, "mil");
}

TEST(HeaderKeys, TakeTheSampleRateInItsSpellings) {
    struct Case {
        const char* key;
        const char* value;
        double rate;
    };
    const Case cases[] = {{"Sample Rate", "5000", 5000},
                          {"sampling_rate [kHz]", "51.2", 51200},
                          {"fs", "2560 Hz", 2560},
                          {"Sampling Frequency", "10 kHz", 10000},
                          {"SampleRate (Hz)", "1,5", 1.5}};
    for (const Case& c : cases) {
        SourceHead head;
        takeHeaderKey(c.key, c.value, head);
        EXPECT_EQ(head.rate, c.rate) << c.key;
    }
}

TEST(HeaderKeys, LeaveTheRateOpenWhereTheTextIsNone) {
    for (const char* value : {"", "fast", "0", "-5", "1e10", "nan"}) {
        SourceHead head;
        takeHeaderKey("Sample Rate", value, head);
        EXPECT_EQ(head.rate, std::nullopt) << value;
    }
    SourceHead head;
    takeHeaderKey("Sample Speed", "3000", head);
    EXPECT_EQ(head.rate, std::nullopt);
}

}  // namespace
}  // namespace Rotavue::Workbench
