#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace glossmill {

/// One edit as the journal keeps it: what a translation was and what it became. No text is no entry.
struct JournalEdit {
  std::int64_t time = 0;  ///< seconds since 1970, UTC
  std::string table;      ///< which table of strings; empty where a project has one
  std::string key;
  std::string language;  ///< code
  std::optional<std::string> before;
  std::optional<std::string> after;

  bool operator==(const JournalEdit&) const = default;
  bool operator<(const JournalEdit& other) const {
    return std::tie(time, table, key, language, before, after) <
           std::tie(other.time, other.table, other.key, other.language, other.before, other.after);
  }
};

/// The line of an edit, its line feed included.
std::string journalLine(const JournalEdit& edit);

/// The edits of a journal in their order. A line that is not whole, as the last one may be after a crash, and whatever
/// else cannot be read is passed over.
std::vector<JournalEdit> readJournal(std::string_view text);

}  // namespace glossmill
