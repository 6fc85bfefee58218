#include "xcode/XmlStringsReader.h"

#include "xcode/PlistWords.h"

namespace glossmill {

namespace {

StringsText textBetween(std::size_t begin, std::size_t end, bool isPlain) {
  return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end), '<', isPlain};
}

}  // namespace

XmlStringsReader::XmlStringsReader(std::string_view text) : m_reader(text, behindMarks(text)) {
  m_body.syntax = StringsSyntax::Xml;
}

bool XmlStringsReader::next(StringsEntry& entry) {
  if (!m_hasBegun && !begin()) return false;
  if (m_mistake || m_isFinished) return false;
  const XmlTag key = m_reader.nextTag();
  if (key.kind == XmlTag::Kind::Close && key.name == "dict") {
    m_body.end = key.begin;
    return finish();
  }
  entry = {};
  entry.begin = static_cast<std::uint32_t>(key.begin);
  if (!takeText(key, "key", entry.key, "A key is missing here.")) return false;
  const XmlTag value = m_reader.nextTag();
  if (!takeText(value, "string", entry.value, "A text is missing behind a key.")) return false;
  if (value.kind == XmlTag::Kind::Empty) {
    entry.form = StringsEntry::Form::EmptyTag;
    entry.value = textBetween(value.begin, value.end, false);  // it reads as nothing
  }
  entry.end = static_cast<std::uint32_t>(m_reader.at());
  return true;
}

/// Up to the dictionary.
bool XmlStringsReader::begin() {
  m_hasBegun = true;
  XmlTag tag = m_reader.nextTag();
  m_isInPlist = tag.kind == XmlTag::Kind::Open && tag.name == "plist";
  if (m_isInPlist) tag = m_reader.nextTag();
  const bool isEmpty = tag.kind == XmlTag::Kind::Empty;
  if (tag.name != "dict" || (tag.kind != XmlTag::Kind::Open && !isEmpty)) {
    return fail(tag, "The list is no dictionary.");
  }
  m_body.begin = isEmpty ? tag.begin : tag.end;
  m_body.end = tag.end;
  m_body.isEmptyTag = isEmpty;
  return !isEmpty || finish();
}

bool XmlStringsReader::takeText(const XmlTag& tag, std::string_view name, StringsText& text,
                                std::string_view sentence) {
  const bool isText = tag.name == name && (tag.kind == XmlTag::Kind::Open || tag.kind == XmlTag::Kind::Empty);
  if (!isText) return fail(tag, sentence);
  text = textBetween(tag.end, tag.end, true);
  if (tag.kind == XmlTag::Kind::Empty) return true;
  const std::optional<XmlContent> content = m_reader.content(name);
  if (!content) return fail(tag, sentence);
  text = textBetween(content->begin, content->end, content->isPlain);
  return true;
}

/// Behind the dictionary.
bool XmlStringsReader::finish() {
  m_isFinished = true;
  XmlTag tag = m_reader.nextTag();
  if (m_isInPlist && (tag.kind != XmlTag::Kind::Close || tag.name != "plist")) {
    return fail(tag, "The file ends before its list does.");
  }
  if (m_isInPlist) tag = m_reader.nextTag();
  return tag.kind == XmlTag::Kind::End ? false : fail(tag, "Nothing may follow the end of the list.");
}

/// What the reader found itself comes first.
bool XmlStringsReader::fail(const XmlTag& tag, std::string_view sentence) {
  m_mistake = m_reader.mistake() ? m_reader.mistake() : PlistMistake{tag.begin, sentence};
  return false;
}

}  // namespace glossmill
