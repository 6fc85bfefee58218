#include "exchange/SheetReader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "exchange/SeparatedText.h"
#include "exchange/SheetWriter.h"

namespace glossmill {

namespace {

constexpr std::size_t kColumns = std::size(kSheetColumns);
constexpr std::size_t kKey = 1;

/// Which columns of a file hold what.
struct Columns {
  std::array<std::optional<std::size_t>, kColumns> known;  ///< as in kSheetColumns
  std::vector<std::size_t> languages;
  std::size_t count = 0;
};

Columns columnsOf(const SeparatedRow& head) {
  Columns columns;
  columns.count = head.cells.size();
  for (std::size_t at = 0; at < head.cells.size(); ++at) {
    const auto name = std::ranges::find(kSheetColumns, withoutGuard(head.cells[at]));
    const auto which = static_cast<std::size_t>(name - std::begin(kSheetColumns));
    if (which < kColumns && !columns.known[which]) {
      columns.known[which] = at;
    } else if (!head.cells[at].empty()) {
      columns.languages.push_back(at);
    }
  }
  return columns;
}

struct SheetStart {
  char separator;
  SeparatedRow head;
};

/// The separator by which the first row has a column for keys.
Result<SheetStart> startOf(std::string_view text, std::string_view separators) {
  std::optional<Error> error;
  for (const char separator : separators) {
    if (text.empty()) break;
    Result<SeparatedRow> head = SeparatedReader(text, separator).takeRow();
    if (!head && !error) error = head.error();
    if (head && columnsOf(head.value()).known[kKey]) return SheetStart{separator, std::move(head.value())};
  }
  return error.value_or(Error{"line 1: No column is named “key”."});
}

ExchangeUnit unitOf(const SeparatedRow& row, const Columns& columns) {
  ExchangeUnit unit;
  unit.line = row.line;
  std::string* const known[] = {&unit.table, &unit.key, &unit.source, &unit.comment};
  const auto cellAt = [&row](std::size_t at) {
    return at < row.cells.size() ? std::string(withoutGuard(row.cells[at])) : std::string();
  };
  for (std::size_t which = 0; which < kColumns; ++which) {
    if (columns.known[which]) *known[which] = cellAt(*columns.known[which]);
  }
  for (std::size_t language = 0; language < columns.languages.size(); ++language) {
    std::string text = cellAt(columns.languages[language]);
    if (!text.empty()) unit.texts.push_back({language, std::move(text)});
  }
  return unit;
}

bool isBlankRow(const SeparatedRow& row) {
  return std::ranges::all_of(row.cells, [](const std::string& cell) { return cell.empty(); });
}

Result<ExchangeDocument> readSheet(std::string_view text, std::string_view separators) {
  const Result<SheetStart> start = startOf(text, separators);
  if (!start) return start.error();
  const Columns columns = columnsOf(start.value().head);
  ExchangeDocument document;
  for (const std::size_t at : columns.languages) {
    document.languages.emplace_back(withoutGuard(start.value().head.cells[at]));
  }
  SeparatedReader reader(text, start.value().separator);
  bool isHead = true;
  while (!reader.atEnd()) {
    const Result<SeparatedRow> row = reader.takeRow();
    if (!row) return row.error();
    const bool isSkipped = std::exchange(isHead, false) || isBlankRow(row.value());
    if (isSkipped) continue;
    if (row.value().cells.size() > columns.count) {
      document.rejected.push_back({row.value().line, "The row has more cells than the first one."});
    } else {
      document.units.push_back(unitOf(row.value(), columns));
    }
  }
  return document;
}

}  // namespace

Result<ExchangeDocument> readCsv(const std::string& text) {
  return readSheet(text, ",;\t");
}

Result<ExchangeDocument> readTsv(const std::string& text) {
  return readSheet(text, "\t;,");
}

}  // namespace glossmill
