#include <gtest/gtest.h>

#include "search/ReplacePlan.h"
#include "support/LanguageCodes.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Three strings that German has.
class Replacing : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"Ebb", "Flood", "Gull"}) test.addString(key);
    test.addLanguage("de", "\"Ebb\" = \"Ebbe im Hafen\";\n\"Flood\" = \"Flut im Hafen\";\n\"Gull\" = \"Möwe\";\n");
    test.open();
  }
  std::vector<Replacement> planned(const std::string& text, const std::string& replacement) {
    ReplaceWish wish;
    wish.find.text = text;
    wish.replacement = replacement;
    wish.languages = {kGerman};
    Result<ReplacePlan> plan = ReplacePlan::of(test.project().stringList(), wish);
    plan.value().goOn(plan.value().allRecords());
    return plan.value().replacements();
  }

  TestProject test;
};

TEST_F(Replacing, IsOneStepThatIsTakenBackAsAWhole) {
  EXPECT_EQ(test.project().replaceTexts(planned("Hafen", "Port")), 2U);
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe im Port");
  EXPECT_EQ(test.translation("Flood", "de"), "Flut im Port");
  EXPECT_EQ(test.translation("Gull", "de"), "Möwe");
  test.project().undo();
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe im Hafen");
  EXPECT_EQ(test.translation("Flood", "de"), "Flut im Hafen");
  EXPECT_FALSE(test.project().canUndo());
}

TEST_F(Replacing, LeavesATextAloneThatHasChangedSinceItWasFound) {
  const std::vector<Replacement> replacements = planned("Hafen", "Port");
  test.select("Ebb", "de");
  test.type("Ebbe am Steg");
  EXPECT_EQ(test.project().replaceTexts(replacements), 1U);
  EXPECT_EQ(test.translation("Ebb", "de"), "Ebbe am Steg");
  EXPECT_EQ(test.translation("Flood", "de"), "Flut im Port");
}

TEST_F(Replacing, OfNothingIsNoStep) {
  EXPECT_EQ(test.project().replaceTexts({}), 0U);
  EXPECT_FALSE(test.project().canUndo());
}

}  // namespace
}  // namespace glossmill
