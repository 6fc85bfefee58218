#include "formats/XliffWriter.h"

#include "exchange/CarriedTexts.h"
#include "formats/XliffFiles.h"
#include "formats/XmlEscapes.h"

namespace glossmill {

namespace {

constexpr std::string_view kStart =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xliff xmlns=\"urn:oasis:names:tc:xliff:document:1.2\" "
    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" version=\"1.2\" "
    "xsi:schemaLocation=\"urn:oasis:names:tc:xliff:document:1.2 "
    "http://docs.oasis-open.org/xliff/v1.2/os/xliff-core-1.2-strict.xsd\">\n";

void appendElement(std::string& xml, std::string_view name, std::string_view text) {
  xml.append("        <").append(name).append(">");
  appendXmlText(xml, text);
  xml.append("</").append(name).append(">\n");
}

void appendUnit(std::string& xml, const ExchangeUnit& unit) {
  xml += "      <trans-unit";
  appendXmlAttribute(xml, "id", unit.key);
  xml += " xml:space=\"preserve\">\n";
  appendElement(xml, "source", unit.source);
  const std::string* text = unit.textIn(0);
  if (text && !text->empty()) appendElement(xml, "target", *text);
  if (!unit.comment.empty()) appendElement(xml, "note", withoutLacking(unit.comment, xmlLacks));
  xml += "      </trans-unit>\n";
}

void appendFileStart(std::string& xml, const ExchangeDocument& document, const XliffFile& file,
                     std::string_view version) {
  xml += "  <file";
  appendXmlAttribute(xml, "original", file.path);
  appendXmlAttribute(xml, "source-language", sourceCodeOf(document));
  if (!targetCodeOf(document).empty()) appendXmlAttribute(xml, "target-language", targetCodeOf(document));
  xml += " datatype=\"plaintext\">\n    <header>\n      <tool tool-id=\"glossmill\" tool-name=\"Glossmill\"";
  appendXmlAttribute(xml, "tool-version", version);
  xml += "/>\n    </header>\n    <body>\n";
}

}  // namespace

WrittenExchange xliffText(const ExchangeDocument& document, const ExchangeWish& wish) {
  WrittenExchange written;
  std::vector<const ExchangeUnit*> units;
  for (const ExchangeUnit& unit : document.units) {
    std::optional<LeftOutUnit> leftOut = leftOutFor(unit, xmlLacks);
    if (!leftOut) units.push_back(&unit);
    if (leftOut) written.leftOut.push_back(std::move(*leftOut));
  }
  std::string xml(kStart);
  for (const XliffFile& file : filesOf(units)) {
    appendFileStart(xml, document, file, wish.programVersion);
    for (const ExchangeUnit* unit : file.units) appendUnit(xml, *unit);
    xml += "    </body>\n  </file>\n";
  }
  xml += "</xliff>\n";
  written.files.push_back({"", std::move(xml)});
  return written;
}

}  // namespace glossmill
