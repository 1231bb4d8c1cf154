#include "workbench/export/report_table.h"

#include "workbench/paint/text_face.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>

namespace Rotavue::Workbench {

namespace {

constexpr int MostNameLines = 2;
constexpr int WidestColumn = 9;  // times the height of the text

QString textOf(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

/// Widths are whole pixels here; a part of one more cuts nothing off.
QString fitted(const QString& text, const TextFace& face, int width) {
    return face.width(text) <= width ? text : face.shortened(text, width);
}

/// The columns of a table in groups of one size.
class Groups {
public:
    explicit Groups(const ReportTable& table)
        : columns_(table.head.empty() ? 0 : table.head.size() - 1),
          count_(table.groups.empty() ? columns_ : table.groups.size()) {}

    std::size_t count() const { return count_; }
    std::size_t size() const { return count_ == 0 ? 0 : columns_ / count_; }
    std::size_t firstOf(std::size_t group) const { return 1 + group * size(); }

    /// Whether the row speaks of the whole group.
    bool isOfAll(const std::vector<std::string>& row, std::size_t group) const {
        const auto first = row.begin() + static_cast<std::ptrdiff_t>(firstOf(group));
        return size() > 1 && std::all_of(first + 1, first + static_cast<std::ptrdiff_t>(size()),
                                         [](const std::string& cell) { return cell.empty(); });
    }

private:
    std::size_t columns_;
    std::size_t count_;
};

/// Puts down the blocks of a table in one height of text.
class TableWriter {
public:
    TableWriter(const ReportTable& table, int width, int textHeight, std::size_t groupsAbreast)
        : table_(table),
          groups_(table),
          face_(textHeight),
          gap_(textHeight / 2),
          abreast_(std::max<std::size_t>(1, groupsAbreast)) {
        places_.textHeight = textHeight;
        const auto columns = static_cast<int>(abreast_ * std::max<std::size_t>(1, groups_.size()));
        first_ = std::min(widestWords() + gap_, width / 2);
        column_ = std::min((width - first_) / columns, WidestColumn * textHeight);
    }

    TablePlaces write() {
        for (std::size_t group = 0; group < groups_.count(); group += abreast_) {
            if (group > 0) y_ += lineHeight() / 2;
            writeBlock(group, std::min(group + abreast_, groups_.count()));
        }
        places_.height = y_;
        return std::move(places_);
    }

private:
    int lineHeight() const { return face_.lineHeight() * 5 / 4; }
    int groupWidth() const { return column_ * static_cast<int>(groups_.size()); }

    int widestWords() const {
        int widest = face_.width(textOf(table_.head.front()));
        for (const auto& row : table_.rows)
            widest = std::max(widest, face_.width(textOf(row.front())));
        return widest;
    }

    void writeBlock(std::size_t from, std::size_t to) {
        if (!table_.groups.empty()) writeNames(from, to);
        writeRow(table_.head, from, to, true);
        places_.rules.push_back(y_ - lineHeight() / 8);
        for (const auto& row : table_.rows)
            writeRow(row, from, to, false);
    }

    void writeNames(std::size_t from, std::size_t to) {
        std::size_t most = 1;
        for (std::size_t group = from; group < to; ++group)
            most = std::max(most, nameLines(group).size());
        for (std::size_t group = from; group < to; ++group) {
            const auto lines = nameLines(group);
            for (std::size_t i = 0; i < lines.size(); ++i)
                put(lines[i], leftOf(group - from), groupWidth(), Align::Middle, true,
                    static_cast<int>(most - lines.size() + i) * lineHeight());
        }
        y_ += static_cast<int>(most) * lineHeight();
    }

    std::vector<QString> nameLines(std::size_t group) const {
        return linesOf(textOf(table_.groups[group]), places_.textHeight, groupWidth() - gap_,
                       MostNameLines);
    }

    void writeRow(const std::vector<std::string>& row, std::size_t from, std::size_t to,
                  bool isHead) {
        put(textOf(row.front()), 0, first_, Align::Left, isHead);
        for (std::size_t group = from; group < to; ++group) {
            const std::size_t first = groups_.firstOf(group);
            const int left = leftOf(group - from);
            if (!isHead && groups_.isOfAll(row, group)) {
                put(textOf(row[first]), left, groupWidth(), Align::Middle, isHead);
                continue;
            }
            for (std::size_t i = 0; i < groups_.size(); ++i)
                put(textOf(row[first + i]), left + static_cast<int>(i) * column_, column_,
                    Align::Right, isHead);
        }
        y_ += lineHeight();
    }

    int leftOf(std::size_t groupInBlock) const {
        return first_ + static_cast<int>(groupInBlock) * groupWidth();
    }

    enum class Align : std::uint8_t { Left, Middle, Right };

    void put(const QString& text, int left, int width, Align align, bool isHead, int below = 0) {
        if (text.isEmpty()) return;
        const QString there = fitted(text, face_, width - gap_);
        places_.isCut = places_.isCut || there != text || text.endsWith(QChar(0x2026));
        const int free = width - face_.width(there);
        const int shift = align == Align::Left     ? 0
                          : align == Align::Middle ? (free + gap_) / 2
                                                   : free;
        places_.texts.push_back({there, QPoint(left + shift, y_ + below), isHead});
    }

    const ReportTable& table_;
    Groups groups_;
    TextFace face_;
    int gap_;
    std::size_t abreast_;
    int first_ = 0;
    int column_ = 0;
    int y_ = 0;
    TablePlaces places_;
};

/// Whether nothing that has room on the page is lost: a row may be shorter than the head.
ReportTable squared(ReportTable table) {
    for (auto& row : table.rows)
        row.resize(table.head.size());
    return table;
}

QString firstLine(const QString& text, const TextFace& face, int width) {
    QString line;
    for (const QString& word : text.split(' ')) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (!line.isEmpty() && face.width(longer) > width) return line;
        line = longer;
    }
    return line;
}

QString brokenWord(const QString& word, const TextFace& face, int width) {
    qsizetype fitting = 1;
    while (fitting < word.size() && face.width(word.left(fitting + 1)) <= width)
        ++fitting;
    return word.left(fitting);
}

}  // namespace

TablePlaces placesOf(const ReportTable& table, int width, const std::vector<int>& textHeights) {
    const ReportTable whole = squared(table);
    const std::size_t count = Groups(whole).count();
    if (count == 0) return {};
    TablePlaces places;
    for (std::size_t blocks = 1; blocks <= count; ++blocks) {
        for (const int height : textHeights) {
            places = TableWriter(whole, width, height, (count + blocks - 1) / blocks).write();
            if (!places.isCut) return places;
        }
    }
    return places;
}

std::vector<QString> linesOf(const QString& text, int textHeight, int width, int mostLines) {
    constexpr qsizetype Longest = 2000;
    const TextFace face(textHeight);
    std::vector<QString> lines;
    QString left = text.left(Longest);
    while (!left.isEmpty()) {
        if (static_cast<int>(lines.size()) + 1 == mostLines) {
            lines.push_back(fitted(left, face, width));
            break;
        }
        QString line = firstLine(left, face, width);
        if (face.width(line) > width) line = brokenWord(line, face, width);
        lines.push_back(line);
        left = left.mid(line.size()).trimmed();
    }
    return lines;
}

}  // namespace Rotavue::Workbench
