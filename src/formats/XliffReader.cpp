#include "formats/XliffReader.h"

#include <algorithm>
#include <cstdint>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

#include "exchange/TablePath.h"
#include "formats/InlineText.h"
#include "formats/XmlCheck.h"

namespace glossmill {

namespace {

constexpr unsigned kFlags =
    pugi::parse_cdata | pugi::parse_escapes | pugi::parse_wconv_attribute | pugi::parse_eol | pugi::parse_ws_pcdata;

/// States in which somebody still has to look at a translation.
bool isUnsureState(std::string_view state) {
  return state == "new" || state == "initial" || state.starts_with("needs-");
}

/// What both versions do with files and units.
class Reader {
 public:
  explicit Reader(ElementLines lines) : m_lines(std::move(lines)) { m_document.units.reserve(m_lines.count()); }

  ExchangeDocument read(const pugi::xml_node& root) {
    const std::string_view version = root.attribute("version").value();
    const bool isSecond = version.starts_with('2');
    if (isSecond) m_document.sourceLanguage = root.attribute("srcLang").value();
    if (isSecond) setLanguage(root.attribute("trgLang").value());
    for (const pugi::xml_node& file : root.children()) {
      if (!isNamed(file, "file")) continue;
      m_table = tableOfPath(file.attribute("original").value());
      isSecond ? readGroup2(file) : readFile(file);
    }
    if (m_document.languages.empty()) m_document.languages = {""};
    return std::move(m_document);
  }

 private:
  void setLanguage(const char* code) {
    const auto found = std::ranges::find(m_document.languages, code);
    m_language = static_cast<std::size_t>(found - m_document.languages.begin());
    if (found == m_document.languages.end()) m_document.languages.emplace_back(code);
  }

  std::uint32_t lineOf(const pugi::xml_node& node) { return m_lines.at(static_cast<std::size_t>(node.offset_debug())); }

  void reject(const pugi::xml_node& unit, std::string sentence) {
    m_document.rejected.push_back({lineOf(unit), std::move(sentence)});
  }

  void rejectTag(const pugi::xml_node& unit, const std::string& tag) {
    reject(unit, "The translation holds the tag <" + tag + ">, which a strings file has no place for.");
  }

  // ---- 1.2 ----

  void readFile(const pugi::xml_node& file) {
    if (m_document.sourceLanguage.empty()) m_document.sourceLanguage = file.attribute("source-language").value();
    setLanguage(file.attribute("target-language").value());
    readGroup(childNamed(file, "body"));
  }

  void readGroup(const pugi::xml_node& group) {
    for (const pugi::xml_node& child : group.children()) {
      if (isNamed(child, "group")) readGroup(child);
      if (isNamed(child, "trans-unit")) readUnit(child);
      if (isNamed(child, "bin-unit")) reject(child, "Units of binary data are not read.");
    }
  }

  void readUnit(const pugi::xml_node& node) {
    const pugi::xml_attribute id = node.attribute("id");
    if (!id) return reject(node, "The unit has no id.");
    ExchangeUnit unit = startOf(node, id.value());
    InlineText text;
    for (const pugi::xml_node& child : node.children()) {
      if (isNamed(child, "source")) unit.source = inlineText(child).text;
      if (isNamed(child, "note")) addNote(unit, child);
      if (!isNamed(child, "target")) continue;
      text = inlineText(child);
      unit.isUnsure = isUnsureState(child.attribute("state").value());
    }
    if (!text.isWhole()) return rejectTag(node, text.tag);
    finish(std::move(unit), std::move(text.text));
  }

  // ---- 2.0 ----

  void readGroup2(const pugi::xml_node& group) {
    for (const pugi::xml_node& child : group.children()) {
      if (isNamed(child, "group")) readGroup2(child);
      if (isNamed(child, "unit")) readUnit2(child);
    }
  }

  void readUnit2(const pugi::xml_node& node) {
    const pugi::xml_attribute name = node.attribute("name");
    ExchangeUnit unit = startOf(node, name ? name.value() : node.attribute("id").value());
    for (const pugi::xml_node& note : childNamed(node, "notes").children()) {
      if (isNamed(note, "note") && std::string_view(note.attribute("category").value()) != "location") {
        addNote(unit, note);
      }
    }
    std::string text;
    bool isComplete = true;
    for (const pugi::xml_node& segment : node.children()) {
      const bool isSegment = isNamed(segment, "segment");
      if (!isSegment && !isNamed(segment, "ignorable")) continue;
      const pugi::xml_node source = childNamed(segment, "source");
      const pugi::xml_node target = childNamed(segment, "target");
      unit.source += inlineText2(source, node).text;
      if (target.attribute("order")) return reject(node, "The translation has its segments in another order.");
      const InlineText part = inlineText2(target || isSegment ? target : source, node);
      if (!part.isWhole()) return rejectTag(node, part.tag);
      isComplete = isComplete && (target || !isSegment);
      text += part.text;
      if (isUnsureState(segment.attribute("state").value())) unit.isUnsure = true;
    }
    if (!isComplete && !text.empty()) return reject(node, "Only some segments of the unit are translated.");
    finish(std::move(unit), std::move(text));
  }

  // ---- Both ----

  ExchangeUnit startOf(const pugi::xml_node& node, const char* key) {
    ExchangeUnit unit;
    unit.line = lineOf(node);
    unit.table = m_table;
    unit.key = key;
    return unit;
  }

  static void addNote(ExchangeUnit& unit, const pugi::xml_node& note) {
    if (!unit.comment.empty()) unit.comment += '\n';
    unit.comment += inlineText(note).text;
  }

  void finish(ExchangeUnit unit, std::string text) {
    if (!text.empty()) unit.texts.push_back({m_language, std::move(text)});
    m_document.units.push_back(std::move(unit));
  }

  ElementLines m_lines;
  ExchangeDocument m_document;
  std::string m_table;
  std::size_t m_language = 0;
};

}  // namespace

Result<ExchangeDocument> readXliff(const std::string& text) {
  Result<XmlSurvey> survey = checkXml(text, {"trans-unit", "bin-unit", "unit"});
  if (!survey) return survey.error();
  // White space counts where nothing else stands, and beside tags inside of texts; elsewhere it would only cost room.
  const unsigned white = survey.value().hasShortNames ? pugi::parse_ws_pcdata : pugi::parse_ws_pcdata_single;
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer(text.data(), text.size(), kFlags | white, pugi::encoding_utf8);
  if (!parsed) return Error{std::string("The XML cannot be read: ") + parsed.description() + "."};
  const pugi::xml_node root = childNamed(document, "xliff");
  if (!root) return Error{"line 1: The outermost element is not <xliff>."};
  return Reader(std::move(survey.value().lines)).read(root);
}

}  // namespace glossmill
