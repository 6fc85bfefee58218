#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/CheckPolicy.h"
#include "checks/CheckedRow.h"

namespace glossmill {

class ProjectWindowController;

/// What is found in one translation of the open project, for an editor while somebody types: far less than a
/// millisecond for a text of ordinary length, since no file is read. Rows and translations are those of the moment.
/// What needs more than the row (repeated and inconsistent translations) is found by FindingsRun only. Main thread.
class RowChecks {
 public:
  /// The project outlives it. Made anew when a project is opened or its settings change.
  RowChecks(const ProjectWindowController& project, const CheckSettings& settings);

  /// What the row's translations are compared with; nothing where nobody knows. Valid until the row is edited.
  std::optional<std::string_view> sourceTextOf(const LocalizeString& record) const;
  /// What would be found if `translation` were the row's text in this language; nothing: if there were none. As bad as
  /// the project says, without what it leaves out. The ranges are bytes of sourceTextOf() and of `translation`.
  std::vector<Finding> findings(const LocalizeString& record, LanguageCode language,
                                const std::optional<std::string_view>& translation) const;
  /// The same for the text that the row has.
  std::vector<Finding> findings(const LocalizeString& record, LanguageCode language) const;

 private:
  LanguageCode developmentOf(const LocalizeString& record) const;
  std::string fileOf(const LocalizeString& record, LanguageCode language) const;

  const ProjectWindowController& m_project;
  const CheckPolicy m_policy;
  const LanguageCode m_sourceLanguage;
};

/// The finding in English words.
std::string sentenceOf(const Finding& finding);

}  // namespace glossmill
