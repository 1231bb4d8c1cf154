#include "cli/session_painting.h"

#include "cli/output_file.h"
#include "cli/picture_name.h"
#include "cli/studio_library.h"
#include "workbench/scene/scheme_colors.h"

#include <algorithm>
#include <stdexcept>

namespace Rotavue::Cli {

namespace {

/// The text height at which a session's canvas starts.
constexpr int SessionTextHeight = 16;

/// The frame of a session as a picture: as large as the frame reaches from the canvas's origin.
class SessionPainting final : public SessionPicture {
public:
    SessionPainting(const std::string& file, bool replace)
        : format_(pictureFormatOf(file)), file_(file, replace) {}

    HostKit::PictureMaker maker() override {
        return [this](const HostKit::FrameEdges& edges) {
            Workbench::PictureOrder order{.format = format_, .textHeight = SessionTextHeight};
            order.width = std::clamp(edges.right, 1, Workbench::LargestSide);
            order.height = std::clamp(edges.bottom, 1, Workbench::LargestSide);
            order.colors = Workbench::colorsOf(edges.scheme);
            picture_ = studio_->open(order, {});
            return picture_->canvas();
        };
    }

    void write() override {
        if (!picture_) throw std::runtime_error("the session draws no frame: there is no picture");
        file_.write(picture_->finish());
    }

private:
    Workbench::PictureFormat format_;
    OutputFile file_;
    StudioLibrary studio_;
    std::unique_ptr<Workbench::OpenPicture> picture_;
};

}  // namespace

std::unique_ptr<SessionPicture> openSessionPainting(const std::string& file, bool replace) {
    return std::make_unique<SessionPainting>(file, replace);
}

}  // namespace Rotavue::Cli
