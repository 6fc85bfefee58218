#include <gtest/gtest.h>

#include "app/StringOrder.h"
#include "app/ViewFilter.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

class StringOrderTest : public testing::Test {
 protected:
  StringOrderTest() {
    m_test.addString("b", "Two");
    m_test.addString("C", "one");
    m_test.addString("a", "two");
    m_test.addLanguage("de", "\"b\" = \"y\";\n\"C\" = \"X\";\n");
    m_test.addLanguage("fr", "\"b\" = \"1\";\n\"a\" = \"2\";\n\"C\" = \"3\";\n");
    m_test.open();
    m_test.select("b", "de");
    m_reference.emplace(m_test.project());
    m_order.emplace(m_test.project(), *m_reference);
  }

  using Keys = std::vector<std::string>;
  Keys shown() { return m_test.shownKeys(); }
  Keys by(SortKey key, bool descending = false) {
    m_order->sortBy(key, descending);
    return shown();
  }

  TestProject m_test;
  std::optional<ReferenceText> m_reference;
  std::optional<StringOrder> m_order;
};

TEST_F(StringOrderTest, ComparesTextsWhateverTheirCase) {
  EXPECT_EQ(by(SortKey::Key), Keys({"a", "b", "C"}));
  EXPECT_EQ(by(SortKey::Key, true), Keys({"C", "b", "a"}));
  EXPECT_EQ(by(SortKey::Translation), Keys({"a", "C", "b"}));
}

TEST_F(StringOrderTest, LeavesWhatIsEqualInTheOrderOfTheSources) {
  EXPECT_EQ(by(SortKey::Comment), Keys({"C", "b", "a"}));
  EXPECT_EQ(by(SortKey::Comment, true), Keys({"b", "a", "C"}));
  EXPECT_EQ(by(SortKey::Files, true), Keys({"b", "C", "a"}));
}

TEST_F(StringOrderTest, PutsWhatTheChosenLanguageLacksLast) {
  EXPECT_EQ(by(SortKey::Status), Keys({"b", "C", "a"}));
  EXPECT_EQ(by(SortKey::Status, true), Keys({"a", "b", "C"}));
}

TEST_F(StringOrderTest, FollowsTheReference) {
  m_reference->choose(LanguageCode("fr"));
  EXPECT_EQ(by(SortKey::Source), Keys({"b", "a", "C"}));
  m_reference->choose(std::nullopt);
  EXPECT_EQ(by(SortKey::Source), Keys({"a", "b", "C"}));
}

TEST_F(StringOrderTest, IsAViewThatKeepsTheSelection) {
  by(SortKey::Key);
  EXPECT_EQ(m_test.keys(), Keys({"b", "C", "a"}));
  EXPECT_EQ(m_test.project().selectedString()->name(), "b");
  ViewFilter view(m_test.project().stringController());
  view.set(ViewPart::Search, [](const LocalizeString& record) { return record.name() != "b"; });
  EXPECT_EQ(shown(), Keys({"a", "C"}));
  m_order->clear();
  EXPECT_EQ(shown(), Keys({"C", "a"}));
}

TEST_F(StringOrderTest, KnowsWhetherAReferenceIsWorthShowing) {
  EXPECT_FALSE(m_reference->isWorthShowing());
  m_reference->choose(LanguageCode("fr"));
  EXPECT_TRUE(m_reference->isWorthShowing());
}

}  // namespace
}  // namespace glossmill
