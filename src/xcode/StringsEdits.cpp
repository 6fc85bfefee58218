#include "xcode/StringsEdits.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "text/Format.h"
#include "text/Utf8.h"
#include "xcode/StringsInsertion.h"
#include "xcode/StringsKeys.h"
#include "xcode/StringsLayout.h"
#include "xcode/StringsPlaces.h"
#include "xcode/StringsRemoval.h"
#include "xcode/StringsStyle.h"
#include "xcode/TextReplacements.h"

namespace glossmill {

namespace {

Result<TextReplacement> replacementOf(const StringsDocument& document, const StringsEntry& entry,
                                      std::string_view value) {
  const char quote = entry.value.quote == 0 ? '"' : entry.value.quote;
  Result<std::string> text = spelledValue(document.body().syntax, quote, value);
  if (!text) return text.error();
  if (document.body().syntax == StringsSyntax::Xml) {
    const bool isEmpty = entry.form == StringsEntry::Form::EmptyTag;
    return TextReplacement{entry.value.begin, entry.value.end,
                           isEmpty ? "<string>" + text.value() + "</string>" : text.value()};
  }
  if (entry.form != StringsEntry::Form::KeyOnly) {
    return TextReplacement{entry.valueBegin(), entry.valueEnd(), std::move(text.value())};
  }
  return TextReplacement{entry.keyEnd(), entry.keyEnd(), " = " + text.value()};
}

/// Edits of entries that a file has, and of those that it lacks.
class StringsEditor {
 public:
  StringsEditor(const StringsDocument& document, const std::vector<StringsEdit>& edits);

  Result<std::string> text(const StringsDocument* development) const;

 private:
  Outcome replaceValues(std::vector<TextReplacement>& replacements) const;
  void remove(std::vector<TextReplacement>& replacements) const;
  Outcome insert(const StringsDocument& document, const StringsDocument* development,
                 std::vector<TextReplacement>& replacements) const;

  const StringsDocument& m_document;
  StringsKeys m_keys;
  std::vector<std::pair<std::uint32_t, const StringsEdit*>> m_changed;
  std::vector<std::uint32_t> m_removed;  ///< the last entries of their keys
  std::vector<const StringsEdit*> m_new;
};

StringsEditor::StringsEditor(const StringsDocument& document, const std::vector<StringsEdit>& edits)
    : m_document(document), m_keys(document) {
  std::unordered_map<std::string_view, const StringsEdit*> last;
  for (const StringsEdit& edit : edits) last[edit.key] = &edit;
  for (const StringsEdit& edit : edits) {
    if (last[edit.key] != &edit) continue;
    const std::uint32_t entry = m_keys.lastOf(edit.key);
    if (entry == StringsKeys::kNone) {
      if (edit.value) m_new.push_back(&edit);
    } else if (!edit.value) {
      m_removed.push_back(entry);
    } else if (document.valueOf(document.entries()[entry]) != *edit.value) {
      m_changed.emplace_back(entry, &edit);
    }
  }
}

/// New entries find their places when the others are as they are to be.
Result<std::string> StringsEditor::text(const StringsDocument* development) const {
  std::vector<TextReplacement> replacements;
  Outcome outcome = replaceValues(replacements);
  if (!outcome) return outcome.error();
  if (m_removed.empty()) {
    outcome = insert(m_document, development, replacements);
    if (!outcome) return outcome.error();
    return withReplacements(m_document.text(), std::move(replacements));
  }
  remove(replacements);
  std::string text = withReplacements(m_document.text(), std::move(replacements));
  if (m_new.empty()) return text;
  const StringsDocument remaining = StringsDocument::ofText(std::move(text), m_document);
  replacements.clear();
  outcome = insert(remaining, development, replacements);
  if (!outcome) return outcome.error();
  return withReplacements(remaining.text(), std::move(replacements));
}

Outcome StringsEditor::replaceValues(std::vector<TextReplacement>& replacements) const {
  for (const auto& [entry, edit] : m_changed) {
    Result<TextReplacement> replacement = replacementOf(m_document, m_document.entries()[entry], *edit->value);
    if (!replacement) return replacement.error();
    replacements.push_back(std::move(replacement.value()));
  }
  return Done{};
}

void StringsEditor::remove(std::vector<TextReplacement>& replacements) const {
  std::vector<bool> isRemoved(m_document.entries().size());
  for (const std::uint32_t last : m_removed) {
    for (std::uint32_t entry = last; entry != StringsKeys::kNone; entry = m_keys.previous(entry)) {
      isRemoved[entry] = true;
    }
  }
  for (TextReplacement& removal : removalsOf(isRemoved, StringsLayout(m_document))) {
    replacements.push_back(std::move(removal));
  }
}

/// The comment of a new entry, with question marks for what the encoding lacks.
std::string writableComment(std::string_view comment, const FileEncoding& encoding) {
  const auto* const eightBit = std::get_if<EightBitEncoding>(&encoding);
  if (!eightBit) return std::string(comment);
  std::string writable;
  while (!comment.empty()) {
    const char32_t character = takeCodePoint(comment);
    appendUtf8(writable, byteOfCharacter(*eightBit, character) ? character : U'?');
  }
  return writable;
}

Outcome StringsEditor::insert(const StringsDocument& document, const StringsDocument* development,
                              std::vector<TextReplacement>& replacements) const {
  std::vector<std::string_view> keys;
  std::vector<NewStringsEntry> entries;
  for (const StringsEdit* edit : m_new) {
    keys.emplace_back(edit->key);
    entries.push_back({edit->key, *edit->value, writableComment(edit->comment, document.file().encoding)});
  }
  if (entries.empty()) return Done{};
  const std::vector<StringsPlace> places = placesFor(keys, document, StringsKeys(document), development);
  Result<std::vector<TextReplacement>> inserted = insertionsOf(entries, places, StringsLayout(document), development);
  if (!inserted) return inserted.error();
  for (TextReplacement& insertion : inserted.value()) replacements.push_back(std::move(insertion));
  return Done{};
}

/// Zero bytes in a comment may look like UTF-16, more of them the more text there is.
bool isSurelyUtf8(const std::string& bytes, const DecodedFile& file) {
  return file.encoding == FileEncoding(TextEncoding::Utf8) && bytes.find('\0') == std::string::npos;
}

/// Bytes that would be read in another encoding than they are written in are no use.
Outcome checkReadable(const std::string& bytes, const DecodedFile& file) {
  if (file.hasMark || isSurelyUtf8(bytes, file)) return Done{};
  const StringsDocument again(bytes, file.encoding);
  if (again.text() == file.text) return Done{};
  return Error{formatText("The text would be read in another encoding than that of the file, %@.",
                          {displayName(file.encoding)})};
}

}  // namespace

Result<std::string> editedStrings(const StringsDocument& document, const std::vector<StringsEdit>& edits,
                                  const StringsDocument* development) {
  if (document.error()) return Error{document.error()->sentence};
  Result<std::string> text = StringsEditor(document, edits).text(development);
  if (!text) return text.error();
  const DecodedFile file{std::move(text.value()), document.file().encoding, document.file().hasMark};
  Result<std::string> bytes = bytesOfFile(file);
  if (!bytes) return bytes.error();
  const Outcome readable = checkReadable(bytes.value(), file);
  if (!readable) return readable.error();
  return std::move(bytes.value());
}

}  // namespace glossmill
