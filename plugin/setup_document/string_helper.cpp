#include "plugin/setup_document/string_helper.h"

#include "plugin/framework/host/bounded_number.h"
#include "plugin/framework/host/leading_float.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace Meridax::Utils::Dcom::Utils::StringHelper {
namespace {

// Runs one of the C library's conversions and turns its two failures into exceptions.
template <class Convert>
auto leadingNumber(const std::string& text, Convert convert, const char* noNumber,
                   const char* outOfRange) {
    const int savedErrno = std::exchange(errno, 0);
    char* end = nullptr;
    const auto number = convert(text.c_str(), &end);
    const bool rangeError = errno == ERANGE;
    errno = savedErrno;
    if (end == text.c_str()) throw std::invalid_argument(noNumber);
    if (rangeError) throw std::out_of_range(outOfRange);
    return number;
}

std::string lowerCased(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    });
    return text;
}

// The decimal point that `strtod` expects at this moment. The C library itself is asked: it may be
// under a locale that the C++ library has no form of.
char decimalPoint() {
    return *std::localeconv()->decimal_point;
}

std::locale namedLocale(const std::string& localeName) {
    try {
        return std::locale(localeName);
    } catch (const std::runtime_error&) {
        throw std::runtime_error("bad locale name");
    }
}

}  // namespace

std::string boolToText(bool value) {
    return value ? "True" : "False";
}

bool textToBool(const std::string& text) {
    const std::string lower = Host::boundedNumber(lowerCased(text), decimalPoint());
    if (lower == "true") return true;
    if (lower == "false") return false;
    char* end = nullptr;
    const int savedErrno = errno;
    const double number = std::strtod(lower.c_str(), &end);
    errno = savedErrno;
    // No number is 0 here as well, and NaN is not above anything.
    if (!(std::abs(number) > std::numeric_limits<double>::epsilon())) return false;
    return end == lower.c_str() + lower.size();
}

std::string intToText(std::int32_t value) {
    auto rest = static_cast<std::uint64_t>(std::abs(static_cast<std::int64_t>(value)));
    std::string digits;
    do {
        digits += static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    if (value < 0) digits += '-';
    std::ranges::reverse(digits);
    return digits;
}

std::int32_t textToInt(const std::string& text) {
    const auto convert = [](const char* start, char** end) { return std::strtoll(start, end, 10); };
    return static_cast<std::int32_t>(
        leadingNumber(text, convert, "invalid stoll argument", "stoll argument out of range"));
}

std::string doubleToText(double value) {
    std::ostringstream stream;
    stream.exceptions(std::ios_base::badbit);  // Without memory it would cut the text in silence.
    stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream.precision(15);
    stream << value;
    return stream.str();
}

double textToDouble(const std::string& text) {
    std::string copy = text;
    const std::size_t separator = copy.find_first_of(",.");
    if (separator != std::string::npos) copy[separator] = decimalPoint();
    const auto convert = [](const char* start, char** end) { return std::strtod(start, end); };
    copy = Host::boundedNumber(std::move(copy), decimalPoint());
    return leadingNumber(copy, convert, "invalid stod argument", "stod argument out of range");
}

float textToFloat(std::wstring text) {
    std::ranges::replace(text, L',', L'.');
    return Host::leadingFloat(text);
}

std::locale makeNoSeparatorLocale(const std::string& localeName) {
    const std::locale named = namedLocale(localeName);
    return {named, new NoThousandsSeparatorFacet(localeName)};
}

}  // namespace Meridax::Utils::Dcom::Utils::StringHelper
