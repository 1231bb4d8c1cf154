#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Meridax::Host {

/// As many significant digits of a text decide which number it is: more than the 767 that the
/// middle between two doubles can have.
inline constexpr std::size_t DecidingDigits = 800;

namespace Detail {

/// A decimal number at the start of a text, behind white space and a sign, as the C library finds
/// it.
template <class Char>
class DecimalText {
public:
    DecimalText(std::basic_string_view<Char> text, Char point) : text_(text), point_(point) {
        while (begin_ < text.size() && isSpace(text[begin_]))
            ++begin_;
        if (isSign(begin_)) ++begin_;
        pointAt_ = digitsFrom(begin_);
        mantissaEnd_ = isPoint(pointAt_) ? digitsFrom(pointAt_ + 1) : pointAt_;
        end_ = mantissaEnd_;
        readExponent();
    }

    /// Longer than what `bounded` gives.
    bool isLong() const { return mantissaEnd_ - begin_ > DecidingDigits + 2; }

    /// The text with its number as d.ddd and an exponent: the deciding digits, and behind them a 1
    /// for whatever is left out that is not zero.
    std::basic_string<Char> bounded() const {
        std::basic_string<Char> result(text_.substr(0, begin_));
        const std::size_t first = nextNonZero(begin_);
        if (first == mantissaEnd_) {
            for (const char c : {'0', 'e', '0'})  // what follows is no part of the number
                result += Char(c);
        } else {
            appendFrom(first, result);
        }
        result += text_.substr(end_);
        return result;
    }

private:
    static bool isSpace(Char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static bool isDigit(Char c) { return c >= '0' && c <= '9'; }

    bool isPoint(std::size_t at) const { return at < text_.size() && text_[at] == point_; }

    bool isSign(std::size_t at) const {
        return at < text_.size() && (text_[at] == '+' || text_[at] == '-');
    }

    std::size_t digitsFrom(std::size_t at) const {
        while (at < text_.size() && isDigit(text_[at]))
            ++at;
        return at;
    }

    /// The place of the mantissa's next digit that is not zero, or its end.
    std::size_t nextNonZero(std::size_t at) const {
        while (at < mantissaEnd_ && (text_[at] == '0' || at == pointAt_))
            ++at;
        return at;
    }

    void readExponent() {
        if (end_ == text_.size() || (text_[end_] != 'e' && text_[end_] != 'E')) return;
        const std::size_t digits = end_ + (isSign(end_ + 1) ? 2 : 1);
        const std::size_t end = digitsFrom(digits);
        if (end == digits) return;
        constexpr std::int64_t Enough = 100'000'000'000;
        for (std::size_t i = digits; i < end; ++i)
            exponent_ = std::min(Enough, exponent_ * 10 + (text_[i] - '0'));
        if (text_[end_ + 1] == '-') exponent_ = -exponent_;
        end_ = end;
    }

    void appendFrom(std::size_t first, std::basic_string<Char>& result) const {
        result += text_[first];
        result += point_;
        std::size_t at = first + 1;
        for (std::size_t taken = 1; at < mantissaEnd_ && taken < DecidingDigits; ++at) {
            if (at == pointAt_) continue;
            result += text_[at];
            ++taken;
        }
        if (nextNonZero(at) < mantissaEnd_) result += Char('1');
        result += Char('e');
        for (const char c : std::to_string(exponent_ + powerAt(first)))
            result += Char(c);
    }

    /// The power of ten that a digit of the mantissa stands for.
    std::int64_t powerAt(std::size_t digit) const {
        const auto before = static_cast<std::int64_t>(pointAt_) - static_cast<std::int64_t>(digit);
        return digit < pointAt_ ? before - 1 : before;
    }

    std::basic_string_view<Char> text_;
    Char point_;
    std::size_t begin_ = 0;        ///< of the mantissa
    std::size_t pointAt_ = 0;      ///< its end where it has no point
    std::size_t mantissaEnd_ = 0;  ///< behind its last digit or its point
    std::size_t end_ = 0;          ///< behind the exponent
    std::int64_t exponent_ = 0;
};

}  // namespace Detail

/// Whether a text begins with a decimal number of so many digits that `boundedNumber` shortens it.
template <class Char>
bool hasLongNumber(const std::basic_string<Char>& text, Char point) {
    return text.size() > DecidingDigits && Detail::DecimalText<Char>(text, point).isLong();
}

/// The same text, but a long decimal number at its start is told by the digits that decide its
/// value: the C library finds the same number, the same failure and the same rest behind it. Not
/// every C library is made for long numbers: one takes a minute for a million digits.
template <class Char>
std::basic_string<Char> boundedNumber(std::basic_string<Char> text, Char point) {
    if (!hasLongNumber(text, point)) return text;
    return Detail::DecimalText<Char>(text, point).bounded();
}

}  // namespace Meridax::Host
