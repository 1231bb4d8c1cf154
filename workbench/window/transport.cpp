#include "workbench/window/transport.h"

#include "workbench/scene/fact_words.h"
#include "workbench/window/transport_icons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cmath>

namespace Rotavue::Workbench {

namespace {

constexpr std::array Speeds{0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1,
                            0.2,   0.5,   1.0,   2.0,  5.0,  10.0};

/// As many turns as a plane shows at first.
constexpr int ManyTurns = 8;

QString speedText(double factor) {
    return QString::fromUtf8("%1 \u00d7").arg(QString::fromStdString(shortNumber(factor)));
}

}  // namespace

Transport::Transport(Bench& bench, OrbitTiles& tiles, QWidget* parent)
    : QWidget(parent), bench_(bench), tiles_(tiles), slider_(bench), speed_(this) {
    setObjectName("transport");
    play_ = add("play", tr("Play"), Qt::Key_Space, [this] { bench_.playback().toggle(); });
    addSteps();
    loop_ = add("loop", tr("Loop"), Qt::Key_L,
                [this] { bench_.playback().setLoops(!bench_.playback().loops()); });
    loop_->setCheckable(true);
    loop_->setChecked(bench_.playback().loops());
    addSpeeds();
    showPlaying(false);
    layOut();
    Playback& playback = bench_.playback();
    connect(&playback, &Playback::playingChanged, this, &Transport::showPlaying);
    connect(&tiles_, &OrbitTiles::currentChanged, &slider_, &TimeSlider::setCurrent);
    connect(&playback, &Playback::loopsChanged, loop_, &QAction::setChecked);
    connect(&playback, &Playback::speedChanged, this, &Transport::showSpeed);
}

QAction* Transport::add(const QString& name, const QString& text, const QKeySequence& key,
                        std::function<void()> run) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ')');
    connect(action, &QAction::triggered, this, std::move(run));
    actions_ += action;
    return action;
}

void Transport::addSteps() {
    add("start", tr("Start"), Qt::Key_Home, [this] { bench_.setCursor(0.0); });
    add("back", tr("One turn back"), Qt::Key_Left, [this] { step(-1); });
    add("forward", tr("One turn forward"), Qt::Key_Right, [this] { step(1); });
    add("end", tr("End"), Qt::Key_End, [this] { bench_.setCursor(bench_.duration()); });
    add("backMany", tr("Eight turns back"), Qt::Key_PageUp, [this] { step(-ManyTurns); });
    add("forwardMany", tr("Eight turns forward"), Qt::Key_PageDown, [this] { step(ManyTurns); });
}

void Transport::addSpeeds() {
    add("slower", tr("Slower"), Qt::Key_BracketLeft, [this] { changeSpeed(-1); });
    add("faster", tr("Faster"), Qt::Key_BracketRight, [this] { changeSpeed(1); });
    for (const double factor : Speeds)
        speed_.addItem(speedText(factor), factor);
    speed_.setObjectName("speed");
    speed_.setAccessibleName(tr("Speed"));
    speed_.setToolTip(tr("Seconds of the recording in one second ([ and ])"));
    showSpeed(bench_.playback().speed());
    connect(&speed_, &QComboBox::activated, this,
            [this](int item) { bench_.playback().setSpeed(speed_.itemData(item).toDouble()); });
}

void Transport::step(int turns) {
    bench_.playback().pause();
    if (const Plane* plane = tiles_.current()) bench_.stepTurns(*plane, turns);
}

void Transport::changeSpeed(int steps) {
    const int last = static_cast<int>(Speeds.size()) - 1;
    const int item = std::clamp(speed_.currentIndex() + steps, 0, last);
    bench_.playback().setSpeed(speed_.itemData(item).toDouble());
}

void Transport::showSpeed(double factor) {
    const auto nearest =
        std::min_element(Speeds.begin(), Speeds.end(), [factor](double a, double b) {
            return std::abs(std::log(a / factor)) < std::abs(std::log(b / factor));
        });
    speed_.setCurrentIndex(static_cast<int>(nearest - Speeds.begin()));
}

void Transport::showPlaying(bool playing) {
    play_->setText(playing ? tr("Pause") : tr("Play"));
    play_->setToolTip(playing ? tr("Pause (Space)") : tr("Play (Space)"));
    showSigns();
}

void Transport::showSigns() {
    const QColor color = palette().color(QPalette::ButtonText);
    const auto show = [&](const char* name, TransportSign sign) {
        if (auto* action = findChild<QAction*>(name)) action->setIcon(transportIcon(sign, color));
    };
    show("start", TransportSign::Start);
    show("back", TransportSign::Back);
    show("play", bench_.playback().isPlaying() ? TransportSign::Pause : TransportSign::Play);
    show("forward", TransportSign::Forward);
    show("end", TransportSign::End);
    show("loop", TransportSign::Loop);
}

void Transport::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showSigns();
}

void Transport::layOut() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 6, 2);
    row->setSpacing(2);
    const auto addButton = [&](const QString& name) {
        auto* button = new QToolButton(this);
        button->setDefaultAction(findChild<QAction*>(name));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    };
    for (const char* name : {"start", "back", "play", "forward", "end", "loop"})
        addButton(name);
    row->addWidget(&speed_);
    row->addWidget(&slider_, 1);
}

}  // namespace Rotavue::Workbench
