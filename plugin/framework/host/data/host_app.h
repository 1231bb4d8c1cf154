#pragma once

#include "plugin/framework/host/host_object.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>
#include <string>

namespace Meridax::Host {

class IHostChannelList;
class IHostData;
class IHostXmlFactory;

/// The host's version; the gate of message 2 reads it.
struct HostVersion {
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t build = 0;
};

/// [host implements] The root object of the host application. It comes as argument 0 of message 2
/// and is kept for the life of the control.
class IHostApp : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{82D0CAB4-6B17-4810-BA3F-06C235E76366}");

    /// The root of the measurement data: positions and rates. Fetched afresh for each use, never
    /// kept. [place 1 | never null in normal use]
    virtual Ref<IHostData> getData() = 0;

    /// Shows a text to the user; the refusal of an old host goes this way. [place 78]
    virtual void showMessage(const std::wstring& text) = 0;

    /// True while a measurement is running, false while stored data are analysed. [place 91]
    virtual bool isAcquiring() = 0;

    /// The host's version. [place 155]
    virtual HostVersion getVersion() = 0;

    /// A new, empty channel list. The control keeps one for its data requests. [place 173]
    virtual Ref<IHostChannelList> createChannelList() = 0;

    /// The factory of setup documents. [place 176]
    virtual Ref<IHostXmlFactory> GetXmlFactory() = 0;

protected:
    ~IHostApp() = default;
};

}  // namespace Meridax::Host
