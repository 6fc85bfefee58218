#pragma once

#include <cstddef>
#include <vector>

#include "model/Edit.h"
#include "model/LanguageCode.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// Remembers for each language how many records of a list have a translation in it, so that asking every language for
/// its status costs one pass over the records, and nothing after a single edit. Main thread.
class TranslationCounts {
 public:
  /// Something else than a single edit has changed: the next question counts again.
  void invalidate() { m_valid = false; }
  void adjust(const Edit& edit);
  /// How many of `records` miss a translation into the language.
  std::size_t missing(LanguageCode code, const StringArray& records);

 private:
  void count(const StringArray& records);
  void countRow(const LocalizeString& record);

  bool m_valid = false;
  std::size_t m_wanted = 0;             ///< records of which every language is to have a translation
  std::vector<std::size_t> m_present;   ///< how many of these have one, by code number
  std::vector<std::size_t> m_unneeded;  ///< how many of them the language has no need of, by code number
};

}  // namespace glossmill
