#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <deque>

#include "workbench/files/import_dialog.h"
#include "workbench/files/import_memory.h"
#include "workbench/files/import_preview.h"
#include "workbench/files/recording_loader.h"

class QSettings;
class QWidget;

namespace Rotavue::Workbench {

/// Opens recordings: finds out what they hold, asks where that isn't sure, and loads them in the
/// order in which they were named. It doesn't ask where a machine file lies beside the recording,
/// where names tell all, or where it has been told for this shape to go on without and the shape
/// has names of columns: a note of the recording says so then.
class RecordingOpener : public QObject {
    Q_OBJECT

public:
    /// `window` is the parent of what asks; the settings must outlive this.
    RecordingOpener(QSettings& settings, QWidget* window);

    /// `options` are what is known of the recording beyond its machine file.
    void open(const std::filesystem::path& file, const RecordingOptions& options = {});

    /// Asks what an open recording holds, beginning with what it was taken for, and reads it again:
    /// the loader's request names the one that it takes the place of.
    void correct(std::shared_ptr<const PlaneSource> source);

    /// Asks which columns of an open recording are another plane, and opens that as well.
    void openFurtherPlane(const PlaneSource& source);

    /// Asks what a recording holds that could not be read as it was told: what is wrong in its
    /// machine file is left out of the question. Another plane of a file stays one.
    void mend(const LoadRequest& request);

    /// What was told of shapes of recordings, to be used again.
    bool hasAnswers() const { return !memory_.isEmpty(); }
    void forgetAnswers() { memory_.clear(); }

    RecordingLoader& loader() { return loader_; }

Q_SIGNALS:
    /// The recording cannot be opened, or what was told of it cannot be kept: one line.
    void failed(const QString& line);

    /// The same of a recording that an answer may help, to be asked for with `mend`.
    void misread(const LoadRequest& request, const QString& line);

    /// Nobody answered what the recording holds.
    void declined(const std::filesystem::path& file);

private:
    struct Waiting {
        LoadRequest request;
        ImportPurpose purpose = ImportPurpose::Open;
    };

    void enqueue(Waiting waiting);
    void takeNext();
    void take(const Waiting& waiting);
    bool isFurtherPlane(const PlaneSource& source) const;
    void takeUnread(const LoadRequest& request, const QString& line);
    /// False where a person has to be asked.
    bool takeKnown(const LoadRequest& request, const ImportPreview& preview);
    void ask(const Waiting& waiting, const ImportPreview& preview, const RecordingOptions& known);
    void takeAnswer(const Waiting& waiting, const std::string& shape, const ImportDialog& dialog);
    void keepBeside(const std::filesystem::path& file, const RecordingOptions& options);

    ImportMemory memory_;
    QWidget* window_;
    RecordingLoader loader_;
    std::deque<Waiting> waiting_;
    QPointer<ImportDialog> dialog_;
};

}  // namespace Rotavue::Workbench
