#pragma once

#include "workbench/paint/picture_studio.h"

namespace Rotavue::Workbench {

/// The height of a control's texts in an area: large enough to read, small enough for the room
/// round the plot. Pixels.
int suitableTextHeight(int width, int height);

/// The studio of a program that has a GUI application.
class PaintingStudio final : public PictureStudio {
public:
    PictureArea areaOf(const PictureOrder& order, const PictureHeader& header) override;
    std::unique_ptr<OpenPicture> open(const PictureOrder& order,
                                      const PictureHeader& header) override;
};

}  // namespace Rotavue::Workbench
