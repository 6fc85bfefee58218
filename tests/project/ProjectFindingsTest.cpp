#include <gtest/gtest.h>

#include "checks/CheckList.h"
#include "project/ProjectFindings.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// A project that is open, and what is found in it.
class ProjectFindings : public testing::Test {
 protected:
  std::vector<PlacedFinding> findings(const FindingsWish& wish = {}) {
    return projectFindings(checkedProject(m_project.project(), m_settings), m_settings, wish, m_project.host.files);
  }

  /// "check language key: sentence"
  static Lines linesOf(const std::vector<PlacedFinding>& findings) {
    Lines lines;
    for (const PlacedFinding& finding : findings) {
      lines.push_back(std::string(entryOf(finding.check).name) + " " + finding.language + " " + finding.key + ": " +
                      finding.sentence);
    }
    return lines;
  }

  TestProject m_project;
  CheckSettings m_settings;
};

TEST_F(ProjectFindings, SayWhichTranslationIsMissingInTheOrderOfFilesAndLanguages) {
  m_project.addString("Ebb");
  m_project.addString("Flood");
  m_project.addLanguage("fr", "\"Flood\" = \"Flot\"");
  m_project.addLanguage("de", "\"Ebb\" = \"Ebbe\"");
  m_project.open();
  EXPECT_EQ(linesOf(findings()),
            (Lines{"missing de Flood: There is no translation.", "missing fr Ebb: There is no translation."}));
}

TEST_F(ProjectFindings, AreThoseOfTheWantedLanguages) {
  m_project.addString("Ebb");
  m_project.addLanguage("fr");
  m_project.addLanguage("de");
  m_project.open();
  EXPECT_EQ(linesOf(findings({.checks = {}, .languages = {LanguageCode("fr")}})),
            (Lines{"missing fr Ebb: There is no translation."}));
}

}  // namespace
}  // namespace glossmill
