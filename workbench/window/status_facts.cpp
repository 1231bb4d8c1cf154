#include "workbench/window/status_facts.h"

#include "workbench/bench/axis_limits.h"
#include "workbench/scene/fact_words.h"

#include <QStatusBar>

namespace Rotavue::Workbench {

namespace {

QString number(double value, int digits = 4) {
    return QString::fromStdString(shortNumber(value, digits));
}

QString rateText(double rate) {
    constexpr double Kilo = 1000.0;
    return rate < Kilo ? StatusFacts::tr("%1 Hz").arg(number(rate))
                       : StatusFacts::tr("%1 kHz").arg(number(rate / Kilo, 5));
}

/// In its own recording, which may have ended before the cursor.
QString placeText(const Plane& plane) {
    const Recording& recording = plane.shown().recording;
    const double last = static_cast<double>(recording.sampleCount() - 1) / recording.sampleRate;
    return StatusFacts::tr("%1 of %2 s")
        .arg(QString::fromStdString(timeText(plane.time())),
             QString::fromStdString(timeText(last)));
}

QString speedText(const ShownSpan& span) {
    if (!isAnyShown(span)) return StatusFacts::tr("no whole turn");
    return span.speed > 0.0 ? StatusFacts::tr("%1 rpm").arg(number(span.speed))
                            : StatusFacts::tr("no speed");
}

}  // namespace

StatusFacts::StatusFacts(Bench& bench, OrbitTiles& tiles, QStatusBar& bar)
    : bench_(bench),
      tiles_(tiles),
      place_(new SteadyLabel(&bar)),
      speed_(new SteadyLabel(&bar)),
      rate_(new SteadyLabel(&bar)),
      dropped_(new SteadyLabel(&bar)),
      scale_(new QToolButton(&bar)) {
    place_->setObjectName("place");
    place_->setToolTip(
        tr("Time of the newest sample that the current plane shows, and of its last one"));
    speed_->setObjectName("speed");
    speed_->setToolTip(tr("Speed of the shaft, the mean over what is shown"));
    rate_->setToolTip(tr("Samples per second"));
    dropped_->setToolTip(tr("Frames that came later than a thirtieth of a second"));
    scale_->setObjectName("scale");
    scale_->setAutoRaise(true);
    for (SteadyLabel* label : {place_, speed_, rate_, dropped_})
        bar.addPermanentWidget(label);
    bar.addPermanentWidget(scale_);
    connect(scale_, &QToolButton::clicked, this, &StatusFacts::makeEqual);
    connect(&bench_, &Bench::cursorMoved, this, &StatusFacts::tell);
    connect(&bench_, &Bench::settingsChanged, this, &StatusFacts::tell);
    connect(&tiles_, &OrbitTiles::currentChanged, this, &StatusFacts::tell);
    tell();
}

void StatusFacts::tell() {
    Plane* plane = tiles_.current();
    for (SteadyLabel* label : {place_, speed_, rate_, dropped_})
        label->setVisible(plane != nullptr);
    scale_->setVisible(plane != nullptr);
    if (plane == nullptr) return;
    place_->tell(placeText(*plane));
    speed_->tell(speedText(plane->span()));
    rate_->tell(rateText(plane->shown().recording.sampleRate));
    dropped_->tell(tr("%1 late").arg(bench_.playback().droppedFrames()));
    // The control's scale is known behind its frame.
    if (!bench_.playback().isPlaying()) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Plane* current = tiles_.current()) tellScale(*current);
            },
            Qt::QueuedConnection);
    }
}

void StatusFacts::tellScale(Plane& plane) {
    const AxisLimits limits = axisLimits(plane);
    const bool equal = limits.areEqual();
    scale_->setEnabled(!equal);
    scale_->setText(equal ? tr("x:y 1:1")
                          : tr("x:y 1:%1 - make equal").arg(number(limits.ratio(), 3)));
    scale_->setToolTip(equal ? tr("One unit is as long across as it is upright")
                             : tr("The axes differ: the shape on the screen is not that of the "
                                  "orbit. Click for one scale (Ctrl+E)"));
}

bool StatusFacts::makeEqual() {
    Plane* plane = tiles_.current();
    if (plane == nullptr || axisLimits(*plane).areEqual()) return false;
    bench_.setSettings(*plane, withEqualAxes(*plane), tr("one scale for both axes"));
    return true;
}

}  // namespace Rotavue::Workbench
