#include "checks/SourceTexts.h"

#include <algorithm>
#include <map>
#include <utility>

#include "checks/FormatSpecifier.h"

namespace glossmill {

namespace {

using Arguments = std::vector<std::pair<std::size_t, ArgumentKind>>;

/// What a text takes as a format, whatever its order.
Arguments argumentsOf(std::string_view text) {
  Arguments arguments;
  if (text.find('%') == text.npos) return arguments;
  for (const FormatArgumentUse& use : readFormat(text).uses) arguments.emplace_back(use.argument, use.kind);
  std::sort(arguments.begin(), arguments.end());
  arguments.erase(std::unique(arguments.begin(), arguments.end()), arguments.end());
  return arguments;
}

bool severalAgreeOnArguments(const EachTranslation& translations) {
  std::map<Arguments, int> counts;
  bool agree = false;
  translations([&](std::string_view, std::string_view text) {
    Arguments arguments = argumentsOf(text);
    if (!arguments.empty() && ++counts[std::move(arguments)] > 1) agree = true;
  });
  return agree;
}

bool isOnlyAName(std::string_view key, const EachTranslation& translations) {
  if (key.find_first_of(" %") == key.npos) return true;
  return argumentsOf(key).empty() && severalAgreeOnArguments(translations);
}

/// A text whose reading ended at a quote behind a backslash: the rest of it is not known.
bool isCutOff(std::string_view raw) {
  const std::size_t end = raw.find_last_not_of('\\') + 1;
  return (raw.size() - end) % 2 == 1;
}

LanguageCode developmentOf(const CheckedProject& project, const LocalizeString& record) {
  return record.tableRow() ? record.tableRow()->table->development : project.sourceLanguage;
}

/// Finds columns by their languages; files of one table follow one another, so the last answer is kept.
class Columns {
 public:
  explicit Columns(const CheckedProject& project) : m_project(project) {}

  std::string_view text(LanguageCode language, std::size_t row) {
    if (!m_last || m_last->code != language) m_last = find(language);
    if (!m_last || !m_last->translations[row]) return {};
    return m_last->translations[row].view();
  }

 private:
  const CheckedLanguage* find(LanguageCode language) const {
    for (const CheckedLanguage& column : m_project.languages) {
      if (column.code == language) return &column;
    }
    return nullptr;
  }

  const CheckedProject& m_project;
  const CheckedLanguage* m_last = nullptr;
};

}  // namespace

std::optional<std::string_view> sourceTextOf(const LocalizeString& record, std::string_view development,
                                             const EachTranslation& translations) {
  const std::string_view key = record.name();
  const std::string_view raw = development.empty() ? key : development;
  if (!record.tableRow() && isCutOff(raw)) return std::nullopt;
  if (!development.empty()) return development;
  if (record.tableRow()) {
    const StoredText text = record.tableRow()->sourceText;
    if (!text) return std::nullopt;
    if (text.view() != key) return text.view();
  }
  if (isOnlyAName(key, translations)) return std::nullopt;
  return key;
}

EachTranslation translationsOf(const LocalizeString& record) {
  return [&record](const TakeTranslation& take) {
    record.languagesDict().each([&take](LanguageCode language, std::string_view text) { take(language.text(), text); });
  };
}

EachTranslation translationsOf(const CheckedProject& project, std::size_t row) {
  return [&project, row](const TakeTranslation& take) {
    for (const CheckedLanguage& language : project.languages) {
      if (language.translations[row]) take(language.code.text(), language.translations[row].view());
    }
  };
}

SourceTexts::SourceTexts(const CheckedProject& project) : m_project(project) {
  Columns columns(project);
  m_texts.reserve(project.records.size());
  for (std::size_t row = 0; row < project.records.size(); ++row) {
    const LocalizeString& record = *project.records[row];
    const EachTranslation translations = translationsOf(project, row);
    const std::string_view development = columns.text(languageOf(row), row);
    m_texts.push_back(sourceTextOf(record, development, translations).value_or(std::string_view()));
  }
}

LanguageCode SourceTexts::languageOf(std::size_t row) const {
  return developmentOf(m_project, *m_project.records[row]);
}

}  // namespace glossmill
