#include "workbench/bench/playback.h"

#include "workbench/bench/bench.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

/// More often than a screen wants it: the wish to draw comes in time for each of its pictures.
constexpr std::chrono::milliseconds Tick{16};

constexpr double NanosecondsPerSecond = 1e9;

/// What passes at most between two ticks: a computer that slept does not leap on.
constexpr double LongestStep = 0.5;

}  // namespace

Playback::Playback(Bench& bench) : QObject(&bench), bench_(bench) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(Tick);
    connect(&timer_, &QTimer::timeout, this, &Playback::tick);
}

void Playback::play() {
    if (isPlaying() || bench_.duration() <= 0.0) return;
    droppedFrames_ = 0;
    timer_.start();
    clock_.start();
    if (bench_.cursor() >= bench_.duration()) bench_.setCursor(0.0);
    Q_EMIT playingChanged(true);
}

void Playback::pause() {
    if (!isPlaying()) return;
    timer_.stop();
    Q_EMIT playingChanged(false);
}

void Playback::setSpeed(double factor) {
    const double held = std::clamp(factor, LeastSpeed, LargestSpeed);
    if (held == speed_) return;
    speed_ = held;
    Q_EMIT speedChanged(speed_);
}

void Playback::setLoops(bool loops) {
    if (loops == loops_) return;
    loops_ = loops;
    Q_EMIT loopsChanged(loops_);
}

void Playback::tick() {
    constexpr double FrameTime = 1.0 / 30.0;
    const double seconds = static_cast<double>(clock_.nsecsElapsed()) / NanosecondsPerSecond;
    clock_.start();
    if (seconds > FrameTime) ++droppedFrames_;
    advance(std::min(seconds, LongestStep));
}

void Playback::advance(double seconds) {
    const double end = bench_.duration();
    const double next = bench_.cursor() + seconds * speed_;
    if (next < end) return bench_.setCursor(next);
    bench_.setCursor(loops_ && end > 0.0 ? std::fmod(next, end) : end);
    if (!loops_) pause();
}

}  // namespace Rotavue::Workbench
