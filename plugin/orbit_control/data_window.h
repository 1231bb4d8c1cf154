#pragma once

#include "plugin/framework/host/data/data_position.h"
#include "plugin/framework/host/data/host_app.h"
#include "plugin/framework/host/ref.h"

#include <cstdint>

namespace Meridax::VisualControls::Rotavue {

/// The stretch of stored data that a data request asks for: so many samples on either side of the
/// analysis cursor, held inside what the host has stored.
struct DataWindow {
    double sampleRate = 0.0;     ///< master rate, Hz
    std::int32_t blockSize = 0;  ///< samples per storage block
    std::int64_t cursor = 0;     ///< linear samples, like the next two
    std::int64_t lowest = 0;
    std::int64_t highest = 0;
    Host::DataPosition from;  ///< result of `cutSeconds`
    Host::DataPosition to;    ///< result of `cutSeconds`

    /// Asks the host's data for everything but the result, each value of a fresh data object.
    static DataWindow read(const Host::Ref<Host::IHostApp>& app);

    /// Sets `from` and `to` for a span in seconds, half of it on either side of the cursor. A span
    /// that is no number or beyond all data takes in everything that is stored. A block size of 0
    /// raises 0x80070057.
    void cutSeconds(double span);
};

}  // namespace Meridax::VisualControls::Rotavue
