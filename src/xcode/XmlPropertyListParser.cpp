#include "xcode/XmlPropertyListParser.h"

#include "xcode/PlistWords.h"
#include "xcode/XmlText.h"

namespace glossmill {

XmlPropertyListParser::XmlPropertyListParser(std::string_view text, PropertyListBuilder& builder)
    : m_text(text), m_builder(builder), m_reader(text, behindMarks(text)) {}

std::optional<PlistMistake> XmlPropertyListParser::parse() {
  XmlTag tag = m_reader.nextTag();
  while (tag.kind != XmlTag::Kind::End && tag.kind != XmlTag::Kind::Mistake && takeTag(tag)) tag = m_reader.nextTag();
  if (m_reader.mistake()) return m_reader.mistake();
  const bool isWhole = m_builder.isComplete() && !m_isInPlist;
  if (!m_mistake && !isWhole) fail(tag, "The file ends before its list does.");
  return m_mistake;
}

bool XmlPropertyListParser::takeTag(const XmlTag& tag) {
  if (tag.name == "plist" && m_builder.openKind() == Kind::None) {
    const bool fits = tag.kind == (m_isInPlist ? XmlTag::Kind::Close : XmlTag::Kind::Open);
    if (!fits || m_builder.isComplete() != m_isInPlist) return fail(tag, "This tag has no place here.");
    m_isInPlist = !m_isInPlist;
    return true;
  }
  if (tag.kind == XmlTag::Kind::Close) return close(tag);
  if (m_builder.isComplete()) return fail(tag, "Nothing may follow the end of the list.");
  const bool wantsKey = m_builder.openKind() == Kind::Dictionary && !m_builder.awaitsValue();
  return wantsKey ? takeKey(tag) : takeValue(tag);
}

bool XmlPropertyListParser::takeKey(const XmlTag& tag) {
  return tag.name == "key" ? takeText(tag, Kind::Text) : fail(tag, "A key is missing here.");
}

bool XmlPropertyListParser::takeValue(const XmlTag& tag) {
  const std::string_view name = tag.name;
  if (name == "dict") return open(tag, Kind::Dictionary);
  if (name == "array") return open(tag, Kind::Array);
  if (name == "data") return takeText(tag, Kind::Data);
  if (name == "string" || name == "integer" || name == "real" || name == "date") return takeText(tag, Kind::Text);
  if (tag.kind != XmlTag::Kind::Empty || (name != "true" && name != "false")) {
    return fail(tag, "A value is missing here.");
  }
  m_builder.addUnescaped(name == "true" ? "1" : "0");
  return true;
}

bool XmlPropertyListParser::takeText(const XmlTag& tag, Kind kind) {
  if (tag.kind == XmlTag::Kind::Empty) {
    m_builder.add(kind, m_text.substr(tag.end, 0));
    return true;
  }
  const std::optional<XmlContent> content = m_reader.content(tag.name);
  if (!content) return false;
  const std::string_view raw = m_text.substr(content->begin, content->end - content->begin);
  if (content->isPlain) {
    m_builder.add(kind, raw);
  } else {
    m_builder.addUnescaped(unescapeXml(raw));
  }
  return true;
}

bool XmlPropertyListParser::open(const XmlTag& tag, Kind kind) {
  if (m_builder.isFull()) return fail(tag, "The list is nested too deeply.");
  m_builder.open(kind);
  if (tag.kind == XmlTag::Kind::Empty) m_builder.close();
  return true;
}

bool XmlPropertyListParser::close(const XmlTag& tag) {
  const Kind kind = m_builder.openKind();
  const bool fits = kind == Kind::Dictionary ? tag.name == "dict" : kind == Kind::Array && tag.name == "array";
  if (!fits) return fail(tag, "This tag closes nothing.");
  if (m_builder.awaitsValue()) return fail(tag, "A key has no value.");
  m_builder.close();
  return true;
}

bool XmlPropertyListParser::fail(const XmlTag& tag, std::string_view sentence) {
  m_mistake = {tag.begin, sentence};
  return false;
}

}  // namespace glossmill
