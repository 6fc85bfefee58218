#include "cli/TextTable.h"

#include <algorithm>
#include <utility>

#include "cli/DisplayText.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {
constexpr std::string_view kGap = "  ";
}

void TextTable::addRow(std::vector<Cell> cells) {
  for (Cell& cell : cells) cell.text = printableLine(cell.text);
  m_rows.push_back(std::move(cells));
}

std::vector<std::size_t> TextTable::widths() const {
  std::vector<std::size_t> widths(m_columns.size());
  for (const std::vector<Cell>& row : m_rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      widths[column] = std::max(widths[column], displayWidth(row[column].text));
    }
  }
  return widths;
}

std::string TextTable::text(const Console& console) const {
  const std::vector<std::size_t> wanted = widths();
  std::string text;
  for (const std::vector<Cell>& row : m_rows) {
    std::string blanks;  // those that another cell still has to follow
    for (std::size_t column = 0; column < row.size(); ++column) {
      const Cell& cell = row[column];
      const std::string fill(wanted[column] - displayWidth(cell.text), ' ');
      if (m_columns[column] == Align::Right) blanks += fill;
      if (!cell.text.empty()) {
        text += blanks + console.painted(cell.paint, cell.text);
        blanks.clear();
      }
      if (m_columns[column] == Align::Left) blanks += cell.text.empty() ? std::string(wanted[column], ' ') : fill;
      blanks += kGap;
    }
    text += '\n';
  }
  return text;
}

}  // namespace glossmill
