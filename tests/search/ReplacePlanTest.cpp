#include <gtest/gtest.h>

#include "search/ReplacePlan.h"
#include "support/LanguageCodes.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

class ReplacePlanTest : public testing::Test {
 protected:
  ReplacePlanTest() { wish.languages = {kGerman}; }

  std::shared_ptr<LocalizeString> add(std::string_view german, std::string_view french = {},
                                      const std::string& table = "Menu") {
    auto record = tableRecord(table, "key");
    LanguagesDict dict;
    dict.set(kGerman, german);
    if (!french.empty()) dict.set(kFrench, french);
    record->setLanguagesDict(std::move(dict));
    records.push_back(record);
    return record;
  }
  std::vector<Replacement> plan() const {
    Result<ReplacePlan> plan = ReplacePlan::of(records, wish);
    EXPECT_TRUE(plan.ok()) << (plan.ok() ? "" : plan.error().sentence);
    if (!plan.ok()) return {};
    plan.value().goOn(records.size());
    return plan.value().replacements();
  }
  std::vector<std::string> afterwards() const {
    std::vector<std::string> texts;
    for (const Replacement& change : plan()) texts.push_back(change.edit.after.value_or("(gone)"));
    return texts;
  }
  void look(std::string text, std::string replacement, bool isExpression = false) {
    wish.find.text = std::move(text);
    wish.find.isExpression = isExpression;
    wish.replacement = std::move(replacement);
  }
  using Texts = std::vector<std::string>;
  using Ranges = std::vector<TextRange>;

  ReplaceWish wish;
  StringArray records;
};

TEST_F(ReplacePlanTest, NamesEachTextThatWouldChangeWithItsPlaces) {
  add("Auf Wiedersehen");
  const auto record = add("Hafen und Hafen");
  look("hafen", "Port o");
  const std::vector<Replacement> changes = plan();
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_EQ(changes[0].edit.record, record);
  EXPECT_EQ(changes[0].edit.language, kGerman);
  EXPECT_EQ(changes[0].edit.before, "Hafen und Hafen");
  EXPECT_EQ(changes[0].edit.after, "Port o und Port o");
  EXPECT_EQ(changes[0].found, (Ranges{{0, 5}, {10, 5}}));
  EXPECT_EQ(changes[0].put, (Ranges{{0, 6}, {11, 6}}));
}

TEST_F(ReplacePlanTest, ChangesNothingByItself) {
  const auto record = add("Hafen");
  look("Hafen", "Port");
  EXPECT_EQ(plan().size(), 1U);
  EXPECT_EQ(record->languagesDict().find(kGerman), "Hafen");
}

TEST_F(ReplacePlanTest, LooksAtTheLanguagesItIsToldInTheirOrder) {
  add("Port", "Le port");
  look("port", "X");
  EXPECT_EQ(afterwards(), (Texts{"X"}));
  wish.languages = {kFrench, kGerman};
  EXPECT_EQ(afterwards(), (Texts{"Le X", "X"}));
  wish.languages = {};
  EXPECT_TRUE(afterwards().empty());
}

TEST_F(ReplacePlanTest, KeepsToOneTable) {
  add("Hafen", "", "Menu");
  add("Hafenamt", "", "Panel");
  look("Hafen", "Port");
  EXPECT_EQ(afterwards(), (Texts{"Port", "Portamt"}));
  wish.table = "Panel";
  EXPECT_EQ(afterwards(), (Texts{"Portamt"}));
}

TEST_F(ReplacePlanTest, LeavesOutWhatWouldStayTheSame) {
  add("Hafen");
  add("HAFEN");
  look("hafen", "Hafen");
  EXPECT_EQ(afterwards(), (Texts{"Hafen"}));
}

TEST_F(ReplacePlanTest, TakesATranslationAwayOfWhichNothingIsLeft) {
  add("Hafen");
  look("Hafen", "");
  EXPECT_EQ(afterwards(), (Texts{"(gone)"}));
}

TEST_F(ReplacePlanTest, PutsGroupsOfAnExpressionWhereTheyAreWanted) {
  add("Boot 12 an Steg 3");
  look("(\\w+) (\\d+)", "$2. $1 ($0) $$\\$\\n", true);
  EXPECT_EQ(afterwards(), (Texts{"12. Boot (Boot 12) $$\n an 3. Steg (Steg 3) $$\n"}));
}

TEST_F(ReplacePlanTest, PutsNothingForAGroupThatTookNoPart) {
  add("ab");
  look("(x)?b", "[$1]", true);
  EXPECT_EQ(afterwards(), (Texts{"a[]"}));
}

TEST_F(ReplacePlanTest, TakesSignsOfGroupsAsTheyStandInAPlainSearch) {
  add("Preis");
  look("Preis", "$1\\n");
  EXPECT_EQ(afterwards(), (Texts{"$1\\n"}));
}

TEST_F(ReplacePlanTest, SaysWhatIsWrongWithAWish) {
  look("(a", "", true);
  EXPECT_EQ(ReplacePlan::of(records, wish).error().sentence, "At character 1 of the expression a ( is not closed.");
  look("(a)", "$2", true);
  EXPECT_EQ(ReplacePlan::of(records, wish).error().sentence, "The expression has no group 2.");
}

TEST_F(ReplacePlanTest, GoesOnBitByBit) {
  for (int i = 0; i < 5; ++i) add("Hafen");
  look("Hafen", "Port");
  Result<ReplacePlan> plan = ReplacePlan::of(records, wish);
  ASSERT_TRUE(plan.ok());
  EXPECT_TRUE(plan.value().goOn(2));
  EXPECT_EQ(plan.value().replacements().size(), 2U);
  EXPECT_EQ(plan.value().seenRecords(), 2U);
  EXPECT_TRUE(plan.value().goOn(2));
  EXPECT_FALSE(plan.value().goOn(2));
  EXPECT_EQ(plan.value().replacements().size(), 5U);
  EXPECT_EQ(plan.value().allRecords(), 5U);
}

}  // namespace
}  // namespace glossmill
