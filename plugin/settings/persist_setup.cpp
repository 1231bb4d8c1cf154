#include "plugin/orbit_control/rotavue_visual_control.h"
#include "plugin/settings/settings_table.h"
#include "plugin/setup_document/node.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace Meridax::VisualControls::Rotavue {
namespace {

using Utils::Serialization::Node;

constexpr std::size_t LastPosition = settingIndex("showOnlyLastPosition");

// The settings that are taken over together, once all of them could be read.
constexpr std::span StagedSettings(SettingsTable.begin(), LastPosition);
constexpr std::span LimitSettings = std::span(SettingsTable).subspan(LastPosition + 1);

using StagedValues = std::array<SettingValue, StagedSettings.size()>;

// The order of storing back: that of the table, but for the two that the graph does not hold.
constexpr std::array<std::size_t, StagedSettings.size()> StoringOrder{
    settingIndex("useManualMagnitudeLimits"),
    settingIndex("drawClearance"),
    settingIndex("clearanceColor"),
    settingIndex("tickCount"),
    settingIndex("singleAxis"),
    settingIndex("displayType"),
    settingIndex("graphType"),
    settingIndex("historyType"),
    settingIndex("autoScaleType"),
    settingIndex("displayTime"),
    settingIndex("revolutions"),
};

// Writes the value, or replaces it by what the setup holds: the node says which.
void exchange(Node& node, const Setting& setting, SettingValue& value) {
    const std::string key(setting.key);
    const auto exchangeKind = [&]<class Kind>(Kind& current) {
        if (setting.storing == Storing::Always) {
            node.readWrite(key, current);
        } else {
            node.readWrite(key, current, std::get<Kind>(setting.missing));
        }
    };
    std::visit(exchangeKind, value);
}

void exchangeAtOnce(Node& node, const Setting& setting, RotavueVisualControl& control) {
    SettingValue value = setting.get(control);
    exchange(node, setting, value);
    setting.set(control, value);
}

SettingValue checked(const Setting& setting, SettingValue value) {
    if (setting.check == Check::None) return value;
    const auto number = static_cast<std::uint32_t>(std::get<std::int32_t>(value));
    return number > 1 ? SettingValue(0) : value;
}

void storeBack(const StagedValues& values, RotavueVisualControl& control) {
    for (const std::size_t i : StoringOrder)
        SettingsTable[i].set(control, checked(SettingsTable[i], values[i]));
}

}  // namespace

// Storing back runs in both directions and comes before the limits: a load of a circle squares the
// limits that the control had, and the stored ones then replace them as they stand.
void RotavueVisualControl::persistSetup(Node& node) {
    StagedValues values;
    std::ranges::transform(StagedSettings, values.begin(),
                           [this](const Setting& setting) { return setting.get(*this); });
    for (std::size_t i = 0; i < values.size(); ++i)
        exchange(node, SettingsTable[i], values[i]);
    exchangeAtOnce(node, SettingsTable[LastPosition], *this);
    storeBack(values, *this);
    for (const Setting& setting : LimitSettings)
        exchangeAtOnce(node, setting, *this);
}

}  // namespace Meridax::VisualControls::Rotavue
