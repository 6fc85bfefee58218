#include "project/ExportUnits.h"

#include <algorithm>

#include "checks/FormatCheck.h"
#include "model/SourceText.h"
#include "platform/ShownPath.h"
#include "project/DevelopmentRegion.h"

namespace glossmill {

namespace {

constexpr std::string_view kUsualLanguage = "en";

std::string pathOfTableFile(const StringsTable& table, const FileUrl& project) {
  if (const StringsTable::File* file = table.find(table.development)) {
    return std::string(shownPath(project, file->file));
  }
  const std::size_t slash = table.id.rfind('/');
  const std::string directory = slash == table.id.npos ? "" : table.id.substr(0, slash + 1);
  const std::string& language = table.development.text();
  return directory + (language.empty() ? std::string(kUsualLanguage) : language) + ".lproj/" + table.name + ".strings";
}

/// Where the strings file of a language of a project without tables is, or would be.
std::string pathOfOnlyFile(const FileUrl& project, std::string_view code, const LanguageArray& languages) {
  constexpr std::string_view kFile = "Localizable.strings";
  FileUrl parent = project;
  for (const std::shared_ptr<Language>& language : languages) {
    const bool isFile = language->urlDepth() == Language::kStringsFile;
    const FileUrl directory = isFile ? language->localizedStringUrl().parent() : language->localizedStringUrl();
    parent = directory.parent();
    if (language->iso639() == code) return std::string(shownPath(project, directory.appending(kFile)));
  }
  const std::string name = (code.empty() ? std::string(kUsualLanguage) : std::string(code)) + ".lproj";
  return std::string(shownPath(project, parent.appending(name).appending(kFile)));
}

std::vector<std::string> placesOf(const LocalizeString& record, const FileUrl& project) {
  std::vector<std::string> places;
  if (const TableRow* row = record.tableRow()) {
    for (const SourcePlace& place : row->places) {
      places.push_back(std::string(shownPath(project, place.file)) + ":" + std::to_string(place.line));
    }
    return places;
  }
  for (const FileUrl& file : record.filesArray()) places.emplace_back(shownPath(project, file));
  return places;
}

}  // namespace

TranslatedFrom translatedFrom(const FileUrl& directory, const ProjectOptions& options, std::string_view projectFile,
                              const LanguageArray& languages, const StringsTables& tables) {
  TranslatedFrom sources;
  sources.directory = directory;
  std::string_view code = options.xcode.sourceLanguage;
  if (code.empty() && !tables.empty()) code = tables.front()->development.text();
  if (code.empty()) code = developmentRegionOf(projectFile);
  sources.language = LanguageCode(code);
  sources.stringsFile = pathOfOnlyFile(directory, code, languages);
  return sources;
}

std::optional<ExchangeUnit> UnitMaker::unitOf(const LocalizeString& record, std::int64_t number) const {
  if (!isWanted(record)) return std::nullopt;
  ExchangeUnit unit;
  unit.number = number;
  if (record.tableRow()) unit.table = record.tableRow()->table->id;
  unit.key = record.name();
  unit.comment = record.comment();
  for (std::size_t language = 0; language < languages.size(); ++language) {
    const std::optional<std::string_view> text = record.languagesDict().find(languages[language]);
    if (text) unit.texts.push_back({language, std::string(*text)});
  }
  if (!isBrief) addDetails(unit, record);
  return unit;
}

bool UnitMaker::isWanted(const LocalizeString& record) const {
  if (scope == ExportScope::AllStrings) return true;
  return std::ranges::any_of(languages, [&record](LanguageCode language) { return record.isMissing(language); });
}

void UnitMaker::addDetails(ExchangeUnit& unit, const LocalizeString& record) const {
  const TableRow* row = record.tableRow();
  unit.file = row ? pathOfTableFile(*row->table, sources.directory) : sources.stringsFile;
  unit.source = sourceTextOf(record, sources.language);
  unit.places = placesOf(record, sources.directory);
  const FormatReading format = readFormat(unit.source);
  unit.isFormat = !format.uses.empty() && format.strays.empty();
  const std::string* text = languages.size() == 1 && unit.isFormat ? unit.textIn(0) : nullptr;
  if (!text || text->empty()) return;
  const TextForm form = row ? TextForm::Values : TextForm::Raw;
  const CheckedText checked{unit.source, *text, languages.front().text(), sources.language.text(), form};
  unit.isUnsure = !formatFindings(checked).empty();
}

}  // namespace glossmill
