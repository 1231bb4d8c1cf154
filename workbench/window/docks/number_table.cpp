#include "workbench/window/docks/number_table.h"

#include "workbench/files/usable.h"
#include "workbench/window/docks/number_header.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <set>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr int RowRoom = 4;  ///< above and below a row's text, together

QStringList listOf(const std::vector<QString>& lines) {
    return {lines.begin(), lines.end()};
}

/// A line above the table that warns, and a button.
QWidget* warningBar(QLabel& text, QPushButton& button) {
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    text.setWordWrap(true);
    text.setTextFormat(Qt::PlainText);
    const int side = bar->style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* sign = new QLabel;
    sign->setPixmap(bar->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    row->addWidget(sign);
    row->addWidget(&text, 1);
    row->addWidget(&button);
    bar->hide();
    return bar;
}

QTableView* tableOf(NumberModel& model) {
    auto* view = new QTableView;
    view->setObjectName("Numbers");
    view->setModel(&model);
    view->setAlternatingRowColors(true);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + RowRoom);
    view->setHorizontalHeader(new NumberHeader(model, view));
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    return view;
}

}  // namespace

NumberTable::NumberTable(QWidget* parent)
    : QWidget(parent), view_(tableOf(model_)), notes_(new QLabel), warningText_(new QLabel) {
    setObjectName("NumberTable");
    auto* equal = new QPushButton(tr("Make e&qual"));
    equal->setToolTip(tr("Give x and y the same span (Alt+Q)"));
    connect(equal, &QPushButton::clicked, this, &NumberTable::equalSpansWanted);
    warning_ = warningBar(*warningText_, *equal);
    notes_->setWordWrap(true);
    notes_->setTextFormat(Qt::PlainText);
    notes_->hide();

    copyAction_ = new QAction(tr("&Copy the numbers"), view_);
    copyAction_->setToolTip(tr("Copy the numbers (Ctrl+C)"));
    setUsable(*copyAction_, false, tr("nothing is open"));
    copyAction_->setShortcut(QKeySequence::Copy);
    copyAction_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copyAction_, &QAction::triggered, this, &NumberTable::copy);
    view_->addAction(copyAction_);
    view_->setToolTip(tr("Arrows with Shift select, Ctrl+A selects all, Ctrl+C copies"));

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    for (QWidget* part : {warning_, static_cast<QWidget*>(view_), static_cast<QWidget*>(notes_)})
        rows->addWidget(part);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &NumberTable::compute);
}

NumberTable::~NumberTable() {
    // Its header asks the model for names until the last.
    delete view_;
}

void NumberTable::showTurns(std::vector<ShownTurns> planes) {
    planes_ = std::move(planes);
    if (timer_.isActive()) return;
    const qint64 since = sinceLast_.isValid() ? sinceLast_.elapsed() : LeastInterval;
    timer_.start(static_cast<int>(std::max<qint64>(0, LeastInterval - since)));
}

void NumberTable::compute() {
    sinceLast_.start();
    job_.start([this, planes = planes_]() -> LatestJob::Deliver {
        auto sheet = std::make_shared<NumberSheet>(numberSheet(planes));
        return [this, sheet] { take(std::move(*sheet)); };
    });
}

void NumberTable::take(NumberSheet sheet) {
    const QString notes = listOf(sheet.notes).join('\n');
    if (notes != notes_->text()) {
        notes_->setText(notes);
        notes_->setVisible(!notes.isEmpty());
    }
    const bool anew = sheet.columns != model_.sheet().columns;
    model_.setSheet(std::move(sheet));
    joinCells();
    static_cast<NumberHeader*>(view_->horizontalHeader())->fit(anew);
    setUsable(*copyAction_, model_.columnCount() > 0, tr("nothing is open"));
    computed();
}

void NumberTable::joinCells() {
    for (int row = 0; row < model_.rowCount(); ++row) {
        for (int column = 0; column < model_.columnCount(); column += 2) {
            const int width = model_.isWholeOrbit(row, column) ? 2 : 1;
            if (view_->columnSpan(row, column) != width) view_->setSpan(row, column, 1, width);
        }
    }
}

void NumberTable::showScaleWarnings(const std::vector<QString>& warnings) {
    warningText_->setText(listOf(warnings).join('\n'));
    warning_->setVisible(!warnings.empty());
}

QString NumberTable::selectedText() const {
    const NumberSheet& sheet = model_.sheet();
    std::set<std::size_t> rows;
    std::set<std::size_t> columns;
    for (const QModelIndex& index : view_->selectionModel()->selectedIndexes()) {
        rows.insert(static_cast<std::size_t>(index.row()));
        columns.insert(static_cast<std::size_t>(index.column()));
    }
    const bool all = rows.empty();
    for (std::size_t i = 0; all && i < sheet.rows.size(); ++i)
        rows.insert(i);
    for (std::size_t i = 0; all && i < sheet.columns.size(); ++i)
        columns.insert(i);

    QString text;
    for (const std::size_t column : columns)
        text += '\t' + sheet.columns[column].plane + ' ' + sheet.columns[column].probe;
    text += '\n';
    for (const std::size_t row : rows) {
        text += sheet.rows[row].name;
        for (const std::size_t column : columns)
            text += '\t' + sheet.rows[row].cells[column];
        text += '\n';
    }
    return text;
}

void NumberTable::copy() const {
    QGuiApplication::clipboard()->setText(selectedText());
}

}  // namespace Rotavue::Workbench
