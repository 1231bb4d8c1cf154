#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/elided_label.h"
#include "workbench/window/orbit_view.h"

#include <QFrame>
#include <QLabel>
#include <QToolButton>

namespace Rotavue::Workbench {

/// A plane in the middle of the window: its control, and above it what is shown, on as many
/// lines as that takes. A button tells how many notes there are on the recording and its curves,
/// and opens them.
class OrbitTile : public QFrame {
    Q_OBJECT

public:
    OrbitTile(Bench& bench, std::shared_ptr<Plane> plane, QWidget* parent = nullptr);

    OrbitView& view() { return view_; }
    const OrbitView& view() const { return view_; }

    /// Marks the tile that the docks speak of, where there are several.
    void setCurrent(bool current);

    /// Opens the notes, or closes them.
    void toggleNotes();

Q_SIGNALS:
    /// The user wants this tile to have the room of all, or no longer.
    void roomWanted();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void layOut();
    void tellName();
    void followFrame();
    void tellFacts();
    void tellNotes();

    Bench& bench_;
    OrbitView view_;
    ElidedLabel name_;
    QLabel facts_;
    QToolButton notesButton_;
    QLabel notes_;
    bool isCurrent_ = false;
    int framesSinceFacts_ = 0;
};

/// "direct + 1X, 8 turns, 2998 rpm, X 45° R, Y 45° L, CCW": what a picture of the plane must say.
QString factsOf(const Plane& plane);

}  // namespace Rotavue::Workbench
