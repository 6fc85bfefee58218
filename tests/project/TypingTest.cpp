#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

/// One string in two languages, without a translation; "Add" is selected in German.
class Typing : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add");
    m_test.addLanguage("de");
    m_test.addLanguage("fr");
    m_test.open();
    m_test.select("Add", "de");
    EXPECT_EQ(missing(), 1U);
    m_test.host.notifications.addObserver(this, "GlossmillTranslationChanged", [this](const void* object) {
      EXPECT_EQ(object, m_test.record("Add").get());
      m_seen.push_back(m_test.translation("Add", "de").value_or("none") + ", " + std::to_string(missing()) +
                       " missing, " + (m_test.project().changed() ? "changed" : "not changed"));
    });
  }
  void TearDown() override { m_test.host.notifications.removeObserver(this); }

  std::size_t missing() { return m_test.project().missingTranslations(*m_test.language("de")); }

  using Texts = std::vector<std::string>;
  TestProject m_test;
  Texts m_seen;
};

TEST_F(Typing, PostsOnceForAFirstTranslation) {
  m_test.type("Plus");
  EXPECT_EQ(m_seen, Texts{"Plus, 0 missing, changed"});
}

TEST_F(Typing, PostsOnceForARemovedTranslation) {
  m_test.setTranslation("Add", "de", "Plus");
  m_test.type("");
  EXPECT_EQ(m_seen, Texts{"none, 1 missing, changed"});
}

TEST_F(Typing, PostsOnceForARemovedEmptyEntry) {
  m_test.setTranslation("Add", "de", "");
  m_test.type("");
  EXPECT_EQ(m_seen, Texts{"none, 1 missing, changed"});
}

TEST_F(Typing, PostsNothingWhenOneTextReplacesAnother) {
  m_test.setTranslation("Add", "de", "Plus");
  m_test.type("Dazu");
  m_test.type("Dazu");
  EXPECT_EQ(m_seen, Texts());
  EXPECT_EQ(m_test.translation("Add", "de"), "Dazu");
}

TEST_F(Typing, PostsNothingWhenATextReplacesAnEmptyEntry) {
  m_test.setTranslation("Add", "de", "");
  m_test.type("Plus");
  EXPECT_EQ(m_seen, Texts());
}

TEST_F(Typing, PostsNothingWhenThereStaysNone) {
  m_test.type("");
  EXPECT_EQ(m_seen, Texts());
}

TEST_F(Typing, PostsOfEveryEntryThatComesAndGoes) {
  m_test.type("P");
  m_test.type("");
  m_test.type("D");
  EXPECT_EQ(m_seen, (Texts{"P, 0 missing, changed", "none, 1 missing, changed", "D, 0 missing, changed"}));
}

TEST_F(Typing, GoesThroughTheDoorForEdits) {
  std::vector<EditStep> steps;
  m_test.project().edits().addObserver([&](const Edit&, const EditStep& step) { steps.push_back(step); });
  m_test.type("P");
  m_test.type("Pl");
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0].kind, EditKind::Typing);
  EXPECT_NE(steps[0].number, steps[1].number);
}

}  // namespace
}  // namespace glossmill
