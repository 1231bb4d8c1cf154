#include "workbench/paint/offscreen_gui.h"
#include "workbench/paint/painting_studio.h"

namespace Rotavue::Workbench {

namespace {

class OffscreenStudio final : public PictureStudio {
public:
    PictureArea areaOf(const PictureOrder& order, const PictureHeader& header) override {
        return studio_.areaOf(order, header);
    }

    std::unique_ptr<OpenPicture> open(const PictureOrder& order,
                                      const PictureHeader& header) override {
        return studio_.open(order, header);
    }

private:
    OffscreenGui gui_;
    PaintingStudio studio_;
};

}  // namespace

std::unique_ptr<PictureStudio> makeOffscreenStudio() {
    return std::make_unique<OffscreenStudio>();
}

}  // namespace Rotavue::Workbench
