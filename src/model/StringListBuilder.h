#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/KeyIndex.h"
#include "model/LocalizeString.h"
#include "model/SourceString.h"

namespace glossmill {

/// The project's string list while it is scanned: one record per key, in the order in which keys were first seen.
class StringListBuilder {
 public:
  /// Merges the calls of one file. A repeated key counts as one more use and may bring another comment; the file of a
  /// repetition is deliberately (rule 20) not recorded.
  void add(const std::vector<SourceString>& strings, const FileUrl& file);

  /// Takes over records that were made elsewhere; their keys are not among keys().
  void adopt(StringArray records) { m_records = std::move(records); }

  const StringArray& records() const { return m_records; }
  const KeyIndex& keys() const { return m_keys; }
  /// Keeps the translations of all the records.
  TextArena& arena() { return *m_arena; }
  const std::shared_ptr<TextArena>& sharedArena() const { return m_arena; }

 private:
  std::vector<std::uint32_t> hashesOf(const std::vector<SourceString>& strings) const;
  void append(const SourceString& string, const FileUrl& file);
  void merge(KeyIndex::Number number, std::string_view comment);
  bool hasComment(KeyIndex::Number number, std::string_view comment);

  StringArray m_records;
  KeyIndex m_keys;
  std::shared_ptr<TextArena> m_arena = std::make_shared<TextArena>();
  /// For records with so many comments that looking through them would show.
  std::unordered_map<KeyIndex::Number, KeyIndex> m_manyComments;
};

}  // namespace glossmill
