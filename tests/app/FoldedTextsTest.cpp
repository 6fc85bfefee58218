#include <gtest/gtest.h>

#include <memory>

#include "app/FoldedTexts.h"
#include "model/LocalizeString.h"

namespace glossmill {
namespace {

/// Three records with a text each, which is their name, and how often it was asked for.
class FoldedTextsTest : public testing::Test {
 protected:
  FoldedTextsTest() {
    for (const char* name : {"ONE", "Two", "three"}) {
      m_records.push_back(std::make_unique<LocalizeString>());
      m_records.back()->setName(name);
    }
  }

  const LocalizeString& record(std::size_t place) { return *m_records[place]; }
  void rename(std::size_t place, const char* name) { m_records[place]->setName(name); }
  std::vector<std::string> all() {
    std::vector<std::string> texts;
    for (const auto& record : m_records) texts.emplace_back(m_folded.of(*record));
    return texts;
  }

  using Texts = std::vector<std::string>;
  std::vector<std::unique_ptr<LocalizeString>> m_records;
  int m_asked = 0;
  FoldedTexts m_folded{[this](const LocalizeString& record) {
    ++m_asked;
    return record.name();
  }};
};

TEST_F(FoldedTextsTest, AreInLowerCase) {
  EXPECT_EQ(all(), Texts({"one", "two", "three"}));
}

TEST_F(FoldedTextsTest, AreAskedForOnce) {
  all();
  rename(1, "Other");
  EXPECT_EQ(all(), Texts({"one", "two", "three"}));
  EXPECT_EQ(m_asked, 3);
}

TEST_F(FoldedTextsTest, OfOneRecordAreForgottenAlone) {
  all();
  rename(0, "Uno");
  rename(1, "Due");
  m_folded.forget(record(1));
  EXPECT_EQ(all(), Texts({"one", "due", "three"}));
  EXPECT_EQ(m_asked, 4);
  EXPECT_EQ(all(), Texts({"one", "due", "three"}));
  EXPECT_EQ(m_asked, 4);
}

TEST_F(FoldedTextsTest, AreForgottenTogether) {
  EXPECT_TRUE(m_folded.isEmpty());
  all();
  EXPECT_FALSE(m_folded.isEmpty());
  rename(0, "Uno");
  rename(2, "Tre");
  m_folded.forget();
  EXPECT_TRUE(m_folded.isEmpty());
  EXPECT_EQ(all(), Texts({"uno", "two", "tre"}));
}

TEST_F(FoldedTextsTest, AreFoldedAnewFromARecordThatComesOutOfOrder) {
  all();
  EXPECT_EQ(m_folded.of(record(0)), "one");
  EXPECT_EQ(m_folded.of(record(2)), "three");
  EXPECT_EQ(m_folded.of(record(1)), "two");
  EXPECT_EQ(m_asked, 5);
  EXPECT_EQ(all(), Texts({"one", "two", "three"}));
}

TEST_F(FoldedTextsTest, TakeARecordThatIsNotThereToForget) {
  m_folded.forget(record(0));
  EXPECT_EQ(all(), Texts({"one", "two", "three"}));
}

TEST_F(FoldedTextsTest, TakeWhatIsAppendedWithoutAskingForIt) {
  m_folded.append(record(0), "GIVEN");
  m_folded.append(record(1), "");
  EXPECT_EQ(all(), Texts({"given", "", "three"}));
  EXPECT_EQ(m_asked, 1);
}

}  // namespace
}  // namespace glossmill
