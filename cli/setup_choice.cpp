#include "cli/setup_choice.h"

#include "cli/setup_control.h"
#include "workbench/setup/setup_rules.h"

#include <cwchar>

namespace Rotavue::Cli {

SetupChoice::SetupChoice(const std::string& file, const std::optional<std::string>& module) {
    SetupControl control(module);
    control.load(file, Workbench::readCheckedSetup(file));
    texts_ = documentTexts(control.save());
}

void SetupChoice::leave(std::initializer_list<const wchar_t*> keys) {
    for (const wchar_t* key : keys)
        texts_.erase(key);
}

void SetupChoice::leaveLimits() {
    leave({L"useManualMagnitudeLimits", L"minXValue", L"maxXValue", L"minYValue", L"maxYValue"});
}

bool SetupChoice::isOn(const wchar_t* key) const {
    const auto found = texts_.find(key);
    return found != texts_.end() && (found->second == L"1" || found->second == L"True");
}

/// Of a text that a control has written: the program has the point of no locale but C.
double SetupChoice::number(const wchar_t* key) const {
    return std::wcstod(texts_.at(key).c_str(), nullptr);
}

void SetupChoice::takeSpan(RenderOptions& options) {
    options.usualRevolutions = static_cast<int>(number(L"revolutions"));
    options.usualMilliseconds = number(L"displayTime");
    const bool asked = options.revolutions || options.milliseconds;
    if (!asked && isOn(L"historyType")) options.milliseconds = options.usualMilliseconds;
    leave({L"historyType", L"revolutions", L"displayTime"});
}

void SetupChoice::takePlot(RenderOptions& options) {
    if (texts_.contains(L"graphType")) {
        options.background =
            isOn(L"graphType") ? Workbench::Background::Circle : Workbench::Background::Grid;
    }
    if (options.shaftCenter.labels) leave({L"displayType"});
    if (options.ticks) leave({L"tickCount"});
    if (texts_.contains(L"tickCount")) options.ticks = static_cast<int>(number(L"tickCount"));
    if (texts_.contains(L"useManualMagnitudeLimits")) options.limits = LimitChoice::Auto;
    options.setup = texts_;
}

}  // namespace Rotavue::Cli
