#include "xcode/StringsDocument.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "text/ByteSearch.h"
#include "text/Format.h"
#include "text/Utf8.h"
#include "xcode/LineCounter.h"
#include "xcode/PlistEscapes.h"
#include "xcode/StringsKeys.h"
#include "xcode/StringsReader.h"
#include "xcode/XmlStringsReader.h"
#include "xcode/XmlText.h"

namespace glossmill {

namespace {

/// The first one in the text, or line feeds.
std::string_view firstLineEnd(std::string_view text) {
  const std::size_t end = findEither(text, '\n', '\r', 0);
  if (end == text.size()) return "\n";
  return text.substr(end, text.substr(end).starts_with("\r\n") ? 2 : 1);
}

/// XML says itself what it is written in; what it says is not believed when it is a Unicode encoding, which shows.
std::optional<Result<DecodedFile>> textOfDeclaredXml(std::string_view bytes) {
  const std::string_view name = declaredXmlEncoding(bytes);
  if (name.empty()) return std::nullopt;
  const std::optional<FileEncoding> encoding = encodingOfName(name);
  if (!encoding) return Error{formatText("The encoding “%@” is not known.", {name})};
  if (!std::holds_alternative<EightBitEncoding>(*encoding)) return std::nullopt;
  Result<std::string> text = decodeAs(bytes, *encoding);
  if (!text) return text.error();
  return DecodedFile{std::move(text.value()), *encoding, false};
}

/// Where the bytes stop being UTF-8.
TextPlace placeOfUndecodable(std::string_view bytes) {
  const std::string_view valid = bytes.substr(0, validUtf8Prefix(bytes));
  return detectEncoding(bytes).encoding == TextEncoding::Utf8 ? placeOf(valid, valid.size()) : TextPlace{1, 1};
}

}  // namespace

StringsDocument::StringsDocument(std::string_view bytes, std::optional<FileEncoding> otherwise) {
  decode(bytes, otherwise);
  m_lineEnd = firstLineEnd(m_file.text);
  if (!m_error) readEntries();
}

StringsDocument StringsDocument::emptyLike(const StringsDocument& model) {
  return ofText({}, model);
}

StringsDocument StringsDocument::emptyWith(std::string_view lineEnd) {
  StringsDocument document{std::string_view()};
  document.m_lineEnd = lineEnd;
  return document;
}

StringsDocument StringsDocument::ofText(std::string text, const StringsDocument& model) {
  StringsDocument document;
  document.m_file = {std::move(text), model.m_file.encoding, model.m_file.hasMark};
  document.m_lineEnd = model.m_lineEnd;
  document.readEntries();
  return document;
}

void StringsDocument::decode(std::string_view bytes, std::optional<FileEncoding> otherwise) {
  if (bytes.starts_with("bplist")) {
    m_error = {{1, 1}, "The file is a binary property list."};
    return;
  }
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max() / 4) {
    m_error = {{1, 1}, "The file is too long."};
    return;
  }
  std::optional<Result<DecodedFile>> declared = textOfDeclaredXml(bytes);
  const bool isDeclared = declared.has_value();
  Result<DecodedFile> file = isDeclared ? *std::move(declared) : textOfFile(bytes, otherwise);
  if (file) {
    m_file = std::move(file.value());
  } else {
    m_error = {isDeclared ? TextPlace{1, 1} : placeOfUndecodable(bytes), file.error().sentence};
  }
}

void StringsDocument::readEntries() {
  if (isXml(m_file.text)) {
    readWith(XmlStringsReader(m_file.text));
  } else {
    readWith(StringsReader(m_file.text));
  }
}

template <typename Reader>
void StringsDocument::readWith(Reader reader) {
  StringsEntry entry;
  while (reader.next(entry)) m_entries.push_back(entry);
  m_body = reader.body();
  if (reader.mistake()) {
    m_error = {placeOf(m_file.text, reader.mistake()->at), std::string(reader.mistake()->sentence)};
  }
}

std::string_view StringsDocument::spelled(const StringsText& text) const {
  return std::string_view(m_file.text).substr(text.begin, text.end - text.begin);
}

std::string StringsDocument::read(const StringsText& text) const {
  if (text.isPlain) return std::string(spelled(text));
  return text.quote == '<' ? unescapeXml(spelled(text)) : unescapePlist(spelled(text));
}

std::string StringsDocument::keyOf(const StringsEntry& entry) const {
  return read(entry.key);
}

std::string StringsDocument::valueOf(const StringsEntry& entry) const {
  return entry.form == StringsEntry::Form::EmptyTag ? std::string() : read(entry.value);
}

std::vector<StringsDocument::RepeatedKey> StringsDocument::repeatedKeys() const {
  const StringsKeys keys(*this);
  const std::vector<std::uint32_t> lastEntries = keys.lastEntries();
  if (lastEntries.size() == m_entries.size()) return {};
  std::vector<std::size_t> lines;
  LineCounter counter(m_file.text);
  for (const StringsEntry& entry : m_entries) lines.push_back(counter.lineOf(entry.begin));
  std::vector<RepeatedKey> repeated;
  for (const std::uint32_t last : lastEntries) {
    if (keys.previous(last) == StringsKeys::kNone) continue;
    repeated.push_back({keyOf(m_entries[last]), {}});
    for (std::uint32_t entry = last; entry != StringsKeys::kNone; entry = keys.previous(entry)) {
      repeated.back().lines.push_back(lines[entry]);
    }
    std::reverse(repeated.back().lines.begin(), repeated.back().lines.end());
  }
  return repeated;
}

}  // namespace glossmill
