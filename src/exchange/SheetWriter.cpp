#include "exchange/SheetWriter.h"

#include "exchange/CarriedTexts.h"
#include "exchange/SeparatedText.h"

namespace glossmill {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnd = "\r\n";

void appendRow(std::string& text, const std::vector<std::string_view>& cells, char separator) {
  bool isFirst = true;
  for (const std::string_view cell : cells) {
    if (!isFirst) text += separator;
    appendCell(text, cell, separator);
    isFirst = false;
  }
  text += kLineEnd;
}

std::vector<std::string_view> headOf(const ExchangeDocument& document) {
  std::vector<std::string_view> cells(std::begin(kSheetColumns), std::end(kSheetColumns));
  cells.insert(cells.end(), document.languages.begin(), document.languages.end());
  return cells;
}

WrittenExchange sheetOf(const ExchangeDocument& document, const ExchangeWish& wish, char separator) {
  WrittenExchange written;
  std::string text(wish.hasMark ? kByteOrderMark : "");
  appendRow(text, headOf(document), separator);
  for (const ExchangeUnit& unit : document.units) {
    if (std::optional<LeftOutUnit> leftOut = leftOutFor(unit, isNul)) {
      written.leftOut.push_back(std::move(*leftOut));
      continue;
    }
    const std::string comment = withoutLacking(unit.comment, isNul);
    std::vector<std::string_view> cells = {unit.table, unit.key, unit.source, comment};
    for (std::size_t language = 0; language < document.languages.size(); ++language) {
      const std::string* translation = unit.textIn(language);
      cells.push_back(translation ? std::string_view(*translation) : std::string_view());
    }
    appendRow(text, cells, separator);
  }
  written.files.push_back({"", std::move(text)});
  return written;
}

}  // namespace

WrittenExchange csvText(const ExchangeDocument& document, const ExchangeWish& wish) {
  return sheetOf(document, wish, ',');
}

WrittenExchange tsvText(const ExchangeDocument& document, const ExchangeWish& wish) {
  return sheetOf(document, wish, '\t');
}

}  // namespace glossmill
