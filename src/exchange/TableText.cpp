#include "exchange/TableText.h"

#include <string_view>
#include <utility>

#include "exchange/ImportKey.h"
#include "text/Split.h"

namespace glossmill {

namespace {

constexpr std::string_view kDashes = "---";

constexpr std::pair<char, char> kLineEscapes[] = {{'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}, {'\\', '\\'}};

char letterForCharacter(char character) {
  for (const auto& [meant, letter] : kLineEscapes) {
    if (meant == character) return letter;
  }
  return '\0';
}

std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char character : text) {
    const char letter = letterForCharacter(character);
    if (letter != '\0') line += '\\';
    line += letter != '\0' ? letter : character;
  }
  return line;
}

/// A backslash in front of anything else stands for itself: somebody typed it.
std::string fromOneLine(std::string_view line) {
  std::string text;
  for (std::size_t at = 0; at < line.size(); ++at) {
    text += line[at];
    if (line[at] != '\\' || at + 1 == line.size()) continue;
    for (const auto& [meant, letter] : kLineEscapes) {
      if (line[at + 1] != letter) continue;
      text.back() = meant;
      ++at;
      break;
    }
  }
  return text;
}

/// Of "--- 12 --- app/Localizable"; nothing for a line that begins no block.
std::optional<std::string_view> tableNamedIn(std::string_view line) {
  if (!line.starts_with(kDashes)) return std::nullopt;
  const std::size_t second = line.find(kDashes, kDashes.size());
  if (second == std::string_view::npos) return std::nullopt;
  line.remove_prefix(second + kDashes.size());
  if (line.starts_with(' ')) line.remove_prefix(1);
  return line;
}

std::string_view withoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

void appendTableBlock(std::string& text, const ExchangeUnit& unit) {
  if (unit.table.empty()) return;
  const std::string* translation = unit.textIn(0);
  text += "--- " + std::to_string(unit.number) + " --- " + onOneLine(unit.table) + "\n/* ";
  text += onOneLine(unit.comment) + " */\n";
  text += onOneLine(unit.key) + "\n";
  text += (translation ? onOneLine(*translation) : "") + "\n\n";
}

ImportTable tableTextImport(std::string_view text) {
  enum class Expected { Dashes, Comment, Key, Translation };
  ImportTable texts;
  Expected expected = Expected::Dashes;
  std::string table;
  std::string key;
  for (const std::string_view whole : split(text, '\n')) {
    const std::string_view line = withoutReturn(whole);
    if (expected == Expected::Dashes) {
      const std::optional<std::string_view> named = tableNamedIn(line);
      if (!named) continue;
      table = fromOneLine(*named);
      expected = Expected::Comment;
    } else if (expected == Expected::Comment) {
      expected = Expected::Key;
    } else if (expected == Expected::Key) {
      key = importKey(table, fromOneLine(line));
      expected = Expected::Translation;
    } else {
      if (!line.empty()) texts.insert_or_assign(key, fromOneLine(line));
      expected = Expected::Dashes;
    }
  }
  return texts;
}

Result<ExchangeDocument> readTableText(const std::string& text) {
  ExchangeDocument document;
  document.languages = {""};
  for (auto& [tableAndKey, translation] : sortedTable(tableTextImport(text))) {
    ExchangeUnit unit;
    const std::size_t end = tableAndKey.find('\n');
    unit.table = tableAndKey.substr(0, end);
    unit.key = tableAndKey.substr(end + 1);
    unit.texts.push_back({0, std::move(translation)});
    document.units.push_back(std::move(unit));
  }
  return document;
}

}  // namespace glossmill
