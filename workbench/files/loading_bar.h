#pragma once

#include "workbench/files/progress_row.h"

namespace Rotavue::Workbench {

class RecordingLoader;

/// How far the recording is that is being loaded, with a button that cancels. It comes only once
/// that has taken half a second: what is quick needs no word.
class LoadingBar : public ProgressRow {
    Q_OBJECT

public:
    static constexpr int Delay = 500;  ///< ms

    /// The loader must outlive it.
    explicit LoadingBar(RecordingLoader& loader, QWidget* parent = nullptr);
};

}  // namespace Rotavue::Workbench
