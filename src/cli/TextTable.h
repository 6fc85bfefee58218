#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Console.h"

namespace glossmill {

/// A table of short texts in columns as wide as they need to be.
class TextTable {
 public:
  enum class Align { Left, Right };

  struct Cell {
    std::string text;
    Paint paint = Paint::Plain;
  };

  explicit TextTable(std::vector<Align> columns) : m_columns(std::move(columns)) {}

  /// As many cells as the table has columns.
  void addRow(std::vector<Cell> cells);
  /// Each row as a line, painted as the console wants it. Blanks at the end of a line are left out.
  std::string text(const Console& console) const;

 private:
  std::vector<std::size_t> widths() const;

  std::vector<Align> m_columns;
  std::vector<std::vector<Cell>> m_rows;
};

}  // namespace glossmill
