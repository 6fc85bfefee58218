#include <gtest/gtest.h>

#include <algorithm>

#include "project/ProjectFindings.h"
#include "project/RowChecks.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using FindingLines = std::vector<std::string>;

FindingLines sentencesOf(const std::vector<Finding>& findings) {
  FindingLines lines;
  for (const Finding& finding : findings) lines.push_back(sentenceOf(finding));
  return lines;
}

/// A project that is open, in whose editor somebody types.
class RowChecksWhileTyping : public testing::Test {
 protected:
  void SetUp() override {
    m_project.addString("%d files");
    m_project.addString("count");
    m_project.addLanguage("en", "\"count\" = \"%d of %d\";\n");
    m_project.addLanguage("de", "\"%d files\" = \"%@ Dateien\";\n");
    m_project.open();
    m_settings.sourceLanguage = "en";
  }

  std::vector<Finding> found(std::string_view key, std::optional<std::string_view> translation) {
    return RowChecks(m_project.project(), m_settings).findings(*m_project.record(key), LanguageCode("de"), translation);
  }

  TestProject m_project;
  CheckSettings m_settings;
};

TEST_F(RowChecksWhileTyping, FindWhatIsWrongWithATextThatIsNotStoredYet) {
  EXPECT_EQ(sentencesOf(found("%d files", "%d Dateien")), FindingLines());
  EXPECT_EQ(sentencesOf(found("%d files", "Dateien")), FindingLines{"“%d” of the source text is missing."});
  EXPECT_EQ(sentencesOf(found("%d files", std::nullopt)), FindingLines{"There is no translation."});
  EXPECT_EQ(sentencesOf(found("count", "%d")), FindingLines{"“%d” of the source text is missing."});
}

TEST_F(RowChecksWhileTyping, MarkSpecifiersInBothTexts) {
  const std::vector<Finding> findings = found("%d files", "Die %@");
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].inSource, (TextRange{0, 2}));
  EXPECT_EQ(findings[0].inTranslation, (TextRange{4, 2}));
}

TEST_F(RowChecksWhileTyping, AreWhatTheWholeProjectHas) {
  const RowChecks checks(m_project.project(), m_settings);
  const auto all =
      projectFindings(checkedProject(m_project.project(), m_settings), m_settings, {}, m_project.host.files);
  FindingLines ofRows;
  for (const char* key : {"count", "%d files"}) {
    for (const char* code : {"de", "en"}) {
      const FindingLines lines = sentencesOf(checks.findings(*m_project.record(key), LanguageCode(code)));
      ofRows.insert(ofRows.end(), lines.begin(), lines.end());
    }
  }
  FindingLines ofProject;
  for (const PlacedFinding& finding : all) ofProject.push_back(finding.sentence);
  std::sort(ofRows.begin(), ofRows.end());
  std::sort(ofProject.begin(), ofProject.end());
  EXPECT_EQ(ofRows, ofProject);
  EXPECT_EQ(ofRows.size(), 3U);
}

TEST_F(RowChecksWhileTyping, FollowTheSourceTextWhenThatIsEdited) {
  m_project.setTranslation("count", "en", "nothing");
  EXPECT_EQ(sentencesOf(found("count", "nichts")), FindingLines());
}

TEST_F(RowChecksWhileTyping, LeaveOutWhatTheProjectLeavesOut) {
  m_settings.ignored = {{Check::Format, "", "", "*.lproj", ""}};
  EXPECT_EQ(sentencesOf(found("%d files", "Dateien")), FindingLines());
  m_settings.ignored.clear();
  m_settings.accepted = {{"", "%d files", "de", Check::Format, "%d files", "Dateien"}};
  EXPECT_EQ(sentencesOf(found("%d files", "Dateien")), FindingLines());
  EXPECT_EQ(found("%d files", "Die Dateien").size(), 1U);
  m_settings.severities = {{Check::Format, Severity::Info}};
  EXPECT_EQ(found("%d files", "Die Dateien").front().severity, Severity::Info);
}

}  // namespace
}  // namespace glossmill
