#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/Edit.h"
#include "model/Status.h"

namespace glossmill {

class Language;
class LocalizeString;

/// Posted when typing has added or removed a translation; its object is the key record.
inline constexpr const char* kTranslationChangedNotification = "GlossmillTranslationChanged";

/// What a record asks of the open project. Main thread.
class ProjectContext {
 public:
  virtual ~ProjectContext() = default;
  virtual std::int64_t totalLanguages() const = 0;
  /// The first selected record and language; null when nothing is selected.
  virtual std::shared_ptr<LocalizeString> selectedString() const = 0;
  virtual std::shared_ptr<Language> selectedLanguage() const = 0;
  virtual Status languageStatus(const Language& language) const = 0;
  virtual std::string languageStatusString(const Language& language) const = 0;
  /// Applies the edit and lets everything know that depends on it.
  virtual void applyEdit(EditKind kind, const Edit& edit) = 0;
};

}  // namespace glossmill
