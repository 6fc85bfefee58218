#include "xcode/CLiteral.h"

#include "text/ByteSearch.h"
#include "text/Utf8.h"
#include "xcode/CLexer.h"
#include "xcode/EscapeDigits.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

/// What a letter behind a backslash stands for; 0 for one that stands for nothing.
char plainEscape(char letter) {
  constexpr std::string_view kLetters = "ntrabfv\"'\\?";
  constexpr std::string_view kValues = "\n\t\r\a\b\f\v\"'\\?";
  const std::size_t place = kLetters.find(letter);
  return place == std::string_view::npos ? '\0' : kValues[place];
}

Outcome appendByte(std::string& value, std::uint32_t byte) {
  if (byte > 0xFF) return Error{"an escape stands for more than a byte"};
  value += static_cast<char>(static_cast<unsigned char>(byte));
  return Done{};
}

Outcome takeHexByte(std::string_view& rest, std::string& value) {
  const EscapeDigits digits = takeDigits(rest, 16, std::string_view::npos);
  if (digits.count == 0) return Error{"\\x without a hexadecimal digit"};
  return appendByte(value, digits.value);
}

/// From behind "\u" or "\U".
Outcome takeUniversal(std::string_view& rest, std::size_t length, std::string& value) {
  const EscapeDigits digits = takeDigits(rest, 16, length);
  if (digits.count < length) return Error{length == 4 ? "\\u without four digits" : "\\U without eight digits"};
  if (!isCharacter(digits.value)) return Error{"an escape stands for no character"};
  appendUtf8(value, digits.value);
  return Done{};
}

/// From behind a backslash.
Outcome takeEscape(std::string_view& rest, std::string& value) {
  if (rest.empty()) return Error{"a backslash at the end"};
  const char letter = rest.front();
  if (digitValue(letter, 8)) return appendByte(value, takeDigits(rest, 8, 3).value);
  rest.remove_prefix(1);
  if (letter == 'x') return takeHexByte(rest, value);
  if (letter == 'u') return takeUniversal(rest, 4, value);
  if (letter == 'U') return takeUniversal(rest, 8, value);
  const char plain = plainEscape(letter);
  if (plain == '\0') return Error{"an escape that C does not know"};
  value += plain;
  return Done{};
}

/// What stands between the quotes, without line continuations.
Outcome appendEscaped(std::string_view rest, std::string& value) {
  while (!rest.empty()) {
    const std::size_t backslash = findByte(rest, '\\', 0);
    value.append(rest, 0, backslash);
    if (backslash == rest.size()) break;
    rest.remove_prefix(backslash + 1);
    const Outcome taken = takeEscape(rest, value);
    if (!taken) return taken;
  }
  return Done{};
}

/// Line ends inside a raw string are line feeds.
void appendRaw(std::string_view literal, std::string& value) {
  const std::size_t opening = literal.find('(');
  const std::size_t delimiter = opening - literal.find('"') - 1;
  const std::string_view text = literal.substr(opening + 1, literal.size() - opening - delimiter - 3);
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.substr(at, 2) != "\r\n") value += text[at];
  }
}

Outcome appendLiteral(std::string_view literal, std::string& value) {
  const std::size_t quote = literal.find('"');
  if (quote > 0 && literal[quote - 1] == 'R') {
    appendRaw(literal, value);
    return Done{};
  }
  const std::string_view text = literal.substr(quote + 1, literal.size() - quote - 2);
  if (text.find('\\') == std::string_view::npos) {
    value.append(text);
    return Done{};
  }
  return appendEscaped(withoutContinuations(text), value);
}

}  // namespace

Result<std::string> cLiteralValue(std::string_view source) {
  std::string value;
  CLexer lexer(source, 0, CLexer::Directives::Marks);
  for (SourceToken token = lexer.next(); token.kind != SourceToken::Kind::End; token = lexer.next()) {
    if (token.kind == SourceToken::Kind::BrokenLiteral) return Error{"its last quote is missing"};
    if (token.kind != SourceToken::Kind::Literal) continue;
    const Outcome appended = appendLiteral(source.substr(token.begin, token.end - token.begin), value);
    if (!appended) return appended.error();
  }
  if (!isValidUtf8(value)) return Error{"the bytes of its escapes are no UTF-8"};
  return value;
}

}  // namespace glossmill
