#include "xcode/StringsStyle.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "xcode/PlistEscapes.h"
#include "xcode/PlistWords.h"
#include "xcode/XmlText.h"

namespace glossmill {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kWhiteSpace = " \t\r\n";

bool consistsOf(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

std::string_view part(const StringsLayout& layout, std::size_t begin, std::size_t end) {
  return std::string_view(layout.document().text()).substr(begin, end - begin);
}

/// The entry and those directly beside it.
std::vector<std::size_t> neighbours(const StringsLayout& layout, std::size_t entry) {
  std::vector<std::size_t> all{entry};
  if (entry > 0) all.push_back(entry - 1);
  if (entry + 1 < layout.document().entries().size()) all.push_back(entry + 1);
  return all;
}

void takeSpelling(const StringsLayout& layout, const StringsEntry& entry, StringsStyle& style) {
  style.keyQuote = entry.key.quote;
  if (entry.form != StringsEntry::Form::Whole) return;
  const std::string_view separator = part(layout, entry.keyEnd(), entry.valueBegin());
  if (consistsOf(separator, " \t=")) style.separator = separator;
  if (entry.value.quote == '\'') style.valueQuote = '\'';
  const std::string_view rest = part(layout, entry.valueEnd(), entry.end);
  if (rest.ends_with(';') && consistsOf(rest.substr(0, rest.size() - 1), kBlanks)) {
    style.beforeSemicolon = rest.substr(0, rest.size() - 1);
  }
}

void takeXmlSpelling(const StringsLayout& layout, const StringsEntry& entry, StringsStyle& style) {
  constexpr std::string_view kKeyEnd = "</key>";
  const std::string_view whole = part(layout, entry.begin, entry.end);
  const std::size_t keyEnd = whole.find(kKeyEnd);
  if (keyEnd == std::string_view::npos) return;
  const std::size_t separator = keyEnd + kKeyEnd.size();
  const std::string_view between = whole.substr(separator, whole.find('<', separator) - separator);
  if (consistsOf(between, kWhiteSpace)) style.separator = between;
}

/// What stands in front of the entry, or of its comment, on the line.
void takeIndentation(const StringsLayout& layout, std::size_t entry, StringsStyle& style) {
  const std::size_t key = layout.document().entries()[entry].begin;
  const TextRange comments = layout.attachedComments(entry);
  style.hasCommentOnLine = !comments.empty() && layout.lineEndsIn({comments.end, key}) == 0;
  const std::size_t first = style.hasCommentOnLine ? comments.begin : key;
  const std::size_t begin = layout.beforeBlanks(first);
  if (layout.isLineStart(begin)) style.indentation = part(layout, begin, first);
}

void takeComments(const StringsLayout& layout, const std::vector<std::size_t>& entries, StringsStyle& style) {
  std::optional<TextRange> comments;
  std::size_t count = 0;
  for (const std::size_t entry : entries) {
    const TextRange attached = layout.attachedComments(entry);
    if (attached.empty()) continue;
    ++count;
    if (!comments) comments = attached;
  }
  if (count * 2 <= entries.size()) return;
  const std::string_view text = part(layout, comments->begin, comments->end);
  style.comments = text.starts_with("//") ? StringsStyle::Comments::Line : StringsStyle::Comments::Block;
  const std::size_t mark = style.syntax == StringsSyntax::Xml ? 4 : 2;
  style.hasBlankInComment = text.size() > mark && kWhiteSpace.find(text[mark]) != std::string_view::npos;
}

/// As few as stand in front of the entry and behind it: groups of lines stay together.
void takeBlankLines(const StringsLayout& layout, std::size_t entry, StringsStyle& style) {
  const std::size_t count = layout.document().entries().size();
  std::optional<std::size_t> blankLines;
  if (entry > 0) blankLines = layout.blankLinesBefore(entry);
  if (entry + 1 < count) {
    const std::size_t behind = layout.blankLinesBefore(entry + 1);
    blankLines = std::min(blankLines.value_or(behind), behind);
  }
  style.blankLines = blankLines.value_or(style.comments == StringsStyle::Comments::None ? 0 : 1);
}

void replaceAll(std::string& text, std::string_view what, std::string_view by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

/// Line feeds for line ends of every kind, blanks for other control characters.
std::string withPlainLineEnds(std::string_view comment) {
  std::string text(comment);
  for (const std::string_view end : {"\r\n", "\r", "\u2028", "\u2029"}) replaceAll(text, end, "\n");
  for (char& character : text) {
    if (character >= 0 && character < ' ' && character != '\n' && character != '\t') character = ' ';
  }
  return text;
}

/// Neither two hyphens nor one at the end may stand in a comment of XML.
std::string withoutDoubleHyphens(std::string comment) {
  replaceAll(comment, "--", "- -");
  replaceAll(comment, "--", "- -");  // Of three the last two are left.
  if (comment.ends_with('-')) comment += ' ';
  return comment;
}

std::string withoutEndMarks(std::string comment) {
  replaceAll(comment, "*/", "* /");
  return comment;
}

}  // namespace

Result<std::string> spelledValue(StringsSyntax syntax, char quote, std::string_view value) {
  if (syntax == StringsSyntax::Words) return quote + escapePlist(value, quote) + quote;
  std::optional<std::string> text = escapeXml(value);
  if (!text) return Error{"The text holds a character that XML has no way to write."};
  return std::move(*text);
}

Result<std::string> StringsStyle::entry(std::string_view key, std::string_view value, std::string_view comment) const {
  const bool isXml = syntax == StringsSyntax::Xml;
  const bool isBare = !isXml && keyQuote == 0 && isBareWord(key);
  Result<std::string> keyText =
      isBare ? Result<std::string>(std::string(key)) : spelledValue(syntax, keyQuote == 0 ? '"' : keyQuote, key);
  Result<std::string> valueText = spelledValue(syntax, valueQuote, value);
  if (!keyText) return keyText.error();
  if (!valueText) return valueText.error();
  std::string text = commentLines(comment);
  if (isXml) {
    text += "<key>" + keyText.value() + "</key>" + separator + "<string>" + valueText.value() + "</string>";
  } else {
    text += keyText.value() + separator + valueText.value() + beforeSemicolon + ";";
  }
  return text;
}

std::string StringsStyle::commentLines(std::string_view comment) const {
  if (comments == Comments::None) return {};
  const bool isXml = syntax == StringsSyntax::Xml;
  const std::string blank = hasBlankInComment ? " " : "";
  std::string text = comment.empty() ? "No comment provided by engineer." : withPlainLineEnds(comment);
  if (comments == Comments::Line) {
    replaceAll(text, "\n", lineEnd + indentation + "//" + blank);
    return "//" + blank + text + lineEnd + indentation;
  }
  text = isXml ? withoutDoubleHyphens(std::move(text)) : withoutEndMarks(std::move(text));
  replaceAll(text, "\n", lineEnd);
  text = isXml ? "<!--" + blank + text + blank + "-->" : "/*" + blank + text + blank + "*/";
  return text + (hasCommentOnLine ? " " : lineEnd + indentation);
}

StringsStyle styleAround(const StringsLayout& layout, std::size_t entry) {
  const StringsDocument& document = layout.document();
  StringsStyle style = emptyStyle(document);
  if (style.syntax == StringsSyntax::Xml) {
    takeXmlSpelling(layout, document.entries()[entry], style);
  } else {
    takeSpelling(layout, document.entries()[entry], style);
  }
  takeIndentation(layout, entry, style);
  takeComments(layout, neighbours(layout, entry), style);
  takeBlankLines(layout, entry, style);
  return style;
}

StringsStyle emptyStyle(const StringsDocument& document) {
  StringsStyle style;
  style.syntax = document.body().syntax;
  style.lineEnd = document.lineEnd();
  if (style.syntax == StringsSyntax::Xml) style.separator = style.lineEnd + "\t";
  if (style.syntax == StringsSyntax::Xml) style.indentation = "\t";
  return style;
}

}  // namespace glossmill
