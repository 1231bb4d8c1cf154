#pragma once

#include "plugin/framework/message_arguments.h"

#include <array>
#include <string>

namespace Meridax::VisualControls::Api {

/// A result that shows as text what was written: "none" at first.
class TextResult final : public MessageResult {
public:
    void putInteger16(std::int16_t value) override { text = "integer " + std::to_string(value); }
    void putBoolean(bool value) override { text = value ? "true" : "false"; }
    void putFourIntegers() override { show(); }
    void setInteger(std::size_t index, std::int32_t value) override {
        integers_.at(index) = value;
        show();
    }

    std::string text = "none";

private:
    void show() {
        text = "four";
        for (const std::int32_t integer : integers_)
            text.append(" ").append(std::to_string(integer));
    }

    std::array<std::int32_t, 4> integers_{};
};

}  // namespace Meridax::VisualControls::Api
