#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/docks/channel_tree.h"

#include <QObject>

namespace Rotavue::Workbench {

/// Lets the channel tree show the planes of a bench and what is assigned, and makes each of its
/// changes one step of undo.
class ChannelLink final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this object.
    ChannelLink(Bench& bench, ChannelTree& tree, QObject* parent = nullptr);

    void setCurrent(const Plane* plane);

Q_SIGNALS:
    /// The user has selected a channel of that plane.
    void planeSelected(Plane* plane);

private:
    void show();
    Plane* planeAt(std::size_t place) const;

    Bench& bench_;
    ChannelTree& tree_;
    const Plane* current_ = nullptr;
};

}  // namespace Rotavue::Workbench
