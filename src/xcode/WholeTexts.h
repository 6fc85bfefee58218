#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace glossmill {

/// Which texts stand whole between quotes somewhere in a project, or between tags: a key among them is in use, even
/// where nobody can say by what. Only hashes are kept, of 64 bits.
class WholeTexts {
 public:
  /// Of a source: what stands between two quotes of one line, whichever of them opens, with its escapes read.
  void addSource(std::string_view text);
  /// Of an interface file or a property list in XML: what stands between tags, or in an attribute.
  void addDocument(std::string_view text);

  /// Nothing more is added afterwards.
  void finish();
  /// Only after finish().
  bool hold(std::string_view text) const;

 private:
  void add(std::string_view text);
  void addSpelled(std::string_view text);

  std::vector<std::uint64_t> m_hashes;
};

}  // namespace glossmill
