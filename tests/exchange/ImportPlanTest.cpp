#include <gtest/gtest.h>

#include "exchange/ImportPlan.h"
#include "exchange/ImportReport.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

std::shared_ptr<LocalizeString> keyed(std::string_view key) {
  auto made = std::make_shared<LocalizeString>();
  made->setName(key);
  return made;
}

const ImportPlan kPlan({{"Open", "Ouvrir"}, {"Close", "Fermer"}}, kFrench);

TEST(ImportPlan, HasAnEditForAStringThatTheFileNames) {
  const auto open = keyed("Open");
  const std::optional<Edit> edit = kPlan.editFor(open);
  ASSERT_TRUE(edit);
  EXPECT_EQ(edit->record, open);
  EXPECT_EQ(edit->language, kFrench);
  EXPECT_EQ(edit->before, std::nullopt);
  EXPECT_EQ(edit->after, "Ouvrir");
}

TEST(ImportPlan, ReplacesWhatIsThere) {
  const auto open = keyed("Open");
  store(*open, kFrench, "");
  EXPECT_EQ(kPlan.editFor(open)->before, "");
}

TEST(ImportPlan, HasNothingForOtherStrings) {
  EXPECT_FALSE(kPlan.editFor(keyed("open")));
  EXPECT_EQ(kPlan.size(), 2U);
}

TEST(ImportPlan, ChangesNothingItself) {
  const auto open = keyed("Open");
  EXPECT_TRUE(kPlan.editFor(open));
  EXPECT_EQ(open->languagesDict().count(), 0U);
}

TEST(ImportReport, TellsNewFromChangedAndUnchanged) {
  const auto open = keyed("Open");
  ImportReport report;
  report.count(editOf(open, kFrench, "Ouvrir"));
  store(*open, kFrench, "");
  report.count(editOf(open, kFrench, "Ouvrir"));
  report.count(editOf(open, kFrench, "Ouvre"));
  store(*open, kFrench, "Ouvrir");
  report.count(editOf(open, kFrench, "Ouvrir"));
  EXPECT_EQ(report.added, 1U);
  EXPECT_EQ(report.changed, 2U);
  EXPECT_EQ(report.unchanged, 1U);
  EXPECT_EQ(report.known(), 4U);
}

}  // namespace
}  // namespace glossmill
