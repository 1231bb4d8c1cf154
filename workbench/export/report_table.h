#pragma once

#include <QPoint>
#include <QString>

#include <string>
#include <vector>

namespace Rotavue::Workbench {

/// Numbers in lines and columns; the first column is words, the others stand to the right. Columns
/// that belong together have one name above them; a row that fills the first of them alone speaks
/// of all.
struct ReportTable {
    std::vector<std::string> head = {};
    std::vector<std::vector<std::string>> rows = {};
    std::vector<std::string> groups = {};  ///< of equally many columns each, the first one not
};

/// A text of a table and where its upper left corner is, from that of the table.
struct TableText {
    QString text;
    QPoint corner;
    bool isHead = false;
};

/// Where all texts of a table stand.
struct TablePlaces {
    std::vector<TableText> texts = {};
    std::vector<int> rules = {};  ///< below the heads
    int textHeight = 0;
    int height = 0;
    bool isCut = false;  ///< a text has no room whatever is tried, and is cut with an ellipsis
};

/// Puts a table into a width, with all groups beside each other in the largest text that lets all
/// of it be read; where none does, in blocks below each other, of as many groups as there is room
/// for. `textHeights` fall; none is zero.
TablePlaces placesOf(const ReportTable& table, int width, const std::vector<int>& textHeights);

/// The text in lines of that width, broken between words, or within one that is too long. The last
/// of the lines that are allowed is cut where there is more.
std::vector<QString> linesOf(const QString& text, int textHeight, int width, int mostLines);

}  // namespace Rotavue::Workbench
