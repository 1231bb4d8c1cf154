#include "cli/shown_scene.h"

#include "cli/setup_texts.h"

namespace Rotavue::Cli {

ShownScene::ShownScene(const RenderOptions& options)
    : scene_(options),
      module_(HostKit::chooseModule(options.module)),
      control_(module_, scene_.host()),
      limit_(options.limit) {
    control_.assignmentChanged();
    if (options.limits != LimitChoice::Fixed) findLimits(options);
}

// Limits are those of the values on show, whatever the area of the frame that finds them.
void ShownScene::findLimits(const RenderOptions& options) {
    const Workbench::PictureOrder& picture = options.picture;
    control_.load(settingsFor(options, scene_, {.limit = {}}));
    control_.draw(scene_.host().canvas(), picture.width, picture.height, options.scheme);
    const HostKit::DrivenControl::Settings& saved = control_.save();
    limitsAreAlike_ = Cli::limitsAreAlike(saved);
    limit_ = limitIn(saved);
}

}  // namespace Rotavue::Cli
