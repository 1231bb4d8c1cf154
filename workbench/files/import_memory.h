#pragma once

#include <optional>
#include <string>

#include "workbench/recording/recording_options.h"

class QSettings;

namespace Rotavue::Workbench {

/// What was told of a shape of recordings, import_preview.h.
struct RememberedImport {
    RecordingOptions options;
    bool askAgain = true;  ///< false: used for the next such recording as it stands
};

/// What recordings of each shape mean, kept in the settings.
class ImportMemory {
public:
    /// The settings must outlive this.
    explicit ImportMemory(QSettings& settings) : settings_(settings) {}

    /// Nothing for a shape that has not been seen, or where what the settings hold is damaged.
    std::optional<RememberedImport> find(const std::string& shape) const;

    void remember(const std::string& shape, const RememberedImport& import);

    bool isEmpty() const;

    /// Forgets all shapes.
    void clear();

private:
    QSettings& settings_;
};

}  // namespace Rotavue::Workbench
