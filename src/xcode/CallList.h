#pragma once

#include <cstdint>
#include <vector>

#include "model/KeyIndex.h"
#include "model/TextArena.h"
#include "xcode/CallReader.h"

namespace glossmill {

/// The calls of all sources, in the order in which these were read. Keys and names of tables have numbers.
class CallList {
 public:
  struct Call {
    KeyIndex::Number key = 0;
    KeyIndex::Number table = 0;
    std::uint32_t source = 0;  ///< number of the source
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    StoredText comment;  ///< none where the call has none
    StoredText value;    ///< its default value; none likewise
  };

  /// The sources come one after the other.
  void add(const SourceCalls& found, std::uint32_t source);

  const std::vector<Call>& calls() const { return m_calls; }
  const KeyIndex& keys() const { return m_keys; }
  const KeyIndex& tables() const { return m_tables; }

 private:
  std::vector<Call> m_calls;
  KeyIndex m_keys;
  KeyIndex m_tables;
  TextArena m_texts;
};

}  // namespace glossmill
