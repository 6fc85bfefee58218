#include "xcode/SwiftLiteral.h"

#include <vector>

#include "text/Utf8.h"
#include "xcode/EscapeDigits.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

constexpr std::string_view kThreeQuotes = "\"\"\"";

/// What a letter behind a backslash stands for.
std::optional<char> plainEscape(char letter) {
  constexpr std::string_view kLetters = "ntr\"'\\0";
  constexpr std::string_view kValues("\n\t\r\"'\\\0", 7);
  const std::size_t place = kLetters.find(letter);
  return place == std::string_view::npos ? std::nullopt : std::optional(kValues[place]);
}

/// From behind "\u".
Outcome takeUniversal(std::string_view& rest, std::string& value) {
  if (!rest.starts_with('{')) return Error{"\\u without its braces"};
  rest.remove_prefix(1);
  const EscapeDigits digits = takeDigits(rest, 16, 8);
  if (digits.count == 0 || !rest.starts_with('}')) return Error{"\\u{} without one to eight digits"};
  rest.remove_prefix(1);
  if (!isCharacter(digits.value)) return Error{"an escape stands for no character"};
  appendUtf8(value, digits.value);
  return Done{};
}

/// Takes the rest of a line that a backslash continues on the next one, and says whether it was that.
bool takeLineEnd(std::string_view& rest) {
  std::size_t at = 0;
  while (at < rest.size() && isBlank(rest[at])) ++at;
  if (at == rest.size() || rest[at] != '\n') return false;
  rest.remove_prefix(at + 1);
  return true;
}

/// From behind a backslash and the hashes that belong to it.
Outcome takeEscape(std::string_view& rest, std::string& value) {
  if (rest.empty()) return Error{"a backslash at the end"};
  if (takeLineEnd(rest)) return Done{};
  const char letter = rest.front();
  rest.remove_prefix(1);
  if (letter == 'u') return takeUniversal(rest, value);
  if (letter == '(') return Error{"an interpolation"};
  const std::optional<char> plain = plainEscape(letter);
  if (!plain) return Error{"an escape that Swift does not know"};
  value += *plain;
  return Done{};
}

/// `mark` is what begins an escape: the backslash, and as many hashes as stand in front of the literal.
Result<std::string> unescaped(std::string_view rest, const std::string& mark) {
  std::string value;
  while (true) {
    const std::size_t escape = rest.find(mark);
    value.append(rest, 0, escape);
    if (escape == std::string_view::npos) return value;
    rest.remove_prefix(escape + mark.size());
    const Outcome taken = takeEscape(rest, value);
    if (!taken) return taken.error();
  }
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t begin = 0;
  std::size_t at = 0;
  while ((at = text.find_first_of("\r\n", at)) != std::string_view::npos) {
    lines.push_back(text.substr(begin, at - begin));
    begin = at = afterLineEnd(text, at);
  }
  lines.push_back(text.substr(begin));
  return lines;
}

bool isBlankLine(std::string_view line) {
  for (const char byte : line) {
    if (!isBlank(byte)) return false;
  }
  return true;
}

/// What stands between three quotes, without the indentation of the last of them.
Result<std::string> withoutIndentation(std::string_view text) {
  const std::vector<std::string_view> lines = linesOf(text);
  const std::string_view indentation = lines.back();
  if (lines.size() < 2 || !isBlankLine(lines.front())) return Error{"text behind the first three quotes"};
  if (!isBlankLine(indentation)) return Error{"text in front of the last three quotes"};
  std::string plain;
  for (std::size_t line = 1; line + 1 < lines.size(); ++line) {
    if (line > 1) plain += '\n';
    if (lines[line].starts_with(indentation)) {
      plain.append(lines[line].substr(indentation.size()));
    } else if (!isBlankLine(lines[line])) {
      return Error{"a line that is indented less than the last quotes"};
    }
  }
  return plain;
}

}  // namespace

Result<std::string> swiftLiteralValue(std::string_view literal) {
  const std::size_t hashes = literal.find('"');
  const std::string mark = "\\" + std::string(hashes, '#');
  std::string_view text = literal.substr(hashes, literal.size() - 2 * hashes);
  const bool hasLines = literal.find_first_of("\r\n") != std::string_view::npos;
  if (!text.starts_with(kThreeQuotes) || (hashes > 0 && !hasLines)) {
    return unescaped(text.substr(1, text.size() - 2), mark);
  }
  const Result<std::string> plain = withoutIndentation(text.substr(3, text.size() - 6));
  return plain ? unescaped(plain.value(), mark) : plain;
}

}  // namespace glossmill
