#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>

#include "workbench/files/import_facts.h"
#include "workbench/recording/background_task.h"

namespace Rotavue::Workbench {

/// Reads what a recording has to be asked about on a thread of its own, one recording at a time: a
/// disk that does not answer holds nobody up. All signals come on the thread that it lives on.
class ImportReader : public QObject {
    Q_OBJECT

public:
    /// What reads; any thread may call it.
    using Read =
        std::function<ImportFacts(const std::filesystem::path& file, const RecordingOptions& told)>;

    explicit ImportReader(Read read = readImportFacts, QObject* parent = nullptr);

    /// Cancels what is being read.
    ~ImportReader() override;

    /// Begins. Not while it is reading.
    void read(const std::filesystem::path& file, const RecordingOptions& told);

    bool isReading() const { return task_ != nullptr; }

    /// Lets go of what is being read, if there is any, whether the disk answers or not; the next
    /// recording waits for none of it. The signal has come before this returns.
    void cancel();

Q_SIGNALS:
    /// About twenty times a second while a recording is being read: for how long it has been, in
    /// ms.
    void waited(const std::filesystem::path& file, qint64 elapsed);

    /// Each reading ends with one of these.
    void arrived(const Rotavue::Workbench::ImportFacts& facts);
    void failed(const QString& line);
    void cancelled();

private:
    using Task = BackgroundTask<ImportFacts>;

    void look();
    void finish();

    Read read_;
    std::filesystem::path file_;
    std::unique_ptr<Task> task_;
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 lastTold_ = 0;
};

}  // namespace Rotavue::Workbench
