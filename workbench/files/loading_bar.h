#pragma once

#include <filesystem>

#include "workbench/files/progress_row.h"

namespace Rotavue::Workbench {

class ImportReader;
class RecordingLoader;

/// How far the recording is that is being looked into or loaded, with a button that cancels. It
/// comes only once that has taken half a second: what is quick needs no word.
class LoadingBar : public ProgressRow {
    Q_OBJECT

public:
    static constexpr int Delay = 500;  ///< ms

    /// Loader and reader must outlive it.
    LoadingBar(RecordingLoader& loader, ImportReader& reader, QWidget* parent = nullptr);

private:
    void tellOf(const std::filesystem::path& file, double part, qint64 elapsed);
};

}  // namespace Rotavue::Workbench
