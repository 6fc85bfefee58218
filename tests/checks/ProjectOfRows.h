#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "checks/CheckedProject.h"

namespace glossmill {

/// A project that holds nothing but rows, whose first language is the one that they are translated from.
class ProjectOfRows {
 public:
  explicit ProjectOfRows(const std::vector<std::string>& codes) {
    for (const std::string& code : codes) project.languages.push_back({LanguageCode(code), {}, {}, {}});
    if (!codes.empty()) project.sourceLanguage = LanguageCode(codes.front());
  }

  LocalizeString& add(std::string_view key, const std::map<std::string, std::string>& texts) {
    auto record = std::make_shared<LocalizeString>();
    record->setName(key);
    project.records.push_back(record);
    for (CheckedLanguage& language : project.languages) {
      const auto text = texts.find(language.code.text());
      language.translations.push_back(text == texts.end() ? StoredText() : m_texts.add(text->second));
    }
    return *record;
  }

  /// The same under rules that have tables, with a source text.
  LocalizeString& addToTable(std::string_view key, std::string_view source,
                             const std::map<std::string, std::string>& texts) {
    LocalizeString& record = add(key, texts);
    record.setTableRow(std::make_unique<TableRow>());
    auto table = std::make_shared<StringsTable>();
    table->id = "Main";
    table->development = project.sourceLanguage;
    record.tableRow()->table = std::move(table);
    if (!source.empty()) record.tableRow()->sourceText = m_texts.add(source);
    project.rules = RuleSet::Xcode;
    return record;
  }

  CheckedProject project;

 private:
  TextArena m_texts;
};

}  // namespace glossmill
