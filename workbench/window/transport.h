#pragma once

#include "workbench/bench/bench.h"
#include "workbench/window/orbit_tiles.h"
#include "workbench/window/time_slider.h"

#include <QAction>
#include <QComboBox>
#include <QWidget>

namespace Rotavue::Workbench {

/// The bar that moves time: play and pause, steps by turns, loop, speed, and the slider. Its
/// actions also stand in the menu of the time.
class Transport : public QWidget {
    Q_OBJECT

public:
    Transport(Bench& bench, OrbitTiles& tiles, QWidget* parent = nullptr);

    /// All of them, in the order of a menu.
    QList<QAction*> timeActions() const { return actions_; }

    QAction& playAction() { return *play_; }
    TimeSlider& slider() { return slider_; }
    QComboBox& speedBox() { return speed_; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* add(const QString& name, const QString& text, const QKeySequence& key,
                 std::function<void()> run);
    void addSteps();
    void addSpeeds();
    void step(int turns);
    void changeSpeed(int steps);
    void showPlaying(bool playing);
    void showSpeed(double factor);
    void showSigns();
    void layOut();

    Bench& bench_;
    OrbitTiles& tiles_;
    TimeSlider slider_;
    QComboBox speed_;
    QList<QAction*> actions_;
    QAction* play_ = nullptr;
    QAction* loop_ = nullptr;
};

}  // namespace Rotavue::Workbench
