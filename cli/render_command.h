#pragma once

#include "cli/command.h"
#include "cli/plot_arguments.h"

#include <optional>
#include <string>
#include <vector>

namespace Rotavue::Cli {

/// Paints recordings as one orbit plot.
class RenderCommand final : public Command {
public:
    CLI::App* declare(CLI::App& program) override;
    int run() override;

private:
    void declarePicture(CLI::App& command);
    void declareOrbit(CLI::App& command);
    void declareScale(CLI::App& command);

    /// The options as they were given, checked. Raises `UsageError`.
    RenderOptions options() const;
    void readPicture(RenderOptions& options) const;
    void readOrbit(RenderOptions& options) const;
    void readScale(RenderOptions& options) const;
    void readPointer(RenderOptions& options) const;
    void readSetup(RenderOptions& options) const;
    void readScheme(RenderOptions& options) const;

    PlotArguments arguments_;

    std::string output_;
    bool force_ = false;
    std::optional<std::string> format_;
    std::optional<std::string> size_;
    std::optional<std::string> scale_;
    std::optional<std::string> textHeight_;
    bool dark_ = false;
    bool light_ = false;
    bool noHeader_ = false;
    std::optional<std::string> pointer_;

    bool circle_ = false;
    bool grid_ = false;  ///< says what holds without it
    std::vector<std::string> colors_;

    bool clearance_ = false;
    CLI::Option* clearanceOption_ = nullptr;
    std::optional<std::string> ticks_;
    std::optional<std::string> limits_;
};

}  // namespace Rotavue::Cli
