#include "xcode/ProjectObjects.h"

#include <algorithm>

namespace glossmill {

ProjectObjects::ProjectObjects(const PropertyList& list) : m_root(list.root()), m_objects(1) {
  const PropertyList::Entries objects = m_root["objects"].entries();
  std::size_t count = 0;
  for (auto entry = objects.begin(); entry != objects.end(); ++entry) ++count;
  m_numbers.reserve(count);
  m_objects.reserve(count + 1);
  for (const auto [id, object] : objects) {
    const auto [known, isNew] = m_numbers.try_emplace(id, static_cast<Number>(m_objects.size()));
    if (isNew) {
      m_objects.push_back(object);
    } else {
      m_objects[known->second] = object;
    }
  }
}

ProjectObjects::Number ProjectObjects::find(std::string_view id) const {
  const auto found = m_numbers.find(id);
  return found == m_numbers.end() ? kNone : found->second;
}

PropertyList::Value ProjectObjects::project() const {
  const auto isProject = [](PropertyList::Value object) { return object["isa"].text() == "PBXProject"; };
  const PropertyList::Value named = (*this)[m_root["rootObject"].text()];
  if (isProject(named)) return named;
  const auto found = std::find_if(m_objects.begin(), m_objects.end(), isProject);
  return found == m_objects.end() ? PropertyList::Value() : *found;
}

}  // namespace glossmill
