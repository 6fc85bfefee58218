#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/Edit.h"

namespace glossmill {

/// Which translations of the open project were edited since they were saved last. Main thread.
class EditedTexts {
 public:
  struct Text {
    std::shared_ptr<LocalizeString> record;
    LanguageCode language;
  };

  void add(const Edit& edit);
  /// Those of a file that was saved: of one table in one language.
  void removeSaved(const std::string& tableId, LanguageCode language);
  void clear();

  /// Whether something of this table was edited in the language.
  bool holds(const std::string& tableId, LanguageCode language) const;
  bool empty() const { return m_texts.empty(); }
  /// Each once, in the order of the first edits.
  const std::vector<Text>& texts() const { return m_texts; }

 private:
  std::vector<Text> m_texts;
  std::set<std::pair<const LocalizeString*, std::uint32_t>> m_known;
};

}  // namespace glossmill
