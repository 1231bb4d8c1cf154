#pragma once

#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

#include "workbench/files/view_file.h"

namespace Rotavue::Workbench {

/// The place where the windows of a user keep what they have not saved: one view file for each,
/// and beside it a lock that says which process it is of. What has no living owner was left behind
/// by a crash.
class UnsavedViews {
public:
    /// In a folder of its own, which is made with the first view that is kept.
    explicit UnsavedViews(QString folder);

    /// A view that a crash left behind. As long as this lives, no other window takes it.
    struct Left {
        QString file;
        QString when;  ///< "2026-11-21 20:05"
        std::unique_ptr<QLockFile> lock;
    };

    /// All of them that no other window has taken, the newest first.
    std::vector<Left> takeLeft() const;

    /// Forgets a view for good.
    static void drop(Left left);

    /// Keeps this window's view in the place of its last one, written beside and renamed. Throws
    /// RecordingError if that fails.
    void keep(const View& view);

    /// This window has nothing to keep.
    void forget();

private:
    void claimFile();

    QString folder_;
    QString file_;
    std::unique_ptr<QLockFile> lock_;
};

}  // namespace Rotavue::Workbench
