#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"

namespace glossmill {

/// Appends a cell. One that holds the separator, a quote, a line break or a blank at an end is quoted, and one that a
/// spreadsheet would calculate gets an apostrophe in front.
void appendCell(std::string& text, std::string_view cell, char separator);

/// A line of a text of separated values; its cells may hold line breaks.
struct SeparatedRow {
  std::uint32_t line = 0;  ///< where it begins, from 1
  std::vector<std::string> cells;
};

/// Takes rows one by one out of a text whose lines end in CR, LF or both.
class SeparatedReader {
 public:
  SeparatedReader(std::string_view text, char separator) : m_text(text), m_separator(separator) {}

  bool atEnd() const { return m_at == m_text.size(); }
  /// Not at the end. A quote that is not closed, or is followed by something, is an error that names the line.
  Result<SeparatedRow> takeRow();

 private:
  Outcome takeCell(std::string& cell);
  Outcome takeQuoted(std::string& cell);
  bool isAtCellEnd() const;
  void takeLineEnd();

  std::string_view m_text;
  char m_separator;
  std::size_t m_at = 0;
  std::uint32_t m_line = 1;
};

/// The cell without the apostrophe that appendCell() put in front.
std::string_view withoutGuard(std::string_view cell);

}  // namespace glossmill
