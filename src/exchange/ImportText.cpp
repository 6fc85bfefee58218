#include "exchange/ImportText.h"

#include "strings/CommentRemover.h"
#include "text/Split.h"

namespace glossmill {

ImportTable importTable(std::string_view text) {
  enum class Expected { Dashes, Comment, Key, Translation };
  ImportTable table;
  Expected expected = Expected::Dashes;
  std::string_view key;
  const std::string clean = removeComments(text);
  for (const std::string_view line : split(clean, '\n')) {
    switch (expected) {
      case Expected::Dashes:
        if (line.find("---") != std::string_view::npos) expected = Expected::Comment;
        break;
      case Expected::Comment:
        expected = Expected::Key;
        break;
      case Expected::Key:
        key = line;
        expected = Expected::Translation;
        break;
      case Expected::Translation:
        if (!line.empty()) table.insert_or_assign(std::string(key), std::string(line));
        expected = Expected::Dashes;
        break;
    }
  }
  return table;
}

std::map<std::string, std::string> sortedTable(ImportTable table) {
  std::map<std::string, std::string> sorted;
  while (!table.empty()) {
    auto entry = table.extract(table.begin());
    sorted.emplace(std::move(entry.key()), std::move(entry.mapped()));
  }
  return sorted;
}

Result<ExchangeDocument> readExportText(const std::string& text) {
  ExchangeDocument document;
  document.languages = {""};
  for (auto& [key, translation] : sortedTable(importTable(text))) {
    ExchangeUnit unit;
    unit.key = key;
    unit.texts.push_back({0, std::move(translation)});
    document.units.push_back(std::move(unit));
  }
  return document;
}

}  // namespace glossmill
