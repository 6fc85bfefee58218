#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/FileText.h"
#include "model/RecordsByPlace.h"
#include "safety/JournalText.h"

namespace glossmill {

/// What the record has in the language now; nothing without an entry, or without a record.
std::optional<std::string> textNow(const LocalizeString* record, const std::string& language);

/// Which edits a save has brought into the files.
class WrittenPlaces {
 public:
  /// One outcome for each text of the plan; `records` are those that it was made of.
  WrittenPlaces(const std::vector<FileText>& plan, const std::vector<FileOutcome>& outcomes,
                const StringArray& records);

  /// Whether the file of the edit's language was written and holds what the edit has led to.
  bool holds(const JournalEdit& edit) const;

 private:
  using Place = std::pair<std::string, std::string>;  ///< table and language

  std::set<Place> m_written;
  std::set<Place> m_failed;
  RecordsByPlace m_records;
};

}  // namespace glossmill
