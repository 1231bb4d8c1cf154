#pragma once

#include "workbench/bench/bench.h"
#include "workbench/export/export_dialog.h"

#include <QAction>
#include <QImage>
#include <QObject>
#include <QStringList>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>
#include <utility>

namespace Rotavue::Workbench {

/// What goes out of a window: numbers and pictures to the clipboard, pictures and report pages to
/// files. Each speaks of the current plane, the report of all; without a plane all are disabled.
class OutActions final : public QObject {
public:
    using CurrentPlane = std::function<Plane*()>;
    using Tell = std::function<void(const QString&)>;

    /// Dialogs belong to `window`; `tell` hears of what has been done, in one line.
    OutActions(Bench& bench, CurrentPlane current, Tell tell, OpenMemory memory, QWidget& window);

    /// Further files that nothing may replace, beside recordings and what belongs to them.
    void keepAlso(std::function<QStringList()> files) { kept_ = std::move(files); }

    QAction copyNumbers;    ///< what the control itself copies, by message
    QAction copyPicture;    ///< as the last export had it, but as pixels
    QAction exportPicture;  ///< asks how and where
    QAction exportReport;   ///< likewise

private:
    std::array<QAction*, 4> actions() {
        return {&copyNumbers, &copyPicture, &exportPicture, &exportReport};
    }
    void refresh();
    QStringList sources() const;
    std::shared_ptr<Plane> current() const;
    void putNumbers();
    void putPicture();
    void put(const QImage& picture);
    void openPicture();
    void openReport();
    void open(ExportSubject subject);

    /// Does it, and reports what it fails with.
    template <class Deed>
    void attempt(Deed deed);

    Bench& bench_;
    CurrentPlane current_;
    Tell tell_;
    OpenMemory memory_;
    QWidget& window_;
    std::function<QStringList()> kept_ = [] { return QStringList(); };
    int copying_ = -1;  ///< the number of the copied picture among the bench's work
};

}  // namespace Rotavue::Workbench
