#pragma once

#include <QAction>
#include <QKeySequence>
#include <QObject>

#include <functional>
#include <memory>

#include "workbench/bench/bench.h"
#include "workbench/files/recording_opener.h"

class QMenu;

namespace Rotavue::Workbench {

/// The actions by which a user goes back to what an open recording was taken for: corrects it,
/// opens another plane of the same file, or forgets the answers that are used again for other
/// recordings.
class RecordingQuestions : public QObject {
    Q_OBJECT

public:
    /// Puts the actions behind the first group of the menu. `current` gives the plane that they
    /// speak of, null for none. Bench, opener and menu must outlive this.
    RecordingQuestions(Bench& bench, RecordingOpener& opener, std::function<Plane*()> current,
                       QMenu& menu, QObject& parent);

private:
    QAction* addAction(QMenu& menu, QAction* before, const QString& name, const QString& text,
                       const QString& help, const QKeySequence& key = {});
    void enable();
    void correct();
    void openFurtherPlane();
    void show(const LoadRequest& request, const std::shared_ptr<const PlaneSource>& source);

    Bench& bench_;
    RecordingOpener& opener_;
    std::function<Plane*()> current_;
    QAction* correct_ = nullptr;
    QAction* further_ = nullptr;
    QAction* forget_ = nullptr;
};

}  // namespace Rotavue::Workbench
