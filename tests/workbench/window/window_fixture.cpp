#include "tests/workbench/window/window_fixture.h"

#include <QCursor>
#include <QDir>
#include <QPixmap>

namespace Rotavue::Workbench {

namespace {

/// Notices that the control wants a text edited, and refuses.
class EditProbe final : public HostKit::HostListener {
public:
    HostKit::EditAnswer editText(std::int32_t, std::int32_t, const std::wstring& text) override {
        asked = true;
        return {.accepted = false, .text = text};
    }

    bool asked = false;
};

}  // namespace

bool putPointer(QWidget& widget, const QPoint& place) {
    QCursor::setPos(widget.mapToGlobal(place));
    return QTest::qWaitFor([&] { return widget.underMouse(); });
}

std::optional<QPoint> findLimit(OrbitView& view) {
    constexpr int Step = 8;
    Plane& plane = view.plane();
    HostKit::HostListener* const usual = plane.host().listener();
    EditProbe probe;
    plane.host().listen(&probe);
    const Settings before = plane.settings();
    std::optional<QPoint> found;
    for (int y = 0; y < view.height() && !found; y += Step) {
        for (int x = 0; x < view.width() && !found; x += Step) {
            plane.control().movePointer(x, y);
            plane.control().releaseButton(0, x, y);
            if (probe.asked) found = QPoint(x, y);
        }
    }
    // A click beside a limit may have fitted an axis.
    plane.load(before);
    plane.host().listen(usual);
    return found;
}

bool hasColor(const QImage& picture, QRgb color) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) == color) return true;
    return false;
}

int differences(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return a.width() * a.height();
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    return count;
}

void keepScreenshot(QWidget& window, const std::string& name, double scale) {
    const QDir folder(ROTAVUE_SCREENSHOTS_FOLDER);
    ASSERT_TRUE(folder.mkpath("."));
    QPixmap picture(window.size() * scale);
    picture.setDevicePixelRatio(scale);
    window.render(&picture);
    EXPECT_TRUE(picture.save(folder.filePath(QString::fromStdString(name + ".png"))));
}

}  // namespace Rotavue::Workbench
