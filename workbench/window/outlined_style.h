#pragma once

#include <QProxyStyle>

namespace Rotavue::Workbench {

/// The style of the program: the one that follows a palette to the last corner, but for its check
/// boxes, whose outline is lost on a dark background.
class OutlinedStyle final : public QProxyStyle {
public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace Rotavue::Workbench
