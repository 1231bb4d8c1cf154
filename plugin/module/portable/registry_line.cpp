#include "plugin/module/portable/registry_line.h"

#include "plugin/framework/unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

namespace Meridax::VisualControls::Rotavue {

namespace {

struct Escape {
    wchar_t character;
    wchar_t letter;
};

constexpr std::array<Escape, 5> Escapes{
    {{L'"', L'"'}, {L'\\', L'\\'}, {L'\n', L'n'}, {L'\r', L'r'}, {L'\t', L't'}}};

[[noreturn]] void raise(const char* fault) {
    throw std::invalid_argument(fault);
}

/// Reads a line from the left.
class LineReader {
public:
    explicit LineReader(std::wstring_view line) : rest_(line) {}

    bool accept(std::wstring_view word) {
        if (!rest_.starts_with(word)) return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    void expect(std::wstring_view word, const char* fault) {
        if (!accept(word)) raise(fault);
    }

    void expectEnd() const {
        if (!rest_.empty()) raise("something follows where the line should end");
    }

    void skipBlanks() { rest_ = trimmed(rest_); }

    std::wstring quotedText();
    std::uint32_t number(int base, const char* fault);

private:
    wchar_t take();
    std::wstring escaped();
    std::wstring escapedCodePoint();

    std::wstring_view rest_;
};

wchar_t LineReader::take() {
    if (rest_.empty()) raise("a quotation mark is missing");
    const wchar_t character = rest_.front();
    rest_.remove_prefix(1);
    return character;
}

std::wstring LineReader::quotedText() {
    std::wstring text;
    expect(L"\"", "a quotation mark is missing");
    for (wchar_t character = take(); character != L'"'; character = take()) {
        if (isControlCharacter(character)) raise("a control character stands in a text");
        if (character == L'\\')
            text += escaped();
        else
            text += character;
    }
    return text;
}

std::wstring LineReader::escaped() {
    const wchar_t letter = take();
    for (const Escape& escape : Escapes)
        if (escape.letter == letter) return {escape.character};
    if (letter != L'u') raise("an unknown escape");
    return escapedCodePoint();
}

std::wstring LineReader::escapedCodePoint() {
    expect(L"{", "a brace of an escape is missing");
    const std::uint32_t codePoint = number(16, "an escape is no hexadecimal number");
    expect(L"}", "a brace of an escape is missing");
    if (codePoint > 0xFF) raise("an escape is no control character");
    return {static_cast<wchar_t>(codePoint)};
}

std::uint32_t LineReader::number(int base, const char* fault) {
    constexpr std::size_t LongestNumber = 11;
    std::string digits;
    for (const wchar_t character : rest_.substr(0, LongestNumber))
        digits += character < 0x80 ? static_cast<char>(character) : '?';
    std::uint32_t value = 0;
    const char* const first = digits.data();
    const auto [end, error] = std::from_chars(first, first + digits.size(), value, base);
    if (error != std::errc{}) raise(fault);
    rest_.remove_prefix(static_cast<std::size_t>(end - first));
    return value;
}

/// A control character, whose number has two hexadecimal digits, as an escape.
std::wstring numberedForm(wchar_t character) {
    constexpr std::wstring_view Digits = L"0123456789abcdef";
    const auto code = static_cast<std::uint8_t>(character);
    return {L'\\', L'u', L'{', Digits[code >> 4U], Digits[code & 15U], L'}'};
}

std::wstring escapedForm(wchar_t character) {
    for (const Escape& escape : Escapes)
        if (escape.character == character) return {L'\\', escape.letter};
    if (isControlCharacter(character)) return numberedForm(character);
    return {character};
}

std::wstring quotedForm(std::wstring_view plain) {
    std::wstring text{L'"'};
    for (const wchar_t character : plain)
        text += escapedForm(character);
    return text + L'"';
}

std::wstring contentForm(const std::wstring& text) {
    return L"text " + quotedForm(text);
}

std::wstring contentForm(std::uint32_t number) {
    return L"number " + std::to_wstring(number);
}

}  // namespace

std::wstring_view trimmed(std::wstring_view line) {
    constexpr std::wstring_view Blanks = L" \t\r";
    const std::size_t first = line.find_first_not_of(Blanks);
    if (first == std::wstring_view::npos) return {};
    return line.substr(first, line.find_last_not_of(Blanks) - first + 1);
}

RegistryValue readValueLine(std::wstring_view line) {
    LineReader reader(line);
    RegistryValue value;
    if (!reader.accept(L"@")) value.name = reader.quotedText();
    reader.skipBlanks();
    reader.expect(L"=", "'=' is missing behind the name");
    reader.skipBlanks();
    const bool isText = reader.accept(L"text");
    if (!isText) reader.expect(L"number", "the kind is neither 'text' nor 'number'");
    reader.skipBlanks();
    if (isText)
        value.content = reader.quotedText();
    else
        value.content = reader.number(10, "not a number from 0 to 4294967295");
    reader.expectEnd();
    return value;
}

std::wstring valueLine(const RegistryValue& value) {
    const std::wstring name = value.name.empty() ? L"@" : quotedForm(value.name);
    const std::wstring* text = value.content.text();
    return name + L" = " + (text ? contentForm(*text) : contentForm(*value.content.number()));
}

}  // namespace Meridax::VisualControls::Rotavue
