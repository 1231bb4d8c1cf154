#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;

namespace Rotavue::Workbench {

class RecordingLoader;

/// How far the recording is that is being loaded, with a button that cancels. It comes only once
/// that has taken half a second: what is quick needs no word.
class LoadingBar : public QFrame {
    Q_OBJECT

public:
    static constexpr int Delay = 500;  ///< ms

    /// The loader must outlive it.
    explicit LoadingBar(RecordingLoader& loader, QWidget* parent = nullptr);

private:
    QLabel* text_;
    QProgressBar* progress_;
};

}  // namespace Rotavue::Workbench
