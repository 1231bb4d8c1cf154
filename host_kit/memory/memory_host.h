#pragma once

#include "host_kit/memory/call_gate.h"
#include "host_kit/memory/description.h"
#include "host_kit/memory/host_listener.h"
#include "host_kit/memory/ledger.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/data/host_axes.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/data/host_data.h"
#include "plugin/framework/host/data/host_properties.h"
#include "plugin/framework/host/data/host_slots.h"
#include "plugin/framework/host/data/host_visual_control.h"
#include "plugin/framework/host/document/host_xml.h"
#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace Rotavue::HostKit {

class HostObjects;

/// What a user does to a widget: ticks a check box, or enters a number.
using WidgetValue = std::variant<bool, std::int64_t, double>;

/// A whole host in memory: it answers every operation of the 28 interfaces from `description`.
///
///     MemoryHost host;
///     host.description.channels["orbit"].values[4] = {1.0, 2.0};
///     host.description.assigned.groups = {{{"orbit", "tacho"}, {{L"OrbitType", L"Raw"}}}};
///     host.record();
///     draw(host.app(), host.control(), host.canvas());
///     EXPECT_EQ(host.calls().front(), "IHostPen.SetStyle(0)");
///
/// Each operation gives the one object that stands for a channel id, a group index and so on,
/// however often it is asked; those live as long as the host does. Lists, pages, widgets, documents
/// and nodes that the plug-in has made go with their last reference. What a caller of the functions
/// below holds counts as held from outside.
class MemoryHost {
public:
    MemoryHost();
    ~MemoryHost();
    MemoryHost(const MemoryHost&) = delete;
    MemoryHost& operator=(const MemoryHost&) = delete;

    Host::Ref<Host::IHostApp> app();
    Host::Ref<Host::IHostVisualControl> control();
    Host::Ref<Host::IHostData> data();
    Host::Ref<Host::IHostCanvas> canvas();
    Host::Ref<Host::IHostXmlDocument> document();  ///< the one setup document
    Host::Ref<Host::IHostXmlNode> node();          ///< its one node, which holds `setup`
    Host::Ref<Host::IHostPropertyPanel> panel();

    /// The channel of that id; one that is not described answers the defaults.
    Host::Ref<Host::IHostChannel> channel(const std::string& id);

    /// The assigned group of that index, which offers `IHostChannelList` and `IHostGroupInfo`; one
    /// that is not described is empty.
    Host::Ref<Host::IHostObject> group(std::int32_t index);

    /// The widget of that name on any page, or else one that the plug-in did not make, which offers
    /// `IHostPropertyControl` alone.
    Host::Ref<Host::IHostObject> widget(const std::wstring& name);

    /// The user changes a widget. False where the plug-in has made none of that name.
    bool setWidget(const std::wstring& name, const WidgetValue& value);

    /// Starts to write down the calls in these groups.
    void record(CallGroups groups = allGroups());

    /// What was written down, one line a call, as `toText` spells it.
    const std::vector<std::string>& calls() const { return recorder_.lines; }

    /// The same, and forgets it.
    std::vector<std::string> takeCalls();

    /// Lets that canvas have whatever is drawn on this host's canvas from now on, from the pen, the
    /// brush and the font as they are now; null ends it.
    void drawAlsoOn(Host::Ref<Host::IHostCanvas> canvas);

    /// Who hears of what the control asks for; null ends it. A listener must outlive the host or
    /// take itself away.
    void listen(HostListener* listener) { listener_ = listener; }
    HostListener* listener() const { return listener_; }

    /// From here on, the n-th call of that operation (1 is the next one) fails once.
    void fail(Operation operation, std::int64_t n = 1,
              std::uint32_t status = Host::Status::Unspecified);

    /// References that are held from outside.
    std::int64_t references() const { return ledger.references(); }

    HostDescription description;
    CallGate gate;  ///< watching, failing, answering null
    Ledger ledger;

    /// Where the objects find each other.
    HostObjects& objects() { return *objects_; }

private:
    struct Recorder : CallWatcher {
        void onReturn(const Call& call) override { lines.push_back(toText(call)); }

        std::vector<std::string> lines;
    };

    Recorder recorder_;
    HostListener* listener_ = nullptr;
    std::unique_ptr<HostObjects> objects_;
};

}  // namespace Rotavue::HostKit
