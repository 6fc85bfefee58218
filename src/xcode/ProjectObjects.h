#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "xcode/PropertyList.h"

namespace glossmill {

/// The objects of a project file. Those that others name by their ids have a number, so that an id is looked up once.
class ProjectObjects {
 public:
  using Number = std::uint32_t;
  static constexpr Number kNone = 0;

  /// `list` outlives this.
  explicit ProjectObjects(const PropertyList& list);

  /// kNone for an id without an object.
  Number find(std::string_view id) const;
  /// Above all numbers.
  std::size_t size() const { return m_objects.size(); }
  /// The dictionary; nothing for kNone.
  PropertyList::Value operator[](Number number) const { return m_objects[number]; }
  PropertyList::Value operator[](std::string_view id) const { return m_objects[find(id)]; }
  /// The project that everything else hangs on; nothing when this is no project file.
  PropertyList::Value project() const;

 private:
  PropertyList::Value m_root;
  std::unordered_map<std::string_view, Number> m_numbers;
  std::vector<PropertyList::Value> m_objects;
};

}  // namespace glossmill
