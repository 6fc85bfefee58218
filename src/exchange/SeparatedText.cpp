#include "exchange/SeparatedText.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr char kGuard = '\'';
constexpr std::string_view kCalculating = "=+-@\t\r";

/// Whether something that spreadsheets calculate stands behind any number of apostrophes.
bool isCalculated(std::string_view cell) {
  const std::size_t at = cell.find_first_not_of(kGuard);
  return at != cell.npos && kCalculating.find(cell[at]) != kCalculating.npos;
}

bool needsQuotes(std::string_view cell, char separator) {
  if (cell.empty()) return false;
  const char special[] = {separator, '"', '\n', '\r'};
  return cell.find_first_of({special, sizeof special}) != cell.npos || cell.front() == ' ' || cell.back() == ' ';
}

}  // namespace

void appendCell(std::string& text, std::string_view cell, char separator) {
  const bool isGuarded = isCalculated(cell);
  const bool isQuoted = needsQuotes(cell, separator);
  if (isQuoted) text += '"';
  if (isGuarded) text += kGuard;
  for (const char byte : cell) {
    if (byte == '"') text += '"';
    text += byte;
  }
  if (isQuoted) text += '"';
}

std::string_view withoutGuard(std::string_view cell) {
  return cell.starts_with(kGuard) && isCalculated(cell) ? cell.substr(1) : cell;
}

Result<SeparatedRow> SeparatedReader::takeRow() {
  SeparatedRow row;
  row.line = m_line;
  while (true) {
    const Outcome taken = takeCell(row.cells.emplace_back());
    if (!taken) return taken.error();
    if (atEnd()) return row;
    if (m_text[m_at] != m_separator) break;
    ++m_at;
  }
  takeLineEnd();
  return row;
}

Outcome SeparatedReader::takeCell(std::string& cell) {
  if (!atEnd() && m_text[m_at] == '"') return takeQuoted(cell);
  const char ends[] = {m_separator, '\n', '\r'};
  const std::size_t end = std::min(m_text.find_first_of({ends, sizeof ends}, m_at), m_text.size());
  cell = m_text.substr(m_at, end - m_at);
  m_at = end;
  return Done{};
}

Outcome SeparatedReader::takeQuoted(std::string& cell) {
  const std::uint32_t first = m_line;
  ++m_at;
  while (true) {
    const std::size_t quote = m_text.find('"', m_at);
    if (quote == m_text.npos) return Error{"line " + std::to_string(first) + ": The quote of a cell is not closed."};
    const std::string_view piece = m_text.substr(m_at, quote - m_at);
    m_line += static_cast<std::uint32_t>(std::count(piece.begin(), piece.end(), '\n'));
    cell += piece;
    m_at = quote + 1;
    if (atEnd() || m_text[m_at] != '"') break;
    cell += '"';
    ++m_at;
  }
  if (isAtCellEnd()) return Done{};
  return Error{"line " + std::to_string(m_line) + ": Something stands behind the closing quote of a cell."};
}

bool SeparatedReader::isAtCellEnd() const {
  return atEnd() || m_text[m_at] == m_separator || m_text[m_at] == '\n' || m_text[m_at] == '\r';
}

void SeparatedReader::takeLineEnd() {
  if (m_text[m_at] == '\r') ++m_at;
  if (!atEnd() && m_text[m_at] == '\n') ++m_at;
  ++m_line;
}

}  // namespace glossmill
