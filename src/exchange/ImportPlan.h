#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "exchange/ImportText.h"
#include "model/Edit.h"

namespace glossmill {

/// What an import into one language makes of the strings of a project, string by string.
class ImportPlan {
 public:
  ImportPlan(ImportTable table, LanguageCode language) : m_table(std::move(table)), m_language(language) {}

  /// Nothing for a string whose key the file does not have; an edit that changes nothing where the texts are the same.
  std::optional<Edit> editFor(const std::shared_ptr<LocalizeString>& record) const;
  /// How many strings the file names.
  std::size_t size() const { return m_table.size(); }

 private:
  ImportTable m_table;
  LanguageCode m_language;
};

}  // namespace glossmill
