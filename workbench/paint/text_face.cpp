#include "workbench/paint/text_face.h"

#include "workbench/paint/canvas_bounds.h"

#include <QFontInfo>
#include <QStringList>

#include <cstdlib>

namespace Rotavue::Workbench {

namespace {

int pixelsOf(std::int32_t height) {
    const std::int64_t length = std::abs(std::int64_t{height});
    return static_cast<int>(std::clamp<std::int64_t>(length, 1, TallestText));
}

QFont fontOf(std::int32_t height) {
    QFont font;
    font.setFamilies(QStringList(QString::fromLatin1(FontFamily)));
    font.setPixelSize(pixelsOf(height));
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

char32_t drawable(wchar_t character) {
    const auto code = static_cast<char32_t>(character);
    if (code < 0x20 || (code >= 0x7F && code < 0xA0)) return U' ';
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) return U'\uFFFD';
    return code;
}

}  // namespace

TextFace::TextFace(std::int32_t height) : font_(fontOf(height)), metrics_(font_) {}

bool hasFont() {
    return QFontInfo(fontOf(12)).family() == QLatin1String(FontFamily);
}

QString toQString(const std::wstring& text) {
    std::u32string characters;
    for (const wchar_t character : text.substr(0, LongestText)) {
        characters.push_back(drawable(character));
    }
    return QString::fromStdU32String(characters);
}

}  // namespace Rotavue::Workbench
