#include "project/WrittenPlaces.h"

namespace glossmill {

std::optional<std::string> textNow(const LocalizeString* record, const std::string& language) {
  const auto text = record ? record->languagesDict().find(LanguageCode(language)) : std::nullopt;
  return text ? std::optional(std::string(*text)) : std::nullopt;
}

WrittenPlaces::WrittenPlaces(const std::vector<FileText>& plan, const std::vector<FileOutcome>& outcomes,
                             const StringArray& records) {
  for (std::size_t at = 0; at < plan.size(); ++at) {
    std::set<Place>& places = outcomes[at].isWritten() ? m_written : m_failed;
    places.emplace(plan[at].table, plan[at].language);
    for (const std::string& language : plan[at].otherLanguages) places.emplace(plan[at].table, language);
  }
  m_records.add(records);
}

/// A code may stand for two languages with a file each, and both have to hold it.
bool WrittenPlaces::holds(const JournalEdit& edit) const {
  const Place place(edit.table, edit.language);
  if (!m_written.contains(place) || m_failed.contains(place)) return false;
  return textNow(m_records.find(edit.table, edit.key).get(), edit.language) == edit.after;
}

}  // namespace glossmill
