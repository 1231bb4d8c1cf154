#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/orbit_tile.h"

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <vector>

namespace Rotavue::Workbench {

/// The middle of the window: a tile for each plane, side by side and then below each other. One of
/// them is the current one, which docks and actions speak of, and which can have the room of all.
class OrbitTiles : public QWidget {
    Q_OBJECT

public:
    explicit OrbitTiles(Bench& bench, QWidget* parent = nullptr);

    /// Null on an empty bench.
    Plane* current() const { return current_; }
    void setCurrent(Plane* plane);

    /// Whether the current plane has the room of all; a plane that comes or goes ends it.
    bool isAlone() const { return isAlone_; }
    void setAlone(bool alone);

    /// The next plane, or the one before for a negative step, becomes the current one.
    void step(int planes);

    /// The tile of a plane, and the view in it; null where there is none.
    OrbitTile* tileOf(const Plane* plane) const;
    OrbitView* viewOf(const Plane* plane) const;

    const std::vector<OrbitTile*>& tiles() const { return tiles_; }

    /// Ends an open limit editor as Escape does.
    void cancelEditing();

Q_SIGNALS:
    void currentChanged(Plane* plane);
    void aloneChanged(bool alone);

private:
    void rebuild();
    OrbitTile* makeTile(const std::shared_ptr<Plane>& plane);
    void dropTiles();
    void layOut();

    Bench& bench_;
    QGridLayout grid_;
    QLabel hint_;
    std::vector<OrbitTile*> tiles_;
    Plane* current_ = nullptr;
    bool isAlone_ = false;
};

}  // namespace Rotavue::Workbench
