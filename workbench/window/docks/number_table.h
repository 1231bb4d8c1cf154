#pragma once

#include "workbench/window/docks/latest_job.h"
#include "workbench/window/docks/number_model.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <vector>

class QAction;
class QLabel;
class QPushButton;
class QTableView;

namespace Rotavue::Workbench {

/// The numbers of the turns at the cursor, as a table that is selected and copied from. They are
/// computed off the window's thread, ten times a second at most: who plays at 30 frames a second
/// tells each new stretch, and loses no frame over it.
class NumberTable final : public QWidget {
    Q_OBJECT

public:
    explicit NumberTable(QWidget* parent = nullptr);
    ~NumberTable() override;

    /// The stretches that the orbits show now.
    void showTurns(std::vector<ShownTurns> planes);

    /// What is wrong with the pictures' scales, one line each; a button offers to mend it.
    void showScaleWarnings(const std::vector<QString>& warnings);

    /// What is selected, or all where nothing is: a line for each row, tabs between, with headers.
    QString selectedText() const;

    /// Puts it on the clipboard.
    void copy() const;

    const NumberModel& model() const { return model_; }

    QSize sizeHint() const override { return {330, 400}; }

    static constexpr int LeastInterval = 100;  ///< ms from one computation to the next

Q_SIGNALS:
    /// The user wants x and y to have the same span again.
    void equalSpansWanted();

    /// New numbers are shown.
    void computed();

private:
    void compute();
    void take(NumberSheet sheet);
    void joinCells();

    NumberModel model_;
    QTableView* view_;
    QAction* copyAction_;
    QLabel* notes_;
    QWidget* warning_;
    QLabel* warningText_;
    QTimer timer_;
    QElapsedTimer sinceLast_;
    std::vector<ShownTurns> planes_;
    LatestJob job_;
};

}  // namespace Rotavue::Workbench
