#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Language.h"
#include "model/RecordsByPlace.h"
#include "safety/JournalText.h"

namespace glossmill {

/// An edit that a former session left unsaved, and how it fits the project as it is now.
struct RecoverableEdit {
  enum class Fit {
    Applies,     ///< the text is what it was before the edit
    Changed,     ///< it is another one by now
    NoString,    ///< the project has no such string any more
    NoLanguage,  ///< or no such language
  };

  JournalEdit edit;
  Fit fit = Fit::Applies;
  std::shared_ptr<LocalizeString> record;  ///< null for NoString
  std::optional<std::string> now;          ///< the text; nothing without an entry

  bool canBeApplied() const { return fit == Fit::Applies || fit == Fit::Changed; }
};

/// Looks how the edits fit. Those whose text stands there already are left out, and so is one that says the same as an
/// earlier one.
std::vector<RecoverableEdit> recoverableEdits(const std::vector<JournalEdit>& edits, const RecordsByPlace& records,
                                              const LanguageArray& languages);

}  // namespace glossmill
