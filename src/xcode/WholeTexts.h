#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace glossmill {

/// Which texts stand whole between quotes somewhere in a project, or between tags: a key among them is in use, even
/// where nobody can say by what. Only hashes are kept, of 64 bits.
class WholeTexts {
 public:
  /// Of a source: what stands between two quotes of one line, whichever of them opens, with its escapes read; a
  /// continued line goes on. Literals that the compiler joins are one text as well as each its own.
  void addSource(std::string_view text);
  /// Of an interface file or a property list in XML: what stands between tags, or in an attribute.
  void addDocument(std::string_view text);
  /// What another object has found.
  void add(const WholeTexts& other);

  /// The first question after texts were added takes as long as all of these.
  bool hold(std::string_view text);

 private:
  void add(std::string_view text);
  void addSpelled(std::string_view text);
  std::size_t addJoined(std::string_view text, std::size_t first, std::size_t last);
  /// The slot that has the hash, or the empty one where it belongs.
  std::size_t slotOf(std::uint64_t hash) const;
  void fillSlots();

  std::vector<std::uint64_t> m_hashes;  ///< in the order in which they came, with repetitions
  std::vector<std::uint64_t> m_slots;   ///< a power of two of them, at most half full; 0 is empty
  std::size_t m_slotted = 0;            ///< so many of the hashes are among the slots
};

}  // namespace glossmill
