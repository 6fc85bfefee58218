#include "app/StringSearch.h"

#include "text/FoldCase.h"

namespace glossmill {

namespace {

/// Nobody can type a line feed into a search field, so no match runs over the border.
std::string keyAndComment(const LocalizeString& record) {
  return record.name() + '\n' + record.comment();
}

}  // namespace

StringSearch::StringSearch(ProjectWindowController& project, ViewFilter& view)
    : m_project(project),
      m_view(view),
      m_sources(keyAndComment),
      m_translations([this](const LocalizeString& record) { return translation(record); }) {}

void StringSearch::search(std::string_view text) {
  m_wanted = foldCase(text);
  if (m_wanted.empty()) return m_view.set(ViewPart::Search, nullptr);
  if (m_translations.isEmpty()) foldTranslations();
  m_view.set(ViewPart::Search, [this](const LocalizeString& record) { return holds(record); });
}

void StringSearch::translationsChanged() {
  m_translations.forget();
  if (!m_wanted.empty()) foldTranslations();
}

/// The records lie all over the memory; looking for their translations and nothing else lets the processor fetch many
/// of them at a time.
void StringSearch::foldTranslations() {
  const StringArray& records = m_project.stringList();
  const auto language = m_project.selectedLanguage();
  std::vector<std::string_view> texts(records.size());
  for (std::size_t place = 0; language && place < records.size(); ++place) {
    texts[place] = records[place]->languagesDict().find(language->code()).value_or(std::string_view());
  }
  for (std::size_t place = 0; place < records.size(); ++place) m_translations.append(*records[place], texts[place]);
}

void StringSearch::stringsChanged() {
  m_sources.forget();
  m_translations.forget();
}

void StringSearch::translationEdited() {
  if (const auto record = m_project.selectedString()) m_translations.forget(*record);
}

/// Both texts are asked for every time, so that each keeps its order.
bool StringSearch::holds(const LocalizeString& record) {
  const bool inSource = m_sources.of(record).find(m_wanted) != std::string_view::npos;
  const bool inTranslation = m_translations.of(record).find(m_wanted) != std::string_view::npos;
  return inSource || inTranslation;
}

std::string StringSearch::translation(const LocalizeString& record) const {
  const auto language = m_project.selectedLanguage();
  if (!language) return {};
  return std::string(record.languagesDict().find(language->code()).value_or(std::string_view()));
}

}  // namespace glossmill
