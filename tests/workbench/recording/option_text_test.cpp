#include "workbench/recording/option_text.h"

#include <gtest/gtest.h>

#include "workbench/recording/machine_file.h"

namespace Rotavue::Workbench {
namespace {

struct ItemCase {
    const char* pointer;
    const char* typed;
    const char* shown;
};

constexpr ItemCase Taken[] = {
    {"/machine", "Rotor kit", "Rotor kit"},
    {"/rate", "5e3", "5000"},
    {"/x/angle", "45 L", "315"},
    {"/x/rest", "-9.8", "-9.8"},
    {"/keyphasor/kind", "ramp", "ramp"},
    {"/keyphasor/edge", "falling", "falling"},
    {"/keyphasor/pulsesPerTurn", "12", "12"},
    {"/rotation", "CCW", "CCW"},
    {"/coupling", "AC", "AC"},
};

TEST(OptionTextTest, GivesBackWhatItTook) {
    for (const ItemCase& one : Taken) {
        RecordingOptions options;
        EXPECT_EQ(itemText(options, itemAt(one.pointer)), std::nullopt) << one.pointer;
        EXPECT_TRUE(setItem(options, itemAt(one.pointer), one.typed)) << one.pointer;
        EXPECT_EQ(itemText(options, itemAt(one.pointer)), one.shown) << one.pointer;
    }
}

TEST(OptionTextTest, LeavesAnItemAloneThatDoesNotTakeTheText) {
    for (const auto& [pointer, typed] : std::initializer_list<std::pair<const char*, std::string>>{
             {"/machine", ""},
             {"/machine", std::string(201, 'a')},
             {"/rate", "0"},
             {"/rate", "1,5"},
             {"/rate", "nan"},
             {"/x/angle", "361"},
             {"/x/sensitivity", "0"},
             {"/keyphasor/pulsesPerTurn", "1.5"},
             {"/rotation", "cw"}}) {
        RecordingOptions options;
        EXPECT_FALSE(setItem(options, itemAt(pointer), typed)) << pointer << ' ' << typed;
        EXPECT_EQ(itemText(options, itemAt(pointer)), std::nullopt);
    }
}

TEST(OptionTextTest, MachineFileOfOptionsReadsBackAsTheyWere) {
    RecordingOptions options;
    for (const ItemCase& one : Taken)
        setItem(options, itemAt(one.pointer), one.typed);
    const RecordingOptions again = readMachineText("m.json", machineText(options));
    for (const OptionItem& item : optionItems())
        EXPECT_EQ(itemText(again, item), itemText(options, item)) << item.pointer;
    EXPECT_EQ(machineText({}), "{}\n");
}

}  // namespace
}  // namespace Rotavue::Workbench
