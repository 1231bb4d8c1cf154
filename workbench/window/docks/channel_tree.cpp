#include "workbench/window/docks/channel_tree.h"

#include "workbench/analysis/harmonics.h"
#include "workbench/files/usable.h"

#include <QAction>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Rotavue::Workbench {

namespace {

constexpr int PlaneRole = Qt::UserRole;
constexpr int CurveRole = Qt::UserRole + 1;

/// What every plane offers, in this order.
const std::array<CurveRequest, 8> UsualCurves{{{CurveKind::Raw},
                                               {CurveKind::ByAngle},
                                               {CurveKind::Average},
                                               {CurveKind::Harmonic, {1.0}},
                                               {CurveKind::Harmonic, {2.0}},
                                               {CurveKind::NotFirst},
                                               {CurveKind::SubSync},
                                               {CurveKind::ShaftCenter}}};

bool isUsual(const CurveRequest& request) {
    return std::find(UsualCurves.begin(), UsualCurves.end(), request) != UsualCurves.end();
}

bool holds(const std::vector<CurveRequest>& curves, const CurveRequest& request) {
    return std::find(curves.begin(), curves.end(), request) != curves.end();
}

const TreeCurve* shownCurve(const TreePlane& plane, const CurveRequest& request) {
    for (const TreeCurve& curve : plane.shown)
        if (curve.request == request) return &curve;
    return nullptr;
}

QString helpOf(CurveKind kind) {
    switch (kind) {
        case CurveKind::Raw:
            return ChannelTree::tr("The direct orbit, sample by sample");
        case CurveKind::ByAngle:
            return ChannelTree::tr(
                "The same turns by the shaft's angle: with the keyphasor's dots");
        case CurveKind::NotFirst:
            return ChannelTree::tr("What is left of these turns without 1X");
        case CurveKind::Average:
            return ChannelTree::tr("The mean of the shown turns, with the keyphasor's dot");
        case CurveKind::Harmonic:
            return ChannelTree::tr("The ellipses of these orders of the shaft's speed");
        case CurveKind::SubSync:
            return ChannelTree::tr("What is slower than the shaft: whirl, whip");
        case CurveKind::Reference:
            return ChannelTree::tr("A stored orbit to compare with");
        case CurveKind::ShaftCenter:
            break;
    }
    return ChannelTree::tr("Where the shaft lies in its bearing, over time");
}

/// Why this plane cannot show the curve; empty where it can.
QString obstacle(const TreePlane& plane, CurveKind kind) {
    if (needsKeyphasor(kind) && !plane.hasTacho) return ChannelTree::tr("needs a keyphasor");
    if (kind == CurveKind::ShaftCenter && !plane.hasMeanPosition)
        return ChannelTree::tr("needs the mean position, which AC coupling has lost");
    return {};
}

QString kindText(CurveKind kind) {
    constexpr std::array Kinds{"raw",      "by angle", "by angle",  "average",
                               "harmonic", "sub-sync", "reference", "shaft centre"};
    return ChannelTree::tr(Kinds[static_cast<std::size_t>(kind)]);
}

QIcon colorIcon(const QColor& color) {
    constexpr int Side = 32;
    QPixmap pixmap(Side, Side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(2, 11, Side - 4, 10, 5, 5);
    return QIcon(pixmap);
}

void showCurve(QTreeWidgetItem& item, const TreePlane& plane, const CurveRequest& request) {
    const TreeCurve* shown = shownCurve(plane, request);
    const QString why = obstacle(plane, request.kind);
    const bool isUsable = why.isEmpty() || shown != nullptr;
    item.setCheckState(0, shown ? Qt::Checked : Qt::Unchecked);
    item.setIcon(0, colorIcon(shown ? shown->color : QColor(Qt::transparent)));
    item.setToolTip(
        0, helpOf(request.kind) + (why.isEmpty() ? ChannelTree::tr(" (Space)") : ": " + why));
    const Qt::ItemFlags usable = Qt::ItemIsEnabled | Qt::ItemIsUserCheckable;
    item.setFlags(isUsable ? usable | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::ItemIsSelectable));
}

void showTacho(QTreeWidgetItem& item, bool hasTacho) {
    item.setText(1, hasTacho ? ChannelTree::tr("tacho") : ChannelTree::tr("none"));
    item.setFlags(hasTacho ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
}

QTreeWidget* channelTree() {
    auto* tree = new QTreeWidget;
    tree->setObjectName("Channels");
    tree->setColumnCount(2);
    tree->setHeaderLabels({ChannelTree::tr("Channel"), ChannelTree::tr("Kind")});
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    tree->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    tree->setUniformRowHeights(true);
    tree->setIndentation(tree->fontMetrics().height());
    return tree;
}

}  // namespace

std::optional<std::vector<double>> ordersIn(const QString& text) {
    static const QRegularExpression Separators("[+,; ]+");
    std::vector<double> orders;
    for (const QString& part : text.split(Separators, Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const bool hasX = part.endsWith('X', Qt::CaseInsensitive);
        const double order = part.chopped(hasX ? 1 : 0).toDouble(&isNumber);
        if (!isNumber || !(order > 0.0) || !std::isfinite(order)) return {};
        orders.push_back(order);
    }
    if (orders.empty() || orders.size() > MostOrders) return {};
    return orders;
}

ChannelTree::ChannelTree(QWidget* parent) : QWidget(parent), tree_(channelTree()) {
    setObjectName("ChannelTree");
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(tree_);
    makeActions();
    connect(tree_, &QTreeWidget::itemChanged, this, &ChannelTree::toggled);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &ChannelTree::selected);
}

QAction* ChannelTree::action(const QString& text, const QKeySequence& key,
                             void (ChannelTree::*run)()) {
    auto* action = new QAction(text, tree_);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setToolTip(QString(text).remove('&') + " (" + key.toString(QKeySequence::NativeText) +
                       ')');
    connect(action, &QAction::triggered, this, run);
    tree_->addAction(action);
    return action;
}

void ChannelTree::makeActions() {
    auto* bar = new QHBoxLayout;
    orders_ = action(tr("Add &orders..."), Qt::Key_Insert, &ChannelTree::askOrders);
    reference_ =
        action(tr("Add a &reference..."), Qt::CTRL | Qt::Key_Insert, &ChannelTree::askReference);
    for (QAction* one : {orders_, reference_}) {
        auto* button = new QToolButton;
        button->setDefaultAction(one);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        bar->addWidget(button);
    }
    bar->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(bar);
    alone_ =
        action(tr("&Show this alone"), Qt::CTRL | Qt::Key_Space, &ChannelTree::showOnlySelected);
    remove_ = action(tr("Re&move"), Qt::Key_Delete, &ChannelTree::removeSelected);
    rest_ = action(tr("Rests at the &bottom of the clearance"), Qt::CTRL | Qt::Key_B,
                   &ChannelTree::toggleRest);
    rest_->setCheckable(true);
    enableActions();
}

void ChannelTree::enableActions() {
    const auto plane = selectedPlane();
    const CurveRequest* curve = selectedCurve();
    const QString nothing = tr("nothing is open");
    const QString noCurve = plane ? tr("no curve is selected") : nothing;
    const QString whyNoOrders = plane ? obstacle(planes_[*plane], CurveKind::Harmonic) : nothing;
    setUsable(*orders_, whyNoOrders.isEmpty(), whyNoOrders);
    setUsable(*reference_, plane.has_value(), nothing);
    setUsable(*alone_, curve != nullptr, noCurve);
    const bool isThere = curve && (!isUsual(*curve) || shownCurve(planes_[*plane], *curve));
    setUsable(*remove_, isThere, curve ? tr("it is not shown") : noCurve);
    setUsable(*rest_, curve != nullptr && curve->kind == CurveKind::ShaftCenter,
              plane ? tr("the shaft centre is not selected") : nothing);
}

void ChannelTree::setPlanes(std::vector<TreePlane> planes) {
    std::vector<Curves> offered;
    for (const TreePlane& plane : planes)
        offered.push_back(takeOffered(plane.file));
    planes_ = std::move(planes);
    offered_ = std::move(offered);
    for (std::size_t i = 0; i < planes_.size(); ++i)
        for (const TreeCurve& curve : planes_[i].shown)
            offer(i, curve.request);
    rebuild();
}

ChannelTree::Curves ChannelTree::takeOffered(const QString& file) {
    for (std::size_t i = 0; i < planes_.size(); ++i)
        if (planes_[i].file == file && !offered_[i].empty()) return std::exchange(offered_[i], {});
    return {UsualCurves.begin(), UsualCurves.end()};
}

void ChannelTree::offer(std::size_t plane, CurveRequest request) {
    if (!holds(offered_[plane], request)) offered_[plane].push_back(std::move(request));
}

void ChannelTree::rebuild() {
    const QSignalBlocker quiet(tree_);
    // A row that the user has just ticked must not go while it tells of it.
    if (built_ != offered_) buildRows();
    for (int plane = 0; plane < tree_->topLevelItemCount(); ++plane) {
        QTreeWidgetItem& item = *tree_->topLevelItem(plane);
        const auto place = static_cast<std::size_t>(plane);
        item.setText(0, planes_[place].name);
        item.setToolTip(0, planes_[place].file);
        for (std::size_t i = 0; i < offered_[place].size(); ++i)
            showCurve(*item.child(static_cast<int>(i)), planes_[place], offered_[place][i]);
        showTacho(*item.child(item.childCount() - 1), planes_[place].hasTacho);
    }
    selected();
}

void ChannelTree::buildRows() {
    const QModelIndex current = tree_->currentIndex();
    const int row = current.row();
    const int parentRow = current.parent().row();
    tree_->clear();
    for (std::size_t i = 0; i < planes_.size(); ++i)
        addPlane(i);
    built_ = offered_;
    tree_->expandAll();
    const QTreeWidgetItem* parent = tree_->topLevelItem(parentRow);
    QTreeWidgetItem* item = parent ? parent->child(row) : tree_->topLevelItem(std::max(row, 0));
    tree_->setCurrentItem(item ? item : tree_->topLevelItem(0));
}

void ChannelTree::addPlane(std::size_t plane) {
    auto* item = new QTreeWidgetItem(tree_, {QString(), tr("plane")});
    item->setData(0, PlaneRole, static_cast<qulonglong>(plane));
    for (std::size_t i = 0; i < offered_[plane].size(); ++i)
        addCurve(*item, plane, i);
    auto* tacho = new QTreeWidgetItem(item, {tr("keyphasor")});
    tacho->setData(0, PlaneRole, static_cast<qulonglong>(plane));
}

void ChannelTree::addCurve(QTreeWidgetItem& parent, std::size_t plane, std::size_t curve) {
    const CurveRequest& request = offered_[plane][curve];
    auto* item = new QTreeWidgetItem(
        &parent, {QString::fromStdString(wordsOf(request)), kindText(request.kind)});
    item->setData(0, PlaneRole, static_cast<qulonglong>(plane));
    item->setData(0, CurveRole, static_cast<qulonglong>(curve));
    if (!request.file.empty()) item->setToolTip(1, QString::fromStdString(request.file));
}

void ChannelTree::want(std::size_t plane, const CurveRequest& request, bool shown) {
    Curves curves;
    for (const CurveRequest& offered : offered_[plane]) {
        const bool before = shownCurve(planes_[plane], offered) != nullptr;
        if (offered == request ? shown : before) curves.push_back(offered);
    }
    curvesWanted(plane, curves);
}

void ChannelTree::toggled(QTreeWidgetItem* item) {
    const QVariant curve = item->data(0, CurveRole);
    if (!curve.isValid()) return;
    const std::size_t plane = item->data(0, PlaneRole).toULongLong();
    const CurveRequest request = offered_[plane][curve.toULongLong()];
    want(plane, request, item->checkState(0) == Qt::Checked);
}

std::optional<std::size_t> ChannelTree::selectedPlane() const {
    const QTreeWidgetItem* item = tree_->currentItem();
    if (item == nullptr) return {};
    return item->data(0, PlaneRole).toULongLong();
}

const CurveRequest* ChannelTree::selectedCurve() const {
    const QTreeWidgetItem* item = tree_->currentItem();
    if (item == nullptr || !item->data(0, CurveRole).isValid()) return nullptr;
    return &offered_[*selectedPlane()][item->data(0, CurveRole).toULongLong()];
}

void ChannelTree::selectPlane(std::size_t plane) {
    if (plane >= planes_.size() || selectedPlane() == plane) return;
    const QSignalBlocker quiet(tree_);
    tree_->setCurrentItem(tree_->topLevelItem(static_cast<int>(plane)));
    selected();
}

void ChannelTree::selected() {
    const auto plane = selectedPlane();
    enableActions();
    rest_->setChecked(plane && planes_[*plane].rest == RestPosition::BottomOfClearance);
    if (plane && !tree_->signalsBlocked()) planeSelected(*plane);
}

void ChannelTree::add(std::size_t plane, const CurveRequest& request) {
    offer(plane, request);
    want(plane, request, true);
}

void ChannelTree::addOrders(std::size_t plane, const QString& text) {
    if (auto orders = ordersIn(text)) {
        add(plane, {CurveKind::Harmonic, std::move(*orders)});
    } else {
        failed(tr("orders are numbers above 0, such as 1+2+0.43; found \"%1\"").arg(text));
    }
}

void ChannelTree::addReference(std::size_t plane, const QString& file) {
    add(plane, {CurveKind::Reference, {}, file.toStdString()});
}

// While a dialog is open planes come and go. Nothing, and a line, for one that is gone.
std::optional<std::size_t> ChannelTree::placeOf(const TreePlane& asked) {
    const auto found = std::find_if(planes_.begin(), planes_.end(), [&](const TreePlane& one) {
        return !one.identity.owner_before(asked.identity) &&
               !asked.identity.owner_before(one.identity);
    });
    if (found != planes_.end()) return static_cast<std::size_t>(found - planes_.begin());
    failed(tr("%1 is not open any more: no curve is added").arg(asked.name));
    return {};
}

void ChannelTree::askOrders() {
    const auto plane = selectedPlane();
    if (!plane) return;
    auto* dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Orders"));
    dialog->setLabelText(tr("Orders of the shaft's speed, such as 1+2+0.43:"));
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this, asked = planes_[*plane]](const QString& text) {
                if (const auto place = placeOf(asked)) addOrders(*place, text);
            });
    dialog->open();
}

void ChannelTree::askReference() {
    const auto plane = selectedPlane();
    if (!plane) return;
    auto* dialog = new QFileDialog(this, tr("A reference orbit"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(
        {tr("Reference orbits and recordings (*.json *.csv *.txt *.wav)"), tr("All files (*)")});
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, asked = planes_[*plane]](const QString& file) {
                if (const auto place = placeOf(asked)) addReference(*place, file);
            });
    dialog->open();
}

void ChannelTree::removeSelected() {
    const auto plane = selectedPlane();
    const CurveRequest* curve = selectedCurve();
    if (curve == nullptr) return;
    const CurveRequest request = *curve;
    if (!isUsual(request)) std::erase(offered_[*plane], request);
    if (shownCurve(planes_[*plane], request) == nullptr) return rebuild();
    want(*plane, request, false);
}

void ChannelTree::showOnlySelected() {
    const CurveRequest* curve = selectedCurve();
    if (curve == nullptr) return;
    const auto& shown = planes_[*selectedPlane()].shown;
    if (shown.size() == 1 && shown.front().request == *curve) return;
    curvesWanted(*selectedPlane(), {*curve});
}

void ChannelTree::toggleRest() {
    if (const auto plane = selectedPlane())
        restWanted(*plane,
                   rest_->isChecked() ? RestPosition::BottomOfClearance : RestPosition::Centre);
}

}  // namespace Rotavue::Workbench
