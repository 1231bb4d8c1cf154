#include "workbench/paint/offscreen_gui.h"

#include "workbench/paint/text_face.h"

#include <QGuiApplication>

#include <fontconfig/fontconfig.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <string>

namespace Rotavue::Workbench {

namespace {

/// Where systems keep the file; the first is where the package fonts-dejavu-core puts it.
constexpr std::array FontFiles{
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/TTF/DejaVuSans.ttf",
    "/usr/share/fonts/dejavu-sans-fonts/DejaVuSans.ttf",
    "/usr/share/fonts/dejavu/DejaVuSans.ttf",
};

/// How letters are made into pixels, whatever the user prefers on the desktop.
constexpr const char* FontRules = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <match target="font">
    <edit name="antialias" mode="assign"><bool>true</bool></edit>
    <edit name="hinting" mode="assign"><bool>true</bool></edit>
    <edit name="autohint" mode="assign"><bool>false</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintslight</const></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
  </match>
</fontconfig>)";

const FcChar8* bytes(const char* text) {
    return reinterpret_cast<const FcChar8*>(text);
}

bool addFont(FcConfig* config) {
    for (const char* file : FontFiles) {
        if (FcConfigAppFontAddFile(config, bytes(file)) == FcTrue) return true;
    }
    return false;
}

/// Makes the one font file all that there is: letters come out the same for every user, and no
/// folder is searched. A system that keeps the file elsewhere is left to find it its own way.
void useOneFont() {
    FcConfig* config = FcConfigCreate();
    if (addFont(config) && FcConfigParseAndLoadFromMemory(config, bytes(FontRules), FcTrue)) {
        FcConfigSetCurrent(config);
    }
    FcConfigDestroy(config);
}

/// Qt's remarks about the desktop are no concern of a program that has none.
void keepOnlyFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

std::unique_ptr<QGuiApplication> startApplication() {
    static std::array<char, 8> name{"rotavue"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static int count = 1;
    qInstallMessageHandler(keepOnlyFatal);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    auto application = std::make_unique<QGuiApplication>(count, arguments.data());
    std::setlocale(LC_NUMERIC, "C");
    return application;
}

}  // namespace

OffscreenGui::OffscreenGui() {
    useOneFont();
    application_ = startApplication();
    if (!hasFont()) {
        throw PaintError("the font \"" + std::string(FontFamily) +
                         "\" is not installed (Debian package fonts-dejavu-core)");
    }
}

OffscreenGui::~OffscreenGui() = default;

}  // namespace Rotavue::Workbench
