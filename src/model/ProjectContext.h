#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/LanguageCode.h"
#include "model/Status.h"

namespace glossmill {

class Language;
class LocalizeString;
class NotificationCenter;

/// Posted when a translation was added or removed; its object is the key record.
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
  virtual NotificationCenter& notifications() const = 0;
  /// The selected record has got (+1) or lost (-1) its entry for this language; called before the notification.
  virtual void translationCountChanged(LanguageCode code, int difference) = 0;
};

}  // namespace glossmill
