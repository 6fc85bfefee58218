#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/EditDoor.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "model/ProjectContext.h"

namespace glossmill {

/// An open project with a number of languages and a selection; writes down the edits that it was given.
class FakeProjectContext : public ProjectContext {
 public:
  explicit FakeProjectContext(std::int64_t languages = 0) : m_totalLanguages(languages) {}

  void setTotalLanguages(std::int64_t total) { m_totalLanguages = total; }
  void select(std::shared_ptr<LocalizeString> record, std::shared_ptr<Language> language) {
    m_selectedString = std::move(record);
    m_selectedLanguage = std::move(language);
  }
  /// Those that changed something.
  const std::vector<Edit>& edits() const { return m_edits; }

  std::int64_t totalLanguages() const override { return m_totalLanguages; }
  std::shared_ptr<LocalizeString> selectedString() const override { return m_selectedString; }
  std::shared_ptr<Language> selectedLanguage() const override { return m_selectedLanguage; }
  Status languageStatus(const Language& language) const override {
    return language.iso639() == "de" ? Status::Complete : Status::Incomplete;
  }
  std::string languageStatusString(const Language& language) const override {
    return "status text of " + language.iso639();
  }
  void applyEdit(EditKind kind, const Edit& edit) override {
    EXPECT_EQ(kind, EditKind::Typing);
    EditDoor door;
    door.addObserver([this](const Edit& applied, const EditStep&) { m_edits.push_back(applied); });
    door.applyEdit(kind, edit);
  }

 private:
  std::int64_t m_totalLanguages;
  std::shared_ptr<LocalizeString> m_selectedString;
  std::shared_ptr<Language> m_selectedLanguage;
  std::vector<Edit> m_edits;
};

}  // namespace glossmill
