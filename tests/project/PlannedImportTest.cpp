#include <gtest/gtest.h>

#include "project/RowChecks.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

constexpr const char* kFile = "/x/fr.po";

/// Three strings, of which the second has no French translation.
class PlannedImport : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add %@", "Menu");
    m_test.addString("Bold");
    m_test.addString("Cut");
    m_test.addLanguage("fr", "\"Add %@\" = \"Ajouter %@\"\n\"Cut\" = \"Couper\"\n");
    m_test.addLanguage("de");
    m_test.open();
  }

  void addFile(const std::string& text, const std::string& path = kFile) { m_test.host.files.addFile(path, text); }
  Result<ImportPlan> plan(std::string_view language = "", const char* path = kFile) {
    ImportRequest request{.file = FileUrl(path)};
    if (!language.empty()) request.language = m_test.language(language);
    return m_test.project().planImport(request);
  }

  TestProject m_test;
};

constexpr const char* kFrenchPo =
    "msgid \"\"\nmsgstr \"Language: fr\\n\"\n\nmsgid \"Add %@\"\nmsgstr \"Additionner\"\n\n"
    "msgid \"Bold\"\nmsgstr \"Gras\"\n";

TEST_F(PlannedImport, ShowsWhatItWouldDoAndChangesNothing) {
  addFile(kFrenchPo);
  const auto made = plan();
  ASSERT_TRUE(made);
  ASSERT_EQ(made.value().items().size(), 2U);
  EXPECT_EQ(made.value().items()[0].kind, ImportItem::Kind::Changed);
  EXPECT_EQ(made.value().items()[1].kind, ImportItem::Kind::New);
  EXPECT_EQ(m_test.translation("Bold", "fr"), std::nullopt);
}

TEST_F(PlannedImport, AppliesWhatIsChosenAsOneStep) {
  addFile(kFrenchPo);
  auto made = plan();
  ASSERT_TRUE(made);
  m_test.project().applyImport(made.value());
  EXPECT_EQ(m_test.translation("Add %@", "fr"), "Additionner");
  EXPECT_EQ(m_test.translation("Bold", "fr"), "Gras");
  m_test.project().undo();
  EXPECT_EQ(m_test.translation("Add %@", "fr"), "Ajouter %@");
  EXPECT_EQ(m_test.translation("Bold", "fr"), std::nullopt);
  made.value().items()[0].isChosen = false;
  m_test.project().applyImport(made.value());
  EXPECT_EQ(m_test.translation("Add %@", "fr"), "Ajouter %@");
  EXPECT_EQ(m_test.translation("Bold", "fr"), "Gras");
}

TEST_F(PlannedImport, ChecksWhatItWouldTake) {
  addFile(kFrenchPo);
  const auto made = plan();
  ASSERT_TRUE(made);
  const RowChecks checks(m_test.project(), {});
  const auto findingsOf = [&checks](const ImportItem& item) {
    return checks.findings(*item.edit.record, item.edit.language, item.edit.after);
  };
  const std::vector<Finding> findings = findingsOf(made.value().items()[0]);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings.front().kind, FindingKind::ArgumentMissing);
  EXPECT_TRUE(findingsOf(made.value().items()[1]).empty());
}

TEST_F(PlannedImport, SaysWhenTheFileIsForAnotherLanguageAndTakesTheOneThatWasAskedFor) {
  addFile(kFrenchPo);
  const auto made = plan("de");
  ASSERT_TRUE(made);
  EXPECT_EQ(made.value().notes(), (std::vector<ImportNote>{{ImportNote::Kind::OtherLanguage, "fr"}}));
  EXPECT_EQ(made.value().items()[0].edit.language, LanguageCode("de"));
}

TEST_F(PlannedImport, TakesNothingFromAFileThatIsNotWellFormed) {
  addFile(std::string(kFrenchPo) + "msgid \"Cut\nmsgstr \"x\"\n");
  const auto made = plan();
  ASSERT_FALSE(made);
  EXPECT_EQ(made.error().sentence, "line 9: The quotes do not fit.");
}

TEST_F(PlannedImport, ReadsABundleOfXcodes) {
  constexpr const char* kTexts = "/x/fr.xcloc/Localized Contents/fr.xliff";
  m_test.host.files.addFile(kTexts, kFrenchPo);
  const auto made = m_test.project().planImport({.file = FileUrl("/x/fr.xcloc"), .format = "po"});
  ASSERT_TRUE(made) << made.error().sentence;
  EXPECT_EQ(made.value().items().size(), 2U);
  m_test.host.files.addFile("/x/fr.xcloc/Localized Contents/de.xliff", "");
  EXPECT_EQ(plan("", "/x/fr.xcloc").error().sentence, "“Localized Contents” holds more than one XLIFF file.");
  m_test.host.files.addFile("/x/other.xcloc/contents.json", "");
  EXPECT_EQ(plan("", "/x/other.xcloc").error().sentence, "It is a directory without “Localized Contents”.");
}

TEST_F(PlannedImport, AnExportOfSeveralLanguagesHasAColumnForEach) {
  m_test.project().exportLanguages(
      {.languages = {m_test.language("fr"), m_test.language("de")}, .file = FileUrl("/x/all.tsv")});
  m_test.host.runUntilIdle();
  EXPECT_EQ(m_test.host.files.bytesOf("/x/all.tsv"),
            "table\tkey\tsource\tcomment\tfr\tde\r\n\tAdd %@\tAdd %@\tMenu\tAjouter %@\t\r\n"
            "\tBold\tBold\t\t\t\r\n\tCut\tCut\t\tCouper\t\r\n");
  EXPECT_EQ(m_test.project().exportReport().strings, 3U);
}

}  // namespace
}  // namespace glossmill
