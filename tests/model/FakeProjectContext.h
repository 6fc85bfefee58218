#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/FakeNotificationCenter.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "model/ProjectContext.h"

namespace glossmill {

/// An open project with a number of languages and a selection; writes down which counts were changed.
class FakeProjectContext : public ProjectContext {
 public:
  struct CountChange {
    LanguageCode code;
    int difference = 0;
  };

  explicit FakeProjectContext(std::int64_t languages = 0) : m_totalLanguages(languages) {}

  void setTotalLanguages(std::int64_t total) { m_totalLanguages = total; }
  void select(std::shared_ptr<LocalizeString> record, std::shared_ptr<Language> language) {
    m_selectedString = std::move(record);
    m_selectedLanguage = std::move(language);
  }
  const std::vector<CountChange>& countChanges() const { return m_countChanges; }
  FakeNotificationCenter& center() { return m_center; }

  std::int64_t totalLanguages() const override { return m_totalLanguages; }
  std::shared_ptr<LocalizeString> selectedString() const override { return m_selectedString; }
  std::shared_ptr<Language> selectedLanguage() const override { return m_selectedLanguage; }
  Status languageStatus(const Language& language) const override {
    return language.iso639() == "de" ? Status::Complete : Status::Incomplete;
  }
  std::string languageStatusString(const Language& language) const override {
    return "status text of " + language.iso639();
  }
  NotificationCenter& notifications() const override { return m_center; }
  void translationCountChanged(LanguageCode code, int difference) override {
    m_countChanges.push_back({code, difference});
  }

 private:
  std::int64_t m_totalLanguages;
  std::shared_ptr<LocalizeString> m_selectedString;
  std::shared_ptr<Language> m_selectedLanguage;
  std::vector<CountChange> m_countChanges;
  mutable FakeNotificationCenter m_center;
};

}  // namespace glossmill
