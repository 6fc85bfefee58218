#include "xcode/StringsSave.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "model/LocalizeString.h"
#include "platform/ReadBytes.h"
#include "text/Format.h"
#include "xcode/NewStringsFile.h"
#include "xcode/StringsEdits.h"
#include "xcode/StringsKeys.h"

namespace glossmill {

namespace {

/// One file with what is to be edited in it.
struct EditedFile {
  std::shared_ptr<const StringsTable> table;
  LanguageCode language;
  std::vector<StringsEdit> edits;
};

/// What a file is to hold.
struct NewContent {
  std::string bytes;
  std::uint64_t entriesBefore = 0;
  std::uint64_t entriesAfter = 0;
};

bool isToBeSaved(const LanguageArray& languages, LanguageCode code) {
  return std::any_of(languages.begin(), languages.end(),
                     [code](const std::shared_ptr<Language>& language) { return language->code() == code; });
}

Error mistakeIn(const SyntaxError& error) {
  return Error{formatText("It has a mistake in line %@ and is not written before that is mended: %@",
                          {std::to_string(error.place.line), error.sentence})};
}

std::optional<FileEncoding> encodingOf(const StringsTable::File& file) {
  return file.encoding ? encodingOfNumber(*file.encoding) : std::nullopt;
}

bool hasNewEntries(const StringsDocument& document, const std::vector<StringsEdit>& edits) {
  const StringsKeys keys(document);
  return std::any_of(edits.begin(), edits.end(), [&keys](const StringsEdit& edit) {
    return edit.value && keys.lastOf(edit.key) == StringsKeys::kNone;
  });
}

bool onlyTakesOut(const EditedFile& file) {
  return std::none_of(file.edits.begin(), file.edits.end(), [](const StringsEdit& edit) { return edit.value; });
}

std::function<BytePieces()> contentOrError(Result<NewContent> content) {
  if (!content) {
    return [error = content.error()] { return BytePieces([error]() -> Result<std::string_view> { return error; }); };
  }
  const auto bytes = std::make_shared<const std::string>(std::move(content.value().bytes));
  return [bytes] { return onePiece(*bytes); };
}

class StringsSave {
 public:
  explicit StringsSave(const SaveInput& input) : m_input(input) { gatherEdits(); }

  std::vector<FileText> plan() {
    std::vector<FileText> texts;
    for (const auto& [place, file] : m_edited) {
      const bool isNew = !file.table->find(file.language);
      if (!isNew || !onlyTakesOut(file)) texts.push_back(textOf(file));
    }
    return texts;
  }

 private:
  using Place = std::pair<std::string, std::string>;  ///< id of the table, and code

  static Place placeOf(const StringsTable& table, LanguageCode language) { return {table.id, language.text()}; }

  void gatherEdits();
  FileText textOf(const EditedFile& file);
  Result<NewContent> contentOf(const EditedFile& file);
  Result<NewContent> edited(const EditedFile& file);
  Result<StringsDocument> documentOf(const EditedFile& file);
  Result<StringsDocument> read(const StringsTable::File& file);
  const StringsDocument* developmentOf(const StringsTable& table);

  const SaveInput& m_input;
  std::map<Place, EditedFile> m_edited;
  std::map<Place, Result<NewContent>> m_contents;
  std::map<std::string, std::optional<StringsDocument>> m_developments;  ///< by the ids of their tables
};

void StringsSave::gatherEdits() {
  for (const EditedTexts::Text& text : m_input.edited.texts()) {
    const TableRow* row = text.record->tableRow();
    const bool isStrings = row && row->table->format == StringsTable::Format::Strings;
    const bool hasPlace = isStrings && !row->table->directory.empty();
    if (!hasPlace || !isToBeSaved(m_input.languages, text.language)) continue;
    EditedFile& file = m_edited[placeOf(*row->table, text.language)];
    file.table = row->table;
    file.language = text.language;
    StringsEdit& edit = file.edits.emplace_back(StringsEdit{text.record->name(), std::nullopt, text.record->comment()});
    if (const auto value = text.record->languagesDict().find(text.language)) edit.value = std::string(*value);
  }
}

FileText StringsSave::textOf(const EditedFile& file) {
  FileText text;
  const StringsTable::File* known = file.table->find(file.language);
  text.file = known ? known->file : newStringsFile(*file.table, file.language, m_input.tables);
  text.language = file.language.text();
  text.table = file.table->id;
  if (!known) text.expected.emplace(std::nullopt);
  Result<NewContent> content = contentOf(file);
  if (content) text.entriesBefore = content.value().entriesBefore;
  if (content) text.entriesAfter = content.value().entriesAfter;
  text.bytes = contentOrError(std::move(content));
  return text;
}

/// Made once: that of the development language is asked for by the others of its table, too.
Result<NewContent> StringsSave::contentOf(const EditedFile& file) {
  const Place place = placeOf(*file.table, file.language);
  const auto found = m_contents.find(place);
  if (found != m_contents.end()) return found->second;
  return m_contents.emplace(place, edited(file)).first->second;
}

Result<NewContent> StringsSave::edited(const EditedFile& file) {
  const Result<StringsDocument> document = documentOf(file);
  if (!document) return document.error();
  const bool needsOrder = file.language != file.table->development && hasNewEntries(document.value(), file.edits);
  Result<std::string> bytes =
      editedStrings(document.value(), file.edits, needsOrder ? developmentOf(*file.table) : nullptr);
  if (!bytes) return bytes.error();
  const StringsDocument after(bytes.value(), document.value().file().encoding);
  return NewContent{std::move(bytes.value()), document.value().entries().size(), after.entries().size()};
}

Result<StringsDocument> StringsSave::documentOf(const EditedFile& file) {
  if (const StringsTable::File* known = file.table->find(file.language)) return read(*known);
  return newStringsDocument(file.language == file.table->development ? nullptr : developmentOf(*file.table));
}

Result<StringsDocument> StringsSave::read(const StringsTable::File& file) {
  Result<std::string> bytes = readBytes(m_input.files, file.file);
  if (!bytes) return bytes.error();
  StringsDocument document(std::move(bytes.value()), encodingOf(file));
  if (document.error()) return mistakeIn(*document.error());
  return document;
}

/// As it is to be after the save, so that entries that are new in several languages stand in the same order. Null where
/// there is none that can be read.
const StringsDocument* StringsSave::developmentOf(const StringsTable& table) {
  auto found = m_developments.find(table.id);
  if (found == m_developments.end()) {
    found = m_developments.emplace(table.id, std::nullopt).first;
    const auto isEdited = m_edited.find(placeOf(table, table.development));
    const StringsTable::File* file = table.find(table.development);
    if (isEdited != m_edited.end()) {
      const Result<NewContent> content = contentOf(isEdited->second);
      if (content) found->second = StringsDocument(content.value().bytes, file ? encodingOf(*file) : std::nullopt);
    } else if (file) {
      Result<StringsDocument> document = read(*file);
      if (document) found->second = std::move(document.value());
    }
  }
  return found->second ? &*found->second : nullptr;
}

}  // namespace

std::vector<FileText> planStringsSave(const SaveInput& input) {
  return StringsSave(input).plan();
}

}  // namespace glossmill
