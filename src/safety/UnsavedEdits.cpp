#include "safety/UnsavedEdits.h"

#include <algorithm>
#include <utility>

namespace glossmill {

std::string UnsavedEdits::placeOf(const JournalEdit& edit) {
  std::string place = edit.table;
  for (const std::string* text : {&edit.language, &edit.key}) place.append(1, '\0').append(*text);
  return place;
}

void UnsavedEdits::add(const JournalEdit& edit) {
  const auto [found, isNew] = m_places.try_emplace(placeOf(edit), Kept{edit, m_next});
  if (isNew) {
    ++m_next;
    return;
  }
  JournalEdit& kept = found->second.edit;
  kept.time = edit.time;
  kept.after = edit.after;
  if (kept.after == kept.before) m_places.erase(found);
}

std::size_t UnsavedEdits::retire(const std::function<bool(const JournalEdit&)>& isOver) {
  return std::erase_if(m_places, [&isOver](const auto& place) { return isOver(place.second.edit); });
}

void UnsavedEdits::clear() {
  m_places.clear();
}

std::vector<JournalEdit> UnsavedEdits::all() const {
  std::vector<const Kept*> kept;
  for (const auto& [place, one] : m_places) kept.push_back(&one);
  std::sort(kept.begin(), kept.end(), [](const Kept* a, const Kept* b) { return a->number < b->number; });
  std::vector<JournalEdit> edits;
  for (const Kept* one : kept) edits.push_back(one->edit);
  return edits;
}

std::string UnsavedEdits::journal() const {
  std::string text;
  for (const JournalEdit& edit : all()) text += journalLine(edit);
  return text;
}

}  // namespace glossmill
