#pragma once

#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/host_object.h"

#include <cstdint>

namespace Meridax::Host {

/// [host implements] The root of the measurement data. It comes from `IHostApp::getData` and is
/// valid for the use that fetched it.
class IHostData : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{45BE650B-1F90-46BF-BC65-853F09A0A241}");

    /// Samples per storage block, above 0. [place 4]
    virtual std::int32_t getBlockSize() = 0;

    /// The analysis cursor. [place 11]
    virtual DataPosition getCurrentPosition() = 0;

    /// Samples acquired so far on the master clock; places a channel of reduced rate. [place 33]
    virtual std::int32_t getAcquiredSampleCount() = 0;

    /// The lower end of the stored data. [place 34]
    virtual DataPosition getFirstPosition() = 0;

    /// The upper end of the stored data. [place 35]
    virtual DataPosition getLastPosition() = 0;

    /// True makes shaft-centre history take all samples of the channel instead of those up to the
    /// cursor. [place 36]
    virtual bool isWholeDataset() = 0;

    /// The master sample rate in Hz: linear sample / rate is the time in seconds. [place 38]
    virtual double getSampleRate() = 0;

protected:
    ~IHostData() = default;
};

}  // namespace Meridax::Host
