#pragma once

#include <cstdint>
#include <locale>
#include <string>

/// How a bool, an integer and a floating-point number become the texts of a setup and back, and how
/// 8-bit and wide text are converted. Writing is fixed; reading is tolerant, so that a setup goes
/// from machine to machine whatever the regional settings are.
///
/// A text ends at its first zero character.
namespace Meridax::Utils::Dcom::Utils::StringHelper {

/// The number forms of a named locale without its grouping of thousands. The decimal point and the
/// names of true and false stay those of the locale.
class NoThousandsSeparatorFacet : public std::numpunct_byname<char> {
public:
    explicit NoThousandsSeparatorFacet(const std::string& localeName)
        : std::numpunct_byname<char>(localeName) {}

protected:
    char do_thousands_sep() const override { return '\0'; }
    std::string do_grouping() const override { return {}; }
};

/// "True" or "False". [never fails]
std::string boolToText(bool value);

/// True for "true" in any case of letters and for a number other than 0 that fills the whole text;
/// false for everything else. The number is read with the decimal point of the C locale.
/// [never fails]
bool textToBool(const std::string& text);

/// Signed decimal digits, in every locale alike. [never fails]
std::string intToText(std::int32_t value);

/// The integer at the start of the text, cut to its low 32 bits. Raises `std::invalid_argument`
/// without a number and `std::out_of_range` for one that 64 bits can't hold.
std::int32_t textToInt(const std::string& text);

/// Fixed notation with 15 digits behind the point, in the form of the standard library's global
/// locale. Digits below 1e-15 are lost. [never fails]
std::string doubleToText(double value);

/// The number at the start of the text; the first ',' or '.' is its decimal point, in every C
/// locale. Raises `std::invalid_argument` without a number and `std::out_of_range` for one that a
/// double can't hold.
double textToDouble(const std::string& text);

/// The same as a 32-bit float, for texts of the host; every ',' counts as '.'.
float textToFloat(std::wstring text);

/// Empty for text that isn't UTF-8. [never fails]
std::wstring utf8ToWide(const std::string& text);

/// A unit that is no character becomes a replacement. [never fails]
std::string wideToUtf8(const std::wstring& text);

/// The same for a text of the host that may be null, which is empty. [never fails]
std::string bstrToUtf8(const wchar_t* text);

/// A key or value on its way to the host. It crosses in one fixed page: UTF-8, or the process's own
/// 8-bit page on a platform that has one. What doesn't belong to the page becomes a replacement.
/// [never fails]
std::wstring textToHost(const std::string& text);

/// The way back. [never fails]
std::string hostToText(const std::wstring& text);

/// The named locale without grouping of thousands; its own name is "*". Raises
/// `std::runtime_error` "bad locale name" for a locale that the C++ library doesn't have: some have
/// "C" alone, whatever the C library beside them knows.
std::locale makeNoSeparatorLocale(const std::string& localeName);

}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
