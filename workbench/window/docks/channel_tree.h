#pragma once

#include "workbench/analysis/shaft_center.h"
#include "workbench/scene/curve_request.h"

#include <QColor>
#include <QString>
#include <QTreeWidget>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class QAction;

namespace Rotavue::Workbench {

/// A curve that is shown, and in which colour.
struct TreeCurve {
    CurveRequest request;
    QColor color;
};

/// One plane as the channel tree shows it.
struct TreePlane {
    QString name;
    QString file;
    bool hasTacho = true;
    bool hasMeanPosition = true;  ///< the recording is DC coupled
    std::vector<TreeCurve> shown;
    RestPosition rest = RestPosition::Centre;  ///< of the shaft centre
    std::weak_ptr<const void> identity = {};   ///< the same wherever the plane stands
};

/// The planes with their channels, and what is shown of them: a check box for each curve that the
/// plug-in draws. Curves that somebody has added (orders, references) stay in the tree when they
/// are switched off, until they are removed.
class ChannelTree final : public QWidget {
    Q_OBJECT

public:
    explicit ChannelTree(QWidget* parent = nullptr);

    /// Shows these planes; tells nobody. What is selected stays selected.
    void setPlanes(std::vector<TreePlane> planes);

    /// Selects a plane, unless one of its channels is selected; tells nobody.
    void selectPlane(std::size_t plane);

    /// The plane that the selection lies in.
    std::optional<std::size_t> selectedPlane() const;

    /// Adds the ellipses of these orders ("1+2+0.43") to a plane and shows them; a text that gives
    /// none is told of by `failed`.
    void addOrders(std::size_t plane, const QString& text);

    /// Adds a stored orbit, a .json file or a recording, to a plane and shows it.
    void addReference(std::size_t plane, const QString& file);

    QSize sizeHint() const override { return {240, 280}; }

Q_SIGNALS:
    /// The user wants a plane to show these curves from now on.
    void curvesWanted(std::size_t plane,
                      const std::vector<Rotavue::Workbench::CurveRequest>& curves);

    /// The user says where the shaft rests when it stands.
    void restWanted(std::size_t plane, Rotavue::Workbench::RestPosition rest);

    void planeSelected(std::size_t plane);
    void failed(const QString& message);

private:
    using Curves = std::vector<CurveRequest>;

    void makeActions();
    QAction* action(const QString& text, const QKeySequence& key, void (ChannelTree::*run)());
    void rebuild();
    void buildRows();
    void addPlane(std::size_t plane);
    void addCurve(QTreeWidgetItem& parent, std::size_t plane, std::size_t curve);
    Curves takeOffered(const QString& file);
    void offer(std::size_t plane, CurveRequest request);
    void add(std::size_t plane, const CurveRequest& request);
    void want(std::size_t plane, const CurveRequest& request, bool shown);
    void toggled(QTreeWidgetItem* item);
    void selected();
    void enableActions();
    void askOrders();
    void askReference();
    std::optional<std::size_t> placeOf(const TreePlane& asked);
    void removeSelected();
    void showOnlySelected();
    void toggleRest();
    const CurveRequest* selectedCurve() const;

    QTreeWidget* tree_;
    QAction* orders_ = nullptr;
    QAction* reference_ = nullptr;
    QAction* alone_ = nullptr;
    QAction* remove_ = nullptr;
    QAction* rest_ = nullptr;
    std::vector<TreePlane> planes_;
    std::vector<Curves> offered_;  ///< by plane: the rows of its curves
    std::vector<Curves> built_;    ///< the rows that the tree has
};

/// The orders of "1+2+0.43" or "1, 2, 0.43": one to 64 numbers above 0; nothing for another text.
std::optional<std::vector<double>> ordersIn(const QString& text);

}  // namespace Rotavue::Workbench
