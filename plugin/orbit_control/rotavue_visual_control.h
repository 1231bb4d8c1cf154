#pragma once

#include "plugin/framework/draw_context.h"
#include "plugin/framework/host/data/host_channel.h"
#include "plugin/framework/host/data/host_collections.h"
#include "plugin/framework/host/panel/host_property_panel.h"
#include "plugin/framework/host/panel/host_widgets.h"
#include "plugin/framework/visual_control.h"
#include "plugin/orbit_control/bearing_config.h"
#include "plugin/orbit_control/data_window.h"
#include "plugin/orbit_control/extents.h"
#include "plugin/orbit_control/read_allowance.h"
#include "plugin/orbit_control/repeated_quotient.h"
#include "plugin/orbit_control/sensor_frame.h"
#include "plugin/orbit_graph/geometry.h"
#include "plugin/orbit_graph/orbit_curve.h"
#include "plugin/orbit_graph/orbit_graph.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Meridax::VisualControls::Rotavue {

class ClipboardWriter;
struct PanelWidget;
struct SettingsAccess;

/// A stretch of a channel in distances from its newest sample; `end` is exclusive.
struct HistoryWindow {
    std::int32_t first = 0;
    std::int32_t end = 0;

    bool operator==(const HistoryWindow&) const = default;
};

/// The control that shows the orbit of a rotating shaft. It owns the drawing engine and keeps
/// almost no data: each draw reads the channels anew, sample by sample, through the host. Only the
/// settings, the view, `sampleCursor` and the extents of the last frame stay.
class RotavueVisualControl final : public Api::VisualControl {
public:
    RotavueVisualControl() = default;

    /// Asks the host to load what each curve needs round the analysis cursor. Both results are
    /// always zero. [message 6 | after attach]
    void requestData(Host::DataPosition& first, Host::DataPosition& second) override;

    void draw(const Api::DrawContext& context) override;

    void onMouseUp(std::uint8_t button, Api::ShiftState shift, std::int32_t x,
                   std::int32_t y) override;
    void onMouseDown(std::uint8_t button, Api::ShiftState shift, std::int32_t x,
                     std::int32_t y) override;
    void onMouseEnter() override;
    void onMouseLeave() override;
    void onMouseMove(Api::ShiftState shift, std::int32_t x, std::int32_t y) override;
    void onMouseWheel(Api::ShiftState shift, std::int32_t x, std::int32_t y,
                      bool direction) override;

    /// True for a channel whose "OrbitAnalysisChannelType" is "ShaftCenter" or "Orbit".
    bool acceptsChannel(Host::Ref<Host::IHostChannel> channel) override;

    /// True for a group whose "OrbitType" counts as Raw; an unset one does not.
    bool acceptsGroup(Host::Ref<Host::IHostObject> group) override;

    /// Moves the history to time when a raw group has lost its tacho channel.
    void onChannelsChanged(std::int32_t slotIndex) override;

    /// Saves or loads the sixteen settings. A load that fails in the limits leaves the settings
    /// before them loaded; one that fails earlier leaves all as they were.
    void persistSetup(Utils::Serialization::Node& node) override;

    /// Always true.
    bool canCopyToClipboard() override;

    /// The orbits as tab-separated numbers, read anew from the channels; empty when the bearings
    /// differ.
    std::wstring clipboardText() override;

    void buildProperties(Host::Ref<Host::IHostPropertyPanel> panel) override;

    /// Also makes the scale of a circle absolute.
    void fillProperties(Host::Ref<Host::IHostPropertyPanel> panel) override;

    void readProperty(std::wstring text, Host::Ref<Host::IHostPropertyControl> widget) override;

private:
    friend class ClipboardWriter;
    friend struct SettingsAccess;
    friend struct RotavueVisualControlAccess;  // a test's key to the state and the steps

    // ---- The draw cycle --------------------------------------------------------------------

    void layoutGraph(const Api::DrawContext& context);

    /// False when a group could not be used; the others are read all the same.
    bool readGroups(std::vector<OrbitCurve>& curves);
    void readChannels(std::vector<OrbitCurve>& curves);
    void readChannel(Host::IHostChannel& channel, std::vector<OrbitCurve>& curves);

    // ---- The bearing -----------------------------------------------------------------------

    /// Begins a pass over all channels: false when their bearings differ.
    bool checkBearingConfig();
    void noteBearing(BearingConfig config);

    /// Takes the channel's geometry over into control and graph, and sets the arrow's direction.
    void applyBearingConfig(Host::IHostChannel& channel);

    SensorFrame sensorFrame() const { return {graph_.xAngle(), graph_.yAngle()}; }

    // ---- One sample ------------------------------------------------------------------------

    /// The value of the sample that lies `back` samples before the newest one: by ring position
    /// while a measurement runs, on stored data by time against the analysis cursor. 0.0 where
    /// there is none.
    double getSample(Host::IHostChannel& channel, std::int32_t back, std::int32_t element,
                     std::int32_t component);

    /// An element of the newest array sample.
    double getLatestArrayValue(Host::IHostChannel& channel, std::int32_t element,
                               std::int32_t component);

    /// The newest held sample of an asynchronous channel that is earlier than the cursor: 0 for an
    /// empty channel, -1 when there is none.
    std::int32_t findLatestSampleBefore(Host::IHostChannel& channel);

    /// The time of the analysis cursor in seconds.
    double cursorTime();

    /// The time of a sample of the channel's own rate, never below 0.
    double timeBeforeCursor(Host::IHostChannel& channel, std::int32_t back);

    // ---- The stretch of a raw orbit --------------------------------------------------------

    /// Samples of the master clock in the display time, or in 0.1 s.
    std::int32_t sampleCountForTime(bool shortSpan);

    /// The newest `revolutions` complete turns.
    HistoryWindow findRevolutionWindow(Host::IHostChannel& tacho);

    /// By time or by revolutions, as the history type says; `tacho` may be null.
    HistoryWindow findHistoryWindow(Host::IHostChannel* tacho);

    HistoryWindow findTimeWindow(Host::IHostChannel* tacho);
    std::optional<std::int32_t> findNewestTurn(Host::IHostChannel& tacho, std::int64_t last);
    std::int32_t findEndOfTurns(Host::IHostChannel& tacho, std::int32_t first, std::int64_t last);

    // ---- Curves ----------------------------------------------------------------------------

    /// Each reads one curve, folds its extents into those of the frame and names its channel.
    OrbitCurve readRawCurve(Host::IHostChannelList& group);
    OrbitCurve readSubSyncCurve(Host::IHostChannel& channel);
    OrbitCurve readReferenceCurve(Host::IHostChannel& channel);
    OrbitCurve readAverageCurve(Host::IHostChannel& channel);
    OrbitCurve readHarmonicCurve(Host::IHostChannel& channel);
    OrbitCurve readShaftCenterCurve(Host::IHostChannel& channel);
    ChannelInfo readInfo(Host::IHostChannel& channel);

    /// Reads the points of a window, newest first, and gives their extents.
    Extents readPoints(Host::IHostChannel& channel, HistoryWindow window,
                       std::vector<Point>& points);
    Point readArrayPoint(Host::IHostChannel& channel, const SensorFrame& frame,
                         std::int32_t element);
    void readPhasors(Host::IHostChannel& channel, std::vector<Point>& points);
    std::int32_t shaftCenterCount(Host::IHostChannel& channel);
    CurveSample readShaftCenter(Host::IHostChannel& channel, const SensorFrame& frame,
                                std::int32_t back);

    /// Widens a curve's extents by the clearance and folds them into those of the frame.
    void foldExtents(Extents extents);

    // ---- Pointer ---------------------------------------------------------------------------

    void editLimit(AxisLimitLabel label, std::int32_t x, std::int32_t y);
    void dragView(const Point& pointer);
    void turnView(bool direction);
    void zoomView(bool direction);

    // ---- Data requests ---------------------------------------------------------------------

    void requestWholeRange(Host::IHostChannel& channel);
    void requestChannel(Host::IHostChannel& channel, DataWindow window);
    void requestGroup(Host::IHostChannelList& group, DataWindow window);
    std::optional<double> requestedSpan(Host::IHostChannelList& group);
    void addToRequest(Host::IHostChannel& channel);
    void clearRequest();
    void sendRequest(Host::DataPosition from, Host::DataPosition to);

    // ---- Property panel --------------------------------------------------------------------

    /// Finds the widget on `propertyRoot_`, lets it show its setting and gives it; empty where the
    /// page lacks it.
    Host::Ref<Host::IHostPropertyControl> fill(const PanelWidget& widget);

    /// The same for a widget whose row comes and goes.
    void fillWhereShown(const PanelWidget& widget, bool shown);
    void fillAutoScaleType();
    void fillClearance();
    void setControlEnabled(const std::wstring& name, bool enabled);

    // ---- State, in the order in which it is made; the end runs backward --------------------

    Host::Ref<Host::IHostPropertyPage> propertyRoot_;  ///< the panel page that is worked on

    bool leftButtonHeld_ = false;                        ///< between press and release of button 0
    double viewZoom_ = 1.0;                              ///< 0.1 to 10.0
    double viewRotation_ = 0.0;                          ///< radians, -pi to pi
    double rotationStep_ = Pi / 128;                     ///< one step of the wheel
    Extents dataExtents_;                                ///< of all curves of the last frame
    double displayTime_ = 100.0;                         ///< setting; milliseconds of a raw orbit
    std::int32_t revolutions_ = 1;                       ///< setting; turns of a raw orbit
    BearingConfig bearing_;                              ///< the last one applied
    bool showOnlyLastPosition_ = false;                  ///< setting; shaft-centre curves only
    bool tachoMissing_ = false;                          ///< a raw group has no tacho channel
    Point lastPointer_;                                  ///< where a drag saw the pointer last
    OrbitGraph graph_;                                   ///< the drawing engine
    Host::Ref<Host::IHostChannelList> dataRequestList_;  ///< made on first need, then kept
    std::int32_t unsent_ = 0;                            ///< channels in it from failed requests
    std::vector<BearingConfig> bearingConfigs_;          ///< of the last check, the first two kinds
    ReadAllowance pointAllowance_;                       ///< for points of a frame
    ReadAllowance turnAllowance_;                        ///< for its search for turns
    ReadAllowance stampAllowance_;                       ///< for time stamps of a frame
    ReadAllowance textAllowance_;                        ///< for names and units of a frame
    RepeatedQuotient cursorQuotient_;                    ///< the cursor's sample by the master rate
    RepeatedQuotient spacingQuotient_;                   ///< 1 by a channel's rate
};

}  // namespace Meridax::VisualControls::Rotavue
