#include "xcode/CatalogSave.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "model/LocalizeString.h"
#include "platform/ReadBytes.h"
#include "text/Format.h"
#include "xcode/CatalogEdits.h"

namespace glossmill {

namespace {

struct EditedCatalog {
  FileUrl file;
  std::set<std::string> languages;
  std::vector<CatalogEdit> edits;
};

struct NewCatalog {
  std::string bytes;
  std::uint64_t textsBefore = 0;
  std::uint64_t textsAfter = 0;
};

std::uint64_t countOfTexts(const CatalogDocument& document) {
  std::uint64_t count = 0;
  for (const ValueTree::Number key : document.keys()) count += document.keyAt(key).units.size();
  return count;
}

CatalogEdit editOfText(const EditedTexts::Text& text) {
  const CatalogRow* row = text.record->tableRow()->catalog.get();
  CatalogEdit edit;
  edit.key = row ? row->key : text.record->name();
  if (row) edit.variation = row->variation;
  edit.language = text.language.text();
  edit.comment = text.record->comment();
  if (const auto value = text.record->languagesDict().find(text.language)) edit.value = std::string(*value);
  return edit;
}

std::map<std::string, EditedCatalog> gatherEdits(const SaveInput& input) {
  std::map<std::string, EditedCatalog> catalogs;  // by the ids of their tables
  for (const EditedTexts::Text& text : input.edited.texts()) {
    const TableRow* row = text.record->tableRow();
    const bool isToBeSaved =
        std::any_of(input.languages.begin(), input.languages.end(),
                    [&text](const std::shared_ptr<Language>& language) { return language->code() == text.language; });
    if (!row || row->table->format != StringsTable::Format::Catalog || !isToBeSaved) continue;
    EditedCatalog& catalog = catalogs[row->table->id];
    catalog.file = row->table->catalog;
    catalog.languages.insert(text.language.text());
    catalog.edits.push_back(editOfText(text));
  }
  return catalogs;
}

Result<NewCatalog> contentOf(const EditedCatalog& catalog, FileReading& files) {
  Result<std::string> bytes = readBytes(files, catalog.file);
  if (!bytes) return bytes.error();
  const CatalogDocument document(bytes.value());
  if (document.error()) {
    return Error{formatText("It has a mistake in line %@ and is not written before that is mended: %@",
                            {std::to_string(document.error()->place.line), document.error()->sentence})};
  }
  Result<std::string> edited = editedCatalog(document, catalog.edits);
  if (!edited) return edited.error();
  const std::uint64_t after = countOfTexts(CatalogDocument(edited.value()));
  return NewCatalog{std::move(edited.value()), countOfTexts(document), after};
}

FileText textOf(const std::string& table, const EditedCatalog& catalog, FileReading& files) {
  FileText text;
  text.file = catalog.file;
  text.table = table;
  text.language = *catalog.languages.begin();
  text.otherLanguages.assign(std::next(catalog.languages.begin()), catalog.languages.end());
  Result<NewCatalog> content = contentOf(catalog, files);
  if (!content) {
    text.bytes = [error = content.error()] {
      return BytePieces([error]() -> Result<std::string_view> { return error; });
    };
    return text;
  }
  text.entriesBefore = content.value().textsBefore;
  text.entriesAfter = content.value().textsAfter;
  const auto bytes = std::make_shared<const std::string>(std::move(content.value().bytes));
  text.bytes = [bytes] { return onePiece(*bytes); };
  return text;
}

}  // namespace

std::vector<FileText> planCatalogSave(const SaveInput& input) {
  std::vector<FileText> texts;
  for (const auto& [table, catalog] : gatherEdits(input)) texts.push_back(textOf(table, catalog, input.files));
  return texts;
}

}  // namespace glossmill
