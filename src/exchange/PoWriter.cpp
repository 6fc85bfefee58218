#include "exchange/PoWriter.h"

#include <cstdio>

#include "exchange/CarriedTexts.h"
#include "exchange/PluralRules.h"
#include "exchange/PoEscapes.h"
#include "text/Split.h"

namespace glossmill {

namespace {

constexpr std::string_view kOnlyTable = "Localizable";

/// gettext keeps U+0004 to itself: it stands between context and id.
bool isNotCarried(char32_t character) {
  return character == 0 || character == 4;
}

bool isControl(char32_t character) {
  return character < 0x20 || character == 0x7F;
}

/// One comment line for each line of the text.
void appendComment(std::string& text, std::string_view comment) {
  if (comment.empty()) return;
  for (const std::string_view line : split(comment, '\n')) {
    text.append(line.empty() ? "#." : "#. ").append(withoutLacking(line, isControl)).append("\n");
  }
}

/// gettext puts isolates around a name with blanks.
void appendPlace(std::string& text, const std::string& place) {
  const std::string printable = withoutLacking(place, isControl);
  const bool hasBlank = printable.find(' ') != printable.npos;
  const std::size_t colon = printable.rfind(':');
  const std::size_t end = colon == printable.npos ? printable.size() : colon;
  text += "#: ";
  text += hasBlank ? "\u2068" + printable.substr(0, end) + "\u2069" + printable.substr(end) : printable;
  text += '\n';
}

void appendFlags(std::string& text, const ExchangeUnit& unit, bool isFuzzy) {
  if (!isFuzzy && !unit.isFormat) return;
  text += "#,";
  if (isFuzzy) text += " fuzzy";
  if (unit.isFormat) text += isFuzzy ? ", objc-format" : " objc-format";
  text += '\n';
}

/// gettext wants line breaks at the ends of both or of neither.
bool hasOtherEnds(std::string_view source, std::string_view translation) {
  return source.starts_with('\n') != translation.starts_with('\n') ||
         source.ends_with('\n') != translation.ends_with('\n');
}

void appendUnit(std::string& text, const ExchangeUnit& unit) {
  const std::string* translation = unit.textIn(0);
  const bool isTranslated = translation && !translation->empty();
  text += '\n';
  appendComment(text, unit.comment);
  for (const std::string& place : unit.places) appendPlace(text, place);
  appendFlags(text, unit, isTranslated && (unit.isUnsure || hasOtherEnds(unit.source, *translation)));
  appendPoText(text, "msgctxt", poContext(unit.table, unit.key));
  appendPoText(text, "msgid", unit.source);
  appendPoText(text, "msgstr", isTranslated ? *translation : std::string());
}

std::string headerOf(const ExchangeDocument& document, const ExchangeWish& wish) {
  const std::string language = document.languages.empty() ? "" : document.languages.front();
  std::string header = "Project-Id-Version: " + withoutLacking(document.project, isControl) + "\n";
  for (const char* empty : {"POT-Creation-Date", "PO-Revision-Date", "Last-Translator", "Language-Team"}) {
    header.append(empty).append(": \n");
  }
  header += "Language: " + withoutLacking(language, isControl) + "\n";
  header += "MIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\nContent-Transfer-Encoding: 8bit\n";
  const std::string_view plurals = pluralRuleOf(language);
  if (!plurals.empty()) header.append("Plural-Forms: ").append(plurals).append("\n");
  if (!document.sourceLanguage.empty()) header += "X-Source-Language: " + document.sourceLanguage + "\n";
  return header + "X-Generator: Glossmill " + wish.programVersion + "\n";
}

}  // namespace

std::string poContext(std::string_view table, std::string_view key) {
  std::string context;
  for (const char byte : table.empty() ? kOnlyTable : table) {
    if (byte == ':') {
      context += "%3A";
    } else if (byte == '%') {
      context += "%25";
    } else {
      context += byte;
    }
  }
  return context.append(":").append(key);
}

WrittenExchange poText(const ExchangeDocument& document, const ExchangeWish& wish) {
  WrittenExchange written;
  std::string text;
  appendPoText(text, "msgid", "");
  appendPoText(text, "msgstr", headerOf(document, wish));
  for (const ExchangeUnit& unit : document.units) {
    if (std::optional<LeftOutUnit> leftOut = leftOutFor(unit, isNotCarried)) {
      written.leftOut.push_back(std::move(*leftOut));
    } else {
      appendUnit(text, unit);
    }
  }
  written.files.push_back({"", std::move(text)});
  return written;
}

}  // namespace glossmill
