#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>
#include <vector>

namespace Rotavue::Workbench {

/// The text without the blanks and tabs around it.
inline std::string_view trimmed(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The fields of one line, one after the other, without blanks and quotes around them. Between
/// quotes the delimiter is text; an open quote runs to the end of the line. A line of n delimiters
/// outside quotes has n + 1 fields.
class FieldCursor {
public:
    FieldCursor(std::string_view line, char delimiter) : rest_(line), delimiter_(delimiter) {}

    /// Moves to the next field; false behind the last one.
    bool next() {
        if (done_) return false;
        const std::size_t length = fieldLength();
        field_ = unquoted(trimmed(rest_.substr(0, length)));
        done_ = length == rest_.size();
        rest_.remove_prefix(done_ ? length : length + 1);
        return true;
    }

    std::string_view field() const { return field_; }

private:
    std::size_t positionOf(char c, std::size_t from) const {
        const std::size_t position = rest_.find(c, from);
        return position != std::string_view::npos ? position : rest_.size();
    }

    std::size_t fieldLength() const {
        const std::size_t start = rest_.find_first_not_of(' ');
        const bool quoted = start != std::string_view::npos && rest_[start] == '"';
        return positionOf(delimiter_, quoted ? positionOf('"', start + 1) : 0);
    }

    static std::string_view unquoted(std::string_view field) {
        if (!field.starts_with('"')) return field;
        field.remove_prefix(1);
        if (field.ends_with('"')) field.remove_suffix(1);
        return trimmed(field);
    }

    std::string_view rest_;
    std::string_view field_;
    char delimiter_;
    bool done_ = false;
};

inline std::vector<std::string_view> fieldsOf(std::string_view line, char delimiter) {
    std::vector<std::string_view> fields;
    for (FieldCursor cursor(line, delimiter); cursor.next();)
        fields.push_back(cursor.field());
    return fields;
}

}  // namespace Rotavue::Workbench
