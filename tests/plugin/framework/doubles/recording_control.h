#pragma once

#include "plugin/framework/visual_control.h"

#include <functional>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Api {

/// What a recording control leaves behind, and what it answers.
struct ControlRecord {
    std::vector<std::string> calls;
    bool accepts = true;
    bool canCopy = false;
    std::wstring text;
    Host::DataPosition first;
    Host::DataPosition second;
    DrawContext lastContext;
    Host::Ref<Host::IHostObject> lastObject;
    std::function<void()> during;  ///< runs inside each operation
    VisualControl* control = nullptr;
};

/// A control that writes down each operation with its arguments.
class RecordingControl final : public VisualControl {
public:
    explicit RecordingControl(ControlRecord& record) : record_(record) { record_.control = this; }
    ~RecordingControl() override { record_.calls.emplace_back("~"); }

    void onClose() override;
    void onAttached() override;
    void requestData(Host::DataPosition& first, Host::DataPosition& second) override;
    void draw(const DrawContext& context) override;
    void onMouseUp(std::uint8_t button, ShiftState shift, std::int32_t x, std::int32_t y) override;
    void onMouseDown(std::uint8_t button, ShiftState shift, std::int32_t x,
                     std::int32_t y) override;
    void onMouseEnter() override;
    void onMouseLeave() override;
    void onMouseMove(ShiftState shift, std::int32_t x, std::int32_t y) override;
    void onMouseWheel(ShiftState shift, std::int32_t x, std::int32_t y, bool direction) override;
    bool acceptsChannel(Host::Ref<Host::IHostChannel> channel) override;
    bool acceptsGroup(Host::Ref<Host::IHostObject> group) override;
    void onGroupChanged(Host::Ref<Host::IHostObject> group) override;
    void persistSetup(Utils::Serialization::Node& node) override;
    bool canCopyToClipboard() override;
    std::wstring clipboardText() override;
    void buildProperties(Host::Ref<Host::IHostPropertyPanel> panel) override;
    void fillProperties(Host::Ref<Host::IHostPropertyPanel> panel) override;
    void readProperty(std::wstring text, Host::Ref<Host::IHostPropertyControl> widget) override;
    void onPropertyEvent(std::wstring text, Host::Ref<Host::IHostObject> object,
                         std::int32_t number) override;
    void onChannelsChanged(std::int32_t slotIndex) override;

private:
    void note(const std::string& call);
    void note(const std::string& call, Host::IHostObject* object);

    ControlRecord& record_;
};

}  // namespace Meridax::VisualControls::Api
