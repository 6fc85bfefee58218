#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "safety/JournalText.h"

namespace glossmill {

/// The edits that no written file holds, one for each place: from what the place held before the first of them to what
/// it holds after the last. Linear in the number of edits. Main thread.
class UnsavedEdits {
 public:
  /// An edit that leads back to what was there before takes itself and the earlier ones away.
  void add(const JournalEdit& edit);
  /// Forgets the edits for which it holds, and tells how many those were.
  std::size_t retire(const std::function<bool(const JournalEdit&)>& isOver);
  void clear();

  std::size_t count() const { return m_places.size(); }
  bool empty() const { return m_places.empty(); }
  /// In the order in which the places were first edited.
  std::vector<JournalEdit> all() const;
  /// A journal that holds nothing but these.
  std::string journal() const;

 private:
  struct Kept {
    JournalEdit edit;
    std::size_t number = 0;
  };

  static std::string placeOf(const JournalEdit& edit);

  std::unordered_map<std::string, Kept> m_places;
  std::size_t m_next = 0;
};

}  // namespace glossmill
