#include "formats/Xliff2Writer.h"

#include <cstdio>

#include "exchange/CarriedTexts.h"
#include "formats/XliffFiles.h"
#include "formats/XmlEscapes.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

bool lacksNothing(char32_t) {
  return false;
}

/// What cannot be carried at all: in names, and in texts that are no UTF-8.
std::optional<LeftOutUnit> leftOutOf(const ExchangeUnit& unit) {
  ExchangeUnit names;
  names.table = unit.table;
  names.file = unit.file;
  names.key = unit.key;
  std::optional<LeftOutUnit> leftOut = leftOutFor(names, xmlLacks);
  return leftOut ? leftOut : leftOutFor(unit, lacksNothing);
}

void appendContent(std::string& xml, std::string_view text) {
  if (!firstLacking(text, xmlLacks)) return appendXmlText(xml, text);
  while (!text.empty()) {
    const std::string_view rest = text;
    const char32_t character = takeCodePoint(text);
    if (xmlLacks(character)) {
      char element[24];
      std::snprintf(element, sizeof element, "<cp hex=\"%04X\"/>", static_cast<unsigned>(character));
      xml += element;
    } else {
      appendXmlText(xml, rest.substr(0, rest.size() - text.size()));
    }
  }
}

void appendNote(std::string& xml, std::string_view category, std::string_view text) {
  xml.append("        <note category=\"").append(category).append("\">");
  appendXmlText(xml, withoutLacking(text, xmlLacks));
  xml += "</note>\n";
}

void appendNotes(std::string& xml, const ExchangeUnit& unit) {
  if (unit.comment.empty() && unit.places.empty()) return;
  xml += "      <notes>\n";
  if (!unit.comment.empty()) appendNote(xml, "description", unit.comment);
  for (const std::string& place : unit.places) appendNote(xml, "location", place);
  xml += "      </notes>\n";
}

void appendUnit(std::string& xml, const ExchangeUnit& unit, std::size_t number) {
  const std::string* text = unit.textIn(0);
  const bool isTranslated = text && !text->empty();
  xml += "    <unit id=\"u" + std::to_string(number) + "\"";
  appendXmlAttribute(xml, "name", unit.key);
  xml += ">\n";
  appendNotes(xml, unit);
  xml += isTranslated ? "      <segment state=\"translated\">\n" : "      <segment>\n";
  xml += "        <source>";
  appendContent(xml, unit.source);
  xml += "</source>\n";
  if (isTranslated) {
    xml += "        <target>";
    appendContent(xml, *text);
    xml += "</target>\n";
  }
  xml += "      </segment>\n    </unit>\n";
}

}  // namespace

WrittenExchange xliff2Text(const ExchangeDocument& document, const ExchangeWish&) {
  WrittenExchange written;
  std::vector<const ExchangeUnit*> units;
  for (const ExchangeUnit& unit : document.units) {
    std::optional<LeftOutUnit> leftOut = leftOutOf(unit);
    if (!leftOut) units.push_back(&unit);
    if (leftOut) written.leftOut.push_back(std::move(*leftOut));
  }
  std::string xml =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:2.0\" version=\"2.0\"";
  appendXmlAttribute(xml, "srcLang", sourceCodeOf(document));
  if (!targetCodeOf(document).empty()) appendXmlAttribute(xml, "trgLang", targetCodeOf(document));
  xml += ">\n";
  std::size_t number = 0;
  std::size_t fileNumber = 0;
  for (const XliffFile& file : filesOf(units)) {
    xml += "  <file id=\"f" + std::to_string(++fileNumber) + "\"";
    appendXmlAttribute(xml, "original", file.path);
    xml += " xml:space=\"preserve\">\n";
    for (const ExchangeUnit* unit : file.units) appendUnit(xml, *unit, ++number);
    xml += "  </file>\n";
  }
  xml += "</xliff>\n";
  written.files.push_back({"", std::move(xml)});
  return written;
}

}  // namespace glossmill
