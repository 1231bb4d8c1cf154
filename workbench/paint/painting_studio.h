#pragma once

#include "workbench/paint/picture_studio.h"

namespace Rotavue::Workbench {

/// The studio of a program that has a GUI application.
class PaintingStudio final : public PictureStudio {
public:
    PictureArea areaOf(const PictureOrder& order, const PictureHeader& header) override;
    std::unique_ptr<OpenPicture> open(const PictureOrder& order,
                                      const PictureHeader& header) override;
};

}  // namespace Rotavue::Workbench
