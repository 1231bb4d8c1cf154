#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <deque>
#include <functional>

#include "workbench/files/import_dialog.h"
#include "workbench/files/import_memory.h"
#include "workbench/files/import_preview.h"
#include "workbench/files/import_reader.h"
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
    /// `window` is the parent of what asks; the settings must outlive this. `read` reads what has
    /// to be known before that.
    RecordingOpener(QSettings& settings, QWidget* window,
                    ImportReader::Read read = readImportFacts);

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

    /// Does that when all that was asked for before has begun to load, or was declined.
    void afterwards(std::function<void()> act);

    RecordingLoader& loader() { return loader_; }

    /// What looks into recordings before they are loaded. To cancel that ends with it what waits.
    ImportReader& reader() { return reader_; }

    /// Whether something is being read; a question that nobody has answered yet is not.
    bool isReading() const { return reader_.isReading() || loader_.isLoading(); }

Q_SIGNALS:
    /// The recording cannot be opened, or what was told of it cannot be kept: one line.
    void failed(const QString& line);

    /// The same of a recording that an answer may help, to be asked for with `mend`.
    void misread(const LoadRequest& request, const QString& line);

    /// Nobody answered what the recording holds.
    void declined(const std::filesystem::path& file);

    /// Everything has been read and answered.
    void idle();

private:
    struct Waiting {
        LoadRequest request = {};
        ImportPurpose purpose = ImportPurpose::Open;
        std::function<void()> act = {};  ///< instead of a recording
    };

    void enqueue(Waiting waiting);
    void takeNext();
    void tellIfIdle();
    void takeFacts(const ImportFacts& facts);
    void takeUnread(const LoadRequest& request, const QString& line, bool mayBeTold);
    void dropWaiting();
    void openNew(const ImportFacts& facts);
    void askAgain(const ImportFacts& facts);
    bool isFurtherPlane(const PlaneSource& source, const ImportFacts& facts) const;
    /// False where a person has to be asked.
    bool takeKnown(const LoadRequest& request, const ImportPreview& preview,
                   const ImportFacts& facts);
    void ask(const Waiting& waiting, const std::string& shape, const ImportPreview& preview,
             const RecordingOptions& known);
    void takeAnswer(const Waiting& waiting, const std::string& shape, const ImportDialog& dialog);
    void keepBeside(const std::filesystem::path& file, const RecordingOptions& options);

    ImportMemory memory_;
    QWidget* window_;
    ImportReader reader_;
    RecordingLoader loader_;
    std::deque<Waiting> waiting_;
    Waiting current_;  ///< that is being looked into
    QPointer<ImportDialog> dialog_;
};

}  // namespace Rotavue::Workbench
