#include "workbench/window/orbit_tiles.h"

#include <algorithm>
#include <cmath>

namespace Rotavue::Workbench {

OrbitTiles::OrbitTiles(Bench& bench, QWidget* parent)
    : QWidget(parent), bench_(bench), grid_(this) {
    setObjectName("orbitTiles");
    grid_.setContentsMargins(0, 0, 0, 0);
    grid_.setSpacing(3);
    hint_.setAlignment(Qt::AlignCenter);
    hint_.setText(
        tr("Open a recording (Ctrl+O) or drop one here:\nCSV or WAV, two probes and, "
           "where there is one, a keyphasor"));
    connect(&bench_, &Bench::planesChanged, this, &OrbitTiles::rebuild);
    rebuild();
}

OrbitTile* OrbitTiles::tileOf(const Plane* plane) const {
    const auto found = std::find_if(tiles_.begin(), tiles_.end(), [plane](const OrbitTile* tile) {
        return &tile->view().plane() == plane;
    });
    return found == tiles_.end() ? nullptr : *found;
}

OrbitView* OrbitTiles::viewOf(const Plane* plane) const {
    OrbitTile* tile = tileOf(plane);
    return tile == nullptr ? nullptr : &tile->view();
}

OrbitTile* OrbitTiles::makeTile(const std::shared_ptr<Plane>& plane) {
    auto* tile = new OrbitTile(bench_, plane, this);
    connect(&tile->view(), &OrbitView::chosen, this, &OrbitTiles::setCurrent);
    connect(tile, &OrbitTile::roomWanted, this, [this, chosen = plane.get()] {
        setCurrent(chosen);
        setAlone(!isAlone_);
    });
    return tile;
}

namespace {

/// The loop of an editor that has been told to end is still on the stack.
void deleteWhenDone(OrbitTile& tile) {
    const LimitEditor& editor = tile.view().editor();
    if (!editor.isInUse()) return tile.deleteLater();
    QObject::connect(&editor, &LimitEditor::returned, &tile, &QObject::deleteLater);
}

}  // namespace

void OrbitTiles::dropTiles() {
    const auto isGone = [this](OrbitTile* tile) { return !bench_.has(tile->view().plane()); };
    for (OrbitTile* tile : tiles_) {
        if (!isGone(tile)) continue;
        tile->view().editor().cancel();
        tile->hide();
        tile->view().plane().host().listen(nullptr);
        deleteWhenDone(*tile);
    }
    std::erase_if(tiles_, isGone);
}

void OrbitTiles::rebuild() {
    dropTiles();
    std::vector<OrbitTile*> tiles;
    OrbitTile* next = tileOf(current_);
    for (const auto& plane : bench_.planes()) {
        OrbitTile* tile = tileOf(plane.get());
        if (tile == nullptr) next = tile = makeTile(plane);
        tiles.push_back(tile);
    }
    tiles_ = std::move(tiles);
    setAlone(false);
    layOut();
    if (next == nullptr && !tiles_.empty()) next = tiles_.back();
    setCurrent(next == nullptr ? nullptr : &next->view().plane());
}

void OrbitTiles::layOut() {
    while (grid_.count() > 0)
        delete grid_.takeAt(0);
    hint_.setVisible(tiles_.empty());
    if (tiles_.empty()) return grid_.addWidget(&hint_, 0, 0);
    const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(tiles_.size()))));
    for (std::size_t i = 0; i < tiles_.size(); ++i) {
        const int place = static_cast<int>(i);
        grid_.addWidget(tiles_[i], place / columns, place % columns);
        tiles_[i]->setVisible(!isAlone_ || &tiles_[i]->view().plane() == current_);
    }
}

void OrbitTiles::setCurrent(Plane* plane) {
    const bool changed = plane != current_;
    current_ = plane;
    for (OrbitTile* tile : tiles_)
        tile->setCurrent(tiles_.size() > 1 && &tile->view().plane() == current_);
    if (changed && isAlone_) layOut();
    if (changed) Q_EMIT currentChanged(current_);
}

void OrbitTiles::setAlone(bool alone) {
    alone = alone && tiles_.size() > 1;
    if (alone == isAlone_) return;
    isAlone_ = alone;
    layOut();
    Q_EMIT aloneChanged(isAlone_);
}

void OrbitTiles::step(int planes) {
    if (tiles_.empty()) return;
    const auto count = static_cast<int>(tiles_.size());
    const auto place = static_cast<int>(std::find(tiles_.begin(), tiles_.end(), tileOf(current_)) -
                                        tiles_.begin());
    OrbitTile* next = tiles_[static_cast<std::size_t>(((place + planes) % count + count) % count)];
    setCurrent(&next->view().plane());
    next->view().setFocus(Qt::TabFocusReason);
}

void OrbitTiles::cancelEditing() {
    for (OrbitTile* tile : tiles_)
        tile->view().editor().cancel();
}

}  // namespace Rotavue::Workbench
