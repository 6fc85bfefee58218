#include "app/ReferenceText.h"

#include <algorithm>

#include "model/SourceText.h"

namespace glossmill {

std::string_view ReferenceText::of(const LocalizeString& record) const {
  if (!m_language) return sourceTextOf(record, sourceLanguage());
  return record.languagesDict().find(*m_language).value_or(std::string_view());
}

bool ReferenceText::isWorthShowing() const {
  const auto differs = [this](const auto& record) { return of(*record) != record->name(); };
  return std::ranges::any_of(m_project.stringList(), differs) ||
         std::ranges::any_of(m_project.filteredStringList(), differs);
}

/// Under rules that do not tell, most programs are written in English.
LanguageCode ReferenceText::sourceLanguage() const {
  return m_project.tables().empty() ? LanguageCode("en") : m_project.tables().front()->development;
}

}  // namespace glossmill
