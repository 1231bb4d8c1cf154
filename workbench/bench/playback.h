#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace Rotavue::Workbench {

class Bench;

/// Moves the cursor of a bench on with the clock. While it plays, the planes' hosts are measuring.
class Playback : public QObject {
    Q_OBJECT

public:
    static constexpr double LeastSpeed = 0.001;
    static constexpr double LargestSpeed = 100.0;

    explicit Playback(Bench& bench);

    bool isPlaying() const { return timer_.isActive(); }

    /// Starts at the cursor, or at the beginning where the cursor stands at the end. Does nothing
    /// on an empty bench.
    void play();
    void pause();
    void toggle() { isPlaying() ? pause() : play(); }

    /// Seconds of the recording that pass in one second; held between the two limits.
    double speed() const { return speed_; }
    void setSpeed(double factor);

    /// Whether the end is followed by the beginning. Otherwise playing stops there.
    bool loops() const { return loops_; }
    void setLoops(bool loops);

    /// Moves the cursor on as if so many seconds of the clock had passed.
    void advance(double seconds);

    /// Frames that came later than a thirtieth of a second since playing began.
    int droppedFrames() const { return droppedFrames_; }

Q_SIGNALS:
    void playingChanged(bool playing);
    void speedChanged(double factor);
    void loopsChanged(bool loops);

private:
    void tick();

    Bench& bench_;
    QTimer timer_;
    QElapsedTimer clock_;
    double speed_ = 1.0;
    bool loops_ = true;
    int droppedFrames_ = 0;
};

}  // namespace Rotavue::Workbench
