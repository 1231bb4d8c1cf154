#include "cli/render_command.h"

#include "cli/argument_values.h"
#include "cli/orbit_picture.h"
#include "cli/output_file.h"
#include "cli/picture_name.h"
#include "cli/studio_library.h"
#include "workbench/scene/scheme_colors.h"

#include <unistd.h>

#include <algorithm>
#include <future>
#include <iostream>
#include <memory>

namespace Rotavue::Cli {

namespace {

constexpr const char* Help =
    "Paint recordings as one orbit plot\n\n"
    "Examples:\n"
    "  rotavue render unbalance.csv -o unbalance.png\n"
    "  rotavue render unbalance.csv -o report.pdf --circle --clearance --revolutions 1\n"
    "  rotavue render raw.csv -o raw.svg --time 50 --x-angle '45 R' --y-angle '45 L'\n"
    "  rotavue render before.csv after.csv -o both.png --size 1600x1200 --dark\n"
    "  rotavue render pump.csv -o pump.png --show "
    "raw,average,harmonic:1+2,reference:slow-roll.csv\n"
    "  rotavue render pump.csv -o true.png --compensate vector --slow-roll slow-roll.csv\n"
    "  rotavue render run-up.csv -o center.png --show shaft-center --clearance\n"
    "  rotavue render pump.csv -o value.png --show average --pointer 500,200\n"
    "  rotavue render pump.csv -o pump.svg --setup plot.xml\n";

constexpr const char* PictureGroup = "The picture";
constexpr const char* OrbitGroup = PlotArguments::ShownGroup;
constexpr const char* ScaleGroup = "The scale";

constexpr int LargestScale = 8;
constexpr int LargestTextHeight = 200;
constexpr double LargestLimit = 1e12;
constexpr double LeastLimit = 1e-6;
constexpr int MostTicks = 20;

}  // namespace

CLI::App* RenderCommand::declare(CLI::App& program) {
    CLI::App* command = program.add_subcommand("render", Help);
    arguments_.declareRecordings(*command);
    declarePicture(*command);
    declareOrbit(*command);
    arguments_.declareShown(*command);
    declareScale(*command);
    arguments_.declareRest(*command);
    return command;
}

void RenderCommand::declarePicture(CLI::App& command) {
    command.add_option("-o,--output", output_, "the picture, by its ending; - for standard output")
        ->required()
        ->type_name("FILE")
        ->group(PictureGroup);
    command.add_flag("--force", force_, "replace a picture that is there")->group(PictureGroup);
    command.add_option("--format", format_, "png, svg or pdf, whatever the file's ending")
        ->type_name("FORMAT")
        ->group(PictureGroup);
    command.add_option("--size", size_, "pixels, of 1/96 inch in svg and pdf (800x600)")
        ->type_name("WIDTHxHEIGHT")
        ->group(PictureGroup);
    command.add_option("--scale", scale_, "png: pixels of the file for each of those, 1 to 8 (1)")
        ->type_name("N")
        ->group(PictureGroup);
    command.add_option("--text-height", textHeight_, "pixels (what suits the size)")
        ->type_name("N")
        ->group(PictureGroup);
    CLI::Option* dark =
        command.add_flag("--dark", dark_, "light lines on black; so it is with shaft-center");
    CLI::Option* light =
        command.add_flag("--light", light_, "dark lines on white; so it is without shaft-center");
    dark->group(PictureGroup);
    light->group(PictureGroup)->excludes(dark);
    command
        .add_flag("--no-header", noHeader_, "leave out the strip with machine, probes and scale")
        ->group(PictureGroup);
    command
        .add_option("--pointer", pointer_,
                    "read out the curve next to this place: pixels of --size from the upper left")
        ->type_name("X,Y")
        ->group(PictureGroup);
}

void RenderCommand::declareOrbit(CLI::App& command) {
    clearanceOption_ =
        command.add_flag("--clearance,!--no-clearance", clearance_, "draw the bearing's clearance");
    clearanceOption_->group(OrbitGroup);
    command.add_option("--color", colors_, "of the curves in turn")
        ->type_name("RRGGBB")
        ->delimiter(',')
        ->expected(1)
        ->group(OrbitGroup);
}

void RenderCommand::declareScale(CLI::App& command) {
    CLI::Option* circle = command.add_flag("--circle", circle_, "rings on a disc");
    CLI::Option* grid =
        command.add_flag("--grid", grid_, "a square grid; so it is unless --circle");
    circle->group(ScaleGroup);
    grid->group(ScaleGroup)->excludes(circle);
    command
        .add_option("--limits", limits_,
                    "round numbers, the plug-in's auto scale, or both axes from -N to N (round)")
        ->type_name("round|auto|N")
        ->group(ScaleGroup);
    command.add_option("--ticks", ticks_, "lines of the grid, or rings, 0 to 20 (what fits)")
        ->type_name("N")
        ->group(ScaleGroup);
}

RenderOptions RenderCommand::options() const {
    RenderOptions options = arguments_.options();
    readPicture(options);
    readOrbit(options);
    readScale(options);
    readPointer(options);
    readSetup(options);
    readScheme(options);
    return options;
}

void RenderCommand::readPicture(RenderOptions& options) const {
    Workbench::PictureOrder& picture = options.picture;
    picture.format = pictureFormatOf(output_, format_);
    const int scale = scale_ ? wholeNumber("--scale", *scale_, 1, LargestScale) : 1;
    picture.scale = scale;
    if (size_) {
        const PixelSize size = pixelSize("--size", *size_, Workbench::LargestSide / scale);
        picture.width = size.width;
        picture.height = size.height;
    }
    if (textHeight_) {
        picture.textHeight = wholeNumber("--text-height", *textHeight_, 1, LargestTextHeight);
    }
    options.header = !noHeader_;
}

void RenderCommand::readOrbit(RenderOptions& options) const {
    options.clearance = clearance_;
    for (const std::string& text : colors_)
        options.colors.push_back(color("--color", text));
}

void RenderCommand::readScale(RenderOptions& options) const {
    options.background = circle_ ? Workbench::Background::Circle : Workbench::Background::Grid;
    if (ticks_) options.ticks = wholeNumber("--ticks", *ticks_, 0, MostTicks);
    if (!limits_ || *limits_ == "round") return;
    options.limits = *limits_ == "auto" ? LimitChoice::Auto : LimitChoice::Fixed;
    if (options.limits == LimitChoice::Auto) return;
    const auto value = numberIn(*limits_);
    if (!value || *value < LeastLimit || *value > LargestLimit) {
        throw UsageError("--limits", *limits_, "round, auto or a number from 1e-06 to 1e+12");
    }
    options.limit = *value;
}

void RenderCommand::readSetup(RenderOptions& options) const {
    auto setup = arguments_.setup();
    if (!setup) return;
    setup->takeSpan(options);
    if (circle_ || grid_) setup->leave({L"graphType"});
    if (clearanceOption_->count() > 0) setup->leave({L"drawClearance"});
    if (limits_) setup->leaveLimits();
    setup->takePlot(options);
}

void RenderCommand::readScheme(RenderOptions& options) const {
    // The newest position is a white dot.
    const bool whiteDot = std::any_of(options.show.begin(), options.show.end(),
                                      [](const Workbench::CurveRequest& request) {
                                          return request.kind == Workbench::CurveKind::ShaftCenter;
                                      });
    options.scheme =
        dark_ || (whiteDot && !light_) ? Workbench::DarkNumber : Workbench::LightNumber;
    options.picture.colors = Workbench::colorsOf(options.scheme);
}

void RenderCommand::readPointer(RenderOptions& options) const {
    if (!pointer_) return;
    const Workbench::PictureOrder& picture = options.picture;
    options.pointer = pointIn("--pointer", *pointer_, {picture.width, picture.height});
    options.picture.readout = true;
}

int RenderCommand::run() {
    const RenderOptions asked = options();
    const OutputFile output(output_, force_);
    if (output.isStandardOutput() && ::isatty(STDOUT_FILENO) != 0) {
        throw UsageError("a picture does not go to a terminal");
    }
    // The recordings are read while the part of the program that paints is loaded.
    auto reading =
        std::async(std::launch::async, [&asked] { return std::make_unique<ShownScene>(asked); });
    const StudioLibrary studio;
    const std::unique_ptr<ShownScene> shown = reading.get();
    output.write(OrbitPicture(asked, *shown, *studio).paint());
    if (asked.quiet) return 0;
    for (const std::string& note : shown->scene().notes())
        std::cerr << note << '\n';
    std::cerr << (output.isStandardOutput() ? "the picture" : output_) << ": "
              << asked.picture.width * asked.picture.scale << " x "
              << asked.picture.height * asked.picture.scale << " pixels\n";
    return 0;
}

}  // namespace Rotavue::Cli
