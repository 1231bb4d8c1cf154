#include "workbench/window/orbit_tile.h"

#include "workbench/scene/fact_words.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QStringList>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Rotavue::Workbench {

namespace {

QString curvesText(const Plane& plane) {
    QStringList words;
    for (const CurveRequest& curve : plane.drawnCurves())
        words += curve.kind == CurveKind::Raw ? OrbitTile::tr("direct")
                                              : QString::fromStdString(wordsOf(curve));
    if (plane.curves().empty()) return OrbitTile::tr("no curve chosen");
    if (words.isEmpty()) return OrbitTile::tr("no curve");
    return words.join(" + ");
}

QString amountText(const Plane& plane) {
    const ShownSpan span = plane.span();
    if (!span.byTurns) {
        return QString::fromStdString(shortNumber(span.milliseconds)) + OrbitTile::tr(" ms");
    }
    if (!isAnyShown(span)) return OrbitTile::tr("no whole turn before the cursor");
    return span.turnsThere == 1 ? OrbitTile::tr("1 turn")
                                : OrbitTile::tr("%1 turns").arg(span.turnsThere);
}

/// A probe's place stays on one line.
QString placeOf(const char* probe, double angle) {
    constexpr QChar Unbroken(QChar::Nbsp);
    return QString::fromStdString(probe + placeText(angle)).replace(' ', Unbroken);
}

QString placesText(const MachineFacts& machine) {
    return placeOf("X ", machine.xAngle) + ", " + placeOf("Y ", machine.yAngle);
}

void makeParagraph(QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setMinimumWidth(1);
}

QString speedText(double rpm) {
    return OrbitTile::tr("%1 rpm").arg(QString::fromStdString(shortNumber(rpm)));
}

}  // namespace

QString factsOf(const Plane& plane) {
    const MachineFacts& machine = plane.shown().recording.machine;
    const double speed = plane.span().speed;
    QStringList facts{curvesText(plane), amountText(plane)};
    if (speed > 0.0) facts += speedText(speed);
    facts += placesText(machine);
    facts += machine.rotation ? QString::fromStdString(std::string(toText(*machine.rotation)))
                              : OrbitTile::tr("rotation not given");
    if (plane.shown().recording.coupling == Coupling::Ac) facts += OrbitTile::tr("AC");
    if (!plane.compensation().empty()) facts += QString::fromStdString(plane.compensation());
    const std::string rest = restText(plane.curveOptions().shaftCenter, plane.drawnCurves());
    if (!rest.empty()) facts += QString::fromStdString(rest);
    if (plane.hasEnded())
        facts += OrbitTile::tr("ended at %1 s").arg(QString::fromStdString(timeText(plane.time())));
    return facts.join(", ");
}

OrbitTile::OrbitTile(Bench& bench, std::shared_ptr<Plane> plane, QWidget* parent)
    : QFrame(parent), bench_(bench), view_(bench, std::move(plane), this) {
    setFrameShape(QFrame::StyledPanel);
    for (QLabel* text : {&facts_, &notes_})
        makeParagraph(*text);
    facts_.setObjectName("facts");
    notes_.setObjectName("notes");
    notes_.setContentsMargins(8, 0, 8, 2);
    notes_.hide();
    notesButton_.setIcon(style()->standardIcon(QStyle::SP_MessageBoxInformation));
    notesButton_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    notesButton_.setAutoRaise(true);
    notesButton_.setCheckable(true);
    connect(&notesButton_, &QToolButton::toggled, this, &OrbitTile::tellNotes);
    layOut();
    setCurrent(false);
    tellFacts();
    tellNotes();
    connect(&bench_, &Bench::planesChanged, this, &OrbitTile::tellName);
    connect(&view_, &OrbitView::drawn, this, &OrbitTile::followFrame);
    connect(&bench_, &Bench::notesChanged, this, [this](const Plane* changed) {
        if (changed == &view_.plane()) tellNotes();
    });
}

void OrbitTile::layOut() {
    QFont font = name_.font();
    font.setBold(true);
    name_.setFont(font);
    auto* close = new QToolButton(this);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close this plane (Ctrl+W)"));
    close->setAccessibleName(tr("Close this plane"));
    connect(close, &QToolButton::clicked, this, [this] { bench_.removePlane(view_.plane()); });
    auto* line = new QHBoxLayout;
    line->setContentsMargins(8, 2, 2, 2);
    line->setSpacing(10);
    line->addWidget(&name_);
    line->addWidget(&facts_, 1);
    line->addWidget(&notesButton_);
    line->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addLayout(line);
    column->addWidget(&notes_);
    column->addWidget(&view_, 1);
}

// On the line above the plot: the plot's own clicks are the control's.
void OrbitTile::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT roomWanted();
}

void OrbitTile::setCurrent(bool current) {
    isCurrent_ = current;
    tellName();
}

void OrbitTile::tellName() {
    const QString title = QString::fromStdString(bench_.titleOf(view_.plane()).text());
    view_.setAccessibleName(tr("Orbit of %1").arg(title));
    name_.setName((isCurrent_ ? QString::fromUtf8("\u25b8 ") : QString()) + title);
}

// The facts belong to the frame. While playing nobody reads those of each one, and another speed
// lays the tile out anew.
void OrbitTile::followFrame() {
    constexpr int FramesBetween = 8;
    const bool waits = bench_.playback().isPlaying() && ++framesSinceFacts_ < FramesBetween;
    if (!waits) tellFacts();
}

void OrbitTile::tellFacts() {
    framesSinceFacts_ = 0;
    const QString text = factsOf(view_.plane());
    if (text == facts_.toolTip()) return;
    facts_.setToolTip(text);
    facts_.setText(text);
}

void OrbitTile::tellNotes() {
    QStringList lines;
    for (const std::string& note : view_.plane().notes())
        lines += QString::fromStdString(note);
    lines.removeDuplicates();
    notes_.setText(lines.join('\n'));
    notesButton_.setText(lines.size() == 1 ? tr("1 note") : tr("%1 notes").arg(lines.size()));
    notesButton_.setToolTip(tr("What to know of this recording and its curves (Ctrl+Shift+N):") +
                            '\n' + lines.join('\n'));
    notesButton_.setVisible(!lines.isEmpty());
    notes_.setVisible(!lines.isEmpty() && notesButton_.isChecked());
}

// Without notes there is nothing to open, now or when some come.
void OrbitTile::toggleNotes() {
    if (!notesButton_.isHidden()) notesButton_.toggle();
}

}  // namespace Rotavue::Workbench
